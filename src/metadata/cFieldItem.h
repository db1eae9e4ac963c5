#pragma once

#include "platform/data/Value.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quillmere {

class cFieldItems;

/// One field of an information set: what the catalogue says of it, and the current record's value.
/// In the order of the field model.
class cFieldItem {
public:
    cFieldItem();
    ~cFieldItem();
    cFieldItem(const cFieldItem&) = delete;
    cFieldItem& operator=(const cFieldItem&) = delete;

    std::string FldExplain;
    std::string FldOrder;
    std::int16_t FldWidth = 2000;
    /// The input rule; see CheckInput.
    std::string Check;
    std::string Style;
    /// True: may stay empty.
    bool IsNUll = true;

    /// A child collection, made empty on first read; no loader fills it.
    [[nodiscard]] cFieldItems& children();

    /// Caption of the code in `Dmcod`; empty while unset.
    std::string Dmcpt;
    /// The stored value; null while unset. A null of the record is stored as the empty text.
    data::Value Dmcod;
    std::string CodeTable;
    std::string FieldLength = "0";
    /// In the catalogue's own case; compared in lower case, but for the length limit of text boxes.
    std::string FieldType;
    std::string ItemDesc;
    std::string ItemName;
    std::string TblName;

    /// `Dmcod` as text, empty while unset.
    [[nodiscard]] std::string code() const { return Dmcod.toTextOrEmpty(); }

private:
    std::unique_ptr<cFieldItems> children_;
};

} // namespace quillmere
