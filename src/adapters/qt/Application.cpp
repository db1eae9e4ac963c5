#include "adapters/qt/Application.h"

#include "adapters/qt/AccessibleRoles.h"
#include "adapters/qt/Display.h"
#include "adapters/qt/Style.h"

#include "platform/Error.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QThread>
#include <QTranslator>

#include <array>
#include <vector>

namespace quillmere::qt {

namespace {

/// What a QApplication keeps references to for as long as it lives.
struct OwnApplication {
    OwnApplication(std::string name, const std::string& platform) : words{std::move(name)} {
        if (!platform.empty()) words.insert(words.end(), {"-platform", platform});
        for (std::string& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        count = static_cast<int>(words.size());
        application = std::make_unique<QApplication>(count, arguments.data());
        application->setQuitOnLastWindowClosed(false);
        if (translator.load(QStringLiteral("qtbase_zh_CN"),
                            QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
            QApplication::installTranslator(&translator);
        }
        style::dressOwnApplication();
    }

    std::vector<std::string> words;
    std::vector<char*> arguments;
    int count = 0;
    QTranslator translator;
    std::unique_ptr<QApplication> application;
};

// Never destroyed by itself: Qt must not be torn down among the statics of the process.
OwnApplication* own = nullptr;

} // namespace

void requireApplication(const std::string& name, const std::string& platform) {
    if (QCoreApplication::instance() == nullptr) {
        requireDisplay(platform);
        own = new OwnApplication(name, platform);
        installAccessibleRoles();
        return;
    }
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
        throw Error(Failure::InvalidCall,
                    "当前程序只有 QCoreApplication，不能显示窗口。请创建 QApplication。", "Quillmere");
    }
    requireUserInterfaceThread();
    installAccessibleRoles();
}

void requireUserInterfaceThread() {
    const QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr) {
        throw Error(Failure::InvalidCall, "界面程序已经结束，不能显示窗口。", "Quillmere");
    }
    if (application->thread() != QThread::currentThread()) {
        throw Error(Failure::InvalidCall, "只能在界面线程中显示窗口。", "Quillmere");
    }
}

void endOwnApplication() {
    if (own == nullptr) return;
    requireUserInterfaceThread();
    delete own;
    own = nullptr;
}

} // namespace quillmere::qt
