#include "scenario/Toolkit.h"

#include "scenario/ModelToolkit.h"
#ifdef QUILLMERE_WITH_QT
#include "scenario/qt/QtToolkit.h"
#endif

namespace quillmere::scenario {

std::unique_ptr<Toolkit> makeToolkit(std::string_view name) {
    if (name == "model") return std::make_unique<ModelToolkit>();
#ifdef QUILLMERE_WITH_QT
    if (name == "qt") return std::make_unique<QtToolkit>();
#endif
    return nullptr;
}

} // namespace quillmere::scenario
