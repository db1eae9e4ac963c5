#include <quillmere/Version.h>

namespace quillmere {

const char* version() noexcept { return QUILLMERE_VERSION; }

} // namespace quillmere
