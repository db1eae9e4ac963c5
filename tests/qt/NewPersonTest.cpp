#include "adapters/sqlite/SqliteConnection.h"
#include "platform/convert/Clock.h"
#include "platform/ui/Toolbar.h"
#include "platform/ui/TreeView.h"
#include "qt/RealPerson.h"
#include "quillmere/IUserCtrl.h"
#include "sample/SampleRegister.h"
#include "shell/frmPersonWh.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <QTreeView>

namespace quillmere::test {

namespace {

constexpr auto personKey = "{11111111-2222-3333-4444-555555555555}";
constexpr auto errorTitle = "错误信息";

/// Each row as "COLUMN=value".
using Rows = std::vector<std::vector<std::string>>;

Rows rowsOf(data::Connection& connection, std::string_view sql) {
    const data::RowSet answer = connection.query(sql);
    Rows rows;
    for (std::size_t r = 0; r < answer.rowCount(); ++r) {
        rows.emplace_back();
        for (std::size_t c = 0; c < answer.columns().size(); ++c) {
            const data::Value& value = answer.at(r, c);
            rows.back().push_back(answer.columns()[c] + "=" + (value.isNull() ? "<null>" : value.toText()));
        }
    }
    return rows;
}

std::shared_ptr<data::Connection> emptyRegister() {
    auto connection = sqlite::openInMemory();
    sample::build(*connection, {.people = false});
    connection->execute("update ZZStyle set ZZType='5', ZZYear='2026'");
    return connection;
}

bool maintain(const std::shared_ptr<data::Connection>& connection) {
    IUserCtrl host;
    host.setConnection(connection);
    host.setOperationType(0);
    host.setPersonID(personKey);
    return host.ShowPersonWh();
}

/// What the story needs of a person, whatever the screen.
class Hands {
public:
    Hands() = default;
    Hands(const Hands&) = delete;
    Hands& operator=(const Hands&) = delete;
    virtual ~Hands() = default;

    virtual void expectBox(std::string text, std::string title) = 0;
    /// Clicks into a field and types over what is in it.
    virtual void enter(std::string_view field, std::string_view text) = 0;
    /// Clicks into a field, which may be refused.
    virtual void tryToReach(std::string_view field) = 0;
    [[nodiscard]] virtual bool isFocused(std::string_view field) const = 0;
    /// Double-clicks a coded field and picks the code of that name.
    virtual void pick(std::string_view field, std::string_view code) = 0;
    /// Clicks a button of the toolbar.
    virtual void command(std::string_view button) = 0;
};

class RealHands final : public Hands {
public:
    explicit RealHands(RealPerson& person) : person_(person) {}

    void expectBox(std::string text, std::string title) override {
        // Once with the mouse, once with the keyboard.
        mouse_ = !mouse_;
        person_.expectBox(std::move(text), std::move(title), mouse_ ? Press::Ok : Press::EnterKey);
    }

    void enter(std::string_view field, std::string_view text) override {
        clickOn(widgetNamed(field));
        pressKey(Qt::Key_A, Qt::ControlModifier);
        typeKeys(text);
    }

    void tryToReach(std::string_view field) override { clickOn(widgetNamed(field)); }

    [[nodiscard]] bool isFocused(std::string_view field) const override { return focusComesTo(field); }

    void pick(std::string_view field, std::string_view code) override {
        person_.onForm([code](ui::Form&) { doubleClickRow(widgetNamed<QTreeView>("tvGrpCod"), code); },
                       "fmGrpCod");
        doubleClickOn(widgetNamed(field));
        (void)windowNamed("frmPersonWh");
    }

    void command(std::string_view button) override { clickOn(widgetNamed("TbMain_" + std::string(button))); }

private:
    RealPerson& person_;
    bool mouse_ = false;
};

class ModelHands final : public Hands {
public:
    ModelHands(ScriptedPerson& person, ui::Form& window) : person_(person), window_(window) {}

    void expectBox(std::string text, std::string title) override {
        person_.expectBox(std::move(text), std::move(title));
    }

    void enter(std::string_view field, std::string_view text) override {
        ASSERT_TRUE(window_.moveFocus(*window_.findDeep(field)));
        window_.selectAll();
        typeText(window_, text);
    }

    void tryToReach(std::string_view field) override { window_.click(*window_.findDeep(field)); }

    [[nodiscard]] bool isFocused(std::string_view field) const override {
        return window_.ActiveControl()->name() == field;
    }

