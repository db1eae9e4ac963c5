#pragma once

#include "panels/frmC04Frames.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace quillmere {

/// What an input of the row editor holds, by its name.
using RowTexts = std::function<std::string(std::string_view input)>;

/// The statement that adds a row, or changes the row of that number. Texts go in as they are: one
/// with a quote breaks the statement, which is meant so.
[[nodiscard]] std::string insertStatement(const RowFrameRow& frame, const std::string& key,
                                          const RowTexts& texts, std::int16_t sequence);
[[nodiscard]] std::string updateStatement(const RowFrameRow& frame, const std::string& key,
                                          const RowTexts& texts, const std::string& sequence);

/// One more than the greatest number in the table; 1 when it is empty. Raises Overflow behind 32767.
[[nodiscard]] std::int16_t nextSequence(const RowFrameRow& frame);

} // namespace quillmere
