#pragma once

#include "platform/ui/Colour.h"

#include <QColor>
#include <QString>

#include <string>

class QApplication;
class QWidget;

/// The look of the windows: colours, measures, and the style sheet that is made of them.
namespace quillmere::qt::style {

inline constexpr int fieldHeight = 28;
inline constexpr int rowHeight = 28;
inline constexpr int listRowHeight = 24;
inline constexpr int headerHeight = 34;
inline constexpr int menuWidth = 208;

inline constexpr QColor accent{0x2F, 0x6F, 0xD0};
inline constexpr QColor text{0x16, 0x24, 0x3A};
inline constexpr QColor mutedText{0x66, 0x75, 0x8C};
inline constexpr QColor ground{0xEE, 0xF2, 0xF7};
inline constexpr QColor quietGround{0xF6, 0xF9, 0xFD};
inline constexpr QColor disabledGround{0xF1, 0xF4, 0xF8};
inline constexpr QColor card{0xFF, 0xFF, 0xFF};
inline constexpr QColor cardBorder{0xD9, 0xE1, 0xEC};
inline constexpr QColor fieldBorder{0xBE, 0xCA, 0xD9};
inline constexpr QColor codedField{0xC9, 0xE0, 0xFC};
inline constexpr QColor selection{0xD6, 0xE6, 0xFB};
inline constexpr QColor icon{0x1F, 0x4E, 0x9C};
inline constexpr QColor disabledIcon{0xB4, 0xBE, 0xCB};
inline constexpr QColor menuIcon{0xC6, 0xD6, 0xEE};

/// Dresses a window and all that will stand in it; nothing outside of it changes.
void dress(QWidget& window);

/// Puts a style file on top of the toolkit's own look. An empty path keeps that look, and so does one
/// that leads to no file, with a line on stderr.
void applySkin(QWidget& window, const std::string& path);

/// Chooses the base style of an application that belongs to the toolkit.
void dressOwnApplication();

/// A colour of the model on the screen; desktop colours are those of this look.
[[nodiscard]] QColor toQColor(ui::Colour colour);

/// The legend's lines as rich text, side by side: the first one bold, the second one with the swatch
/// of coded fields.
[[nodiscard]] QString legendMarkup(const QStringList& lines);

} // namespace quillmere::qt::style
