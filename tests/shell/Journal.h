#pragma once

#include "platform/data/ObservedConnections.h"
#include "platform/ui/Form.h"
#include "support/ScriptedPerson.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// One list of what the window asked of the database and of the desktop, and of what it did to its
/// own controls, in the order in which it happened:
///
///     SQL <statement>            BOX [<title>] <text>        OPENED <form>
///     + <control>                - <control>                 (controls coming and going)
///     OpenGroup <n>              name <caption>              skin <path>
///     frmCtrl on|off             toolbar Add on|off, Delete on|off
class Journal final : public ui::ScreenlessPerson, private ui::HostView {
public:
    /// Listens to a person's desktop for as long as it lives; `form` is followed as well.
    Journal(ScriptedPerson& person, ui::Form& form);
    ~Journal() override;

    /// A connection that writes into the journal and passes on to `target`.
    [[nodiscard]] std::shared_ptr<data::Connection> over(std::shared_ptr<data::Connection> target);

    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }
    /// The statements among the lines.
    [[nodiscard]] std::vector<std::string> statements() const;
    /// The lines up to and without the first that is `line`; all of them when there is none.
    [[nodiscard]] std::vector<std::string> before(std::string_view line) const;
    /// The lines behind the first that is `line`; none when there is none.
    [[nodiscard]] std::vector<std::string> after(std::string_view line) const;
    /// How many lines begin so.
    [[nodiscard]] int count(std::string_view beginning) const;
    void clear() { lines_.clear(); }

    ui::Answer answer(const ui::MessageBox& box) override;
    void work(ui::Form& form) override { person_.work(form); }
    std::string choose(const ui::FileDialog& dialog) override { return person_.choose(dialog); }
    void hearBeep() override { person_.hearBeep(); }
    void seeOpened(ui::Form& form) override;

private:
    /// Follows one control of the form.
    class Follower final : public ui::ControlView {
    public:
        Follower(Journal& journal, ui::Control& control) : journal_(journal), control_(control) {}
        void changed(ui::Property property) override;

    private:
        Journal& journal_;
        ui::Control& control_;
        int openGroup_ = 1;
    };

    void added(ui::Control& control) override;
    void removed(ui::Control& control) override;
    void write(std::string line) { lines_.push_back(std::move(line)); }

    ScriptedPerson& person_;
    ui::Form& form_;
    ui::ScreenlessDesktop desktop_;
    std::vector<std::unique_ptr<Follower>> followers_;
    std::vector<std::string> lines_;
};

} // namespace quillmere::test
