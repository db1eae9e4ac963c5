#include "adapters/qt/PictureFile.h"

#include "adapters/qt/QtText.h"

#include "platform/files/Files.h"

#include <QImageReader>

namespace quillmere::qt {

QImage readPicture(const std::string& path, const QSize& most) {
    if (path.empty()) return {};
    QImageReader reader(toQt(files::native(path)));
    // A file may bear a name that tells another format than the one it has.
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > most.width() || size.height() > most.height())
        reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio));
    return reader.read();
}

} // namespace quillmere::qt
