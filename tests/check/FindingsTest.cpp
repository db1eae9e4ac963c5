#include "CheckedRegister.h"
#include "Faults.h"

#include "check/CheckGroup.h"
#include "platform/text/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace quillmere::check {
namespace {

using test::Fault;
using Lines = std::vector<std::string>;

/// One register for all; whoever breaks it puts it back.
const std::shared_ptr<data::Connection>& sampleRegister() {
    static const std::shared_ptr<data::Connection> connection = test::makeRegister();
    return connection;
}

/// What is done to the register while this lives is undone.
struct Undone {
    Undone() { sampleRegister()->execute("begin"); }
    ~Undone() { sampleRegister()->execute("rollback"); }
    Undone(const Undone&) = delete;
    Undone& operator=(const Undone&) = delete;
};

class Breaking {
public:
    explicit Breaking(const Fault& fault) {
        for (const std::string_view statement : fault.statements)
            sampleRegister()->execute(statement);
    }

private:
    Undone undone_;
};

std::string idOf(std::string_view line) { return text::split(line, " ").front(); }

class Findings : public testing::TestWithParam<Fault> {};

TEST_P(Findings, AFaultIsFoundOnceAndNothingElse) {
    const Breaking broken(GetParam());
    EXPECT_EQ(test::linesOf(test::check(sampleRegister())), Lines{std::string(GetParam().finding)});
}

std::string nameOf(const testing::TestParamInfo<Fault>& info) {
    return text::replaceAll(idOf(info.param.finding), "-", "_") + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(SampleRegister, Findings, testing::ValuesIn(test::faults()), nameOf);

TEST(Findings, TheSampleRegisterIsClean) { EXPECT_EQ(test::linesOf(test::check(sampleRegister())), Lines{}); }

TEST(Findings, ARegisterWithoutPeopleIsClean) {
    EXPECT_EQ(test::linesOf(test::check(test::makeRegister(0))), Lines{});
}

TEST(Findings, EveryKindHasAFaultThatLeadsToIt) {
    std::set<std::string> kinds;
    for (const FindingKind* kind : findingKinds())
        EXPECT_TRUE(kinds.emplace(kind->id).second) << kind->id << " stands there twice";
    std::set<std::string> found;
    for (const Fault& fault : test::faults())
        found.insert(idOf(fault.finding));
    EXPECT_EQ(found, kinds);
}

TEST(Findings, EveryKindSaysWhatHappensAndWhatToDo) {
    for (const FindingKind* kind : findingKinds()) {
        EXPECT_FALSE(kind->title.empty()) << kind->id;
        EXPECT_TRUE(text::endsWith(kind->effect, "。")) << kind->id;
        EXPECT_TRUE(text::endsWith(kind->remedy, "。")) << kind->id;
    }
}

TEST(Findings, SeveralFaultsAreAllFoundTheWorstFirst) {
    const Breaking broken(
        {{"update ZZStyle set ZZType='9'", "delete from s_CodeTableDefine where dmgrp='DM_XB'",
          "update s_infotable set Property=null where tblname='A09'", "drop table E06"},
         ""});
    EXPECT_EQ(test::linesOf(test::check(sampleRegister())),
              (Lines{"table-missing E06", "set-property-null s_infotable tblname=A09",
                     "setting-unknown-type ZZStyle ZZType=9",
                     "code-table-undescribed s_CodeTableDefine dmgrp=DM_XB"}));
}

TEST(Findings, WithoutACatalogueTableOnlyThatIsTold) {
    const Breaking broken({{"drop table s_infoitem", "update ZZStyle set ZZType='9'"}, ""});
    EXPECT_EQ(test::linesOf(test::check(sampleRegister())), Lines{"table-missing s_infoitem"});
}

TEST(Findings, TheRowsOfOneFaultAreCountedAndTheFirstAreShown) {
    const Breaking broken(
        {{"insert into DM_XB values ('31','甲','j',true),('32','乙','y',true),('33','丙','b',true),"
          "('34','丁','d',true)"},
         ""});
    const auto findings = test::check(sampleRegister()).sorted();
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().detail, "4 个代码：31 甲、32 乙、33 丙……");
}

/// The texts of the statements of one check.
Lines statementsOn(const std::shared_ptr<data::Connection>& connection) {
    const auto recorder = std::make_shared<data::RecordingConnection>(connection);
    (void)test::check(recorder);
    return recorder->statements();
}

TEST(Findings, NothingIsChangedInTheRegister) {
    for (const std::string& statement : statementsOn(sampleRegister()))
        EXPECT_TRUE(text::startsWithNoCase(text::trim(statement), "select ")) << statement;
}

TEST(Findings, ABiggerRegisterTakesNoMoreStatements) {
    EXPECT_EQ(statementsOn(test::makeRegister(400)).size(), statementsOn(sampleRegister()).size());
}

} // namespace
} // namespace quillmere::check
