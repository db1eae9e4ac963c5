#include "panels/PanelCatalogue.h"
#include "panels/frmC04.h"
#include "photos/frmPicturePreview.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/TextBox.h"
#include "qt/MaintenanceTest.h"
#include "support/PhotoFolder.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <map>
#include <set>

namespace quillmere::test {

namespace {

QAccessibleInterface& accessOf(QWidget& widget) {
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&widget);
    if (access == nullptr) throw std::runtime_error("nothing to read: " + widget.objectName().toStdString());
    return *access;
}

QAccessibleInterface& accessOf(std::string_view name) { return accessOf(widgetNamed(name)); }

std::string nameOf(QAccessibleInterface& access) { return access.text(QAccessible::Name).toStdString(); }

std::string descriptionOf(QAccessibleInterface& access) {
    return access.text(QAccessible::Description).toStdString();
}

/// What reads the widgets that show, this one and all within it.
void collect(QAccessibleInterface& access, std::vector<QAccessibleInterface*>& found) {
    if (access.object() != nullptr && !access.state().invisible) found.push_back(&access);
    for (int i = 0; i < access.childCount(); ++i) {
        QAccessibleInterface* child = access.child(i);
        if (child != nullptr && child->object() != nullptr && child->object()->isWidgetType())
            collect(*child, found);
    }
}

using Tree = std::map<std::string, QAccessibleInterface*>;

/// By object names.
Tree treeOf(std::string_view window) {
    std::vector<QAccessibleInterface*> all;
    collect(accessOf(windowNamed(window)), all);
    Tree found;
    for (QAccessibleInterface* access : all)
        found.emplace(access->object()->objectName().toStdString(), access);
    return found;
}

/// Whether a person works with a thing of this role, so that it needs a name.
bool isWorkedWith(QAccessible::Role role) {
    static const std::set<QAccessible::Role> roles{
        QAccessible::Button, QAccessible::CheckBox, QAccessible::EditableText, QAccessible::MenuItem,
        QAccessible::Table,  QAccessible::Tree,     QAccessible::List,         QAccessible::PageTabList};
    return roles.contains(role);
}

/// Everything in the window that a person works with is called something.
void expectNoneNameless(std::string_view window, std::string_view where) {
    std::vector<QAccessibleInterface*> all;
    collect(accessOf(windowNamed(window)), all);
    int named = 0;
    for (QAccessibleInterface* access : all) {
        if (!isWorkedWith(access->role())) continue;
        ++named;
        EXPECT_NE("", nameOf(*access)) << where << ": " << access->object()->objectName().toStdString();
    }
    EXPECT_GT(named, 0) << where;
}

std::string withoutBlanks(std::string_view caption) {
    QString text = QString::fromUtf8(caption.data(), static_cast<qsizetype>(caption.size()));
    text.remove(QLatin1Char(' ')).remove(QChar(0x3000));
    return text.toStdString();
}

bool isLabelledBy(QAccessibleInterface& field, const std::string& label) {
    for (const auto& [other, relation] : field.relations(QAccessible::Label)) {
        if (other->object() != nullptr && other->object()->objectName().toStdString() == label) return true;
    }
    return false;
}

void expectRead(const FieldRow& row, const std::string& stem, const Tree& tree, const ui::Control& control) {
    const std::string where = stem + " " + std::string(row.caption);
    const auto found = tree.find(stem + "_v");
    ASSERT_NE(tree.end(), found) << where;
    QAccessibleInterface& field = *found->second;
    EXPECT_EQ(withoutBlanks(row.caption), nameOf(field)) << where;
    EXPECT_TRUE(isLabelledBy(field, stem + "_c")) << where;
    const bool check = row.widget == ValueWidget::Check;
    EXPECT_EQ(check ? QAccessible::CheckBox : QAccessible::EditableText, field.role()) << where;
    const QAccessible::State state = field.state();
    const auto* box = dynamic_cast<const ui::TextBox*>(&control);
    const bool coded = box != nullptr && box->Locked();
    if (control.isUsable()) {
        EXPECT_TRUE(state.focusable) << where;
    }
    EXPECT_EQ(!control.isUsable(), static_cast<bool>(state.disabled)) << where;
    EXPECT_EQ(coded, static_cast<bool>(state.readOnly)) << where;
    EXPECT_EQ(coded, descriptionOf(field).find("按 F2 键或双击选择代码") != std::string::npos) << where;
    const std::string unit = "单位：" + withoutBlanks(row.unit);
    EXPECT_EQ(!row.unit.empty(), descriptionOf(field).find(unit) != std::string::npos)
        << where << descriptionOf(field);
    if (check) {
        const bool checked = static_cast<const ui::CheckBox&>(control).Value() != 0;
        EXPECT_EQ(checked, static_cast<bool>(state.checked)) << where;
    }
}

/// The events that assistive programs were told of while this lives.
class Heard {
public:
    Heard() {
        events().clear();
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->object() == nullptr) return;
            events().emplace_back(event->type(), event->object()->objectName().toStdString());
        });
    }
    Heard(const Heard&) = delete;
    Heard& operator=(const Heard&) = delete;
    ~Heard() { QAccessible::installUpdateHandler(nullptr); }

    /// Qt sends nothing while nothing can listen.
    [[nodiscard]] static bool isPossible() {
        if (qEnvironmentVariableIsEmpty("QT_LINUX_ACCESSIBILITY_ALWAYS_ON")) return QAccessible::isActive();
        return waitUntil([] { return QAccessible::isActive(); });
    }

    [[nodiscard]] bool has(QAccessible::Event type, const std::string& object) const {
        return std::ranges::find(events(), std::pair(type, object)) != events().end();
    }

