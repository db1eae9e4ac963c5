#pragma once

#include "platform/Error.h"
#include "platform/ui/Desktop.h"

#include <string_view>

namespace quillmere {

/// The words and the icon in which a handler reports its failure: `beginning` and the description of
/// the failure. A row without a title stands for the box that several handlers share: title "提示",
/// source and number of the failure before its description.
struct FailureBox {
    std::string_view title;
    std::string_view beginning;
    ui::Icon icon = ui::Icon::Error;
};

/// Tells the failure in that box.
void report(const Error& error, const FailureBox& box);

/// Runs a handler that reports its failure and then ends. False when it failed.
template <class Handler>
bool reporting(const FailureBox& box, Handler handler) {
    try {
        handler();
    } catch (const Error& error) {
        report(error, box);
        return false;
    }
    return true;
}

} // namespace quillmere
