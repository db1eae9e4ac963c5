#include "component/server/Toolkit.h"

#include "component/objects/ServerLife.h"
#include "component/server/ToolkitModule.h"
#include "platform/Error.h"
#include "platform/ui/Desktop.h"

namespace quillmere::component {

namespace {

bool hasDesktop() {
    try {
        (void)ui::desktop();
        return true;
    } catch (const Error&) {
        return false;
    }
}

} // namespace

void requireToolkit() {
    if (hasDesktop()) return;
    const MakeDesktop makeDesktop = loadToolkitModule();
    if (makeDesktop == nullptr) {
        throw Error(Failure::CannotCreateObject,
                    "组件旁边没有界面工具包（quillmere-toolkit），不能显示窗口。", "Quillmere");
    }
    ui::useDesktop(makeDesktop());
    keepServer();
}

} // namespace quillmere::component
