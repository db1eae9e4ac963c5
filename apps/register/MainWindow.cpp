#include "register/MainWindow.h"

#include "platform/Error.h"
#include "register/Look.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTableView>
#include <QToolButton>

#include <algorithm>

namespace quillmere::host {

namespace {

QString captionOf(Operation operation) {
    switch (operation) {
    case Operation::NewRecord:
        return QStringLiteral("新建");
    case Operation::Plan:
        return QStringLiteral("计划");
    case Operation::Progress:
        return QStringLiteral("进展");
    case Operation::Closing:
        return QStringLiteral("结题");
    case Operation::Maintain:
        return QStringLiteral("维护");
    }
    return {};
}

QString newRecordCaption(std::int16_t type) {
    return type == collectiveType ? QStringLiteral("新建单位") : QStringLiteral("新建人员");
}

std::size_t indexOf(Kind kind) { return static_cast<std::size_t>(kind); }

} // namespace

MainWindow::MainWindow(RegisterList list, HostSettings settings, OpenMaintenance open)
    : list_(list), settings_(std::move(settings)), open_(std::move(open)), model_(std::move(list)) {
    setObjectName(QStringLiteral("register"));
    setWindowTitle(QStringLiteral("人才登记库"));
    buildWidgets();
    newRecordType_ = list_.newRecordType();
    fillTypeMenu();
    model_.show(Kind::Persons, {});
    layColumns();
    select(0);
    follow();
    tell(Outcome::None, QStringLiteral("就绪"));
}

void MainWindow::startNewRecord() {
    try {
        // The component reads it anew too; someone else may have set it.
        newRecordType_ = list_.newRecordType();
    } catch (const std::exception& failure) {
        return tellFailure(QStringLiteral("新记录的资助类型"), failure);
    }
    follow();
    const QString subject = newRecordCaption(newRecordType_);
    // The component makes a person's identity by itself and keeps the host's for a unit; it does not tell
    // either, so the host finds the new record as the first one of the list.
    open({list_.connection(), Operation::NewRecord, newRecordType_, freshIdentity(),
          settings_.unitCode.toStdString(), settings_.photoPath.toStdString()},
         subject);
}

void MainWindow::startOn(Operation operation) {
    const int row = currentRow();
    if (row < 0) return;
    const Entry entry = model_.entry(row);
    open({list_.connection(), operation, entry.sponsorshipType, entry.id, settings_.unitCode.toStdString(),
          settings_.photoPath.toStdString()},
         entry.cells.front() + u'：' + captionOf(operation));
}

void MainWindow::open(const MaintenanceRun& run, const QString& subject) {
    bool saved = false;
    try {
        saved = open_(run);
        if (saved)
            tell(Outcome::Saved, QStringLiteral("已保存 — %1").arg(subject));
        else
            tell(Outcome::None, QStringLiteral("没有用“保存”按钮保存记录 — %1").arg(subject));
    } catch (const std::exception& failure) {
        tellFailure(subject, failure);
    }
    if (saved && run.operation == Operation::NewRecord) {
        search_->clear();
        showRecords(run.sponsorshipType == collectiveType ? Kind::Units : Kind::Persons, {});
        select(0);
    } else {
        // A prompt of the window may have stored something, whatever it returned.
        refresh();
    }
    table_->setFocus();
}

void MainWindow::chooseNewRecordType(std::int16_t type) {
    try {
        list_.setNewRecordType(type);
        newRecordType_ = type;
    } catch (const std::exception& failure) {
        tellFailure(QStringLiteral("新记录的资助类型"), failure);
    }
    follow();
}

void MainWindow::showRecords(Kind kind, const QString& search) {
    const bool otherKind = kind != model_.kind();
    const int formerRow = otherKind || search != model_.search() ? 0 : std::max(0, currentRow());
    if (currentRow() >= 0) selected_[indexOf(model_.kind())] = model_.entry(currentRow()).id;
    try {
        model_.show(kind, search);
    } catch (const std::exception& failure) {
        tellFailure(QStringLiteral("读取名单"), failure);
        return follow();
    }
    if (otherKind) layColumns();
    const int inItsPlace = std::min(formerRow, model_.rowCount() - 1);
    select(model_.rowOf(selected_[indexOf(kind)]).value_or(inItsPlace));
    follow();
}

void MainWindow::layColumns() {
    const std::vector<Column>& columns = columnsOf(model_.kind());
    QHeaderView* header = table_->horizontalHeader();
    // The name of the project takes what the others leave.
    const int stretched = static_cast<int>(columns.size()) - 2;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        header->setSectionResizeMode(i, i == stretched ? QHeaderView::Stretch : QHeaderView::Interactive);
        header->resizeSection(i, columns[static_cast<std::size_t>(i)].width);
    }
}

void MainWindow::select(int row) {
    if (row < 0 || row >= model_.rowCount()) return;
    const QModelIndex index = model_.index(row, 0);
    table_->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                         QItemSelectionModel::Rows);
    table_->scrollTo(index);
}

int MainWindow::currentRow() const {
    const QModelIndex index = table_->currentIndex();
    return index.isValid() ? index.row() : -1;
}

void MainWindow::follow() {
    const bool persons = model_.kind() == Kind::Persons;
    const QString noun = persons ? QStringLiteral("人员") : QStringLiteral("单位");
    const bool searching = !model_.search().trimmed().isEmpty();
    kinds_[indexOf(model_.kind())]->setChecked(true);
    search_->setPlaceholderText(persons ? QStringLiteral("按姓名或身份证号查找（Ctrl+F）")
                                        : QStringLiteral("按单位名称、编号或局级单位代码查找（Ctrl+F）"));
    count_->setText(QStringLiteral("%1 %2 %3")
                        .arg(searching ? QStringLiteral("找到") : QStringLiteral("共"))
                        .arg(model_.total())
                        .arg(persons ? QStringLiteral("人") : QStringLiteral("个单位")));
    pages_->setCurrentIndex(model_.rowCount() == 0 ? 1 : 0);
    emptyTitle_->setText(searching ? QStringLiteral("没有找到“%1”").arg(model_.search().trimmed())
                                   : QStringLiteral("还没有%1").arg(noun));
    emptyHint_->setText(searching ? QStringLiteral("按 Esc 清除查找内容，查看全部%1").arg(noun)
                                  : QStringLiteral("按 Ctrl+N 新建一条记录"));
    for (QToolButton* button : operations_)
        button->setEnabled(currentRow() >= 0);

    new_->setText(newRecordCaption(newRecordType_));
    for (QAction* action : typeMenu_->actions()) {
        if (action->data().toInt() != newRecordType_) continue;
        action->setChecked(true);
        newRecords_->setText(QStringLiteral("新记录：%1").arg(action->text()));
    }
}

void MainWindow::tell(Outcome outcome, const QString& text) {
    static constexpr std::array names{"none", "saved", "failure"};
    message_->setProperty("outcome", names.at(static_cast<std::size_t>(outcome)));
    message_->setText(text);
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
