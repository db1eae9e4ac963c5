#include "panels/A1ctrlUser.h"
#include "shell/NavigationTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <algorithm>

// A click one of whose statements fails: what is left of the old panel, and of the click.

namespace quillmere::test {

namespace {

struct FailingClick {
    const char* stage;
    std::int16_t zzType;
    int group;
    const char* key;
    /// Statements that run while the old panel is still on show.
    std::size_t onOldPanel;
};

void PrintTo(const FailingClick& row, std::ostream* out) { *out << row.key << " in type " << row.zzType; }

class FailureIn : public NavigationTest, public testing::WithParamInterface<FailingClick> {
protected:
    FailureIn() { database.run(std::string("update P01 set P0123='") + GetParam().stage + "'"); }

    /// A click from the panel of F05, as a rule an item of its own, that no lock of these stages concerns.
    void clickFromF05(frmPersonWh& shown) {
        click(shown, 5, "F05");
        journal.clear();
        click(shown, GetParam().group, GetParam().key);
    }

    [[nodiscard]] std::vector<std::string> wholeClick() {
        std::vector<std::string> whole;
        maintain(
            [&](frmPersonWh& shown) {
                clickFromF05(shown);
                whole = journal.statements();
            },
            GetParam().zzType);
        return whole;
    }

    /// What is on show when the statement `k` of the click has failed.
    struct Left {
        std::string panel;
        std::string position;
        std::vector<std::string> statements;
    };
    Left failAt(std::size_t k) {
        Left left;
        EXPECT_EQ(failureOf([&] {
                      maintain(
                          [&](frmPersonWh& shown) {
                              click(shown, 5, "F05");
                              journal.clear();
                              database.failing().failAfter(static_cast<int>(k), "断线");
                              try {
                                  click(shown, GetParam().group, GetParam().key);
                              } catch (...) {
                                  left = {panelName(), position(shown), journal.statements()};
                                  throw;
                              }
                          },
                          GetParam().zzType);
                  }),
                  number(Failure::StatementFailed))
            << k;
        return left;
    }
};

TEST_P(FailureIn, AnyStatementLeavesTheOldPanelUpToTheGateAndTheNewOneFromThere) {
    const auto whole = wholeClick();
    ASSERT_GT(whole.size(), GetParam().onOldPanel);
    const auto preparing = std::ranges::find_if(
        whole, [](const std::string& sql) { return sql.starts_with(" select Property from s_infotable"); });
    ASSERT_EQ(static_cast<std::size_t>(preparing - whole.begin()), GetParam().onOldPanel);
    for (std::size_t k = 1; k <= whole.size(); ++k) {
        const Left left = failAt(k);
        const bool old = k <= GetParam().onOldPanel;
        EXPECT_EQ(left.panel == "A1ctrlUserF05", old) << whole[k - 1];
        // There is a panel at every moment; the position is the new one from the first statement on.
        EXPECT_NE(left.panel, "(none)") << whole[k - 1];
        EXPECT_NE(left.position, "5.5") << whole[k - 1];
        // Nothing is sent behind the statement that failed.
        EXPECT_EQ(left.statements,
                  (std::vector<std::string>{whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(k)}));
        EXPECT_FALSE(window().isLoaded());
        EXPECT_EQ(window().GetUserCtrl(), nullptr);
    }
    EXPECT_TRUE(person.boxes().empty());
    EXPECT_EQ(wholeClick(), whole);
}

INSTANTIATE_TEST_SUITE_P(Clicks, FailureIn,
                         testing::Values(FailingClick{"02", 2, 3, "Plan1", 2},
                                         FailingClick{"01", 2, 1, "A01", 2},
                                         FailingClick{"03", 7, 1, "A01", 3},
                                         FailingClick{"01", 2, 2, "P06", 2}));

class NavigationFailure : public NavigationTest {
protected:
    /// What is stored when a changed field was asked about, and the gate behind the question has failed.
    [[nodiscard]] std::string storedWhenTheGateFails(ui::Answer answer) {
        person.expectBox(editsQuestion, windowCaption, answer);
        EXPECT_EQ(failureOf([&] {
                      maintain([this](frmPersonWh& shown) {
                          type("A01_A0119_v", "桥梁");
                          database.failing().failOn("count(A00) from B01", "断线");
                          click(shown, 1, "A02");
                      });
                  }),
                  number(Failure::StatementFailed));
        return database.cell("select A0119 from A01");
    }
};

TEST_F(NavigationFailure, AtTheGateLosesTheEditsThatTheQuestionDropped) {
    EXPECT_EQ(storedWhenTheGateFails(ui::Answer::No), "(null)");
}

TEST_F(NavigationFailure, AtTheGateKeepsTheEditsThatTheQuestionStored) {
    EXPECT_EQ(storedWhenTheGateFails(ui::Answer::Yes), "桥梁");
}

TEST_F(NavigationFailure, OfATableThatIsNotThereHasReplacedThePanel) {
    database.run("drop table P06");
    std::string left;
    EXPECT_EQ(failureOf([&] {
                  maintain([&](frmPersonWh& shown) {
                      try {
                          click(shown, 2, "P06");
                      } catch (...) {
                          left = panelName();
                          throw;
                      }
                  });
              }),
              number(Failure::StatementFailed));
    EXPECT_EQ(left, "A1ctrlUserP06");
}

} // namespace

} // namespace quillmere::test
