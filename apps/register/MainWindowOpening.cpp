// The ways from the main window into the maintenance window.
#include "register/FilterBar.h"
#include "register/MainWindow.h"

#include <QMenu>
#include <QTableView>
#include <QToolButton>

namespace quillmere::host {

namespace {

/// Where a person's employer stands in the list.
constexpr int employerCell = 4;

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

/// An ampersand would underline what follows it.
QString menuText(const RecentRecord& record) {
    QString text = record.name.isEmpty() ? QStringLiteral("（没有名称）") : record.name;
    if (!record.remark.isEmpty()) text += QStringLiteral("　") + record.remark;
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

void MainWindow::startNewRecord() {
    if (settings_.readOnly) return;
    try {
        // The component reads it anew too; someone else may have set it.
        newRecordType_ = list_.newRecordType();
    } catch (const std::exception& failure) {
        return tellFailure(QStringLiteral("新记录的资助类型"), failure);
    }
    follow();
    const QString subject = new_->text();
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
    startOn(model_.kind(), entry, operation);
}

void MainWindow::startOnRecent(const RecentRecord& record) {
    std::optional<Entry> entry;
    try {
        entry = list_.find(record.kind, record.id);
    } catch (const std::exception& failure) {
        return tellFailure(record.name, failure);
    }
    if (entry) return startOn(record.kind, *entry, Operation::Maintain);
    tell(Outcome::Failure, QStringLiteral("“%1”已不在登记库里").arg(record.name));
    settings_.memory.removeRecent(record.kind, record.id);
    fillRecentMenu();
}

void MainWindow::startOn(Kind kind, const Entry& entry, Operation operation) {
    keepRecent(kind, entry);
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
        showSavedNewRecord(run.sponsorshipType == collectiveType ? Kind::Units : Kind::Persons);
    } else {
        // A prompt of the window may have stored something, whatever it returned.
        request();
    }
    table_->setFocus();
}

void MainWindow::showSavedNewRecord(Kind kind) {
    filter_->clearAll();
    filter_->setKind(kind);
    request();
    select(0);
    if (currentRow() == 0) keepRecent(kind, model_.entry(0));
}

void MainWindow::keepRecent(Kind kind, const Entry& entry) {
    settings_.memory.addRecent(
        {kind, entry.id, entry.cells.front(),
         kind == Kind::Persons ? entry.cells[employerCell] : QStringLiteral("（单位）")});
    fillRecentMenu();
}

void MainWindow::fillRecentMenu() {
    QMenu& menu = *recent_->menu();
    menu.clear();
    for (const RecentRecord& record : settings_.memory.recent())
        // Queued: the menu is filled anew then, and an assistive program waits for an answer.
        connect(
            menu.addAction(menuText(record)), &QAction::triggered, this,
            [this, record] { startOnRecent(record); }, Qt::QueuedConnection);
    recent_->setEnabled(!menu.isEmpty());
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

} // namespace quillmere::host
