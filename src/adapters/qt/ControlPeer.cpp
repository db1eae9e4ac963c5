#include "adapters/qt/ControlPeer.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/QtKeys.h"
#include "adapters/qt/QtText.h"

#include <QStyle>
#include <QVariant>

namespace quillmere::qt {

ControlPeer::ControlPeer(FormPeer& form, ui::Control& control, QWidget* widget)
    : QObject(widget), form_(form), control_(&control), widget_(widget) {
    widget->setObjectName(toQt(control.name()));
    widget->hide();
    control.setView(this);
    form_.adopt(*this);
    if (!control.ToolTip().empty()) widget->setToolTip(toQt(control.ToolTip()));
}

ControlPeer::~ControlPeer() { detach(); }

void ControlPeer::detach() {
    if (control_ == nullptr) return;
    form_.forget(*this);
    if (control_->view() == this) control_->setView(nullptr);
    control_ = nullptr;
}

void ControlPeer::place() {
    placed_ = true;
    refreshState();
}

bool ControlPeer::wantsToShow() const {
    for (const ui::Control* each = control_; each != nullptr; each = each->Container()) {
        if (!each->Visible() || each->isPutAway()) return false;
    }
    return true;
}

void ControlPeer::refreshState() {
    if (control_ == nullptr || widget_ == nullptr) return;
    bool enabled = true;
    for (const ui::Control* each = control_; each != nullptr; each = each->Container()) {
        enabled = enabled && each->Enabled();
    }
    widget_->setEnabled(enabled);
    widget_->setVisible(placed_ && wantsToShow());
}

void ControlPeer::changed(ui::Property property) {
    if (control_ == nullptr || widget_ == nullptr) return;
    switch (property) {
    case ui::Property::Visible:
    case ui::Property::Enabled:
    case ui::Property::Geometry:
        refreshState();
        form_.refreshContents(*control_);
        mirror(property);
        break;
    case ui::Property::ToolTip:
        widget_->setToolTip(toQt(control_->ToolTip()));
        break;
    default:
        mirror(property);
        break;
    }
    if (control_ != nullptr) form_.names().follow(*control_, property);
}

bool ControlPeer::keyPressed(QKeyEvent& event) {
    const auto stroke = strokeOf(event);
    const QString typed = typedText(event);
    if (!typed.isEmpty() && typed != QStringLiteral(" ")) {
        for (const char32_t character : typed.toStdU32String())
            form().typeCharacter(character);
        return true;
    }
    if (!stroke) return false;
    form().pressKey(*stroke);
    return true;
}

bool ControlPeer::mousePressed(QMouseEvent& /*event*/, QWidget& /*target*/) { return false; }

bool ControlPeer::refusesFocus() { return !form().moveFocus(*control_); }

bool ControlPeer::tellClick(const QMouseEvent& event) {
    if (isDoubleClick(event)) return form().doubleClick(*control_);
    return form().click(*control_, static_cast<int>(event.button()));
}

bool ControlPeer::isDoubleClick(const QMouseEvent& event) {
    return event.type() == QEvent::MouseButtonDblClick && event.button() == Qt::LeftButton;
}

void ControlPeer::tellMouseMove(const QMouseEvent& event) {
    constexpr int leftRightMiddle = 7;
    form().moveMouse(*control_, static_cast<int>(event.buttons().toInt()) & leftRightMiddle);
}

ui::Form& ControlPeer::form() const { return form_.form(); }

void setLook(QWidget& widget, const char* property, const QVariant& value) {
    if (widget.property(property) == value) return;
    widget.setProperty(property, value);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
    widget.update();
}

} // namespace quillmere::qt
