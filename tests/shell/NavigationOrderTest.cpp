#include "panels/A1ctrlUser.h"
#include "platform/ui/ScreenlessDesktop.h"
#include "shell/NavigationTest.h"

#include <gtest/gtest.h>

// The order of a click's steps, told by what stands on the window whenever the click says something to the
// person or to the database.

namespace quillmere::test {

namespace {

/// Notes how the window stands at each statement and at each message box.
class NavigationOrder : public NavigationTest {
protected:
    explicit NavigationOrder(std::string_view stage) : NavigationTest(stage), desktop_(watcher_) {
        ui::useDesktop(&desktop_);
    }
    ~NavigationOrder() override { ui::useDesktop(nullptr); }

    void observe(std::int16_t zzType, const std::function<void(frmPersonWh& shown)>& work) {
        IUserCtrl host;
        give(host, 4, id, zzType);
        host.setConnection(std::make_shared<data::RecordingConnection>(
            host.Connection(), [this](std::string_view sql) { note(sql); }));
        run(host, work);
    }

    /// What is said from here on is noted.
    void watch() { watching_ = true; }
    [[nodiscard]] const std::vector<std::string>& notes() const { return notes_; }

    /// "<position> <panel> <frame> <buttons> <edits> <operation>"; "+-" says that Add and Delete can be used,
    /// ".." that they cannot.
    [[nodiscard]] static std::string standing() {
        const frmPersonWh& shown = window();
        const A1ctrlUser* panel = shown.GetUserCtrl();
        if (panel == nullptr) return position(shown) + " (none)";
        return position(shown) + " " + panel->name().substr(10) +
               (shown.panelFrame().Enabled() ? " open" : " shut") + (enabled("Add") ? " +" : " .") +
               (enabled("Delete") ? "-" : ".") + (panel->WhInfo.IsChange ? " edited" : "") +
               (labOpt().empty() ? "" : " " + labOpt().substr(std::string("当前操作：").size()));
    }

private:
    class Watcher final : public ui::ScreenlessPerson {
    public:
        explicit Watcher(NavigationOrder& test) : test_(test) {}
        ui::Answer answer(const ui::MessageBox& box) override {
            test_.note(box.text);
            return test_.journal.answer(box);
        }
        void work(ui::Form& form) override { test_.journal.work(form); }
        std::string choose(const ui::FileDialog& dialog) override { return test_.journal.choose(dialog); }

    private:
        NavigationOrder& test_;
    };

    void note(std::string_view what) {
        if (watching_) notes_.push_back(standing() + " | " + std::string(what));
    }

