#pragma once

#include "faults/SmallRegister.h"
#include "platform/Error.h"
#include "platform/ui/ScreenlessDesktop.h"
#include "shell/frmPersonWh.h"
#include "support/TestDatabase.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// How a failing statement is answered: in a box with this title and beginning, or by leaving the command
/// and the window for the host.
struct Reaction {
    const char* title = nullptr;
    const char* beginning = "";

    [[nodiscard]] bool travels() const { return title == nullptr; }
};

/// From the first statement on that begins so, failures are answered so.
struct Phase {
    const char* from;
    Reaction reaction;
};

/// One thing that a clerk does in the window, and what leads up to it.
struct Deed {
    const char* name;
    std::int16_t operationType;
    std::int16_t zzType;
    std::string_view id;
    /// Statements that make the rows that there are.
    std::vector<const char*> rows;
    std::function<void(frmPersonWh& window)> prepare;
    std::function<void(frmPersonWh& window)> act;
    std::vector<Phase> phases;
    /// Fills the row editor, where the deed opens it, and its save button.
    std::function<void(ui::Form& editor)> fill = {};
    const char* saveButton = "";
};

inline void PrintTo(const Deed& deed, std::ostream* out) { *out << deed.name; }

/// What can be seen of the window, and what is stored.
struct Sight {
    std::string panel;
    bool isChange = false;
    bool isSaved = false;
    std::int32_t whState = 0;
    /// "name=text" of each value widget.
    Lines texts;
    /// "table|cell|cell" of each row of every information set.
    Lines rows;
    bool editorOpen = false;
    /// The editor's texts when its save button was clicked, and now.
    Lines typed;
    Lines kept;
};

/// All that is seen of a rehearsal.
struct Seen {
    Sight before;
    /// When the deed is over, or stands still in a row editor that stayed open.
    Sight behind;
    Lines rowsAtTheEnd;
    /// "SQL <statement>" and "BOX [<title>] <text>" in their order: of the deed up to `behind`, of all that
    /// came then, and of the opening anew.
    Lines story;
    Lines rest;
    Lines opening;
};

/// Plays a deed in a maintenance run, as often as asked, with one statement failing or none. What it does
/// to the register is taken back when this object goes.
class Rehearsal final : public ui::ScreenlessPerson {
public:
    explicit Rehearsal(const Deed& deed);
    ~Rehearsal() override;

    /// The statement `k` of the deed fails, counted from 1.
    int failAt = 0;
    /// Run behind the window's back, right before the deed.
    Lines beforehand;
    /// What a host puts around its connection before it hands it over; nothing when it is empty.
    using Around = std::function<std::shared_ptr<data::Connection>(std::shared_ptr<data::Connection>)>;
    Around around;
    /// Whether the deed is done, and done once more.
    bool acts = true;
    bool actsAgain = false;

    /// Plays it. The failure that came out of the window, none when none did.
    std::optional<Error> play();
    /// Opens the window again on an identity, and closes it.
    std::optional<Error> reopen(const std::string& id);

    Seen seen;

    ui::Answer answer(const ui::MessageBox& box) override;
    void work(ui::Form& form) override;
    std::string choose(const ui::FileDialog& /*dialog*/) override { return {}; }

private:
    std::optional<Error> run(std::int16_t operationType, std::string id);
    void workOnWindow();
    void workOnEditor(ui::Form& editor);
    void look(Sight& sight) const;
    /// The deed is over, or stands still in an open editor.
    void pause();

    const Deed& deed_;
    ui::ScreenlessDesktop desktop_;
    std::shared_ptr<data::Connection> connection_;
    Lines* told_ = nullptr;
    bool reopening_ = false;
    bool paused_ = false;
};

/// The statements of a story, and its boxes.
[[nodiscard]] Lines statementsOf(const Lines& story);
[[nodiscard]] Lines boxesOf(const Lines& story);

} // namespace quillmere::test
