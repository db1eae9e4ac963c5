#pragma once

#include "register/Maintenance.h"
#include "register/RegisterModel.h"

#include <QMainWindow>

#include <array>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QStackedWidget;
class QTableView;
class QToolButton;

namespace quillmere::host {

/// What the host itself is set to.
struct HostSettings {
    /// The register's file, as the status bar names it.
    QString file;
    /// Directory of the photo files.
    QString photoPath;
    /// Code of the bureau that the register is kept for; empty for all.
    QString unitCode;
};

/// The list of persons and units, and the ways from it into the maintenance window.
class MainWindow final : public QMainWindow {
public:
    /// Raises quillmere::Error when the register cannot be read.
    MainWindow(RegisterList list, HostSettings settings, OpenMaintenance open = openMaintenance);

private:
    void buildWidgets();
    void buildTopBar(QBoxLayout& column);
    void buildCard(QBoxLayout& column);
    [[nodiscard]] QWidget* buildFilterRow();
    [[nodiscard]] QWidget* buildEmptyState();
    void buildStatusBar();
    void buildShortcuts();
    void fillTypeMenu();

    void startNewRecord();
    void startOn(Operation operation);
    void open(const MaintenanceRun& run, const QString& subject);
    void chooseNewRecordType(std::int16_t type);

    /// Shows a kind and a search; what was selected stays so where it is still there.
    void showRecords(Kind kind, const QString& search);
    void refresh() { showRecords(model_.kind(), model_.search()); }
    void layColumns();
    void select(int row);
    void follow();
    [[nodiscard]] int currentRow() const;

    enum class Outcome { None, Saved, Failure };
    void tell(Outcome outcome, const QString& text);
    void tellFailure(const QString& what, const std::exception& failure);

    RegisterList list_;
    HostSettings settings_;
    OpenMaintenance open_;
    RegisterModel model_;
    std::int16_t newRecordType_ = 1;
    /// The last selection of each kind.
    std::array<std::string, 2> selected_;

    QToolButton* new_ = nullptr;
    QMenu* typeMenu_ = nullptr;
    std::vector<QToolButton*> operations_;
    std::array<QPushButton*, 2> kinds_{};
    QLineEdit* search_ = nullptr;
    QLabel* count_ = nullptr;
    QStackedWidget* pages_ = nullptr;
    QTableView* table_ = nullptr;
    QLabel* emptyTitle_ = nullptr;
    QLabel* emptyHint_ = nullptr;
    QLabel* message_ = nullptr;
    QLabel* newRecords_ = nullptr;
};

} // namespace quillmere::host
