#include "platform/ui/CommonDialog.h"

#include "platform/ui/Desktop.h"

namespace quillmere::ui {

void CommonDialog::ShowOpen() {
    const std::string chosen = desktop().openFile({.filter = Filter, .directory = InitDir});
    if (!chosen.empty()) FileName = chosen;
}

} // namespace quillmere::ui
