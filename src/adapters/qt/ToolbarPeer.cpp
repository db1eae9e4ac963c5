#include "adapters/qt/ToolbarPeer.h"

#include "adapters/qt/AccessibleRoles.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/Icons.h"
#include "adapters/qt/QtText.h"

#include "platform/ui/Toolbar.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QToolButton>

namespace quillmere::qt {

ToolbarPeer::ToolbarPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QWidget(&form.window())) {
    readAs(*widget(), QAccessible::ToolBar);
    auto* row = new QHBoxLayout(widget());
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    addButtons();
    row->addStretch(1);
    mirror(ui::Property::Items);
}

void ToolbarPeer::addButtons() {
    for (const auto& model : as<ui::Toolbar>().buttons()) {
        if (model->isSeparator()) {
            auto* rule = new QFrame(widget());
            rule->setProperty("role", "separator");
            rule->setFixedSize(1, 22);
            widget()->layout()->addWidget(rule);
            buttons_.push_back(nullptr);
            continue;
        }
        auto* button = new QToolButton(widget());
        button->setObjectName(widget()->objectName() + QLatin1Char('_') + toQt(model->Key()));
        button->setFocusPolicy(Qt::NoFocus);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setText(toQt(model->Caption()));
        button->setIcon(icons::icon(icons::forCommand(toQt(model->Key()))));
        button->setIconSize({18, 18});
        widget()->layout()->addWidget(button);
        buttons_.push_back(button);
        connect(button, &QToolButton::clicked, this, [this, clicked = model.get()] {
            guarded([this, clicked] {
                if (this->control() != nullptr) as<ui::Toolbar>().clickButton(*clicked);
            });
        });
    }
}

void ToolbarPeer::mirror(ui::Property property) {
    if (property != ui::Property::Items) return;
    const auto& models = as<ui::Toolbar>().buttons();
    for (std::size_t i = 0; i < buttons_.size() && i < models.size(); ++i) {
        if (buttons_[i] != nullptr) buttons_[i]->setEnabled(models[i]->Enabled());
    }
}

} // namespace quillmere::qt
