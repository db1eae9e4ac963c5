#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Plain file operations. Paths may use either separator; they are turned into the machine's here
/// and nowhere else. They work on the machine's own files unless another FileSystem is in use.
namespace quillmere::files {

[[nodiscard]] bool exists(std::string_view path);
/// Bytes. Raises FileNotFound.
[[nodiscard]] std::uint64_t size(std::string_view path);
/// All bytes. Raises FileNotFound, PermissionDenied.
[[nodiscard]] std::string read(std::string_view path);
/// Deletes a file, a read-only one too. Raises FileNotFound, PermissionDenied.
void removeForced(std::string_view path);
/// Copies a file over whatever file is there, but not over a read-only one, a folder or itself. Raises
/// FileNotFound, PathNotFound, PermissionDenied.
void copyOver(std::string_view from, std::string_view to);
/// The path with the machine's separators.
[[nodiscard]] std::string native(std::string_view path);

} // namespace quillmere::files
