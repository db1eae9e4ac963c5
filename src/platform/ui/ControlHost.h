#pragma once

#include "platform/ui/Control.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace quillmere::ui {

/// Follows which controls a form or user control bears.
class HostView {
public:
    HostView() = default;
    HostView(const HostView&) = delete;
    HostView& operator=(const HostView&) = delete;
    virtual ~HostView() = default;

    virtual void added(Control& control) = 0;
    /// The control has left; its object lives until the running event ends.
    virtual void removed(Control& control) = 0;
};

/// What bears controls: a form or a user control. `Controls` is one flat list in the order of
/// adding, whatever frames the controls stand in.
class ControlHost {
public:
    ControlHost() = default;
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;
    virtual ~ControlHost();

    /// Creates a control at the end of `Controls`; its tab index is its place in that list.
    template <class T, class... Args>
    T& add(Args&&... args) {
        auto control = std::make_unique<T>(std::forward<Args>(args)...);
        T& reference = *control;
        place(std::move(control));
        return reference;
    }

    void place(std::unique_ptr<Control> control);
    void remove(std::size_t index);
    void removeAll();

    [[nodiscard]] std::size_t Count() const { return controls_.size(); }
    [[nodiscard]] Control& Controls(std::size_t index) const { return *controls_[index]; }
    [[nodiscard]] const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }

    /// By name without regard to case; none when it is not there.
    [[nodiscard]] Control* find(std::string_view name) const;

    void setHostView(HostView* view) { hostView_ = view; }

    /// The form at the top of this host, and the control that this host is (none for a form).
    [[nodiscard]] virtual Form* topForm() = 0;
    [[nodiscard]] virtual Control* asControl() = 0;

private:
    std::vector<std::unique_ptr<Control>> controls_;
    HostView* hostView_ = nullptr;
};

} // namespace quillmere::ui