private:
    static std::vector<std::pair<QAccessible::Event, std::string>>& events() {
        static std::vector<std::pair<QAccessible::Event, std::string>> all;
        return all;
    }
};

using AccessibleTest = MaintenanceTest;

} // namespace

TEST_F(AccessibleTest, EveryFieldOfEveryPanelIsNamedByItsCaptionAndSaysWhatItIs) {
    EXPECT_EQ(73U, panelCatalogue().size());
    std::set<std::string> read;
    const auto readPanel = [&](frmPersonWh& window, const PanelRow& row) {
        A1ctrlUser& panel = window.LoadUCtrl(row.className);
        window.IniUCtrl(panel, row.widgetTable, 4);
        settle();
        const Tree tree = treeOf("frmPersonWh");
        for (const FieldRow& field : row.fields) {
            const std::string stem = std::string(row.widgetTable) + "_" + std::string(field.code);
            ui::Control& control = *panel.find(stem + "_v");
            if (!control.isShown()) continue;
            expectRead(field, stem, tree, control);
            read.insert(std::string(row.className) + " " + stem);
        }
        // The grid of a set that holds one record has nothing to list, and does not show.
        const bool lists = panel.find("DGItems") != nullptr && panel.WhInfo.IsMult;
        EXPECT_EQ(lists, tree.contains("DGItems")) << row.className;
        if (const auto grid = tree.find("DGItems"); grid != tree.end()) {
            EXPECT_EQ(QAccessible::Table, grid->second->role());
            EXPECT_EQ(withoutBlanks(controlOf<ui::Label>(window, "Title").Caption()), nameOf(*grid->second));
        }
        expectNoneNameless("frmPersonWh", row.className);
    };
    const auto unread = [&](const PanelRow& row) {
        std::vector<std::string> fields;
        for (const FieldRow& field : row.fields) {
            std::string name = std::string(row.className) + " " + std::string(row.widgetTable) + "_" +
                               std::string(field.code);
            if (!read.contains(name)) fields.push_back(std::move(name));
        }
        return fields;
    };
    // What one sponsorship type hides, another shows.
    for (std::int16_t type = 1; type <= 7; ++type) {
        maintain(
            [&](frmPersonWh& window) {
                for (const PanelRow& row : panelCatalogue()) {
                    if (type == 1 || !unread(row).empty()) readPanel(window, row);
                }
            },
            type);
    }
    for (const PanelRow& row : panelCatalogue())
        EXPECT_EQ(unread(row), std::vector<std::string>());
}

TEST_F(AccessibleTest, ARequiredFieldSaysSo) {
    maintain([&](frmPersonWh&) {
        EXPECT_EQ("姓名", nameOf(accessOf("A01_A0101_v")));
        EXPECT_EQ(0U, descriptionOf(accessOf("A01_A0101_v")).find("必填"));
        EXPECT_EQ(std::string::npos, descriptionOf(accessOf("A01_A0103_v")).find("必填"));
    });
}

TEST_F(AccessibleTest, TheHelpOfAFieldIsReadOnceTheFieldHasTheFocus) {
    maintain([&](frmPersonWh& window) {
        clickOn(widgetNamed("A01_A0103_v"));
        ASSERT_TRUE(focusComesTo("A01_A0103_v"));
        const std::string help = controlOf<ui::Label>(window, "labExplain").Caption();
        ASSERT_NE("", help);
        EXPECT_NE(std::string::npos, descriptionOf(accessOf("A01_A0103_v")).find(help));
        EXPECT_TRUE(accessOf("A01_A0103_v").state().focused);
    });
}

