#include "adapters/qt/CheckBoxPeer.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/Style.h"

#include "platform/ui/CheckBox.h"

#include <QCheckBox>
#include <QPainter>
#include <QPainterPath>

namespace quillmere::qt {

namespace {

constexpr int indicatorSize = 16;

class CheckBoxWidget final : public QCheckBox {
public:
    explicit CheckBoxWidget(QWidget* parent) : QCheckBox(parent) {
        setFocusPolicy(Qt::TabFocus);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize sizeHint() const override { return {indicatorSize + 8, style::fieldHeight}; }

protected:
    /// The model says whether it is checked; a click alone does not.
    void nextCheckState() override {}

    [[nodiscard]] bool hitButton(const QPoint& point) const override { return rect().contains(point); }

    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF indicator(4.5, (height() - indicatorSize) / 2.0 + 0.5, indicatorSize - 1,
                               indicatorSize - 1);
        const Colours& skin = style::colours();
        const QColor fill = isChecked() ? skin.accent : skin.field;
        painter.setBrush(isEnabled() ? fill : skin.disabledField);
        painter.setPen(QPen(isChecked() && isEnabled() ? skin.accent : skin.fieldBorder, 1));
        painter.drawRoundedRect(indicator, 3, 3);
        if (hasFocus()) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(skin.focus, 2));
            // Off the box, which is in the same colour when it is checked.
            painter.drawRoundedRect(indicator.adjusted(-3, -3, 3, 3), 5, 5);
        }
        if (!isChecked()) return;
        QPainterPath tick(indicator.topLeft() + QPointF(3.5, 7.8));
        tick.lineTo(indicator.topLeft() + QPointF(6.6, 10.8));
        tick.lineTo(indicator.topLeft() + QPointF(11.8, 4.4));
        painter.setBrush(Qt::NoBrush);
        painter.setPen(
            QPen(isEnabled() ? skin.accentText : skin.disabledText, 1.8, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(tick);
    }
};

} // namespace

CheckBoxPeer::CheckBoxPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new CheckBoxWidget(&form.window())) {
    mirror(ui::Property::Value);
    const auto press = [this] {
        guarded([this] {
            if (this->control() != nullptr) this->form().click(*this->control());
            if (this->control() != nullptr) mirror(ui::Property::Value);
        });
    };
    connect(&box(), &QCheckBox::clicked, this, press);
    // An assistive program toggles the widget itself, and means a click.
    connect(&box(), &QCheckBox::toggled, this, [this, press](bool checked) {
        if (this->control() != nullptr && checked != isChecked()) press();
    });
}

bool CheckBoxPeer::isChecked() const { return as<ui::CheckBox>().Value() != 0; }

QCheckBox& CheckBoxPeer::box() const { return *static_cast<QCheckBox*>(widget()); }

bool CheckBoxPeer::mousePressed(QMouseEvent& event, QWidget& /*target*/) {
    if (event.button() == Qt::LeftButton) return refusesFocus();
    form().click(*control(), static_cast<int>(event.button()));
    return true;
}

void CheckBoxPeer::mirror(ui::Property property) {
    if (property == ui::Property::Value) box().setChecked(isChecked());
}

} // namespace quillmere::qt