    Watcher watcher_{*this};
    ui::ScreenlessDesktop desktop_;
    bool watching_ = false;
    std::vector<std::string> notes_;
};

class OrderInStage02 : public NavigationOrder {
protected:
    OrderInStage02() : NavigationOrder("02") {}
};

class OrderInStage01 : public NavigationOrder {
protected:
    OrderInStage01() : NavigationOrder("01") {}
};

/// `standing | what`, with the identity in the place of `@`.
std::vector<std::string> lines(const std::string& id,
                               std::initializer_list<std::pair<std::string, std::string>> rows) {
    std::vector<std::string> made;
    for (const auto& [standing, what] : rows) {
        std::string text = what;
        for (auto at = text.find('@'); at != std::string::npos; at = text.find('@', at + id.size()))
            text.replace(at, 1, id);
        made.push_back(standing + " | " + text);
    }
    return made;
}

TEST_F(OrderInStage02, OfAPlanWithoutRowsIsEditsPositionGatePanelToolbarRowsDescriptionAndLock) {
    person.expectBox(editsQuestion, windowCaption, ui::Answer::No);
    observe(1, [this](frmPersonWh& shown) {
        click(shown, 5, "F05");
        type("F05_F0501_v", "12");
        watch();
        click(shown, 3, "Plan1");
        EXPECT_EQ(standing(), "3.2 Plan1 open .. 增加");
    });
    EXPECT_EQ(
        notes(),
        lines(
            id,
            {
                {"5.5 F05 open .. edited 增加", editsQuestion},
                {"3.2 F05 open .. edited 增加", "select count(A00) from a01 where a00 ='@'"},
                {"3.2 F05 open .. edited 增加", "select count(A00) from B01 where a00 ='@'"},
                {"3.2 Plan1 open ..", " select Property from s_infotable  where TblName ='Plan1'"},
                {"3.2 Plan1 open ..", " select * from s_infoitem  where tblname ='Plan1'"},
                {"3.2 Plan1 open ..", "select * from Plan1 where a00 ='@' and Plan199=1"},
                {"3.2 Plan1 open ..", "select iif(orderfield is null , '',orderfield) as orderfield  from "
                                      "s_infotable where tblname ='Plan1'  and orderfield<>'' "},
                {"3.2 Plan1 open ..",
                 "select itemname,itemdesc,iif(codetable is null,'',codetable) as codetable ,iif(style is "
                 "null,'',style) as style ,iif(fldwidth is null,2000,fldwidth) as fldwidth from  s_infoitem "
                 "where tblname ='Plan1' and itemname <> 'A00' and itemname <>'' and itemdesc <>''   order "
                 "by fldorder "},
                {"3.2 Plan1 open ..",
                 "select Plan1.Plan199 as 序号, format(Plan1.Plan101,'yyyy-MM') as 阶段起始时间, "
                 "format(Plan1.Plan102,'yyyy-MM') as 阶段截止时间, Plan1.Plan103 as 工作内容, Plan1.Plan104 "
                 "as 阶段考核指标、成果 from Plan1 Where Plan1.A00='@' order by Plan101,Plan199"},
                {"3.2 Plan1 open ..", " select * from s_infoitem  where tblname ='Plan1'"},
                // The toolbar is that of a set of several records by now.
                {"3.2 Plan1 open +-", "select count(*) from Plan1 where A00 ='@' and Plan199 >0"},
                // No row: shut, and Add runs.
                {"3.2 Plan1 shut +-", "select iif(maxnumber is null,0,maxnumber) as maxnumber from  "
                                      "s_infotable  where tblname ='Plan1'"},
                {"3.2 Plan1 shut +-", "select iif(max(Plan199) is null,0,max(Plan199))+1  from Plan1 where "
                                      "A00 ='@' "},
                {"3.2 Plan1 shut +-", " select * from s_infoitem  where tblname ='Plan1'"},
                {"3.2 Plan1 shut +-", "select * from Plan1 where a00 ='@' and Plan199=1"},
                {"3.2 Plan1 open .. 增加",
                 "select iif(tbldesc is null,'',tbldesc)  from s_infotable where tblname ='Plan1'"},
                {"3.2 Plan1 open .. 增加", "select count(1) from E06 where a00 ='@'"},
                {"3.2 Plan1 open .. 增加", "select count(1) from M02 where a00 ='@'"},
            }));
}

TEST_F(OrderInStage02, OfARecordThatIsLockedLocksItLast) {
    observe(1, [this](frmPersonWh& shown) {
        click(shown, 3, "P01");
        EXPECT_EQ(standing(), "3.1 PP01A open .. 修改");
        watch();
        click(shown, 2, "P01");
        EXPECT_EQ(standing(), "2.1 P01 shut .. 修改");
    });
    const auto& seen = notes();
    ASSERT_GT(seen.size(), 2U);
    EXPECT_EQ(seen.front(), "2.1 PP01A open .. 修改 | select count(A00) from a01 where a00 ='" + id + "'");
    // Counted, the rows open the frame and name the operation; the description is read with it open.
    EXPECT_EQ(seen[seen.size() - 2], "2.1 P01 open .. | select count(*) from P01 where A00 ='" + id + "'");
    EXPECT_EQ(seen.back(), "2.1 P01 open .. 修改 | select iif(tbldesc is null,'',tbldesc)  from s_infotable "
                           "where tblname ='P01'");
}

TEST_F(OrderInStage01, OfASkilledWorkerReadsThePersonBehindTheGateWithTheOldPanelOnShow) {
    addRow("A10");
    observe(7, [this](frmPersonWh& shown) {
        click(shown, 1, "A10");
        watch();
        click(shown, 1, "A01");
    });
    ASSERT_GT(notes().size(), 4U);
    const std::vector<std::string> first{notes().begin(), notes().begin() + 4};
    EXPECT_EQ(first,
              lines(id, {
                            {"1.1 A10 open .. 修改", "select count(A00) from a01 where a00 ='@'"},
                            {"1.1 A10 open .. 修改", "select count(A00) from B01 where a00 ='@'"},
                            {"1.1 A10 open .. 修改", "select * from A01 where A00='@'"},
                            {"1.1 A01 open ..", " select Property from s_infotable  where TblName ='A01'"},
                        }));
}

TEST_F(OrderInStage01, OfARefusedClickTellsWithThePositionOnTheItemClickedAndTakesItBackThen) {
    database.run("delete from A01");
    person.answerAnyBox(ui::Answer::No);
    IUserCtrl host;
    give(host, 0, id);
    host.setConnection(
        std::make_shared<data::RecordingConnection>(host.Connection(), [](std::string_view) {}));
    run(host, [this](frmPersonWh& shown) {
        const std::string fresh = shown.personID;
        watch();
        click(shown, 2, "P06");
        EXPECT_EQ(notes(), (std::vector<std::string>{"2.6 A01 open .. 增加 | " + gateQuestion}));
        EXPECT_EQ(standing(), "1.1 A01 open .. 增加");
        EXPECT_EQ(shown.personID, fresh);
    });
}

} // namespace

} // namespace quillmere::test
