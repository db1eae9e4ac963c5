#pragma once

#include "metadata/CheckInput.h"
#include "metadata/cFieldItem.h"
#include "platform/convert/Clock.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

namespace quillmere::test {

/// A rule, a text and what the input check says of it.
struct CheckRow {
    const char* name;
    const char* rule;
    std::string text;
    /// Empty when the text passes.
    const char* complaint;
    const char* fieldType = "varchar";
    const char* fieldLength = "50";
    const char* style = "";
};

inline void PrintTo(const CheckRow& row, std::ostream* out) {
    *out << row.rule << " on [" << row.text << "]";
}

/// The 21st of November 2026, for the bound five years on.
class CheckInputTable : public testing::TestWithParam<CheckRow> {
protected:
    void SetUp() override { clock::fix(convert::DateTime{2026, 11, 21, 9, 30, 0}); }
    void TearDown() override { clock::fix(std::nullopt); }
};

inline void fill(cFieldItem& item, const CheckRow& row) {
    item.ItemDesc = "栏目";
    item.Check = row.rule;
    item.FieldType = row.fieldType;
    item.FieldLength = row.fieldLength;
    item.Style = row.style;
}

inline void expectAnswer(const CheckRow& row) {
    cFieldItem item;
    fill(item, row);
    EXPECT_EQ(CheckInput(item, row.text), row.complaint);
}

inline std::string nameOfRow(const testing::TestParamInfo<CheckRow>& info) { return info.param.name; }

} // namespace quillmere::test
