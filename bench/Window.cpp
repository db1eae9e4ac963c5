#include "Window.h"

#include "ChosenDesktop.h"
#include "Require.h"
#include "quillmere/IUserCtrl.h"
#include "support/WindowWork.h"

#include <filesystem>

namespace quillmere::bench {

namespace {

class Clerk final : public ui::ScreenlessPerson {
public:
    explicit Clerk(const std::function<void(frmPersonWh&)>& work) : work_(work) {}

    ui::Answer answer(const ui::MessageBox& box) override {
        require(box.text == "保存成功!", box.text);
        return ui::Answer::Ok;
    }
    std::string choose(const ui::FileDialog& /*dialog*/) override { return {}; }
    void work(ui::Form& form) override {
        work_(dynamic_cast<frmPersonWh&>(form));
        form.closeByFrame();
    }

private:
    const std::function<void(frmPersonWh&)>& work_;
};

} // namespace

void withWindow(const Register& from, const std::string& personID,
                const std::function<void(frmPersonWh& window)>& work) {
    constexpr std::int16_t maintainEverything = 4;
    constexpr std::int16_t firstType = 1;
    Clerk clerk(work);
    const ChosenDesktop desktop(clerk);
    IUserCtrl entry;
    entry.setConnection(from.connection);
    entry.setOperationType(maintainEverything);
    entry.setZZtype(firstType);
    entry.setPersonID(personID);
    entry.setPhotoPath(std::filesystem::temp_directory_path().string());
    (void)entry.ShowPersonWh();
}

void openSet(frmPersonWh& window, const char* caption) {
    require(test::clickItem(window, caption), std::string("the menu has no item ") + caption);
}

void enter(frmPersonWh& window, const char* widget, const char* text) {
    require(test::enterText(window, widget, text), std::string("nothing can be entered in ") + widget);
}

void press(frmPersonWh& window, const char* button) {
    require(test::pressButton(window, button), std::string("there is no use in pressing ") + button);
}

} // namespace quillmere::bench
