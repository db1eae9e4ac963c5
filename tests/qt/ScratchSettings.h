#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

namespace quillmere::test {

/// Settings in a place of their own that goes with the test; nobody's own settings are touched.
class ScratchSettings {
public:
    ScratchSettings() {
        QCoreApplication::setOrganizationName(QStringLiteral("Quillmere"));
        QCoreApplication::setApplicationName(QStringLiteral("test"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path());
    }

private:
    QTemporaryDir folder_;
};

} // namespace quillmere::test
