#pragma once

#include "register/RegisterList.h"

#include <QList>
#include <QTimer>
#include <QVariant>
#include <QWidget>

#include <array>
#include <functional>
#include <utility>

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace quillmere::host {

/// What the list is asked for, as a person sets it: the kind, the search, the filters; and beside that how
/// much was found and how far a search is.
class FilterBar final : public QWidget {
public:
    /// What the bar tells its owner.
    struct Listener {
        /// Another query is set. Typing is told when it pauses, everything else at once.
        std::function<void()> changed;
        /// Enter or Down in the search box: the person wants to go on in the list.
        std::function<void()> goToList;
        std::function<void()> stopped;
    };

    FilterBar(const std::vector<SponsorshipType>& types, Listener listener);

    [[nodiscard]] Query query() const;
    void setKind(Kind kind);
    /// Both tell of it like a person's own change.
    void clearText();
    void clearFilters();
    /// Text and filters at once, without a word.
    void clearAll();
    /// The filters that are on, for reading.
    [[nodiscard]] QString filterText() const;
    /// What is typed and not told yet is told now.
    void flush();
    /// A typed search that has not been told yet.
    [[nodiscard]] bool isPausing() const { return pause_.isActive(); }

    void focusSearch();
    void showCount(const QString& text);
    /// A search runs and is so far. Shown only for one that takes its time.
    void showProgress(int permille);
    void hideProgress();

private:
    /// What the person reads, and what it stands for.
    using Option = std::pair<QString, QVariant>;

    QWidget* buildKinds();
    QComboBox* buildChoice(const char* name, const QString& accessibleName, const QList<Option>& options);
    void buildSearch();
    void buildProgress();
    void follow();
    void typed(const QString& text);
    bool eventFilter(QObject* watched, QEvent* event) override;

    Listener listener_;
    std::array<QPushButton*, 2> kinds_{};
    QLabel* count_ = nullptr;
    QComboBox* types_ = nullptr;
    QComboBox* stages_ = nullptr;
    QLineEdit* search_ = nullptr;
    QAction* clear_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QToolButton* stop_ = nullptr;
    QTimer pause_;
    QTimer patience_;
};

} // namespace quillmere::host
