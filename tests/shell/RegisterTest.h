#pragma once

#include "quillmere/IUserCtrl.h"
#include "shell/Journal.h"
#include "shell/frmPersonWh.h"
#include "support/ScriptedPerson.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

/// An identity as the system makes it, and one that only an importing program would make.
inline constexpr std::string_view somePerson = "0980DF6D-BB1D-4BD6-830D-A1D754D4F9DF";
inline constexpr std::string_view someUnit = "4133C396-DD2A-4AC4-8B05-6A9E850062CF";

/// Makes the sample's catalogue and its tables; the code tables and the data tables stay empty.
void buildCatalogue(data::Connection& connection);

/// A test on the sample catalogue without people, on 21 November 2026, with a person who follows a
/// script and a journal of all that happens on the default window.
class RegisterTest : public testing::Test {
protected:
    RegisterTest();
    ~RegisterTest() override;

    /// A person with this name, a sequence number and a project row of this stage.
    void addPerson(std::string_view id, std::string_view name, std::string_view stage = "01");
    /// A unit with this name, without a project row.
    void addUnit(std::string_view id, std::string_view name);
    /// Makes room for two rows of A01, B01 and P01 for one identity, as a damaged register has them.
    void allowDuplicates();

    /// Fills an entry object; its connection writes into the journal.
    void give(IUserCtrl& host, std::int16_t operationType, std::string_view id, std::int16_t zzType = 2);
    /// One maintenance run: the work is done in the open window, which is then closed by its frame.
    bool run(IUserCtrl& host, const std::function<void(frmPersonWh& window)>& work = {});
    /// The same on a fresh entry object.
    bool run(std::int16_t operationType, std::string_view id, std::int16_t zzType,
             const std::function<void(frmPersonWh& window)>& work = {});
    /// A run whose window unloads itself, or fails, before it is shown.
    bool runUnseen(IUserCtrl& host) { return host.ShowPersonWh(); }

    [[nodiscard]] static frmPersonWh& window() { return frmPersonWh::defaultInstance(); }
    [[nodiscard]] static std::string panelName();
    /// The person puts a text into a widget, at its front.
    static void type(std::string_view widget, std::string_view text);
    static void press(std::string_view button);
    [[nodiscard]] static bool enabled(std::string_view button) { return button_(button).Enabled(); }
    [[nodiscard]] static std::string labOpt();

    TestDatabase database;
    ScriptedPerson person;
    Journal journal;

private:
    static ui::Toolbar::Button& button_(std::string_view key) { return window().toolbarButton(key); }
};

} // namespace quillmere::test
