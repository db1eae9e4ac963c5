#pragma once

#include <QColor>
#include <QIcon>
#include <QRect>

class QPainter;
class QString;

/// The toolkit's own pictures, drawn in lines so that they are sharp at every size.
namespace quillmere::qt::icons {

enum class Glyph {
    Add,
    Delete,
    Save,
    Undo,
    Exit,
    Person,
    Folder,
    Calendar,
    Chart,
    Check,
    Document,
    Information,
    Ellipsis,
    ChevronDown,
    ChevronRight,
};

void paint(QPainter& painter, Glyph glyph, const QRect& place, const QColor& colour);

/// In the accent, pale when disabled; or in a colour of its own.
[[nodiscard]] QIcon icon(Glyph glyph);
[[nodiscard]] QIcon icon(Glyph glyph, const QColor& colour);

/// The picture for a toolbar button, by its key; a document for an unknown one.
[[nodiscard]] Glyph forCommand(const QString& key);

} // namespace quillmere::qt::icons
