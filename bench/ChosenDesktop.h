#pragma once

#include "platform/ui/ScreenlessDesktop.h"

namespace quillmere::bench {

/// The screenless desktop, with `person` before it, is the desktop for as long as this lives.
class ChosenDesktop {
public:
    explicit ChosenDesktop(ui::ScreenlessPerson& person) : desktop_(person) { ui::useDesktop(&desktop_); }
    ~ChosenDesktop() { ui::useDesktop(nullptr); }
    ChosenDesktop(const ChosenDesktop&) = delete;
    ChosenDesktop& operator=(const ChosenDesktop&) = delete;

private:
    ui::ScreenlessDesktop desktop_;
};

} // namespace quillmere::bench
