#pragma once

namespace quillmere::qt {

class FormPeer;

/// Lays the window of records out: toolbar and name above, menu at the left, the panel beside it.
void layOutWindow(FormPeer& form);

} // namespace quillmere::qt