TEST_F(AccessibleTest, WindowToolbarMenuAndPhotoAreWhatTheyAre) {
    maintain([&](frmPersonWh& window) {
        clickMenu(1, 1);
        settle();
        EXPECT_EQ(QAccessible::Window, accessOf(windowNamed("frmPersonWh")).role());
        EXPECT_EQ(window.Caption(), nameOf(accessOf(windowNamed("frmPersonWh"))));
        EXPECT_EQ(QAccessible::ToolBar, accessOf("TbMain").role());
        EXPECT_EQ(QAccessible::Button, accessOf("TbMain_Save").role());
        EXPECT_EQ("保存", nameOf(accessOf("TbMain_Save")));
        EXPECT_EQ("Alt+S", accessOf("TbMain_Save").text(QAccessible::Accelerator).toStdString());
        EXPECT_EQ(!widgetNamed("TbMain_Add").isEnabled(),
                  static_cast<bool>(accessOf("TbMain_Add").state().disabled));
        EXPECT_EQ("菜单", nameOf(accessOf("VMenu1")));
        EXPECT_EQ(QAccessible::MenuItem, accessOf("VMenu1_1_2").role());
        EXPECT_EQ(window.menu().groups()[0].items[1].caption, nameOf(accessOf("VMenu1_1_2")));
        EXPECT_EQ(QAccessible::Graphic, accessOf("imgPerson").role());
        EXPECT_EQ("照片", nameOf(accessOf("imgPerson")));
        EXPECT_EQ("更新照片", nameOf(accessOf("cmdAddPhoto")));
    });
}

TEST_F(AccessibleTest, AGroupOfTheMenuIsExpandedOrCollapsed) {
    maintain([&](frmPersonWh&) {
        const auto isOpen = [](const char* group) {
            const QAccessible::State state = accessOf(group).state();
            EXPECT_TRUE(state.expandable);
            EXPECT_NE(static_cast<bool>(state.expanded), static_cast<bool>(state.collapsed));
            return static_cast<bool>(state.expanded);
        };
        clickOn(widgetNamed("VMenu1_1"));
        EXPECT_TRUE(isOpen("VMenu1_1"));
        EXPECT_FALSE(isOpen("VMenu1_2"));
        accessOf("VMenu1_2").actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_TRUE(waitUntil([&] { return isOpen("VMenu1_2"); }));
        EXPECT_FALSE(isOpen("VMenu1_1"));
    });
}

TEST_F(AccessibleTest, AGroupThatOpensAndTheOneThatClosesTellOfIt) {
    if (!Heard::isPossible()) GTEST_SKIP() << "no platform that assistive programs can listen to";
    maintain([&](frmPersonWh&) {
        clickOn(widgetNamed("VMenu1_1"));
        const Heard heard;
        clickOn(widgetNamed("VMenu1_2"));
        EXPECT_TRUE(heard.has(QAccessible::StateChanged, "VMenu1_2"));
        EXPECT_TRUE(heard.has(QAccessible::StateChanged, "VMenu1_1"));
    });
}

TEST_F(AccessibleTest, AnItemOfTheMenuIsPressedByAnAssistiveProgramAndSelectedThen) {
    maintain([&](frmPersonWh& window) {
        clickOn(widgetNamed("VMenu1_1"));
        EXPECT_FALSE(accessOf("VMenu1_1_2").state().selected);
        accessOf("VMenu1_1_2").actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_TRUE(waitUntil([&] { return window.GetUserCtrl()->name() == "A1ctrlUserA02"; }));
        EXPECT_TRUE(accessOf("VMenu1_1_2").state().selected);
    });
}

TEST_F(AccessibleTest, AnAssistiveProgramThatPressesAToolButtonHasItsAnswerBeforeAWindowOpens) {
    maintain([&](frmPersonWh&) {
        bool opened = false;
        screen.person.onForm([&](ui::Form&) { opened = true; }, "fmGrpCod");
        auto* codes = widgetNamed("A01_A0104_v").findChild<QToolButton*>();
        ASSERT_NE(nullptr, codes);
        accessOf(*codes).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_FALSE(opened);
        EXPECT_TRUE(waitUntil([&] { return opened; }));
    });
}

TEST_F(AccessibleTest, TheMessageOfARefusedFieldIsAnAlertThatReadsItself) {
    maintain([&](frmPersonWh&) {
        clickOn(widgetNamed("A01_A0103_v"));
        pressKey(Qt::Key_A, Qt::ControlModifier);
        typeKeys("12");
        screen.person.expectBox("身份证号长度应该为0或15或18位。", "错误信息", Press::Nothing);
        QTimer::singleShot(0, [] {
            QAccessibleInterface& box = accessOf(windowNamed("messageBox"));
            EXPECT_EQ(QAccessible::AlertMessage, box.role());
            EXPECT_EQ("错误信息", nameOf(box));
            EXPECT_EQ("身份证号长度应该为0或15或18位。", descriptionOf(box));
            EXPECT_EQ("确定", nameOf(accessOf("btnOk")));
            EXPECT_TRUE(accessOf("btnOk").state().focused);
            pressKey(Qt::Key_Return);
        });
        pressKey(Qt::Key_Tab);
        EXPECT_TRUE(focusComesTo("A01_A0103_v"));
    });
}

