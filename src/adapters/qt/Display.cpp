#include "adapters/qt/Display.h"

#include "platform/Error.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QLibrary>

#include <algorithm>

namespace quillmere::qt {

namespace {

/// The names of the plug-ins that Qt will try, as it takes them itself; none for its own choice.
QByteArrayList wantedPlugins(const std::string& platform) {
    const QByteArray wanted =
        platform.empty() ? qgetenv("QT_QPA_PLATFORM") : QByteArray::fromStdString(platform);
    if (wanted.isEmpty()) return {};
    QByteArrayList names = wanted.split(';');
    for (QByteArray& name : names)
        name = name.split(':').first().trimmed();
    return names;
}

bool isForX(const QByteArray& plugin) { return plugin == "xcb"; }
bool isForWayland(const QByteArray& plugin) { return plugin.startsWith("wayland"); }

// Both libraries are those of Qt's plug-ins. Where one is missing, its plug-in would not load either.

bool xAnswers() {
    using Connect = void* (*)(const char*, int*);
    using HasError = int (*)(void*);
    using Disconnect = void (*)(void*);
    QLibrary library(QStringLiteral("xcb"), 1);
    const auto connect = reinterpret_cast<Connect>(library.resolve("xcb_connect"));
    const auto hasError = reinterpret_cast<HasError>(library.resolve("xcb_connection_has_error"));
    const auto disconnect = reinterpret_cast<Disconnect>(library.resolve("xcb_disconnect"));
    if (connect == nullptr || hasError == nullptr || disconnect == nullptr) return false;
    void* connection = connect(nullptr, nullptr);
    const bool answers = hasError(connection) == 0;
    disconnect(connection);
    return answers;
}

bool waylandAnswers() {
    using Connect = void* (*)(const char*);
    using Disconnect = void (*)(void*);
    QLibrary library(QStringLiteral("wayland-client"), 0);
    const auto connect = reinterpret_cast<Connect>(library.resolve("wl_display_connect"));
    const auto disconnect = reinterpret_cast<Disconnect>(library.resolve("wl_display_disconnect"));
    if (connect == nullptr || disconnect == nullptr) return false;
    void* display = connect(nullptr);
    if (display == nullptr) return false;
    disconnect(display);
    return true;
}

bool displayAnswers(const QByteArrayList& plugins) {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    if (plugins.isEmpty()) return xAnswers() || waylandAnswers();
    return std::any_of(plugins.begin(), plugins.end(), [](const QByteArray& plugin) {
        if (isForX(plugin)) return xAnswers();
        return !isForWayland(plugin) || waylandAnswers();
    });
#else
    return true;
#endif
}

} // namespace

void requireDisplay(const std::string& platform) {
    if (!displayAnswers(wantedPlugins(platform)))
        throw Error(Failure::InvalidCall, "没有可以使用的显示器，不能显示窗口。", "Quillmere");
}

} // namespace quillmere::qt
