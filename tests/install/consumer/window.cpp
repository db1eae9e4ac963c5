// Opens the maintenance window of the first person, takes a picture and closes it: window REGISTER PICTURE

#include <quillmere/Connection.h>
#include <quillmere/IUserCtrl.h>
#include <quillmere/Qt.h>
#include <quillmere/Sqlite.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <iostream>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc < 3) return 2;
    quillmere::qt::Toolkit toolkit;
    const auto connection = quillmere::openSqlite(argv[1]);
    const auto person = connection->query("select A00,A0136 from A01 order by A0199");

    quillmere::IUserCtrl entry;
    entry.setConnection(connection);
    entry.setOperationType(4);
    entry.setPersonID(person.at(0, "A00").toText());
    entry.setZZtype(person.at(0, "A0136").toInteger16());

    bool pictured = false;
    QTimer clerk;
    QObject::connect(&clerk, &QTimer::timeout, [&] {
        QWidget* window = QApplication::activeModalWidget();
        if (window == nullptr) return;
        pictured = toolkit.saveScreenshot(argv[2]);
        window->close();
    });
    clerk.start(200);

    const bool saved = entry.ShowPersonWh();
    std::cout << (pictured ? "pictured" : "not pictured") << (saved ? ", saved\n" : ", nothing saved\n");
    return pictured ? 0 : 1;
}
