// What the list of the main window shows.
#include "register/MainWindow.h"

#include "platform/Error.h"
#include "register/EmptyState.h"
#include "register/FilterBar.h"
#include "register/RegisterSource.h"
#include "register/StartWindow.h"

#include <QAction>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStyle>
#include <QTableView>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace quillmere::host {

namespace {

std::size_t indexOf(Kind kind) { return static_cast<std::size_t>(kind); }

QString nounOf(Kind kind) { return kind == Kind::Persons ? QStringLiteral("人员") : QStringLiteral("单位"); }

Kind otherThan(Kind kind) { return kind == Kind::Persons ? Kind::Units : Kind::Persons; }

} // namespace

MainWindow::MainWindow(RegisterList list, HostSettings settings, OpenMaintenance open)
    : list_(list)
    , settings_(std::move(settings))
    , open_(std::move(open))
    , model_(std::move(list))
    , searches_(settings_.openForSearch, [this](const SearchNews& news) { hear(news); }) {
    setObjectName(QStringLiteral("register"));
    setWindowTitle(QStringLiteral("人才登记库"));
    buildWidgets();
    newRecordType_ = list_.newRecordType();
    fillTypeMenu();
    fillRecentMenu();
    model_.showAll(Kind::Persons);
    layColumns();
    select(0);
    follow();
    tell(Outcome::None, QStringLiteral("就绪"));
}

void MainWindow::onOpenAnother(std::function<void()> open) {
    openAnother_ = std::move(open);
    another_->setVisible(openAnother_ != nullptr);
}

void MainWindow::showProblem(const Problem& problem) {
    tell(Outcome::Failure, problem.title + u'：' + problem.text.section(u'\n', 0, 0));
    message_->setToolTip(problem.text);
}

void MainWindow::showNotice(const QString& text) { tell(Outcome::None, text); }

void MainWindow::request() {
    const Query query = filter_->query();
    found_.clear();
    stopped_ = false;
    if (query.isEverything()) {
        searches_.cancel();
        filter_->hideProgress();
        return showAll(query.kind);
    }
    asked_ = query;
    shown_ = false;
    searches_.start(query);
    filter_->showProgress(0);
    follow();
}

void MainWindow::showAll(Kind kind) {
    Query query;
    query.kind = kind;
    shown_ = true;
    if (fill(query, [&] { model_.showAll(kind); }) && goesToList_) goToList();
    follow();
}

void MainWindow::hear(const SearchNews& news) {
    found_.insert(found_.end(), news.keys.begin(), news.keys.end());
    // A list that is read again stays until as much has been found as it shows.
    const bool again = asked_ == model_.query();
    const bool enough = !again || std::cmp_greater_equal(found_.size(), model_.rowCount());
    if (shown_ || enough || news.done) showFound();
    if (news.failure) tellSearchFailure(news.failure);
    if (news.done)
        filter_->hideProgress();
    else
        filter_->showProgress(news.permille);
    follow();
}

void MainWindow::tellSearchFailure(const std::exception_ptr& told) {
    stopped_ = true;
    try {
        std::rethrow_exception(told);
    } catch (const std::exception& failure) {
        tellFailure(QStringLiteral("查找"), failure);
    }
}

void MainWindow::showFound() {
    const std::vector<RecordKey> keys = std::exchange(found_, {});
    if (shown_) {
        try {
            model_.addFound(keys);
        } catch (const std::exception& failure) {
            tellFailure(QStringLiteral("读取名单"), failure);
        }
        if (currentRow() < 0) select(0);
        // A view that is at its end already does not ask for more by itself.
        const QScrollBar& bar = *table_->verticalScrollBar();
        if (bar.maximum() > 0 && bar.value() == bar.maximum()) model_.fetchMore({});
    } else {
        const bool filled = fill(asked_, [&] { model_.showFound(asked_, keys); });
        shown_ = true;
        // What was on show stays, and nothing more may come to it.
        if (!filled) return searches_.cancel();
    }
    if (goesToList_ && model_.rowCount() > 0) goToList();
}

bool MainWindow::fill(const Query& query, const std::function<void()>& work) {
    const bool otherKind = query.kind != model_.kind();
    const int formerRow = query == model_.query() ? std::max(0, currentRow()) : 0;
    rememberSelection();
    if (otherKind) keepColumns();
    try {
        work();
    } catch (const std::exception& failure) {
        tellFailure(QStringLiteral("读取名单"), failure);
        filter_->setKind(model_.kind());
        return false;
    }
    if (otherKind) layColumns();
    const int inItsPlace = std::min(formerRow, model_.rowCount() - 1);
    select(model_.rowOf(selected_[indexOf(query.kind)]).value_or(inItsPlace));
    return true;
}

void MainWindow::stopSearching() {
    if (!isSearching()) return;
    searches_.cancel();
    stopped_ = true;
    filter_->hideProgress();
    showFound();
    follow();
}

void MainWindow::goToList() {
    if (filter_->isPausing()) {
        // Otherwise Enter, pressed twice, would open what was listed for the former search.
        goesToList_ = true;
        return filter_->flush();
    }
    if (!shown_) {
        goesToList_ = true;
        return;
    }
    goesToList_ = false;
    if (model_.rowCount() > 0) table_->setFocus();
}

