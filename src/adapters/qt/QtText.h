#pragma once

#include <QString>
#include <QStringView>

#include <cstddef>
#include <string>
#include <string_view>

/// Text between the system (UTF-8, positions in characters) and Qt (UTF-16, positions in units).
namespace quillmere::qt {

[[nodiscard]] QString toQt(std::string_view text);
[[nodiscard]] std::string fromQt(const QString& text);

[[nodiscard]] std::size_t charactersIn(QStringView text);
/// The unit at which the character with this number starts; the end for a number behind it.
[[nodiscard]] int unitOf(QStringView text, std::size_t character);

} // namespace quillmere::qt
