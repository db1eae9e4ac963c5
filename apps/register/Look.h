#pragma once

#include <QIcon>

class QApplication;
class QWidget;

/// The host's own look, made to go with the maintenance window, which dresses itself.
namespace quillmere::host::look {

enum class Glyph { Add, Edit, Plan, Progress, Closing, Search, Clear, Down, Clock, Open, Folder, Sample };

/// Sets base style, type and Qt's own Chinese texts.
void dress(QApplication& application);

/// Gives a part of the main window its style sheet. It must not be the window itself: windows that open
/// over it would inherit the sheet.
void dress(QWidget& part);

[[nodiscard]] QIcon icon(Glyph glyph, const QColor& colour);
/// In the colour of the tool buttons.
[[nodiscard]] QIcon icon(Glyph glyph);
/// What the desktop shows for the program's windows.
[[nodiscard]] QIcon programIcon();

} // namespace quillmere::host::look
