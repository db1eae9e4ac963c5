#pragma once

#include <QString>

#include <cstdint>

namespace quillmere::host {

/// The two kinds of record that a register keeps.
enum class Kind { Persons, Units };

/// What the list is asked for.
struct Query {
    Kind kind = Kind::Persons;
    /// A part of the name or of a number, or the initials of the name; empty for all.
    QString text;
    /// Sponsorship type 1 to 7, 0 for all. Units are all of one type.
    int type = 0;
    /// Stage of the project as it is stored, "01" to "03"; empty for all.
    QString stage;

    [[nodiscard]] QString wanted() const { return text.trimmed(); }
    /// Every record of the kind.
    [[nodiscard]] bool isEverything() const { return wanted().isEmpty() && !isFiltered(); }
    [[nodiscard]] bool isFiltered() const { return (kind == Kind::Persons && type != 0) || !stage.isEmpty(); }

    bool operator==(const Query&) const = default;
};

/// A stage of a project, as it is stored and as the list names it.
struct Stage {
    const char* code;
    const char* name;
};

inline constexpr Stage stages[] = {{"01", "申报"}, {"02", "在研"}, {"03", "已结题"}};

} // namespace quillmere::host
