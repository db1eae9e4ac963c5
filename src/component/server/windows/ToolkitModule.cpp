#include "component/server/ToolkitModule.h"

namespace quillmere::component {

/// There is no toolkit for this platform yet.
MakeDesktop loadToolkitModule() { return nullptr; }

} // namespace quillmere::component
