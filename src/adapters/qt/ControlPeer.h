#pragma once

#include "platform/ui/Control.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace quillmere::qt {

class FormPeer;

/// The Qt side of one control: shows what the model says and turns what a person does into the
/// model's operations. It belongs to its widget, and outlives its control by the event that runs when
/// the control is removed.
class ControlPeer : public QObject, public ui::ControlView {
public:
    ControlPeer(FormPeer& form, ui::Control& control, QWidget* widget);
    ~ControlPeer() override;

    /// None once the control has left.
    [[nodiscard]] ui::Control* control() const { return control_; }
    [[nodiscard]] QWidget* widget() const { return widget_; }
    /// What has the keyboard when the control has the focus.
    [[nodiscard]] virtual QWidget* focusTarget() const { return widget_; }
    /// Where the controls stand whose container this control is; none for kinds that bear none.
    [[nodiscard]] virtual QWidget* surface() const { return nullptr; }

    /// Parts from the control for good.
    void detach();
    /// The layout has found a place for the widget; before that it does not show.
    void place();
    [[nodiscard]] bool isPlaced() const { return placed_; }
    /// Takes visible and enabled over from the control and from the containers around it.
    void refreshState();
    /// Whether the control shows: itself and its containers on the same host, all on the screen.
    [[nodiscard]] bool wantsToShow() const;

    void changed(ui::Property property) final;

    // What a person does; true when that is all that shall happen. Bodies of guarded filters.

    virtual bool keyPressed(QKeyEvent& event);
    /// A press or double click on the widget or on a part of it.
    virtual bool mousePressed(QMouseEvent& event, QWidget& target);
    /// The pointer moves over the widget or a part of it, which goes on by itself.
    virtual void mouseMoved(QMouseEvent& /*event*/, QWidget& /*target*/) {}

protected:
    /// Shows the new value of a property.
    virtual void mirror(ui::Property /*property*/) {}
    [[nodiscard]] FormPeer& formPeer() const { return form_; }
    [[nodiscard]] ui::Form& form() const;
    /// The control under its own type. Only while there is one.
    template <class T>
    [[nodiscard]] T& as() const {
        return static_cast<T&>(*control_);
    }

    /// Asks for the focus; true (eat the press) when it was refused.
    bool refusesFocus();
    /// Clicks the control, or double clicks it; whether the control was reached.
    bool tellClick(const QMouseEvent& event);
    [[nodiscard]] static bool isDoubleClick(const QMouseEvent& event);
    /// Raises the control's mouse move.
    void tellMouseMove(const QMouseEvent& event);

private:
    FormPeer& form_;
    ui::Control* control_;
    QPointer<QWidget> widget_;
    bool placed_ = false;
};

/// Sets a dynamic property that the style sheet selects by, and has the widget dressed again.
void setLook(QWidget& widget, const char* property, const QVariant& value);

} // namespace quillmere::qt
