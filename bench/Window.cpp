#include "Window.h"

#include "ChosenDesktop.h"
#include "quillmere/IUserCtrl.h"

#include <filesystem>
#include <stdexcept>

namespace quillmere::bench {

namespace {

class Clerk final : public ui::ScreenlessPerson {
public:
    explicit Clerk(const std::function<void(frmPersonWh&)>& work) : work_(work) {}

    ui::Answer answer(const ui::MessageBox& box) override { throw std::runtime_error(box.text); }
    std::string choose(const ui::FileDialog& /*dialog*/) override { return {}; }
    void work(ui::Form& form) override {
        work_(dynamic_cast<frmPersonWh&>(form));
        form.closeByFrame();
    }

private:
    const std::function<void(frmPersonWh&)>& work_;
};

} // namespace

void withWindow(const std::shared_ptr<data::Connection>& connection, const std::string& personID,
                const std::function<void(frmPersonWh& window)>& work) {
    constexpr std::int16_t maintainEverything = 4;
    constexpr std::int16_t firstType = 1;
    Clerk clerk(work);
    const ChosenDesktop desktop(clerk);
    IUserCtrl entry;
    entry.setConnection(connection);
    entry.setOperationType(maintainEverything);
    entry.setZZtype(firstType);
    entry.setPersonID(personID);
    entry.setPhotoPath(std::filesystem::temp_directory_path().string());
    (void)entry.ShowPersonWh();
}

} // namespace quillmere::bench
