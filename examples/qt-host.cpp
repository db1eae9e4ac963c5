// A host with windows of its own: a list of names, and the maintenance window of the one that is chosen.
//
//     qt-host REGISTER

#include <quillmere/Connection.h>
#include <quillmere/IUserCtrl.h>
#include <quillmere/Qt.h>
#include <quillmere/Sqlite.h>

#include <QApplication>
#include <QListWidget>
#include <QMessageBox>

#include <exception>
#include <memory>

namespace {

constexpr int identityRole = Qt::UserRole;
constexpr int typeRole = Qt::UserRole + 1;

void fill(QListWidget& list, quillmere::data::Connection& connection) {
    list.clear();
    const auto people = connection.query("select A00,A0101,A0136 from A01 order by A0199");
    for (std::size_t row = 0; row < people.rowCount(); ++row) {
        auto* item = new QListWidgetItem(QString::fromStdString(people.at(row, 1).toTextOrEmpty()), &list);
        item->setData(identityRole, QString::fromStdString(people.at(row, 0).toTextOrEmpty()));
        item->setData(typeRole, QString::fromStdString(people.at(row, 2).toTextOrEmpty()).toInt());
    }
}

/// True when something was saved.
bool maintain(const QListWidgetItem& item, const std::shared_ptr<quillmere::data::Connection>& connection) {
    quillmere::IUserCtrl entry;
    entry.setConnection(connection);
    entry.setOperationType(4);
    entry.setPersonID(item.data(identityRole).toString().toStdString());
    entry.setZZtype(static_cast<std::int16_t>(item.data(typeRole).toInt()));
    return entry.ShowPersonWh();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (QApplication::arguments().size() < 2) return 2;
    try {
        const quillmere::qt::Toolkit toolkit; // works in the application above
        const auto connection = quillmere::openSqlite(QApplication::arguments().at(1).toStdString());
        QListWidget list;
        fill(list, *connection);
        QObject::connect(&list, &QListWidget::itemActivated, [&](const QListWidgetItem* item) {
            try {
                if (maintain(*item, connection)) fill(list, *connection);
            } catch (const std::exception& failure) {
                // Nothing may leave a slot: the window has closed, the host goes on.
                QMessageBox::warning(&list, {}, QString::fromUtf8(failure.what()));
            }
        });
        list.show();
        return QApplication::exec();
    } catch (const std::exception& failure) {
        QMessageBox::critical(nullptr, {}, QString::fromUtf8(failure.what()));
        return 1;
    }
}
