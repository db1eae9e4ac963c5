#include "register/OpenRegister.h"

#include "platform/data/Connection.h"
#include "register/StartWindow.h"

#include <quillmere/Journal.h>
#include <quillmere/Sqlite.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <iostream>
#include <utility>

namespace quillmere::host {

namespace {

/// What may be wrong with a file, the plainest first.
struct Trouble {
    bool (*applies)(const QFileInfo& file);
    const char* title;
    const char* text;
};

constexpr std::array troubles{
    Trouble{[](const QFileInfo& file) { return !file.exists(); }, "找不到登记库",
            "文件可能已经移走、改名，或者所在的磁盘没有连上。"},
    Trouble{[](const QFileInfo& file) { return file.isDir(); }, "这是一个文件夹", "请选择其中的登记库文件。"},
    Trouble{[](const QFileInfo& file) { return !file.isReadable(); }, "没有权限读取登记库",
            "请向管理员要这个文件的读取权限。"},
    Trouble{[](const QFileInfo&) { return true; }, "这个文件不是登记库",
            "请选择由本系统建立的登记库；如果它原来能打开，可能已经损坏，请用备份恢复。"},
};

/// The clerk works on when something cannot be kept, so that it is told where an administrator looks.
std::shared_ptr<data::Connection> withJournal(std::shared_ptr<data::Connection> connection,
                                              const QString& path, const QString& journal) {
    JournalOptions options;
    options.file = journal.toStdString();
    options.who = (qEnvironmentVariable("USER") + u' ' + QFileInfo(path).fileName()).toStdString();
    options.complain = [](const std::string& words) {
        std::cerr << "quillmere-register: " << words << std::endl;
    };
    return journaled(std::move(connection), std::move(options));
}

/// A log beside the file needs the folder to be writable too.
bool mayWrite(const QFileInfo& file) {
    return file.isWritable() && QFileInfo(file.absolutePath()).isWritable();
}

} // namespace

std::unique_ptr<MainWindow> openRegister(const QString& path, const OpenSettings& settings) {
    const auto connect = [path] { return openSqlite(path.toStdString()); };
    RegisterList list(settings.journal.isEmpty() ? connect()
                                                 : withJournal(connect(), path, settings.journal));
    const QFileInfo file(path);
    return std::make_unique<MainWindow>(std::move(list),
                                        HostSettings{.file = file.fileName(),
                                                     .photoPath = photosOf(path),
                                                     .unitCode = settings.unitCode,
                                                     .openForSearch = connect,
                                                     .readOnly = !mayWrite(file),
                                                     .memory = settings.remembers ? Memory(path) : Memory()});
}

Problem problemWith(const QString& path, const std::exception& failure) {
    const QFileInfo file(path);
    const auto* trouble =
        std::ranges::find_if(troubles, [&](const Trouble& each) { return each.applies(file); });
    return {QString::fromUtf8(trouble->title),
            QDir::toNativeSeparators(path) + u'\n' + QString::fromUtf8(trouble->text) + u'\n' +
                QStringLiteral("（%1）").arg(QString::fromUtf8(failure.what()))};
}

QString photosOf(const QString& path) {
    return QFileInfo(path).absoluteDir().filePath(QStringLiteral("photos"));
}

} // namespace quillmere::host
