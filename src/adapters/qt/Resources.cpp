#include "adapters/qt/Resources.h"

#include <QFile>

#include <stdexcept>

/// A static library's resources register themselves only when asked to, and outside of any namespace.
static void registerResources() { Q_INIT_RESOURCE(quillmere_qt); }

namespace quillmere::qt {

QByteArray resource(const QString& name) {
    registerResources();
    QFile file(QStringLiteral(":/quillmere/") + name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("not carried inside: " + name.toStdString());
    return file.readAll();
}

} // namespace quillmere::qt
