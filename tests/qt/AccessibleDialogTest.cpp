#include "panels/frmC04.h"
#include "photos/frmPicturePreview.h"
#include "platform/ui/TabStrip.h"
#include "qt/AccessibleEvents.h"
#include "qt/AccessibleTree.h"
#include "qt/MaintenanceTest.h"
#include "support/PhotoFolder.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <QTimer>

namespace quillmere::test {

namespace {

using AccessibleDialogTest = MaintenanceTest;

} // namespace

TEST_F(AccessibleDialogTest, TheMessageOfARefusedFieldIsAnAlertThatReadsItself) {
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

TEST_F(AccessibleDialogTest, AMessageIsAnnouncedWhenItShows) {
    if (!AccessibleEvents::isPossible()) GTEST_SKIP() << "no platform that assistive programs can listen to";
    const AccessibleEvents heard;
    screen.person.expectBox("正文", "标题", Press::EnterKey);
    (void)screen.toolkit.desktop().msgBox({"正文", "标题"});
    EXPECT_TRUE(heard.has(QAccessible::Alert, "messageBox"));
}

TEST_F(AccessibleDialogTest, TheCodeSelectorIsADialogWithATreeAListAndPages) {
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

TEST_F(AccessibleDialogTest, TheRowEditorAndThePhotoPreviewNameTheirFieldsAndPictures) {
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

} // namespace quillmere::test
