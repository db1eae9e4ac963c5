#include "shell/RecordCommandTest.h"
#include "support/PhotoFolder.h"

// The picture beside the name: whose it is, and when it is shown anew.

namespace quillmere::test {

namespace {

class NamePhotoTest : public RecordCommandTest {
protected:
    /// A run with a folder of photos.
    void runOn(std::int16_t operationType, std::string_view who,
               const std::function<void(frmPersonWh&)>& work, std::int16_t zzType = 2) {
        IUserCtrl host;
        give(host, operationType, who, zzType);
        host.setPhotoPath("photos");
        run(host, work);
    }
    [[nodiscard]] static std::string shown() { return window().nameLabel().Picture(); }
    [[nodiscard]] std::string photoOf(const std::string& who) const { return "photos\\" + who + ".jpg"; }
};

/// Counts how often the picture is shown.
struct PictureView final : ui::ControlView {
    void changed(ui::Property property) override { shows += property == ui::Property::Picture ? 1 : 0; }
    int shows = 0;
};

TEST_F(NamePhotoTest, IsThatOfThePersonWhoIsNamed) {
    runOn(4, id, [&](frmPersonWh&) { EXPECT_EQ(shown(), photoOf(id)); });
}

TEST_F(NamePhotoTest, AUnitHasNone) {
    addUnit(someUnit, "第一测绘院");
    runOn(4, id, [](frmPersonWh&) {});
    constexpr std::int16_t collective = 6;
    runOn(
        4, someUnit,
        [](frmPersonWh& window) {
            EXPECT_EQ(window.nameLabel().Caption(), "第一测绘院");
            EXPECT_EQ(shown(), "");
        },
        collective);
}

TEST_F(NamePhotoTest, ANewRecordHasNoneAlsoAfterAPerson) {
    runOn(4, id, [](frmPersonWh&) {});
    runOn(0, id, [](frmPersonWh&) { EXPECT_EQ(shown(), ""); });
}

TEST_F(NamePhotoTest, AddingAPersonTakesItAway) {
    runOn(4, id, [](frmPersonWh&) {
        command("Add");
        EXPECT_EQ(shown(), "");
    });
}

TEST_F(NamePhotoTest, ComesWithTheNameWhenANewPersonIsSaved) {
    runOn(0, {}, [&](frmPersonWh& window) {
        type("A01_A0101_v", "张三");
        EXPECT_EQ(shown(), "");
        EXPECT_TRUE(window.Save(panel()));
        EXPECT_EQ(window.nameLabel().Caption(), "张三");
        EXPECT_EQ(shown(), photoOf(window.personID));
    });
}

TEST_F(NamePhotoTest, IsShownAnewWhenItHasBeenReplaced) {
    runOn(4, id, [&](frmPersonWh& window) {
        PictureView view;
        window.nameLabel().setView(&view);
        window.photoChanged();
        window.nameLabel().setView(nullptr);
        EXPECT_EQ(view.shows, 1);
        EXPECT_EQ(shown(), photoOf(id));
    });
}

TEST_F(NamePhotoTest, GoesWithThePersonWhoIsDeleted) {
    person.expectBox(deletePerson, windowTitle, ui::Answer::Yes);
    runOn(4, id, [](frmPersonWh&) {
        press("Delete");
        EXPECT_EQ(shown(), "");
    });
}

} // namespace

} // namespace quillmere::test
