#pragma once

namespace quillmere::ui {

/// The side that a text stands at: numbers stand at the right, so that their digits can be compared.
enum class Alignment { Left, Right };

} // namespace quillmere::ui
