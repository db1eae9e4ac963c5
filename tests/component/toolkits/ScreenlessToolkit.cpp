#include "Story.h"

#include "component/server/ToolkitModule.h"
#include "platform/ui/ScreenlessDesktop.h"

// A toolkit module without a screen.

namespace {

class Person final : public quillmere::ui::ScreenlessPerson {
public:
    quillmere::ui::Answer answer(const quillmere::ui::MessageBox& box) override {
        return box.buttons == quillmere::ui::Buttons::YesNo ? quillmere::ui::Answer::No
                                                            : quillmere::ui::Answer::Ok;
    }
    void work(quillmere::ui::Form& form) override { quillmere::component::test::saveAndClose(form); }
    std::string choose(const quillmere::ui::FileDialog& /*dialog*/) override { return {}; }
};

} // namespace

extern "C" __attribute__((visibility("default"))) quillmere::ui::Desktop* quillmereMakeDesktop() {
    static auto* person = new Person;
    static auto* desktop = new quillmere::ui::ScreenlessDesktop(*person);
    return desktop;
}
