#pragma once

#include "faults/SmallRegister.h"
#include "platform/convert/Clock.h"
#include "platform/ui/TextBox.h"
#include "quillmere/IUserCtrl.h"
#include "shell/frmPersonWh.h"
#include "support/ScriptedPerson.h"
#include "support/WindowWork.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace quillmere::test {

/// A test on whole maintenance runs on the small register, by a person who follows a script.
class RunTest : public testing::Test {
protected:
    RunTest() { clock::fix(convert::DateTime{2026, 11, 21, 9, 30, 0}); }
    ~RunTest() override { clock::fix(std::nullopt); }

    using Work = std::function<void(frmPersonWh& window)>;

    /// One run on the person, closed by its frame when the work is done. True when something was saved.
    bool run(std::shared_ptr<data::Connection> connection, const Work& work, std::int16_t operationType = 4,
             std::int16_t zzType = 2) {
        IUserCtrl host;
        host.setConnection(std::move(connection));
        host.setOperationType(operationType);
        host.setZZtype(zzType);
        host.setPersonID(std::string(thePerson));
        host.setPhotoPath(photoFolder);
        person.onForm([&work](ui::Form& form) { work(dynamic_cast<frmPersonWh&>(form)); }, "frmPersonWh");
        return host.ShowPersonWh();
    }

    static void open(frmPersonWh& window, std::string_view caption) {
        ASSERT_TRUE(clickItem(window, caption)) << caption;
    }

    /// The person's text takes the place of what stands in the widget.
    static void type(ui::Form& form, std::string_view widget, std::string_view text) {
        ASSERT_TRUE(enterText(form, widget, text)) << widget;
    }

    static void press(frmPersonWh& window, std::string_view key) {
        ASSERT_TRUE(pressButton(window, key)) << key;
    }

    [[nodiscard]] static std::string text(const frmPersonWh& window, std::string_view widget) {
        return controlOf<ui::TextBox>(window, widget).Text();
    }

    ScriptedPerson person;
    std::string photoFolder;
};

inline constexpr auto studiesItem = "主要学习经历";
inline constexpr auto saveTitle = "信息保存";

} // namespace quillmere::test
