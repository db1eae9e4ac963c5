#pragma once

#include <cstdint>
#include <string>

namespace quillmere {

/// The context of one panel: which table, which person, which record.
struct cWhInfo {
    /// Value of the sequence field of the record on show; 0 for a single-record set or a new person.
    std::int16_t id = 0;
    /// `A00` of the record.
    std::string personID;
    /// The table of the information set: the menu item's key, not the panel's class.
    std::string TabId;
    /// The set holds several records per identity.
    bool IsMult = false;
    /// The widgets differ from what is stored.
    bool IsChange = false;
    /// Sort column of the record list.
    std::string FldOrder;
};

} // namespace quillmere
