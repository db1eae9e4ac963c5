#pragma once

#include "panels/A1ctrlUser.h"
#include "shell/RegisterTest.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::test {

inline constexpr auto addMode = "当前操作：增加";
inline constexpr auto modifyMode = "当前操作：修改";

// The questions of the commands and of a menu click, and what the record commands tell.
inline constexpr auto windowTitle = "信息维护";
inline constexpr auto keepEdits = "数据被修改且未保存，是否保存？";
inline constexpr auto keepEditsAtExit = "数据被修改但未保存，是否保存？";
inline constexpr auto dropEdits = "数据已被修改并且未被保存，是否取消？";
inline constexpr auto deleteRecord = "是否删除此条记录？";
inline constexpr auto deletePerson = "此操作将删除此人所有信息，是否删除？";
inline constexpr auto deleteUnit = "此操作将删除此单位所有信息，是否删除？";
inline constexpr auto baseRecordFirst = "必须先维护基本信息集，然后再维护其它信息集。";
inline constexpr auto sameName = "系统已包含此姓名的用户，确定继续？";
inline constexpr auto saved = "保存成功!";

using Lines = std::vector<std::string>;

/// A test on the record commands, with a person whose records are the studies of A02.
class RecordCommandTest : public RegisterTest {
protected:
    RecordCommandTest();

    /// A record of A02; a higher number is a later one.
    void addStudy(int number);
    /// The item of that table in the first group, clicked.
    static void open(std::string_view table);
    /// The command of a button, as the window runs it for itself: enabled or not.
    static void command(std::string_view button) {
        window().TbMain_ButtonClick(window().toolbarButton(button));
    }
    static void empty(std::string_view widget);

    /// The journal without what loading a panel reads; the panel's coming and going stands for that.
    [[nodiscard]] Lines story() const;
    /// The numbers of the stored studies.
    [[nodiscard]] Lines numbers() { return database.column("select A0299 from A02 order by A0299"); }
    [[nodiscard]] static A1ctrlUser& panel() { return *window().GetUserCtrl(); }
    [[nodiscard]] static std::string text(std::string_view widget);

    const std::string id{somePerson};
};

/// EXPECT_EQ, for lists written in braces.
void expectLines(const Lines& told, const Lines& expected);

/// Lines of the story, one after the other.
[[nodiscard]] Lines operator+(Lines first, const Lines& second);

// Parts of the story that many commands share. Those of A02 are about the person of the test.
[[nodiscard]] Lines limitOfStudies();
[[nodiscard]] Lines gate(std::string_view id);
[[nodiscard]] Lines replacedPanel(std::string_view before, std::string_view after);
/// The next number is taken and the empty record shown.
[[nodiscard]] Lines nextStudy(int number);
/// Both buttons change, one after the other.
[[nodiscard]] Lines addAndDelete(bool enabled);
[[nodiscard]] std::string box(std::string_view title, std::string_view text);
[[nodiscard]] std::string sql(std::string_view statement);

} // namespace quillmere::test
