#pragma once

#include "adapters/qt/ControlGroup.h"

class QFrame;
class QVBoxLayout;

/// Pieces that the layouts of windows, panels and dialogs share.
namespace quillmere::qt {

/// A white surface with a fine border.
[[nodiscard]] QFrame* makeCard();
[[nodiscard]] QFrame* makeRule();

/// Tells every peer of the group that it has found its place.
void placeWithin(const ControlGroup& group);

/// Adds a card of grids with their notes and buttons above. It gives its room back while no grid and
/// no button in it shows.
void addGridCard(QVBoxLayout& column, const std::vector<ControlPeer*>& grids,
                 const std::vector<ControlPeer*>& buttons, const std::vector<LabelPeer*>& notes = {});

} // namespace quillmere::qt
