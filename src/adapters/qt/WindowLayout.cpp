#include "adapters/qt/WindowLayout.h"

#include "adapters/qt/DialogLayout.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/LabelPeer.h"
#include "adapters/qt/NameStrip.h"
#include "adapters/qt/PanelPeer.h"
#include "adapters/qt/Style.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <string_view>

namespace quillmere::qt {

namespace {

constexpr int barHeight = 48;

/// Puts the peer of the named control, where the form has one.
ControlPeer* put(FormPeer& form, QBoxLayout& row, std::string_view name, int stretch) {
    ControlPeer* peer = form.peerOf(form.form().find(name));
    if (peer == nullptr) return nullptr;
    row.addWidget(peer->widget(), stretch);
    peer->place();
    return peer;
}

QWidget* makeTopBar(FormPeer& form) {
    auto* bar = new QWidget;
    bar->setProperty("role", "topBar");
    bar->setAttribute(Qt::WA_StyledBackground);
    bar->setFixedHeight(barHeight);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(12, 0, 14, 0);
    const ControlPeer* toolbar = put(form, *row, "TbMain", 1);
    auto* name = dynamic_cast<LabelPeer*>(form.peerOf(form.form().find("labPersonName")));
    if (toolbar != nullptr && name != nullptr) {
        setLook(name->label(), "role", "personName");
        row->addWidget(new NameStrip(*name, *toolbar->widget(), *bar));
        name->place();
    }
    return bar;
}

} // namespace

void layOutWindow(FormPeer& form) {
    auto* column = new QVBoxLayout(&form.window());
    // A panel that needs more room must not make the window larger than the screen.
    column->setSizeConstraint(QLayout::SetNoConstraint);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTopBar(form));
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    column->addLayout(row, 1);
    if (ControlPeer* frame = put(form, *row, "frmVMenu", 0); frame != nullptr) {
        frame->widget()->setFixedWidth(style::menuWidth);
        if (ControlPeer* menu = form.peerOf(form.form().find("VMenu1")); menu != nullptr) {
            putInto(*frame->surface(), *menu);
        }
    }
    ControlPeer* area = put(form, *row, "frmCtrl", 1);
    for (const auto& control : form.form().Controls()) {
        auto* panel = dynamic_cast<PanelPeer*>(form.peerOf(control.get()));
        if (panel != nullptr && area != nullptr) putInto(*area->surface(), *panel);
    }
}

} // namespace quillmere::qt
