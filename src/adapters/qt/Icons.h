#pragma once

#include "adapters/qt/Skin.h"

#include <QColor>
#include <QIcon>
#include <QRect>

class QPainter;
class QString;

/// The toolkit's own pictures: the drawings icons/*.svg, in a colour of the skin.
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
    Letter,
    Question,
    Exclamation,
    Cross,
    Ellipsis,
    ChevronDown,
    ChevronRight,
};

void paint(QPainter& painter, Glyph glyph, const QRect& place, const QColor& colour);

/// In a colour of the skin that is worn when the picture is painted, pale when disabled.
[[nodiscard]] QIcon icon(Glyph glyph, QColor Colours::*colour = &Colours::icon);

/// The picture for a toolbar button, by its key; a document for an unknown one.
[[nodiscard]] Glyph forCommand(const QString& key);

} // namespace quillmere::qt::icons
