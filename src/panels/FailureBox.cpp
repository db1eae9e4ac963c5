#include "panels/FailureBox.h"

#include <string>

namespace quillmere {

void report(const Error& error, const FailureBox& box) {
    ui::MessageBox message{.text = std::string(box.beginning) + error.description(),
                           .title = std::string(box.title),
                           .buttons = ui::Buttons::Ok,
                           .icon = box.icon};
    if (box.title.empty()) {
        message.title = "提示";
        message.text = error.source() + "(" + std::to_string(error.number()) + ")" + " 发生错误 " + "\r\n" +
                       error.description();
    }
    ui::desktop().msgBox(message);
}

} // namespace quillmere
