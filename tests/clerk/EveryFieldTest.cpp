#include "clerk/ClerksRegister.h"
#include "clerk/OddTexts.h"
#include "panels/A1ctrlUser.h"
#include "panels/PanelCatalogue.h"
#include "platform/text/Text.h"
#include "platform/ui/TextBox.h"
#include "quillmere/IUserCtrl.h"
#include "shell/frmPersonWh.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <algorithm>

// Every field of every panel with every text that a clerk may paste: what is saved is stored to the letter,
// and what is not saved is told.

namespace quillmere::test {
namespace {

class EveryField : public testing::TestWithParam<std::string> {
protected:
    using Boxes = std::vector<ui::TextBox*>;

    static ClerksRegister& theRegister() {
        static ClerksRegister made;
        // Without rules and required fields nothing but the kind of a field refuses a text.
        static const bool loose = [] {
            made.engine().execute("update s_infoitem set \"IsNUll\"=true, \"Check\"=''");
            return true;
        }();
        EXPECT_TRUE(loose);
        return made;
    }

    /// What is done to the register while it lives is taken back.
    struct TakenBack {
        TakenBack() { theRegister().engine().execute("begin"); }
        ~TakenBack() { theRegister().engine().execute("rollback"); }
        TakenBack(const TakenBack&) = delete;
        TakenBack& operator=(const TakenBack&) = delete;
    };

    /// A person or unit with a record of the panel's table; a person gets one where nobody has any.
    [[nodiscard]] std::string owner() const {
        data::Connection& engine = theRegister().engine();
        const std::string first = "select A00 from " + table + " order by A00 limit 1";
        if (engine.query(first).empty()) {
            const bool single = engine.query("select Property from s_infotable where tblname='" + table + "'")
                                    .at(0, 0)
                                    .toBoolean();
            engine.execute("insert into " + table +
                           (single ? " (A00) select" : " (A00," + table + "99) select") +
                           (single ? " A00" : " A00,1") + " from A01 where A0199=1");
        }
        return engine.query(first).at(0, 0).toText();
    }

    /// A window on that person or unit.
    void inWindow(const std::function<void(frmPersonWh& window)>& work) {
        id = owner();
        IUserCtrl host;
        host.setConnection(theRegister().connection());
        host.setOperationType(4);
        host.setZZtype(2);
        host.setPersonID(id);
        person.onForm([&](ui::Form& form) { work(dynamic_cast<frmPersonWh&>(form)); });
        (void)host.ShowPersonWh();
    }

    A1ctrlUser& load(frmPersonWh& window) {
        A1ctrlUser& panel = window.LoadUCtrl(GetParam());
        window.IniUCtrl(panel, table, 4);
        return panel;
    }

    /// The boxes of a panel that a person can type into; of the plain texts alone, or of every kind.
    static Boxes boxesOf(const A1ctrlUser& panel, bool textsOnly) {
        Boxes boxes;
        for (const auto& control : panel.Controls()) {
            auto* box = dynamic_cast<ui::TextBox*>(control.get());
            if (box == nullptr || box->Locked() || !isValueWidget(box->name()) || !box->canTakeFocus())
                continue;
            const std::string type = text::lower(panel.FieldItems->Item(fieldKey(box->name())).FieldType);
            if (!textsOnly || type == "varchar" || type == "ntext") boxes.push_back(box);
        }
        return boxes;
    }

    static void paste(frmPersonWh& window, A1ctrlUser& panel, const Boxes& boxes, const std::string& text) {
        for (ui::TextBox* box : boxes) {
            // Unchanged fields are not checked when the focus leaves them.
            panel.WhInfo.IsChange = false;
            ASSERT_TRUE(window.moveFocus(*box)) << box->name();
            window.selectAll();
            window.paste(text);
        }
    }

    void expectStored(const A1ctrlUser& panel, const Boxes& boxes) {
        const data::RowSet rows =
            theRegister().engine().query("select * from " + table + " where A00='" + id + "'");
        for (const ui::TextBox* box : boxes) {
            const std::string& column = panel.FieldItems->Item(fieldKey(box->name())).ItemName;
            bool found = false;
            for (std::size_t row = 0; row < rows.rowCount(); ++row)
                found = found || rows.at(row, column).toTextOrEmpty() == box->Text();
            EXPECT_TRUE(found) << box->name() << " " << shown(box->Text());
        }
    }

    /// Pastes a text into the fields and saves; true when it was saved. Nothing of it stays.
    void save(frmPersonWh& window, const std::string& text, bool textsOnly) {
        SCOPED_TRACE(shown(text));
        const TakenBack afterwards;
        A1ctrlUser& panel = load(window);
        const Boxes boxes = boxesOf(panel, textsOnly);
        paste(window, panel, boxes, text);
        person.forget();
        if (window.Save(panel)) {
            ++saved;
            EXPECT_TRUE(person.boxes().empty());
            if (textsOnly) expectStored(panel, boxes);
        } else {
            ASSERT_EQ(person.boxes().size(), 1U);
            const ui::MessageBox& box = person.boxes().front();
            EXPECT_TRUE(box.title == "错误信息" || box.title == "信息保存") << box.title;
            EXPECT_TRUE(std::ranges::any_of(box.text, [](char c) { return (c & 0x80) != 0; })) << box.text;
        }
    }

    ScriptedPerson person;
    const std::string table{findPanel(GetParam())->widgetTable};
    std::string id;
    int saved = 0;
};

std::vector<std::string> allPanels() {
    std::vector<std::string> names;
    for (const PanelRow& panel : panelCatalogue())
        names.emplace_back(panel.className);
    return names;
}

INSTANTIATE_TEST_SUITE_P(Panels, EveryField, testing::ValuesIn(allPanels()),
                         [](const auto& panel) { return panel.param; });

TEST_P(EveryField, OfTextStoresWhatWasPastedToTheLetterOrTellsWhyNot) {
    person.answerAnyBox(ui::Answer::Yes);
    inWindow([&](frmPersonWh& window) {
        for (const auto* texts : {&oddTexts(), &longTexts()}) {
            for (const std::string& text : *texts)
                save(window, text, true);
        }
        // All but those with a quote or a zero in them can be stored.
        EXPECT_GT(saved, static_cast<int>(oddTexts().size()) / 2);
    });
}

TEST_P(EveryField, OfAnyKindSavesOrTellsWhyNot) {
    person.answerAnyBox(ui::Answer::Yes);
    inWindow([&](frmPersonWh& window) {
        for (const std::string& text : oddTexts())
            save(window, text, false);
        save(window, hugeText(), false);
    });
}

} // namespace
} // namespace quillmere::test
