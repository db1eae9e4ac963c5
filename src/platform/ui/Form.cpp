#include "platform/ui/Form.h"

#include "platform/ui/UserControl.h"

#include <algorithm>

namespace quillmere::ui {

Form::Form(std::string name, std::string caption) : name_(std::move(name)), caption_(std::move(caption)) {}

Form::~Form() = default;

void Form::setCaption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    if (formView_ != nullptr) formView_->captionChanged();
}

void Form::setGeometry(const Rect& geometry) { geometry_ = geometry; }

void Form::load() {
    loaded_ = true;
    try {
        perform([this] { onLoad(); });
    } catch (...) {
        unload();
        throw;
    }
}

void Form::show() {
    if (!loaded_) return;
    open_ = true;
    perform([this] {
        onResize();
        if (open_) onActivate();
    });
}

void Form::unload() {
    if (!loaded_) return;
    loaded_ = false;
    open_ = false;
    // A form that is loaded again begins afresh, without the focus that it had.
    toShow_.clear();
    injected_.clear();
    setActive(nullptr);
    onUnload();
    if (formView_ != nullptr) formView_->closed();
}

void Form::hide() {
    if (!open_) return;
    open_ = false;
    if (formView_ != nullptr) formView_->closed();
}

void Form::setActive(Control* control) {
    active_ = control;
    if (formView_ != nullptr) formView_->focusMoved(control);
}

bool Form::requestFocus(Control& target) {
    if (&target == active_) return true;
    // A handler of the move under way that asks for another move would run in circles.
    if (moving_ || !open_ || !target.canTakeFocus()) return false;
    moving_ = true;
    bool refused = false;
    try {
        if (active_ != nullptr) active_->Validate.raise(refused);
    } catch (...) {
        moving_ = false;
        throw;
    }
    moving_ = false;
    if (refused || !open_ || !target.canTakeFocus()) return false;
    if (Control* left = active_; left != nullptr) {
        setActive(nullptr);
        left->LostFocus.raise();
        // A handler may have put the focus elsewhere, and it has the last word.
        if (active_ != nullptr) return active_ == &target;
    }
    if (!open_ || !target.canTakeFocus()) return false;
    setActive(&target);
    target.GotFocus.raise();
    return true;
}

void Form::dropFocusFromUnusable() {
    // Silent: a widget that goes away under the focus is not "left" by anyone.
    if (active_ != nullptr && !active_->canTakeFocus()) setActive(nullptr);
}

namespace {

/// In the order of Tab. `here` counts as a stop too, so that Tab goes on from wherever the focus is.
void collectStops(const ControlHost& host, const Control* here, std::vector<Control*>& stops) {
    std::vector<Control*> ordered;
    for (const auto& control : host.Controls())
        ordered.push_back(control.get());
    std::ranges::stable_sort(ordered, {}, &Control::TabIndex);
    for (Control* control : ordered) {
        if (auto* nested = dynamic_cast<UserControl*>(control); nested != nullptr) {
            collectStops(*nested, here, stops);
        } else if (control == here || (control->TabStop() && control->canTakeFocus())) {
            stops.push_back(control);
        }
    }
}

} // namespace

std::vector<Control*> Form::tabOrder() const {
    std::vector<Control*> stops;
    collectStops(*this, nullptr, stops);
    return stops;
}

std::vector<UserControl*> Form::hostsOf(const Control& control) const {
    std::vector<UserControl*> hosts;
    for (const ControlHost* host = control.host(); host != nullptr && host != this;) {
        Control* hostControl = const_cast<ControlHost*>(host)->asControl();
        hosts.insert(hosts.begin(), static_cast<UserControl*>(hostControl));
        host = hostControl->host();
    }
    return hosts;
}

void Form::perform(const std::function<void()>& work) {
    ++depth_;
    try {
        work();
    } catch (...) {
        --depth_;
        if (depth_ == 0) {
            injected_.clear();
            toShow_.clear();
            graveyard_.clear();
        }
        throw;
    }
    --depth_;
    settleIfIdle();
}

void Form::settleIfIdle() {
    if (depth_ == 0 && !settling_) settle();
}

void Form::settle() {
    settling_ = true;
    struct Reset {
        bool& flag;
        ~Reset() { flag = false; }
    } reset{settling_};
    while (open_ && (!toShow_.empty() || !injected_.empty())) {
        if (!toShow_.empty()) {
            UserControl* shown = toShow_.front();
            toShow_.erase(toShow_.begin());
            if (shown->Visible()) perform([&] { shown->Shown.raise(); });
            continue;
        }
        const KeyStroke stroke = injected_.front();
        injected_.pop_front();
        pressKey(stroke);
    }
    if (!open_) injected_.clear();
    graveyard_.clear();
}

