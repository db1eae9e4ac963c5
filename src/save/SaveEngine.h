#pragma once

#include <cstdint>
#include <string>

namespace quillmere {

class A1ctrlUser;

namespace ui {
class Label;
}

/// What the save engine reads of the window, and the one label that it writes.
struct SaveContext {
    /// 0 on a new record, 4 on an existing one.
    std::int32_t WhState = 0;
    std::string personID;
    std::string UnitCode;
    ui::Label& labPersonName;
};

/// Turns what stands in a panel into rows: one walk over its value widgets validates each by its
/// field, gathers all complaints, and forms the statement. True: written, or nothing to write.
/// False: nothing further should happen, and the user has seen why. Failures are shown under the
/// title "信息保存"; what ran before a failure stays.
[[nodiscard]] bool Save(A1ctrlUser& panel, const SaveContext& context);

} // namespace quillmere
