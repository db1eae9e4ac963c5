#include "save/Complaints.h"

#include <array>

namespace quillmere {

namespace {

struct ComplaintRow {
    std::string_view whenFirst;
    std::string_view whenAppended;
    bool namesField;
};

// In the order of the enumeration. Two texts differ by a blank, one names another range for the same
// test, and one doubles a word: they are meant to stand so.
constexpr std::array<ComplaintRow, 7> table{{
    {" 数据应该小于256个字符长度", " 数据应该小于256个字符长度", true},
    {" 数据应该输入数字", " 数据应该输入数字", true},
    {" 数据应该在 0到1000000范围内", " 数据应该在 -32768到32767范围内", true},
    {" 数据应该是日期型，例如1990年03月", "  数据应该是日期型，例如1990年03月", true},
    {" 数据数据填写不完整", " 数据数据填写不完整", true},
    {" 为必填项", "  为必填项", true},
    {"局级单位信息填写错误！请参照系统初始录入的局级单位信息。",
     "局级单位信息填写错误！请参照系统初始录入的局级单位信息。", false},
}};

} // namespace

void Complaints::add(Complaint complaint, std::string_view itemDesc) {
    const ComplaintRow& row = table[static_cast<std::size_t>(complaint)];
    std::string message(row.namesField ? itemDesc : std::string_view());
    message += text_.empty() ? row.whenFirst : row.whenAppended;
    addText(message);
}

void Complaints::addText(std::string_view message) {
    if (!text_.empty()) text_ += "\r\n";
    text_ += message;
}

} // namespace quillmere
