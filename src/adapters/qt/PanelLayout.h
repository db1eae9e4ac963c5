#pragma once

class QWidget;

namespace quillmere::ui {
class UserControl;
}

namespace quillmere::qt {

class FormPeer;

/// Lays a panel out: a card with title, legend, fields and help line, and the grids below.
void layOutPanel(FormPeer& form, ui::UserControl& panel, QWidget& surface);

} // namespace quillmere::qt
