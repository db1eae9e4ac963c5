#include "Story.h"

#include "adapters/qt/Companion.h"
#include "component/server/ToolkitModule.h"
#include "platform/ui/Desktop.h"

#include "quillmere/Qt.h"

// The toolkit module over Qt, with a companion in the place of the person.

namespace {

class Person final : public quillmere::qt::Companion {
public:
    void formOpened(quillmere::ui::Form& form) override { quillmere::component::test::saveAndClose(form); }
    std::optional<quillmere::ui::Answer> messageOpened(const quillmere::ui::MessageBox& box) override {
        return box.buttons == quillmere::ui::Buttons::YesNo ? quillmere::ui::Answer::No
                                                            : quillmere::ui::Answer::Ok;
    }
};

} // namespace

extern "C" __attribute__((visibility("default"))) quillmere::ui::Desktop* quillmereMakeDesktop() {
    static auto* person = new Person;
    static auto* toolkit = new quillmere::qt::Toolkit([] {
        quillmere::qt::ToolkitOptions options;
        options.companion = person;
        return options;
    }());
    return &toolkit->desktop();
}
