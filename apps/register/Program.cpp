#include "register/Program.h"

#include "platform/Error.h"
#include "platform/data/Connection.h"
#include "register/OpenRegister.h"
#include "register/PanelShots.h"
#include "register/Reception.h"
#include "register/Tour.h"
#include "sample/OutputFile.h"

#include <quillmere/Qt.h>
#include <quillmere/Sqlite.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdlib>

namespace quillmere::host {

namespace {

constexpr auto fileTypes = "登记库 (*.db *.sqlite *.sqlite3);;所有文件 (*)";

QString askForFile() {
    return QFileDialog::getOpenFileName(nullptr, QStringLiteral("打开登记库"), QDir::homePath(),
                                        QString::fromUtf8(fileTypes));
}

QString askForPlace() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileDialog::getSaveFileName(nullptr, QStringLiteral("样例库存放的位置"),
                                        QDir(documents).filePath(QStringLiteral("样例登记库.db")),
                                        QString::fromUtf8(fileTypes));
}

void copyPhotos(const QString& from, const QString& to) {
    QDir().mkpath(to);
    const QStringList names = QDir(from).entryList({QStringLiteral("*.jpg")}, QDir::Files);
    for (const QString& name : names)
        QFile::copy(QDir(from).filePath(name), QDir(to).filePath(name));
}

/// A register that may be written into: a copy of the one named, with its photos, or a sample.
void makeOwnRegister(const CommandLine& line, const QString& path) {
    if (line.database.isEmpty()) return sample::buildFile(path.toStdString(), {}, false);
    copyPhotos(photosOf(line.database), photosOf(path));
    QString literal = path;
    literal.replace(u'\'', QStringLiteral("''"));
    openSqlite(line.database.toStdString())
        ->execute(QStringLiteral("vacuum into '%1'").arg(literal).toStdString());
}

int goOnTour(const CommandLine& line) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("register.db"));
    makeOwnRegister(line, path);
    Tour tour(line.tour);
    qt::ToolkitOptions options;
    options.companion = &tour;
    const qt::Toolkit toolkit(options);
    const std::unique_ptr<MainWindow> window = openRegister(path, {.unitCode = line.unitCode});
    tour.run(*window);
    return EXIT_SUCCESS;
}

int shootPanels(const CommandLine& line) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("register.db"));
    makeOwnRegister(line, path);
    PanelShots shots({line.panels, line.skin, line.size});
    qt::ToolkitOptions options;
    options.companion = &shots;
    const qt::Toolkit toolkit(options);
    shots.run(openSqlite(path.toStdString()));
    return EXIT_SUCCESS;
}

int workInWindow(const CommandLine& line) {
    // The maintenance window shows on this toolkit, which must outlive every opening of it.
    const qt::Toolkit toolkit;
    Reception reception({line.unitCode, line.journal, true}, {askForFile, askForPlace});
    const QString path = registerToOpen(line);
    if (path.isEmpty())
        reception.welcome();
    else
        reception.open(path);
    // An application that the toolkit made goes on without windows.
    const bool before = QApplication::quitOnLastWindowClosed();
    QApplication::setQuitOnLastWindowClosed(true);
    const int status = QApplication::exec();
    QApplication::setQuitOnLastWindowClosed(before);
    return path.isEmpty() || reception.hasOpened() ? status : EXIT_FAILURE;
}

} // namespace

QString registerToOpen(const CommandLine& line) {
    return line.database.isEmpty() ? Memory::lastRegister() : line.database;
}

int work(const CommandLine& line, const TellFailure& tell) {
    try {
        if (!line.panels.isEmpty()) return shootPanels(line);
        return line.tour.isEmpty() ? workInWindow(line) : goOnTour(line);
    } catch (const Error& error) {
        tell(QStringLiteral("错误 %1：%2")
                 .arg(error.number())
                 .arg(QString::fromStdString(error.description())));
    } catch (const std::exception& failure) {
        tell(QString::fromUtf8(failure.what()));
    }
    return EXIT_FAILURE;
}

} // namespace quillmere::host
