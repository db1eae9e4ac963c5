#pragma once

#include "platform/ui/Form.h"
#include "platform/ui/Toolbar.h"

namespace quillmere::component::test {

/// What the person before the window does in these tests: presses Save, and closes the window by its frame.
inline void saveAndClose(ui::Form& form) {
    auto* toolbar = dynamic_cast<ui::Toolbar*>(form.findDeep("TbMain"));
    if (toolbar != nullptr) toolbar->clickButton(toolbar->Buttons("Save"));
    if (form.isOpen()) form.closeByFrame();
}

} // namespace quillmere::component::test
