#include "register/Program.h"

#include "platform/Error.h"
#include "platform/data/Connection.h"
#include "register/Tour.h"
#include "sample/OutputFile.h"

#include <quillmere/Qt.h>
#include <quillmere/Sqlite.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdlib>

namespace quillmere::host {

namespace {

constexpr auto lastUsed = "database";

QString askForRegister() {
    return QFileDialog::getOpenFileName(nullptr, QStringLiteral("打开登记库"), QDir::homePath(),
                                        QStringLiteral("登记库 (*.db *.sqlite *.sqlite3);;所有文件 (*)"));
}

/// A register that the tour may write into: a copy of the one named, or a sample.
void makeTourRegister(const CommandLine& line, const QString& path) {
    if (line.database.isEmpty()) return sample::buildFile(path.toStdString(), {}, false);
    QString literal = path;
    literal.replace(u'\'', QStringLiteral("''"));
    openSqlite(line.database.toStdString())
        ->execute(QStringLiteral("vacuum into '%1'").arg(literal).toStdString());
}

int goOnTour(const CommandLine& line) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("register.db"));
    makeTourRegister(line, path);
    Tour tour(line.tour);
    qt::ToolkitOptions options;
    options.companion = &tour;
    const qt::Toolkit toolkit(options);
    const std::unique_ptr<MainWindow> window = openRegister(path, line.unitCode);
    tour.run(*window);
    return EXIT_SUCCESS;
}

int workInWindow(const CommandLine& line) {
    const QString path = chooseRegister(line, askForRegister);
    if (path.isEmpty()) return EXIT_SUCCESS;
    // The maintenance window shows on this toolkit, which must outlive every opening of it.
    const qt::Toolkit toolkit;
    const std::unique_ptr<MainWindow> window = openRegister(path, line.unitCode);
    QSettings().setValue(lastUsed, QFileInfo(path).absoluteFilePath());
    window->show();
    return QApplication::exec();
}

} // namespace

std::unique_ptr<MainWindow> openRegister(const QString& path, const QString& unitCode) {
    RegisterList list(openSqlite(path.toStdString()));
    const QFileInfo file(path);
    return std::make_unique<MainWindow>(
        std::move(list),
        HostSettings{file.fileName(), file.absoluteDir().filePath(QStringLiteral("photos")), unitCode});
}

QString chooseRegister(const CommandLine& line, const std::function<QString()>& ask) {
    if (!line.database.isEmpty()) return line.database;
    const QString last = QSettings().value(lastUsed).toString();
    return QFileInfo(last).isFile() ? last : ask();
}

int work(const CommandLine& line, const TellFailure& tell) {
    try {
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
