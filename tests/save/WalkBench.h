#pragma once

#include "save/SaveBench.h"

namespace quillmere::test {

/// What the walk over the widgets stores and complains about, seen in a person's first save.
class WalkBench : public SaveBench {
protected:
    /// Saves and compares the columns and values between the running number and the defaults.
    void expectStored(const std::string& columns, const std::string& values) {
        EXPECT_TRUE(save());
        ASSERT_GE(db.statements().size(), 2U);
        EXPECT_EQ(db.statements()[1], "insert into A01( A00,A0199" + columns + ",A0136,A0137) values('p1',1" +
                                          values + ",'03','2026')");
    }

    static std::string characters(std::size_t count) {
        std::string text;
        for (std::size_t i = 0; i < count; ++i)
            text += "字";
        return text;
    }

    void buildText(const std::string& type) { build("A01", {{field::text("A0102", "x"), type}}); }
    void buildMask(const std::string& type) { build("A01", {{field::month("A0102", "x"), type}}); }
};

} // namespace quillmere::test
