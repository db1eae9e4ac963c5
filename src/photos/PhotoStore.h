#pragma once

#include <string>
#include <string_view>

namespace quillmere {

namespace ui {
class Control;
}

/// `<folder>\<personID>.jpg`; nothing normalises a trailing separator of the folder.
[[nodiscard]] std::string photoPath(std::string_view folder, std::string_view personID);

[[nodiscard]] bool PhotoFileExists(std::string_view path);

/// Shows the file in the image named "imgPerson" when the file exists; else leaves the image alone.
/// Raises InvalidPicture for a file that is no picture; the image then keeps what it shows.
void LoadPersonPhoto(ui::Control& control, std::string_view path);

/// Deletes a person's photo when there is one, a read-only one too. A failure is shown in a warning
/// box and then forgotten: the caller goes on.
void DeletePersonPhoto(std::string_view personID, std::string_view folder);

} // namespace quillmere
