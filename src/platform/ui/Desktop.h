#pragma once

#include "platform/ui/Form.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::ui {

class Image;

enum class Buttons { Ok, YesNo };
enum class Icon { None, Information, Warning, Question, Error };
enum class Answer { Ok, Yes, No };

struct MessageBox {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
};

struct FileDialog {
    /// "text|pattern" pairs.
    std::string filter;
    std::string directory;
};

/// The screen and the person before it: the one service that the system asks of a toolkit.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Shows a message and returns the button pressed. Closing a yes-no box by its frame is No.
    virtual Answer msgBox(const MessageBox& box) = 0;

    /// Loads the form, shows it and returns when it has closed. A form that unloads itself while
    /// loading is not shown; one that was only hidden is not loaded anew. What an event of the form
    /// threw comes out here, with the form closed.
    void showModal(Form& form);

    /// The chosen path, empty when the dialog was cancelled.
    virtual std::string openFile(const FileDialog& dialog) = 0;

    virtual void beep() = 0;

    /// The screen that the form in front stands on, in twips.
    [[nodiscard]] virtual Rect screen() const = 0;

    /// Shows a picture file in an image. Raises FileNotFound, PermissionDenied, and InvalidPicture for
    /// a file that is no JPEG; the image then keeps what it shows.
    void showPicture(Image& image, const std::string& path) const;

    /// Injects keys into the form in front; they run after the event that is running.
    void sendKeys(std::string_view sequence);

    /// The form in front, none when none is open.
    [[nodiscard]] Form* front() const { return open_.empty() ? nullptr : open_.back(); }

protected:
    /// Shows the form and works until it is no longer open.
    virtual void runModal(Form& form) = 0;
    /// Whether the toolkit can make a picture of the bytes of a file with the structure of a JPEG.
    [[nodiscard]] virtual bool canDecode(std::string_view jpeg) const = 0;

private:
    std::vector<Form*> open_;
};

/// The desktop that the system uses. Raises ObjectNotSet when the host has chosen none.
[[nodiscard]] Desktop& desktop();
/// Chooses it; the caller keeps ownership, and takes it back with a null pointer.
void useDesktop(Desktop* desktop);

} // namespace quillmere::ui
