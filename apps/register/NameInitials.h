#pragma once

#include <QStringView>

#include <array>
#include <string_view>

namespace quillmere::host {

/// A letter, and the characters whose pinyin begins with it.
struct InitialRow {
    char16_t letter;
    std::u16string_view characters;
};
extern const std::array<InitialRow, 23> initialRows;

/// Whether a search consists of letters alone, so that it may be meant as initials.
[[nodiscard]] bool areInitials(QStringView search);

/// Whether a name holds, one behind the other, characters whose pinyin begins with these letters:
/// "zs" and "s" match 张三. A character that is read in two ways in names matches either; a letter in a
/// name matches itself. Case does not count; dots and blanks within the name are passed over.
[[nodiscard]] bool matchesInitials(QStringView name, QStringView letters);

} // namespace quillmere::host
