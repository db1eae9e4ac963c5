#pragma once

#include <string>

namespace quillmere::component {

/// An open file or folder, closed with this object.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(other.number_) { other.number_ = -1; }
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();

    [[nodiscard]] int number() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }

private:
    int number_ = -1;
};

/// The path of the folder `quillmere` of this user's data. A data home that is no absolute path is passed
/// over. Raises PathNotFound for a user without a home.
[[nodiscard]] std::string userFolderPath();

/// Opens that folder; none when it is not there. Raises PermissionDenied when it is not this user's alone to
/// write, PathAccess when it cannot be opened.
[[nodiscard]] Descriptor openUserFolder();
/// The same, made when it is not there.
[[nodiscard]] Descriptor makeUserFolder();

/// Raises PermissionDenied when the open file or folder is somebody else's, or others can write it.
void requireOwn(const Descriptor& descriptor, const std::string& path);

} // namespace quillmere::component
