#include "adapters/qt/ButtonPeer.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/QtText.h"

#include "platform/ui/CommandButton.h"

#include <QPushButton>

namespace quillmere::qt {

ButtonPeer::ButtonPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QPushButton(&form.window())) {
    button().setFocusPolicy(Qt::TabFocus);
    button().setAutoDefault(false);
    mirror(ui::Property::Caption);
    // Also by its shortcut letter or an assistive program: the model asks for the focus first.
    connect(&button(), &QPushButton::clicked, this, [this] {
        guarded([this] {
            if (this->control() != nullptr) this->form().click(*this->control());
        });
    });
}

QPushButton& ButtonPeer::button() const { return *static_cast<QPushButton*>(widget()); }

bool ButtonPeer::mousePressed(QMouseEvent& event, QWidget& /*target*/) {
    return event.button() != Qt::LeftButton || refusesFocus();
}

void ButtonPeer::mirror(ui::Property property) {
    if (property == ui::Property::Caption) button().setText(toQt(as<ui::CommandButton>().Caption()));
}

} // namespace quillmere::qt
