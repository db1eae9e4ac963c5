#include "adapters/qt/Companion.h"

#include "platform/ui/Desktop.h"

namespace quillmere::qt {

// Here, so that the class has one home in whatever is linked together.
Companion::~Companion() = default;

std::optional<ui::Answer> Companion::messageOpened(const ui::MessageBox& /*message*/) { return std::nullopt; }

std::optional<std::string> Companion::fileAsked(const ui::FileDialog& /*dialog*/) { return std::nullopt; }

} // namespace quillmere::qt
