#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Pieces of JSON as text. Characters of the source stay as they are, in UTF-8.
namespace quillmere::check::json {

/// A name, and a value that is JSON already.
struct Member {
    std::string name;
    std::string value;
};

[[nodiscard]] std::string text(std::string_view content);
[[nodiscard]] std::string object(const std::vector<Member>& members);
[[nodiscard]] std::string array(const std::vector<std::string>& values);

} // namespace quillmere::check::json
