#include "adapters/qt/ButtonPeer.h"
#include "adapters/qt/CheckBoxPeer.h"
#include "adapters/qt/ContainerPeers.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/GridPeer.h"
#include "adapters/qt/ImagePeer.h"
#include "adapters/qt/LabelPeer.h"
#include "adapters/qt/ListPeer.h"
#include "adapters/qt/MaskEdBoxPeer.h"
#include "adapters/qt/MemoPeer.h"
#include "adapters/qt/MenuPeer.h"
#include "adapters/qt/PanelPeer.h"
#include "adapters/qt/TabPeer.h"
#include "adapters/qt/TextBoxPeer.h"
#include "adapters/qt/ToolbarPeer.h"
#include "adapters/qt/TreePeer.h"

#include "platform/ui/TextBox.h"

namespace quillmere::qt {

ControlPeer& makePeer(FormPeer& form, ui::Control& control) {
    // Each peer belongs to its widget, which belongs to the window.
    switch (control.kind()) {
    case ui::Kind::Label:
        return *new LabelPeer(form, control);
    case ui::Kind::TextBox:
        if (static_cast<ui::TextBox&>(control).MultiLine()) return *new MemoPeer(form, control);
        return *new TextBoxPeer(form, control);
    case ui::Kind::MaskEdBox:
        return *new MaskEdBoxPeer(form, control);
    case ui::Kind::CheckBox:
        return *new CheckBoxPeer(form, control);
    case ui::Kind::ListBox:
        return *new ListPeer(form, control);
    case ui::Kind::TreeView:
        return *new TreePeer(form, control);
    case ui::Kind::TabStrip:
        return *new TabPeer(form, control);
    case ui::Kind::Image:
        return *new ImagePeer(form, control);
    case ui::Kind::CommandButton:
        return *new ButtonPeer(form, control);
    case ui::Kind::Toolbar:
        return *new ToolbarPeer(form, control);
    case ui::Kind::VerticalMenu:
        return *new MenuPeer(form, control);
    case ui::Kind::DataGrid:
        return *new GridPeer(form, control);
    case ui::Kind::UserControl:
        return *new PanelPeer(form, control);
    case ui::Kind::Line:
        return *new LinePeer(form, control);
    case ui::Kind::Skin:
        return *new SkinPeer(form, control);
    case ui::Kind::CommonDialog:
        return *new HiddenPeer(form, control);
    case ui::Kind::Frame:
    case ui::Kind::Form:
        break;
    }
    return *new FramePeer(form, control);
}

} // namespace quillmere::qt
