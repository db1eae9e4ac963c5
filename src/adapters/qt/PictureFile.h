#pragma once

#include <QImage>
#include <QSize>

#include <string>

namespace quillmere::qt {

/// The picture in a file, named by its path as the system forms it: the way up that it was taken, and cut
/// down to `most` where it is larger. A null image when there is no such file or no picture in it.
[[nodiscard]] QImage readPicture(const std::string& path, const QSize& most);

} // namespace quillmere::qt
