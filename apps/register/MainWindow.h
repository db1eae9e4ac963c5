#pragma once

#include "register/Maintenance.h"
#include "register/Memory.h"
#include "register/RegisterModel.h"
#include "register/SearchThread.h"

#include <QMainWindow>

#include <array>
#include <functional>

class QBoxLayout;
class QLabel;
class QMenu;
class QStackedWidget;
class QTableView;
class QToolButton;

namespace quillmere::host {

class EmptyState;
class FilterBar;
struct Problem;

/// What the host itself is set to.
struct HostSettings {
    /// The register's file, as the status bar names it.
    QString file;
    /// Directory of the photo files.
    QString photoPath;
    /// Code of the bureau that the register is kept for; empty for all.
    QString unitCode;
    /// A connection to the same register, for searches.
    SearchThread::OpenConnection openForSearch;
    /// The register can be looked at and not be changed.
    bool readOnly = false;
    Memory memory;
};

/// The list of persons and units, and the ways from it into the maintenance window.
class MainWindow final : public QMainWindow {
public:
    /// Raises quillmere::Error when the register cannot be read.
    MainWindow(RegisterList list, HostSettings settings, OpenMaintenance open = openMaintenance);

    /// Offers to open another register; whoever keeps the windows opens it.
    void onOpenAnother(std::function<void()> open);
    /// Why another register could not be opened; this one stays open.
    void showProblem(const Problem& problem);
    void showNotice(const QString& text);

private:
    void buildWidgets();
    void buildTopBar(QBoxLayout& column);
    void buildNotice(QBoxLayout& column);
    void buildCard(QBoxLayout& column);
    void buildTable();
    void buildFilter();
    void buildStatusBar();
    void buildShortcuts();
    void fillTypeMenu();
    void fillRecentMenu();
    void layColumns();
    void keepColumns();
    void closeEvent(QCloseEvent* event) override;

    // Ways into the maintenance window.
    void startNewRecord();
    void startOn(Operation operation);
    void startOnRecent(const RecentRecord& record);
    void startOn(Kind kind, const Entry& entry, Operation operation);
    void open(const MaintenanceRun& run, const QString& subject);
    void showSavedNewRecord(Kind kind);
    void keepRecent(Kind kind, const Entry& entry);
    void chooseNewRecordType(std::int16_t type);

    /// Shows what the filter bar asks for, or begins to look for it; what was selected stays so where it is
    /// still there.
    void request();
    void showAll(Kind kind);
    void hear(const SearchNews& news);
    void tellSearchFailure(const std::exception_ptr& told);
    void showFound();
    void stopSearching();
    void goToList();
    void escape();
    /// Runs what fills the list, and selects in it what was selected. False when it failed, which is told.
    [[nodiscard]] bool fill(const Query& query, const std::function<void()>& work);

    void select(int row);
    void rememberSelection();
    void follow();
    [[nodiscard]] QString countText() const;
    void tellWhyEmpty();
    void tellNothingFound();
    [[nodiscard]] int currentRow() const;
    [[nodiscard]] bool isSearching() const { return searches_.isRunning(); }

    enum class Outcome { None, Saved, Failure };
    void tell(Outcome outcome, const QString& text);
    void tellFailure(const QString& what, const std::exception& failure);

    RegisterList list_;
    HostSettings settings_;
    OpenMaintenance open_;
    std::function<void()> openAnother_;
    RegisterModel model_;
    std::int16_t newRecordType_ = 1;
    /// The last selection of each kind.
    std::array<std::string, 2> selected_;

    /// The search that runs or ran last: what it looks for, what it has found beyond what is shown, and
    /// whether its list is on show yet.
    Query asked_;
    std::vector<RecordKey> found_;
    bool shown_ = true;
    bool stopped_ = false;
    /// The person wants to go on in the list as soon as it is there.
    bool goesToList_ = false;

    QToolButton* new_ = nullptr;
    QMenu* typeMenu_ = nullptr;
    QToolButton* recent_ = nullptr;
    QToolButton* another_ = nullptr;
    std::vector<QToolButton*> operations_;
    FilterBar* filter_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    QTableView* table_ = nullptr;
    EmptyState* empty_ = nullptr;
    QLabel* message_ = nullptr;
    QLabel* newRecords_ = nullptr;

    /// The last member: it ends before anything goes that its news touch.
    SearchThread searches_;
};

} // namespace quillmere::host
