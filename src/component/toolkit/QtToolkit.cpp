#include "component/server/ToolkitModule.h"

#include "quillmere/Qt.h"

// The toolkit module over Qt.

extern "C" __attribute__((visibility("default"))) quillmere::ui::Desktop* quillmereMakeDesktop() {
    // Never destroyed: Qt must not be torn down among the statics of the process.
    static auto* toolkit = new quillmere::qt::Toolkit;
    return &toolkit->desktop();
}
