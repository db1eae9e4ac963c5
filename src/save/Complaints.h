#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// The fixed complaints of the save engine. Several read otherwise when they are not the first.
enum class Complaint { TooLong, NotNumeric, OutOfRange, NotDate, MaskNotFull, Required, WrongUnit };

/// All complaints about a record, in widget order, a line each.
class Complaints {
public:
    /// The message of the table, behind the field's caption where it names the field.
    void add(Complaint complaint, std::string_view itemDesc);
    /// A message as the input check gives it.
    void addText(std::string_view message);

    [[nodiscard]] bool empty() const { return text_.empty(); }
    [[nodiscard]] const std::string& text() const { return text_; }

private:
    std::string text_;
};

} // namespace quillmere