void MainWindow::escape() {
    if (!filter_->query().text.isEmpty())
        filter_->clearText();
    else if (filter_->query().isFiltered())
        filter_->clearFilters();
    table_->setFocus();
}

void MainWindow::select(int row) {
    if (row < 0 || row >= model_.rowCount()) return;
    const QModelIndex index = model_.index(row, 0);
    table_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                         QItemSelectionModel::Rows);
    table_->scrollTo(index);
}

void MainWindow::rememberSelection() {
    if (currentRow() >= 0) selected_[indexOf(model_.kind())] = model_.entry(currentRow()).id;
}

int MainWindow::currentRow() const {
    const QModelIndex index = table_->currentIndex();
    return index.isValid() ? index.row() : -1;
}

void MainWindow::follow() {
    filter_->showCount(countText());
    table_->setAccessibleName(nounOf(model_.kind()) + QStringLiteral("名单"));
    pages_->setCurrentIndex(model_.rowCount() == 0 ? 1 : 0);
    if (model_.rowCount() == 0) tellWhyEmpty();
    for (QToolButton* button : operations_)
        button->setEnabled(currentRow() >= 0);

    const bool collective = newRecordType_ == collectiveType;
    new_->setText(collective ? QStringLiteral("新建单位") : QStringLiteral("新建人员"));
    for (QAction* action : typeMenu_->actions()) {
        if (action->data().toInt() != newRecordType_) continue;
        action->setChecked(true);
        newRecords_->setText(QStringLiteral("新记录：%1").arg(action->text()));
    }
}

QString MainWindow::countText() const {
    const QString number =
        QStringLiteral("%1 %2")
            .arg(QLocale(QLocale::Chinese).toString(shown_ ? model_.total() : 0))
            .arg(filter_->query().kind == Kind::Persons ? QStringLiteral("人") : QStringLiteral("个单位"));
    if (isSearching()) return QStringLiteral("正在查找，已找到 ") + number;
    if (stopped_) return QStringLiteral("查找没有做完，找到 ") + number;
    return (model_.query().isEverything() ? QStringLiteral("共 ") : QStringLiteral("找到 ")) + number;
}

void MainWindow::tellWhyEmpty() {
    const Kind kind = filter_->query().kind;
    if (isSearching())
        return empty_->tell(QStringLiteral("正在查找…"),
                            QStringLiteral("找到的%1会陆续列出").arg(nounOf(kind)),
                            {{QStringLiteral("停止查找"), [this] { stopSearching(); }}});
    if (!filter_->query().isEverything()) return tellNothingFound();
    const QString title = QStringLiteral("还没有%1").arg(nounOf(kind));
    if (settings_.readOnly)
        return empty_->tell(title, QStringLiteral("这个登记库是只读的，不能新建记录"), {});
    empty_->tell(title, QStringLiteral("按 Ctrl+N 新建一条记录"),
                 {{new_->text(), [this] { startNewRecord(); }}});
}

void MainWindow::tellNothingFound() {
    const Query query = filter_->query();
    const bool typed = !query.wanted().isEmpty();
    std::vector<EmptyState::WayOn> ways;
    QStringList hints;
    if (typed) {
        hints << QStringLiteral("查找了%1").arg(QString::fromUtf8(sourceOf(query.kind).searchedNames));
        ways.push_back({QStringLiteral("清除查找内容"), [this] { escape(); }});
    }
    if (query.isFiltered()) {
        hints << QStringLiteral("只看了%1的%2").arg(filter_->filterText(), nounOf(query.kind));
        ways.push_back({QStringLiteral("去掉筛选"), [this] { filter_->clearFilters(); }});
    }
    if (typed) {
        const Kind other = otherThan(query.kind);
        ways.push_back({QStringLiteral("在%1中查找").arg(nounOf(other)), [this, other] {
                            filter_->setKind(other);
                            request();
                        }});
    }
    if (stopped_) hints << QStringLiteral("查找没有做完，按 F5 重新查找");
    empty_->tell(typed ? QStringLiteral("没有找到“%1”").arg(query.wanted())
                       : QStringLiteral("没有符合条件的%1").arg(nounOf(query.kind)),
                 hints.join(QStringLiteral("\n")), std::move(ways));
}

void MainWindow::tell(Outcome outcome, const QString& text) {
    static constexpr std::array names{"none", "saved", "failure"};
    message_->setProperty("outcome", names.at(static_cast<std::size_t>(outcome)));
    message_->setText(text);
    message_->setToolTip({});
    // A property in a style sheet's selector counts when the sheet is applied anew.
    message_->style()->unpolish(message_);
    message_->style()->polish(message_);
}

void MainWindow::tellFailure(const QString& what, const std::exception& failure) {
    const auto* error = dynamic_cast<const Error*>(&failure);
    const QString description = QString::fromUtf8(failure.what());
    tell(Outcome::Failure,
         error == nullptr
             ? QStringLiteral("%1 — 失败：%2").arg(what, description)
             : QStringLiteral("%1 — 错误 %2：%3").arg(what).arg(error->number()).arg(description));
    message_->setToolTip(description);
}

} // namespace quillmere::host
