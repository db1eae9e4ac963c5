#pragma once

#include <string>
#include <vector>

namespace quillmere::check {

class RegisterView;

/// A code table that a field stores the codes of.
struct CodeTableInUse {
    std::string table;
    std::string firstField;
};

/// Each once, in the order of their names.
[[nodiscard]] std::vector<CodeTableInUse> codeTablesInUse(const RegisterView& view);

/// The table is there, with all the columns of a code table.
[[nodiscard]] bool isUsable(const RegisterView& view, const std::string& codeTable);

} // namespace quillmere::check
