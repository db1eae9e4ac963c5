#include "shell/ctrlButtonList.h"

#include <array>
#include <utility>

namespace quillmere {

namespace {

struct ButtonRow {
    const char* key;
    const char* caption;
};

constexpr std::array buttonRows{
    ButtonRow{"PrePerson", "上一人"}, ButtonRow{"NextPerson", "下一人"}, ButtonRow{"Add", "增加"},
    ButtonRow{"Modify", "修改"},      ButtonRow{"Delete", "删除"},       ButtonRow{"Save", "保存"},
    ButtonRow{"Cancel", "取消"},      ButtonRow{"PreItem", "上一条"},    ButtonRow{"NextItem", "下一条"},
};

} // namespace

ctrlButtonList::ctrlButtonList(std::string name) : UserControl(std::move(name)) {
    Toolbar1_ = &add<ui::Toolbar>("Toolbar1");
    for (const ButtonRow& row : buttonRows)
        Toolbar1_->addButton(row.key, row.caption);
    Toolbar1_->ButtonClick.connect([this](ui::Toolbar::Button& button) { ButtonClick.raise(button); });
}

} // namespace quillmere
