#pragma once

#include "platform/data/RowSet.h"
#include "platform/ui/CommandButton.h"
#include "platform/ui/Form.h"
#include "platform/ui/Label.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/Skin.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/TextBox.h"
#include "platform/ui/TreeView.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// The dialog that picks a value from a code table: from a tree, or by typing part of a name or of
/// its pinyin abbreviation. The caller sets the public members, shows it modally and reads `Dmcod`
/// and `Dmcpt`: the picked code and its name, both empty when the user cleared the field, or what the
/// caller had put in when the user cancelled.
class fmGrpCod : public ui::Form {
public:
    fmGrpCod();

    /// The table to show, and its key in s_CodeTableDefine and s_CodeLevDefine.
    std::string CodeTable;
    std::string Dmcpt;
    std::string Dmcod;
    bool IsCancelled = true;
    /// When not empty, the dialog opens on the list page with this text searched.
    std::string SearchText;

protected:
    /// A statement that fails while the dialog opens is skipped, and the next one runs.
    void onLoad() override;
    void onActivate() override;
    /// Refuses the apostrophe anywhere in the dialog.
    void onKeyPreview(char32_t& character) override;

private:
    void placeWidgets();
    void connectEvents();

    void loadCaption();
    void loadLevels();
    /// False when the top level was read and has no code, which ends the opening early.
    [[nodiscard]] bool buildTree();
    void addLevel(std::size_t level);
    void addNode(ui::TreeView::Node* parent, const std::vector<data::Value>& row);
    void showFirstPage();
    void dress();

    void search();
    void showPinyinTip();

    void acceptChosen();
    void acceptFromList();
    void acceptFromTree();
    void pressedInTree(char32_t character);
    void accept(std::string code, std::string name);

    /// Runs a handler that reports its failure in a message box and then ends.
    template <class Handler>
    void reporting(Handler handler);

    /// Length of a whole code at each level of the tree.
    std::vector<std::int16_t> LevelBits;
    /// Kept up to date and read by nothing: meant so.
    bool ListHasFocus = false;
    /// Pinyin abbreviation of each row of the list.
    std::vector<std::string> PinyinItems;

    /// The parent that was found last, and the node that was added last, in the whole build.
    ui::TreeView::Node* parent_ = nullptr;
    ui::TreeView::Node* node_ = nullptr;

    ui::TabStrip& Tab1;
    ui::TreeView& tvGrpCod;
    ui::Label& Label1;
    ui::TextBox& txtDm;
    ui::ListBox& lstDmCpt;
    ui::ListBox& lstDmCod;
    ui::CommandButton& cmdOK;
    ui::CommandButton& cmdCancel;
    ui::CommandButton& cmdDel;
    ui::Skin& Skin1;
};

} // namespace quillmere
