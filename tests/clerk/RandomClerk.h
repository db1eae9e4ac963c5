#pragma once

#include "clerk/ClerksRegister.h"
#include "clerk/Diary.h"
#include "clerk/Hands.h"
#include "platform/Error.h"
#include "platform/ui/ScreenlessDesktop.h"
#include "sample/Random.h"

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace quillmere {
class frmPersonWh;
}

namespace quillmere::test {

/// What a run has come to.
struct Outcome {
    int steps = 0;
    int runs = 0;
    /// Statements that changed the register.
    int changes = 0;
    /// Maintenance runs in which something was saved by the Save button.
    int saved = 0;
    int boxes = 0;
    /// Maintenance runs that a failure ended.
    int failures = 0;
    /// Names of the panels and dialogs that were on show.
    std::set<std::string> shown;
};

/// A clerk who works at random, from a seed: opens the window on persons, units and nobody, in every
/// operation type, and does whatever can be done to what is on show. After every step the window must
/// be as it may be; a step after which it is not raises Finding.
class RandomClerk final : public ui::ScreenlessPerson {
public:
    struct Options {
        std::uint64_t seed = 1;
        int steps = 1000;
        bool trace = false;
        /// A folder for photo files, which the clerk fills.
        std::filesystem::path folder;
    };

    explicit RandomClerk(const Options& options);
    ~RandomClerk() override;

    /// Works until the steps are used up. Raises Finding.
    Outcome work();
    [[nodiscard]] const Diary& diary() const { return diary_; }

    ui::Answer answer(const ui::MessageBox& box) override;
    void work(ui::Form& form) override;
    std::string choose(const ui::FileDialog& dialog) override;

private:
    void maintain();
    void open();
    void workOnWindow(frmPersonWh& window);
    void workOnDialog(ui::Form& dialog);
    /// Now and then one of the coming statements fails.
    void breakLine();
    void checkWindow(const frmPersonWh& window);
    void checkForm(const ui::Form& form) const;
    void checkFailure(const Error& error) const;
    void checkOthers(const ClerksRegister::Rows& before);
    [[nodiscard]] bool isDone() const { return diary_.steps() >= options_.steps; }

    Options options_;
    sample::Random chance_;
    Diary diary_;
    Hands hands_;
    ClerksRegister register_;
    ui::ScreenlessDesktop desktop_;
    std::vector<std::string> files_;
    /// The identities that the running maintenance run has stood on.
    std::set<std::string> touched_;
    Outcome outcome_;
};

} // namespace quillmere::test
