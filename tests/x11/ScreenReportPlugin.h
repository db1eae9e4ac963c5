#pragma once

#include <QGenericPlugin>

namespace quillmere::test {

/// Lets a test outside see what a program shows, without a line about it in the program: Qt loads this
/// when QT_QPA_GENERIC_PLUGINS is "screenreport:SOCKET". Each line sent to that local socket is answered
/// by one line, the screen report as JSON. It only looks; what a test does, it does to the X server.
class ScreenReportPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "ScreenReportPlugin.json")

public:
    QObject* create(const QString& name, const QString& socket) override;
};

} // namespace quillmere::test
