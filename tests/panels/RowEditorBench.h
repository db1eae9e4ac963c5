#pragma once

#include "RowGridBench.h"

namespace quillmere::test {

/// The row editor on a frame of its own, without a panel behind it.
class RowEditorBench : public RowGridBench {
protected:
    RowEditorBench() {
        gZZType = 4;
        editor.KeyA00 = "p1";
        editor.EditMode = 1;
    }

    /// The editor on that frame, while a person works on it.
    void show(const char* frameNo, const ScriptedPerson::Work& work) {
        editor.FrameNo = frameNo;
        person.show(editor, work);
    }

    void enter(const std::vector<Entry>& entries) {
        for (const Entry& entry : entries) {
            editor.moveFocus(*editor.find(entry.box));
            editor.selectAll();
            editor.paste(entry.text);
        }
    }

    void press(std::string_view button) { editor.click(controlOf<ui::CommandButton>(editor, button)); }

    int left(std::string_view frame) const { return editor.find(frame)->geometry().left; }

    /// Saves with that in the boxes; the message is shown, the focus goes there, the editor stays open.
    void expectRefusal(const std::vector<Entry>& entries, std::string_view button, const char* message,
                       ui::Icon icon, const char* focused) {
        enter(entries);
        person.expectBox(message, "注意");
        press(button);
        EXPECT_EQ(person.boxes().back().icon, icon) << message;
        EXPECT_EQ(focus(), focused) << message;
        EXPECT_TRUE(editor.isOpen()) << message;
    }

    frmC04& editor = frmC04::defaultInstance();
    const std::vector<Entry> wholePlan{{"txtC0401", "use"}, {"txtC0402", "1"}, {"txtC0406", "2026"}};
    const std::vector<Entry> wholeStage{
        {"txtP0201", "202601"}, {"txtP0202", "202602"}, {"txtP0203", "work"}, {"txtP0204", "target"}};
};

} // namespace quillmere::test
