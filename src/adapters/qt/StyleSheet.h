#pragma once

namespace quillmere::qt::style {

/// The toolkit's own look. Selectors go by the "role" that a layout gives to a widget.
extern const char* const styleSheet;

} // namespace quillmere::qt::style