void Form::postKeys(const std::vector<KeyStroke>& strokes) {
    injected_.insert(injected_.end(), strokes.begin(), strokes.end());
    settleIfIdle();
}

void Form::announceShown(UserControl& control) {
    if (std::ranges::find(toShow_, &control) == toShow_.end()) toShow_.push_back(&control);
}

void Form::bury(std::unique_ptr<Control> control) {
    std::erase_if(toShow_, [](const UserControl* waiting) { return waiting->isRemoved(); });
    graveyard_.push_back(std::move(control));
}

bool Form::moveFocus(Control& target) {
    bool moved = false;
    perform([&] { moved = requestFocus(target); });
    return moved;
}

char32_t Form::filterCharacter(Control& target, char32_t character) {
    onKeyPreview(character);
    for (UserControl* host : hostsOf(target)) {
        if (character == 0 || target.isRemoved()) break;
        host->KeyPress.raise(character);
    }
    if (character != 0 && !target.isRemoved()) target.KeyPress.raise(character);
    return target.isRemoved() ? 0 : character;
}

void Form::characterRoad(char32_t character) {
    Control* target = active_;
    if (target == nullptr) return;
    const char32_t left = filterCharacter(*target, character);
    if (left != 0 && left != bellCharacter && target == active_) target->personCharacter(left);
}

void Form::typeCharacter(char32_t character) {
    perform([&] { characterRoad(character); });
}

void Form::pressTab(bool back) {
    std::vector<Control*> stops;
    collectStops(*this, active_, stops);
    if (stops.empty()) return;
    const auto here = std::ranges::find(stops, active_);
    if (here == stops.end()) {
        requestFocus(back ? *stops.back() : *stops.front());
        return;
    }
    const auto index = static_cast<std::size_t>(here - stops.begin());
    const std::size_t next = back ? (index + stops.size() - 1) % stops.size() : (index + 1) % stops.size();
    requestFocus(*stops[next]);
}

void Form::pressKey(const KeyStroke& stroke) {
    perform([&] {
        int code = stroke.code;
        Control* target = active_;
        if (target != nullptr) {
            for (UserControl* host : hostsOf(*target)) {
                if (code != 0 && !host->isRemoved()) host->KeyDown.raise(code, stroke.shift);
            }
            if (code != 0 && !target->isRemoved()) target->KeyDown.raise(code, stroke.shift);
        }
        if (code == 0 || !open_ || target != active_) return;
        const bool plain = (stroke.shift & (shift::Ctrl | shift::Alt)) == 0;
        if (code == key::Tab && plain) {
            pressTab((stroke.shift & shift::Shift) != 0);
        } else if ((code == key::Enter || code == key::Backspace || code == key::Escape) && plain) {
            characterRoad(static_cast<char32_t>(code));
        } else if (code == key::Space && plain) {
            characterRoad(U' ');
        } else if (target != nullptr) {
            target->personKeyDown({code, stroke.shift});
        }
    });
}

void Form::paste(std::string_view text) {
    perform([&] {
        if (active_ != nullptr) active_->personPaste(text);
    });
}

void Form::selectAll() {
    perform([&] {
        if (active_ != nullptr) active_->selectAll();
    });
}

bool Form::isWithinReach(const Control& target) const {
    return open_ && target.isShown() && target.isUsable();
}

bool Form::click(Control& target, int button) {
    bool reached = false;
    perform([&] {
        // A handler on the way may close the form, or hide, disable or remove the control.
        if (!isWithinReach(target) || (target.isFocusKind() && !requestFocus(target))) return;
        reached = isWithinReach(target);
        if (!reached) return;
        target.MouseDown.raise(button);
        if (button == mouse::Left && isWithinReach(target)) target.personClick();
    });
    return reached;
}

bool Form::doubleClick(Control& target) {
    bool reached = false;
    perform([&] {
        reached = click(target);
        if (!reached || !isWithinReach(target)) return;
        target.DblClick.raise();
        if (isWithinReach(target)) target.personDoubleClick();
    });
    return reached;
}

void Form::moveMouse(Control& target, int button) {
    perform([&] {
        if (target.isShown() && target.isUsable()) target.MouseMove.raise(button);
    });
}

void Form::closeByFrame() {
    perform([this] { unload(); });
}

void Form::resizeByPerson(int width, int height) {
    perform([&] {
        geometry_.width = width;
        geometry_.height = height;
        onResize();
    });
}

Control* Form::findDeep(std::string_view name) const {
    if (Control* own = find(name); own != nullptr) return own;
    for (const auto& control : Controls()) {
        const auto* nested = dynamic_cast<const UserControl*>(control.get());
        if (nested == nullptr) continue;
        if (Control* inner = nested->find(name); inner != nullptr) return inner;
    }
    return nullptr;
}

} // namespace quillmere::ui