    void pick(std::string_view field, std::string_view code) override {
        person_.onForm(
            [code](ui::Form& form) {
                auto& tree = controlOf<ui::TreeView>(form, "tvGrpCod");
                for (const auto& node : tree.nodes()) {
                    if (node->text == code) return choose(form, tree, *node);
                }
                ADD_FAILURE() << "no code " << code;
            },
            "fmGrpCod");
        window_.doubleClick(*window_.findDeep(field));
    }

    void command(std::string_view button) override {
        auto& toolbar = controlOf<ui::Toolbar>(window_, "TbMain");
        EXPECT_TRUE(toolbar.clickButton(toolbar.Buttons(button)));
    }

private:
    static void choose(ui::Form& form, ui::TreeView& tree, ui::TreeView::Node& node) {
        form.perform([&] { tree.setSelectedItem(&node); });
        form.doubleClick(tree);
    }

    ScriptedPerson& person_;
    ui::Form& window_;
};

/// A new person, refused twice in the fields and once on saving, and saved in the end.
void enterNewPerson(Hands& hands) {
    hands.enter("A01_A0106_v", "19861");
    hands.expectBox("出生日期录入数据不规范！", errorTitle);
    hands.tryToReach("A01_A0103_v");
    EXPECT_TRUE(hands.isFocused("A01_A0106_v"));
    hands.expectBox("姓名 为必填项\r\n出生日期  数据应该是日期型，例如1990年03月", errorTitle);
    hands.command("Save");
    hands.enter("A01_A0106_v", "19861205");

    hands.enter("A01_A0125_v", "1000a");
    hands.expectBox("邮政编码长度应该为0或6位。", errorTitle);
    hands.tryToReach("A01_A0103_v");
    EXPECT_TRUE(hands.isFocused("A01_A0125_v"));
    hands.enter("A01_A0125_v", "100084");

    hands.enter("A01_A0103_v", "110101198612050018");
    hands.enter("A01_A0101_v", "张三");
    hands.pick("A01_A0104_v", "女");
    hands.expectBox("保存成功!", "提示");
    hands.command("Save");
    hands.command("Exit");
}

/// The rows of a table, without the key that each register makes up anew.
Rows keylessRows(data::Connection& connection, const std::string& table) {
    Rows rows = rowsOf(connection, "select * from " + table);
    for (auto& row : rows)
        std::erase_if(row, [](const std::string& cell) { return cell.starts_with("A00="); });
    return rows;
}

std::shared_ptr<data::Connection> saveOnRealWindow() {
    auto connection = emptyRegister();
    Screen screen;
    screen.person.onForm(
        [&](ui::Form&) {
            RealHands hands(screen.person);
            enterNewPerson(hands);
        },
        "frmPersonWh");
    EXPECT_TRUE(maintain(connection));
    return connection;
}

std::shared_ptr<data::Connection> saveWithoutScreen() {
    auto connection = emptyRegister();
    ScriptedPerson person;
    person.onForm([&](ui::Form& window) {
        ModelHands hands(person, window);
        enterNewPerson(hands);
    });
    EXPECT_TRUE(maintain(connection));
    return connection;
}

} // namespace

TEST(NewPersonTest, APersonEnteredWithKeysAndMouseIsStoredWithTheirProjectRow) {
    clock::fix(convert::DateTime{2026, 1, 15, 10, 20, 30});
    const auto connection = saveOnRealWindow();
    const Rows person =
        rowsOf(*connection, "select A0101,A0103,A0104,A0106,A0125,A0136,A0137,A0199 from A01");
    const Rows expected{{"A0101=张三", "A0103=110101198612050018", "A0104=2", "A0106=1986-12-05",
                         "A0125=100084", "A0136=05", "A0137=2026", "A0199=1"}};
    EXPECT_EQ(expected, person);
    const Rows project = rowsOf(*connection, "select P0123,P0120 from P01 where A00=(select A00 from A01)");
    EXPECT_EQ((Rows{{"P0123=01", "P0120="}}), project);
    clock::fix(std::nullopt);
}

TEST(NewPersonTest, TheRowsAreThoseThatARunWithoutAScreenStores) {
    clock::fix(convert::DateTime{2026, 1, 15, 10, 20, 30});
    const auto real = saveOnRealWindow();
    const auto screenless = saveWithoutScreen();
    for (const std::string table : {"A01", "P01"}) {
        const Rows stored = keylessRows(*real, table);
        ASSERT_EQ(1U, stored.size()) << table;
        EXPECT_EQ(keylessRows(*screenless, table), stored);
    }
    clock::fix(std::nullopt);
}

} // namespace quillmere::test
