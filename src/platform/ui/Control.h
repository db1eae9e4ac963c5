#pragma once

#include "platform/ui/Event.h"
#include "platform/ui/Keys.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere::ui {

class ControlHost;
class Form;

enum class Kind {
    Form,
    Frame,
    Line,
    Label,
    TextBox,
    MaskEdBox,
    CheckBox,
    ListBox,
    TreeView,
    TabStrip,
    Image,
    CommandButton,
    Toolbar,
    VerticalMenu,
    DataGrid,
    UserControl,
    Skin,
    CommonDialog,
};

[[nodiscard]] std::string_view nameOf(Kind kind);

/// What a view is told has changed.
enum class Property {
    Visible,
    Enabled,
    Geometry,
    Text,
    Caption,
    Font,
    BackColor,
    Selection,
    Locked,
    MaxLength,
    Alignment,
    Value,
    Items,
    Columns,
    Rows,
    Current,
    Picture,
    Page,
    ToolTip,
};

/// How the outside follows a control: a toolkit's peer, or a recorder in a test.
class ControlView {
public:
    ControlView() = default;
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;
    virtual ~ControlView() = default;

    /// A property has a new value. Runs inside the setting.
    virtual void changed(Property property) = 0;
};

/// Mouse buttons as the events report them.
namespace mouse {
inline constexpr int Left = 1;
inline constexpr int Right = 2;
inline constexpr int Middle = 4;
} // namespace mouse

/// Position and size in twips.
struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rect&) const = default;
};

/// A widget without a screen: its properties take effect at once and raise its events, whoever sets
/// them; what a person does goes through the Form that it stands on.
class Control {
public:
    Control(Kind kind, std::string name);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    [[nodiscard]] Kind kind() const { return kind_; }
    [[nodiscard]] const std::string& name() const { return name_; }

    [[nodiscard]] bool Visible() const { return visible_; }
    void setVisible(bool visible);
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void setEnabled(bool enabled);
    [[nodiscard]] int TabIndex() const { return tabIndex_; }
    void setTabIndex(int index) { tabIndex_ = index; }
    [[nodiscard]] bool TabStop() const { return tabStop_; }
    void setTabStop(bool stop) { tabStop_ = stop; }
    [[nodiscard]] const Rect& geometry() const { return geometry_; }
    void setGeometry(const Rect& geometry);
    [[nodiscard]] const std::string& ToolTip() const { return toolTip_; }
    void setToolTip(std::string text);

    /// The frame or tabbed container that it stands in, none when it stands on its host itself.
    [[nodiscard]] Control* Container() const { return container_; }
    void setContainer(Control* container);
    /// The page of a tabbed container that it stands on, from 0.
    [[nodiscard]] int page() const { return page_; }
    void setPage(int page) { page_ = page; }

    /// The form or user control whose `Controls` it belongs to.
    [[nodiscard]] ControlHost* host() const { return host_; }
    /// The form at the top, none before the control is placed.
    [[nodiscard]] Form* form() const;
    /// True once the control, or what bears it, was taken off its host; it is destroyed when the
    /// running event ends.
    [[nodiscard]] bool isRemoved() const;

    /// Stands where nothing of it can be seen.
    [[nodiscard]] virtual bool isPutAway() const { return false; }
    /// Visible and on show, Enabled and usable: with all that it stands in.
    [[nodiscard]] bool isShown() const;
    [[nodiscard]] bool isUsable() const;
    /// Whether it can have the focus now.
    [[nodiscard]] bool canTakeFocus() const;
    /// Asks for the focus, by program. A control that cannot take it now, or a refusal of the one
    /// being left, leaves the focus where it is.
    void SetFocus();
    [[nodiscard]] bool hasFocus() const;

    /// A property by its field name, without regard to case, as a transcript prints it.
    [[nodiscard]] virtual std::optional<std::string> property(std::string_view name) const;

    void setView(ControlView* view) { view_ = view; }
    [[nodiscard]] ControlView* view() const { return view_; }

    Event<> GotFocus;
    Event<> LostFocus;
    /// Before the focus leaves; setting the flag keeps it here.
    Event<bool&> Validate;
    /// Key code and shift state; setting the code to 0 swallows the key.
    Event<int&, int> KeyDown;
    /// The character; a handler may change it, 0 swallows it.
    Event<char32_t&> KeyPress;
    /// The mouse button.
    Event<int> MouseDown;
    Event<int> MouseMove;
    Event<> Click;
    Event<> DblClick;

protected:
    friend class ControlHost;
    friend class Form;

    void notify(Property property);

    /// Whether controls of this kind take part in the focus at all.
    [[nodiscard]] virtual bool isFocusKind() const { return false; }
    /// What the control itself does with a person's key that no handler swallowed.
    virtual void personKeyDown(const KeyStroke& stroke);
    virtual void personCharacter(char32_t character);
    virtual void personClick();
    virtual void personDoubleClick();
    virtual void personPaste(std::string_view text);
    virtual void selectAll();
    /// Runs when the control leaves its host, before it is destroyed.
    virtual void terminate() {}
    /// Runs when Visible becomes true.
    virtual void becameVisible() {}

private:
    Kind kind_;
    std::string name_;
    bool visible_ = true;
    bool enabled_ = true;
    bool tabStop_ = true;
    bool removed_ = false;
    int tabIndex_ = 0;
    int page_ = 0;
    Rect geometry_;
    std::string toolTip_;
    Control* container_ = nullptr;
    ControlHost* host_ = nullptr;
    ControlView* view_ = nullptr;
};

} // namespace quillmere::ui
