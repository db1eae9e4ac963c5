#include "scenario/Scene.h"

#include "panels/A1ctrlUser.h"
#include "platform/ui/Form.h"

namespace quillmere::scenario {

ui::Form& Scene::front() const {
    if (forms.empty()) throw Stop{"no window is open"};
    return *forms.back();
}

A1ctrlUser* panelOn(const ui::Form& form) {
    for (const auto& control : form.Controls()) {
        if (auto* panel = dynamic_cast<A1ctrlUser*>(control.get()); panel != nullptr) return panel;
    }
    return nullptr;
}

ui::Control& findWidget(const Scene& scene, const std::string& name) {
    ui::Control* widget = scene.front().findDeep(name);
    if (widget == nullptr) throw Stop{"there is no widget " + name};
    return *widget;
}

} // namespace quillmere::scenario
