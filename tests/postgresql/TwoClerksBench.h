#pragma once

#include "TwoClerks.h"
#include "platform/Error.h"
#include "sample/SampleRegister.h"
#include "support/WindowWork.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillmere::postgresql {

using Lines = std::vector<std::string>;

/// A clerk is in a process of her own, so that what cannot be done has to leave it as a failure.
inline void must(bool done) {
    if (!done) throw Error(Failure::InvalidCall);
}
inline void open(frmPersonWh& window, std::string_view caption) { must(test::clickItem(window, caption)); }
inline void type(frmPersonWh& window, std::string_view widget, std::string_view text) {
    must(test::enterText(window, widget, text));
}
inline void press(frmPersonWh& window, std::string_view key) { must(test::pressButton(window, key)); }

/// A register with a person who has two studies, for two clerks to meet in.
class TwoClerksBench : public PostgreSqlBench {
protected:
    void SetUp() override {
        PostgreSqlBench::SetUp();
        if (IsSkipped()) return;
        sample::Options options;
        options.persons = 2;
        options.units = 1;
        options.engine = sample::Engine::PostgreSql;
        sample::build(*connection, options);
        connection->execute("update s_infoitem set \"IsNUll\"=true, \"Check\"=''");
        person = linesOf("select A00 from A01 where A0199=1").front();
        // In a later stage the records of a person are locked.
        connection->execute("update P01 set P0123='01'");
        connection->execute("delete from A02");
        connection->execute("delete from A10");
        for (const char* study : {"1,'1999-09','甲'", "2,'2003-09','乙'"}) {
            connection->execute("insert into A02 (A00,A0299,A0201,A0203) values ('" + person + "'," + study +
                                ")");
        }
    }

    /// The cells of each row, with a bar between them.
    [[nodiscard]] Lines linesOf(const std::string& query) const {
        const data::RowSet rows = connection->query(query);
        Lines lines;
        for (std::size_t row = 0; row < rows.rowCount(); ++row) {
            std::string line;
            for (const data::Value& value : rows.row(row))
                line += (line.empty() ? "" : "|") + value.toTextOrEmpty();
            lines.push_back(line);
        }
        return lines;
    }
    [[nodiscard]] Lines studies() const {
        return linesOf("select A0299,A0203 from A02 order by A0299,A0203");
    }

    /// A further study of the person, entered and saved.
    [[nodiscard]] ClerksWork newStudy(const std::string& begun, const std::string& school) const {
        return {4, person, [=](frmPersonWh& window) {
                    open(window, "主要学习经历");
                    press(window, "Add");
                    type(window, "A02_A0201_v", begun);
                    type(window, "A02_A0203_v", school);
                    press(window, "Save");
                }};
    }
    /// The way into the register for those who own it.
    [[nodiscard]] OpenOptions owner() const {
        return {.address = TestServer::address(), .schema = schema->name()};
    }

    std::string person;
};

inline void expectRefused(const Clerk& clerk, std::string_view key) {
    ASSERT_EQ(clerk.boxes().size(), 1U);
    EXPECT_TRUE(clerk.boxes().front().starts_with("信息保存|")) << clerk.boxes().front();
    EXPECT_NE(clerk.boxes().front().find(key), std::string::npos) << clerk.boxes().front();
}

inline void workUntil(std::string_view statement, Clerk& first, Clerk& second) {
    for (Clerk* clerk : {&first, &second})
        clerk->workUntil(statement);
}

/// Both come to stand before the statement; then the first works to the end, and the second behind her.
inline void meetBefore(std::string_view statement, Clerk& first, Clerk& second) {
    workUntil(statement, first, second);
    first.finish();
    second.finish();
}

inline const Lines noBox{};
inline const Lines savedBox{"提示|保存成功!"};

} // namespace quillmere::postgresql
