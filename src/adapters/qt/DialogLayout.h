#pragma once

class QWidget;

namespace quillmere::qt {

class ControlPeer;
class FormPeer;

/// Lays a dialog out by the kinds of its controls: tabs, pictures, fields and lists from top to
/// bottom, the buttons in a row below.
void layOutDialog(FormPeer& form);

/// Puts a widget below what stands on the surface already.
void putInto(QWidget& surface, ControlPeer& peer);

} // namespace quillmere::qt
