#pragma once

#include "platform/ui/ControlHost.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillmere::ui {

class UserControl;

/// Follows a form as a whole.
class FormView {
public:
    FormView() = default;
    FormView(const FormView&) = delete;
    FormView& operator=(const FormView&) = delete;
    virtual ~FormView() = default;

    virtual void captionChanged() = 0;
    virtual void focusMoved(Control* now) = 0;
    /// The form has unloaded itself, or was closed by a person.
    virtual void closed() = 0;
};

/// A window or dialog: bears controls, holds the focus, and is where everything that a person does
/// comes in. Each such operation runs its whole road, events and all, before it returns; keys that
/// were injected meanwhile run after it, panels that became visible are then told that they are
/// shown, and controls that were removed are destroyed last.
class Form : public ControlHost {
public:
    Form(std::string name, std::string caption);
    ~Form() override;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::string& Caption() const { return caption_; }
    void setCaption(std::string caption);
    [[nodiscard]] const Rect& geometry() const { return geometry_; }
    /// Client size in twips.
    void setGeometry(const Rect& geometry);

    // Life, driven by Desktop::showModal.

    /// Raises Load. A form that unloads itself while loading is never shown.
    void load();
    void show();
    /// Closes the form, by program: raises Unload once.
    void unload();
    /// Hides a dialog without unloading it: its modal show ends.
    void hide();
    [[nodiscard]] bool isLoaded() const { return loaded_; }
    /// Between show and unload or hide.
    [[nodiscard]] bool isOpen() const { return open_; }

    // Focus.

    [[nodiscard]] Control* ActiveControl() const { return active_; }
    /// Moves the focus: Validate of the one being left, which may refuse, then LostFocus and
    /// GotFocus. False when refused or when the target cannot take the focus now.
    bool requestFocus(Control& target);
    /// Controls that Tab stops at, in their order.
    [[nodiscard]] std::vector<Control*> tabOrder() const;

    // What a person does. The control concerned must stand on this form or on a panel of it.

    /// Clicks into a control to put the focus there.
    bool moveFocus(Control& target);
    /// Types one character into the control with the focus.
    void typeCharacter(char32_t character);
    void pressKey(const KeyStroke& stroke);
    void paste(std::string_view text);
    void selectAll();
    /// A click: the focus goes there first, for kinds that take it; false when that was refused.
    bool click(Control& target, int button = mouse::Left);
    bool doubleClick(Control& target);
    void moveMouse(Control& target, int button = 0);
    void closeByFrame();
    void resizeByPerson(int width, int height);

    /// Runs one operation of a person with all that follows from it.
    void perform(const std::function<void()>& work);

    /// Runs the key press events of a control, its panel's first, and tells what is left of the
    /// character; 0 when swallowed. For toolkits that edit text themselves.
    [[nodiscard]] char32_t filterCharacter(Control& target, char32_t character);

    /// Keys to press when the running operation has ended.
    void postKeys(const std::vector<KeyStroke>& strokes);
    /// A user control has become visible; it is told when it is on show.
    void announceShown(UserControl& control);

    void dropFocusFromUnusable();
    void bury(std::unique_ptr<Control> control);
    void settleIfIdle();

    void setFormView(FormView* view) { formView_ = view; }

    [[nodiscard]] Form* topForm() override { return this; }
    [[nodiscard]] Control* asControl() override { return nullptr; }

    /// A control on the form or, behind that, on a user control of it, by name.
    [[nodiscard]] Control* findDeep(std::string_view name) const;

protected:
    virtual void onLoad() {}
    virtual void onActivate() {}
    virtual void onUnload() {}
    virtual void onResize() {}
    /// Characters reach the form before its controls; 0 swallows.
    virtual void onKeyPreview(char32_t& /*character*/) {}

private:
    void settle();
    void pressTab(bool back);
    void characterRoad(char32_t character);
    [[nodiscard]] std::vector<UserControl*> hostsOf(const Control& control) const;
    void setActive(Control* control);
    /// Whether a person can click it now.
    [[nodiscard]] bool isWithinReach(const Control& target) const;

    std::string name_;
    std::string caption_;
    Rect geometry_;
    bool loaded_ = false;
    bool open_ = false;
    bool moving_ = false;
    bool settling_ = false;
    int depth_ = 0;
    Control* active_ = nullptr;
    std::deque<KeyStroke> injected_;
    std::vector<UserControl*> toShow_;
    std::vector<std::unique_ptr<Control>> graveyard_;
    FormView* formView_ = nullptr;
};

} // namespace quillmere::ui
