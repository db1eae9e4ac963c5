#pragma once

#include <QFile>
#include <QString>

#include <stdexcept>

namespace quillmere::test {

/// A skin that is delivered, as "light.qss".
inline QString skinFile(const char* name) {
    return QStringLiteral(QUILLMERE_SKINS "/") + QLatin1String(name);
}

inline QString textOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + path.toStdString());
    return QString::fromUtf8(file.readAll());
}

} // namespace quillmere::test
