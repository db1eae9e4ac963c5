#include "scenario/ModelToolkit.h"

#include "scenario/Player.h"

namespace quillmere::scenario {

ModelToolkit::ModelToolkit() : desktop_(*this) { ui::useDesktop(&desktop_); }

ModelToolkit::~ModelToolkit() { ui::useDesktop(nullptr); }

ui::Answer ModelToolkit::answer(const ui::MessageBox& box) { return player_->answer(box); }

void ModelToolkit::work(ui::Form& form) { player_->work(form); }

std::string ModelToolkit::choose(const ui::FileDialog& dialog) { return player_->choose(dialog); }

void ModelToolkit::hearBeep() { player_->hearBeep(); }

void ModelToolkit::seeOpened(ui::Form& form) { player_->seeOpened(form); }

void ModelToolkit::seeClosed(ui::Form& form) { player_->seeClosed(form); }

} // namespace quillmere::scenario
