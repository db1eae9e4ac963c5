#pragma once

#include "adapters/qt/Skin.h"

#include "platform/ui/Colour.h"

#include <QString>

class QWidget;

/// The look of the windows: their skin, and measures.
namespace quillmere::qt::style {

inline constexpr int fieldHeight = 28;
inline constexpr int rowHeight = 28;
inline constexpr int listRowHeight = 24;
inline constexpr int headerHeight = 34;
inline constexpr int menuWidth = 208;

/// The colours of the skin that windows wear now.
[[nodiscard]] const Colours& colours();

/// Keeps the skin of the windows below, and brings it back when its own window has gone. Windows stand
/// in front of each other like this, so that one skin at a time is enough.
class SkinKeeper {
public:
    SkinKeeper();
    SkinKeeper(const SkinKeeper&) = delete;
    SkinKeeper& operator=(const SkinKeeper&) = delete;
    ~SkinKeeper();

private:
    Skin kept_;
};

/// Dresses a window, and all that will stand in it, in the skin that is worn now; nothing outside of it
/// changes.
void dress(QWidget& window);

/// Wears the skin of a file from now on, this window first. An empty path keeps the skin of the window
/// below, which is the toolkit's own where there is none.
void applySkin(QWidget& window, const std::string& path);

/// Chooses the base style of an application that belongs to the toolkit.
void dressOwnApplication();

/// A colour of the model on the screen; desktop colours are those of this look.
[[nodiscard]] QColor toQColor(ui::Colour colour);

/// The legend's lines as rich text, side by side: the first one bold, the second one with the swatch
/// of coded fields.
[[nodiscard]] QString legendMarkup(const QStringList& lines);

} // namespace quillmere::qt::style
