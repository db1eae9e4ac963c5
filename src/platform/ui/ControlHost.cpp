#include "platform/ui/ControlHost.h"

#include "platform/text/Text.h"
#include "platform/ui/Form.h"

#include <algorithm>

namespace quillmere::ui {

ControlHost::~ControlHost() = default;

void ControlHost::place(std::unique_ptr<Control> control) {
    Control& placed = *control;
    placed.host_ = this;
    placed.tabIndex_ = static_cast<int>(controls_.size());
    controls_.push_back(std::move(control));
    if (hostView_ != nullptr) hostView_->added(placed);
}

void ControlHost::remove(std::size_t index) {
    std::unique_ptr<Control> control = std::move(controls_[index]);
    controls_.erase(controls_.begin() + static_cast<std::ptrdiff_t>(index));
    Control& leaving = *control;
    Form* form = topForm();
    leaving.removed_ = true;
    for (const auto& other : controls_) {
        if (other->container_ == &leaving) other->container_ = nullptr;
    }
    if (form != nullptr) form->dropFocusFromUnusable();
    if (hostView_ != nullptr) hostView_->removed(leaving);
    // An event of this very control may be running, so its object outlives the removal.
    if (form != nullptr) form->bury(std::move(control));
    leaving.terminate();
    if (form != nullptr) form->settleIfIdle();
}

void ControlHost::removeAll() {
    while (!controls_.empty())
        remove(controls_.size() - 1);
}

Control* ControlHost::find(std::string_view name) const {
    const auto found = std::ranges::find_if(
        controls_, [&](const auto& control) { return text::equalsNoCase(control->name(), name); });
    return found == controls_.end() ? nullptr : found->get();
}

} // namespace quillmere::ui