TEST_F(AccessibleTest, AMessageIsAnnouncedWhenItShows) {
    if (!Heard::isPossible()) GTEST_SKIP() << "no platform that assistive programs can listen to";
    const Heard heard;
    screen.person.expectBox("正文", "标题", Press::EnterKey);
    (void)screen.toolkit.desktop().msgBox({"正文", "标题"});
    EXPECT_TRUE(heard.has(QAccessible::Alert, "messageBox"));
}

TEST_F(AccessibleTest, TheCodeSelectorIsADialogWithATreeAListAndPages) {
    maintain([&](frmPersonWh&) {
        screen.person.onForm(
            [](ui::Form& form) {
                EXPECT_EQ(QAccessible::Dialog, accessOf(windowNamed("fmGrpCod")).role());
                EXPECT_EQ("性别代码表", nameOf(accessOf(windowNamed("fmGrpCod"))));
                QAccessibleInterface& tree = accessOf("tvGrpCod");
                EXPECT_EQ(QAccessible::Tree, tree.role());
                EXPECT_EQ("性别代码表", nameOf(tree));
                EXPECT_EQ("未知的性别", nameOf(*tree.child(1)));
                EXPECT_EQ(QAccessible::TreeItem, tree.child(1)->role());
                QAccessibleInterface& pages = accessOf("Tab1_bar");
                EXPECT_EQ(QAccessible::PageTabList, pages.role());
                EXPECT_EQ(QAccessible::PageTab, pages.child(1)->role());
                EXPECT_EQ("录入查询", nameOf(*pages.child(1)));
                EXPECT_EQ("清空", nameOf(accessOf("cmdDel")));
                expectNoneNameless("fmGrpCod", "性别代码表");
                form.perform([&] { controlOf<ui::TabStrip>(form, "Tab1").setTab(1); });
                EXPECT_EQ("录入查询请输入相应汉字或拼音首字母！", nameOf(accessOf("txtDm")));
                EXPECT_EQ(QAccessible::List, accessOf("lstDmCpt").role());
                EXPECT_EQ("性别代码表", nameOf(accessOf("lstDmCpt")));
            },
            "fmGrpCod");
        clickOn(widgetNamed("A01_A0104_v"));
        pressKey(Qt::Key_F2);
    });
}

TEST_F(AccessibleTest, TheRowEditorAndThePhotoPreviewNameTheirFieldsAndPictures) {
    frmC04& editor = frmC04::defaultInstance();
    for (const RowFrameRow& row : rowFrames()) {
        editor.FrameNo = row.number;
        editor.FormCaption = "录入";
        screen.show(editor, [&](ui::Form&) {
            EXPECT_EQ(QAccessible::Dialog, accessOf(windowNamed("frmC04")).role());
            for (const RowInputRow& input : row.inputs) {
                QAccessibleInterface& field = accessOf(input.name);
                EXPECT_EQ(withoutBlanks(input.caption), nameOf(field)) << input.name;
                EXPECT_EQ(QAccessible::EditableText, field.role()) << input.name;
                const bool amount = input.kind == RowInput::Amount;
                EXPECT_EQ(amount ? "单位：万元" : "", descriptionOf(field)) << input.name;
            }
            EXPECT_EQ("保存", nameOf(accessOf(row.saveButton)));
            expectNoneNameless("frmC04", row.saveButton);
        });
    }
    const PhotoFolder folder;
    frmPicturePreview preview(folder.name());
    screen.show(preview, [&](ui::Form&) {
        EXPECT_EQ(QAccessible::Graphic, accessOf("imgOld").role());
        EXPECT_EQ("当前没有照片", nameOf(accessOf("imgOld")));
        EXPECT_EQ("选择...", nameOf(accessOf("cmdSelPic")));
        EXPECT_EQ("确定", nameOf(accessOf("cmdOK")));
        expectNoneNameless("frmPicturePreview", "照片预览");
    });
}

TEST_F(AccessibleTest, AnAssistiveProgramTogglesABoxByTheModel) {
    class CheckForm : public ui::Form {
    public:
        CheckForm() : Form("frmCheck", "选择"), box(add<ui::CheckBox>("chkSigned")) {}
        ui::CheckBox& box;
    } form;
    screen.show(form, [&](ui::Form&) {
        auto& access = accessOf("chkSigned");
        int clicks = 0;
        form.box.Click.connect([&] { ++clicks; });
        access.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(1, form.box.Value());
        EXPECT_EQ(1, clicks);
        EXPECT_TRUE(access.state().checked);
        form.box.setEnabled(false);
        EXPECT_TRUE(access.state().disabled);
    });
}

} // namespace quillmere::test
