#include "shell/RecordCommandTest.h"
#include "support/PhotoFolder.h"

// Delete on the basic set: photo, person, project, and the new person that the window then stands on.

namespace quillmere::test {

namespace {

class DeletePerson : public RecordCommandTest {
protected:
    DeletePerson() { photos.write(id + ".jpg", jpegOf()); }

    void runOnPerson(const std::function<void(frmPersonWh&)>& work) {
        IUserCtrl host;
        give(host, 4, id);
        host.setPhotoPath(photos.name());
        run(host, work);
    }
    [[nodiscard]] bool photoStands() const { return photos.has(id + ".jpg"); }

    PhotoFolder photos;
};

TEST_F(DeletePerson, RemovesThePersonsRowThenTheProjectsAndStandsOnANewPerson) {
    addStudy(1);
    person.expectBox(deletePerson, windowTitle, ui::Answer::Yes);
    runOnPerson([this](frmPersonWh& shown) {
        journal.clear();
        press("Delete");
        const std::string made = shown.personID;
        EXPECT_NE(made, id);
        expectLines(story(),
                    (Lines{box(windowTitle, deletePerson), sql("delete from A01 where A00='" + id + "' "),
                           sql("delete from P01 where A00='" + id + "'")}) +
                        gate(id) + replacedPanel("A1ctrlUserA01", "A1ctrlUserA01") +
                        Lines{sql("select * from A01 where a00 ='" + id + "'"), "frmCtrl off", "frmCtrl on",
                              "toolbar Add off, Delete on", "toolbar Add off, Delete off",
                              sql(" delete from S_GUID "), sql("insert into S_GUID(val) values('a')"),
                              sql("select id from S_GUID where val='a'"),
                              sql("select * from A01 where a00 ='" + made + "'"), "name "});
        EXPECT_EQ(shown.WhState(), 0);
        EXPECT_EQ(labOpt(), addMode);
        EXPECT_FALSE(photoStands());
    });
    EXPECT_EQ(numbers(), Lines{"1"});
}

TEST_F(DeletePerson, RemovesThePhotoBeforeAnyRow) {
    person.expectBox(deletePerson, windowTitle, ui::Answer::Yes);
    database.failing().failOn("delete from A01", "断线");
    EXPECT_EQ(failureOf([&] { runOnPerson([](frmPersonWh&) { press("Delete"); }); }),
              number(Failure::StatementFailed));
    EXPECT_FALSE(photoStands());
    EXPECT_EQ(database.column("select A00 from A01"), Lines{id});
    EXPECT_EQ(database.column("select A00 from P01"), Lines{id});
}

TEST_F(DeletePerson, LeavesThePhotoAndTheRowsOnNo) {
    person.expectBox(deletePerson, windowTitle, ui::Answer::No);
    runOnPerson([this](frmPersonWh&) {
        journal.clear();
        press("Delete");
        EXPECT_EQ(journal.lines(), Lines{box(windowTitle, deletePerson)});
    });
    EXPECT_TRUE(photoStands());
    EXPECT_EQ(database.column("select A00 from A01"), Lines{id});
}

TEST_F(DeletePerson, RefusesEveryOtherSetUntilTheNewPersonIsSaved) {
    person.expectBox(deletePerson, windowTitle, ui::Answer::Yes);
    runOnPerson([this](frmPersonWh& shown) {
        press("Delete");
        int refused = 0;
        const auto& groups = shown.menu().groups();
        for (int group = 1; group <= static_cast<int>(groups.size()); ++group) {
            const auto& items = groups[static_cast<std::size_t>(group - 1)].items;
            for (int item = 1; item <= static_cast<int>(items.size()); ++item) {
                if (items[static_cast<std::size_t>(item - 1)].key == "A01") continue;
                person.expectBox(baseRecordFirst, windowTitle);
                shown.VMenu1_ItemClick(group, item);
                EXPECT_EQ(panelName(), "A1ctrlUserA01");
                ++refused;
            }
        }
        EXPECT_GT(refused, 20);
        type("A01_A0101_v", "张三");
        person.expectBox(saved, "提示");
        press("Save");
        open("A02");
        EXPECT_EQ(panelName(), "A1ctrlUserA02");
    });
}

TEST_F(DeletePerson, ThatFailsAtTheProjectsRowLeavesThePersonDeleted) {
    person.expectBox(deletePerson, windowTitle, ui::Answer::Yes);
    database.failing().failOn("delete from P01", "断线");
    EXPECT_EQ(failureOf([&] { runOnPerson([](frmPersonWh&) { press("Delete"); }); }),
              number(Failure::StatementFailed));
    EXPECT_EQ(database.column("select A00 from A01"), Lines{});
    EXPECT_EQ(database.column("select A00 from P01"), Lines{id});
    EXPECT_FALSE(window().isLoaded());
}

} // namespace

} // namespace quillmere::test
