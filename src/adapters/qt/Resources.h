#pragma once

#include <QByteArray>
#include <QString>

namespace quillmere::qt {

/// A file that the library carries inside itself, by its name in quillmere_qt.qrc.
[[nodiscard]] QByteArray resource(const QString& name);

} // namespace quillmere::qt
