#include "binding/fmGrpCod.h"

#include "metadata/Globals.h"
#include "platform/Error.h"
#include "platform/data/Connection.h"
#include "platform/text/Text.h"
#include "platform/ui/Desktop.h"

#include <utility>

namespace quillmere {

namespace {

constexpr const char* designCaption = "代码帮助窗口";
constexpr int treePage = 0;
constexpr int listPage = 1;
constexpr double treeIndentation = 800;

/// Runs one step with its failure suppressed.
template <class Step>
void attempt(Step step) {
    try {
        step();
    } catch (const Error&) {
        // A failing step is skipped: meant so.
    }
}

/// Like with anything between the characters, which must occur in this order.
std::string patternOf(std::string_view text) {
    std::string pattern = "%";
    for (const char32_t character : text::decode(text))
        pattern += text::encode(character) + "%";
    return pattern;
}

} // namespace

fmGrpCod::fmGrpCod()
    : Form("fmGrpCod", designCaption)
    , Tab1(add<ui::TabStrip>("Tab1", std::vector<std::string>{"浏览查询", "录入查询"}))
    , tvGrpCod(add<ui::TreeView>("tvGrpCod"))
    , Label1(add<ui::Label>("Label1", "录入查询请输入相应汉字或拼音首字母！"))
    , txtDm(add<ui::TextBox>("txtDm"))
    , lstDmCpt(add<ui::ListBox>("lstDmCpt"))
    , lstDmCod(add<ui::ListBox>("lstDmCod"))
    , cmdOK(add<ui::CommandButton>("cmdOK", "确定"))
    , cmdCancel(add<ui::CommandButton>("cmdCancel", "取消"))
    , cmdDel(add<ui::CommandButton>("cmdDel", "清空"))
    , Skin1(add<ui::Skin>("Skin1")) {
    placeWidgets();
    connectEvents();
}

void fmGrpCod::placeWidgets() {
    struct Place {
        ui::Control& control;
        int page;
        ui::Rect geometry;
    };
    const Place onTabs[] = {
        {tvGrpCod, treePage, {120, 420, 5460, 5520}},  {Label1, listPage, {120, 480, 5460, 255}},
        {txtDm, listPage, {120, 780, 5460, 330}},      {lstDmCpt, listPage, {120, 1200, 5460, 4740}},
        {lstDmCod, listPage, {120, 1200, 1200, 4740}},
    };
    for (const Place& place : onTabs) {
        place.control.setContainer(&Tab1);
        place.control.setPage(place.page);
        place.control.setGeometry(place.geometry);
    }
    lstDmCod.setVisible(false);
    Tab1.setGeometry({120, 120, 5700, 6060});
    cmdOK.setGeometry({1860, 6300, 1200, 360});
    cmdCancel.setGeometry({3180, 6300, 1200, 360});
    cmdDel.setGeometry({4500, 6300, 1200, 360});
    setGeometry({0, 0, 5940, 6780});
}

void fmGrpCod::connectEvents() {
    cmdOK.Click.connect([this] { acceptChosen(); });
    cmdCancel.Click.connect([this] { unload(); });
    cmdDel.Click.connect([this] { accept({}, {}); });
    tvGrpCod.DblClick.connect([this] { acceptChosen(); });
    tvGrpCod.KeyPress.connect([this](char32_t& character) { pressedInTree(character); });
    txtDm.KeyPress.connect([this](char32_t& character) {
        if (character == ui::key::Enter && !txtDm.Text().empty()) search();
    });
    // A double click on the list does nothing: the keyboard confirms a row, which is meant so.
    lstDmCpt.KeyPress.connect([this](char32_t& character) {
        if (character == ui::key::Enter && lstDmCpt.ListIndex() >= 0) acceptChosen();
    });
    lstDmCpt.MouseMove.connect([this](int button) {
        if (button == 0) showPinyinTip();
    });
    lstDmCpt.GotFocus.connect([this] { ListHasFocus = true; });
    lstDmCpt.LostFocus.connect([this] { ListHasFocus = false; });
}

void fmGrpCod::onLoad() {
    ListHasFocus = false;
    PinyinItems.clear();
    lstDmCpt.Clear();
    lstDmCod.Clear();
    setCaption(designCaption);
    attempt([this] { loadCaption(); });
    Tab1.setTab(treePage);
    attempt([this] { loadLevels(); });
    if (buildTree()) {
        showFirstPage();
        tvGrpCod.setIndentation(treeIndentation);
    }
    dress();
}

void fmGrpCod::loadCaption() {
    const data::RowSet definition =
        gConn().query("select codtbldsc from s_CodeTableDefine where dmgrp ='" + CodeTable + "' ");
    if (!definition.empty()) setCaption(definition.at(0, 0).toText() + "代码表");
}

void fmGrpCod::loadLevels() {
    LevelBits.clear();
    const data::RowSet levels =
        gConn().query("select bit from s_CodeLevDefine where dmgrp ='" + CodeTable + "' order by levelnum");
    LevelBits.resize(levels.rowCount());
    for (std::size_t i = 0; i < levels.rowCount(); ++i)
        attempt([&] { LevelBits[i] = levels.at(i, 0).toInteger16(); });
}

bool fmGrpCod::buildTree() {
    parent_ = nullptr;
    node_ = nullptr;
    tvGrpCod.clear();
    if (LevelBits.empty()) return true;
    bool isEmpty = false;
    attempt([&] {
        const data::RowSet top = gConn().query(
            "select dmcod,dmcpt,iif(dmattr is null,false,dmattr) as dmattr  from " + CodeTable +
            " where dmcod<>''  and dmcpt<>''    and len(dmcod) =" + std::to_string(LevelBits[0]) +
            "  order by dmcod");
        isEmpty = top.empty();
        for (std::size_t row = 0; row < top.rowCount(); ++row)
            addNode(nullptr, top.row(row));
    });
    for (std::size_t level = 1; level < LevelBits.size() && !tvGrpCod.nodes().empty(); ++level)
        attempt([&] { addLevel(level); });
    tvGrpCod.endUpdate();
    return !isEmpty;
}

void fmGrpCod::addLevel(std::size_t level) {
    const data::RowSet codes =
        gConn().query("select dmcod,dmcpt,iif(dmattr is null,false,dmattr) as dmattr from " + CodeTable +
                      " where  dmcod<>'' and dmcpt<>''  and len(dmcod) =" + std::to_string(LevelBits[level]) +
                      "  order by dmcod");
    const std::int16_t parentLength = LevelBits[level - 1];
    for (std::size_t row = 0; row < codes.rowCount(); ++row) {
        const std::string code = codes.at(row, 0).toTextOrEmpty();
        ui::TreeView::Node* found = nullptr;
        if (parentLength >= 0) {
            found = tvGrpCod.find("G" + text::left(code, static_cast<std::size_t>(parentLength)));
        }
        // A code whose parent is missing goes under the parent of the code before it: meant so.
        if (found != nullptr) parent_ = found;
        if (parent_ != nullptr) addNode(parent_, codes.row(row));
    }
}

void fmGrpCod::addNode(ui::TreeView::Node* parent, const std::vector<data::Value>& row) {
    const std::string code = row[0].toTextOrEmpty();
    attempt([&] { node_ = &tvGrpCod.add(parent, "G" + code, row[1].toTextOrEmpty()); });
    // After a repeated code this is still the node that was added before it: meant so.
    if (node_ == nullptr) return;
    attempt([&] {
        const bool selectable = row[2].toBoolean();
        node_->foreColor = selectable ? ui::colour::buttonText : ui::colour::buttonShadow;
        node_->tag = selectable ? code : std::string();
    });
}

void fmGrpCod::showFirstPage() {
    if (SearchText.empty()) {
        Tab1.setTab(treePage);
        return;
    }
    Tab1.setTab(listPage);
    txtDm.setText(SearchText);
    attempt([this] { search(); });
}

void fmGrpCod::dress() {
    // No skin path reaches this dialog: meant so.
    Skin1.LoadSkin({});
    Skin1.ApplySkin();
}

void fmGrpCod::onActivate() {
    if (!tvGrpCod.nodes().empty()) {
        tvGrpCod.SetFocus();
        tvGrpCod.setExpanded(*tvGrpCod.SelectedItem(), false);
    }
    // A search that ran while the dialog was opening found no window to put the focus in.
    if (lstDmCpt.ListIndex() >= 0) lstDmCpt.SetFocus();
}

void fmGrpCod::onKeyPreview(char32_t& character) {
    if (character != U'\'') return;
    character = 0;
    ui::desktop().beep();
}

void fmGrpCod::search() {
    PinyinItems.clear();
    lstDmCpt.Clear();
    lstDmCod.Clear();
    const std::string pattern = patternOf(txtDm.Text());
    const data::RowSet found =
        gConn().query("select dmcod,dmcpt,iif(dmhnd is null, '',dmhnd) as dmhnd  from " + CodeTable +
                      " where dmattr =true and   dmcod<>''  and dmcpt<>'' " + "  and  ( DmCpt like '" +
                      pattern + "' or   DmHnd like '" + pattern + "') " + "    order by dmcod");
    std::vector<std::string> codes;
    std::vector<std::string> names;
    for (std::size_t row = 0; row < found.rowCount(); ++row) {
        codes.push_back(found.at(row, 0).toTextOrEmpty());
        names.push_back(found.at(row, 1).toTextOrEmpty());
        PinyinItems.push_back(found.at(row, 2).toTextOrEmpty());
    }
    lstDmCod.setItems(std::move(codes));
    lstDmCpt.setItems(std::move(names));
    if (found.empty()) return;
    lstDmCpt.setListIndex(0);
    lstDmCpt.SetFocus();
}

void fmGrpCod::showPinyinTip() {
    const int row = lstDmCpt.rowUnderPointer();
    if (row < 0 || std::cmp_greater_equal(row, PinyinItems.size())) return;
    const std::string& pinyin = PinyinItems[static_cast<std::size_t>(row)];
    if (!pinyin.empty()) lstDmCpt.setToolTip("拼音输入代码： " + pinyin);
}

template <class Handler>
void fmGrpCod::reporting(Handler handler) {
    try {
        handler();
    } catch (const Error& error) {
        ui::desktop().msgBox({.text = error.description(),
                              .title = Caption(),
                              .buttons = ui::Buttons::Ok,
                              .icon = ui::Icon::Warning});
    }
}

void fmGrpCod::acceptChosen() {
    reporting([this] {
        if (Tab1.Tab() == listPage)
            acceptFromList();
        else
            acceptFromTree();
    });
}

void fmGrpCod::acceptFromList() {
    const int row = lstDmCpt.ListIndex();
    if (row < 0) {
        ui::desktop().msgBox(
            {.text = "请选择代码。", .title = {}, .buttons = ui::Buttons::Ok, .icon = ui::Icon::None});
        return;
    }
    accept(lstDmCod.items().at(static_cast<std::size_t>(row)), lstDmCpt.Text());
}

void fmGrpCod::acceptFromTree() {
    const ui::TreeView::Node* chosen = tvGrpCod.SelectedItem();
    if (chosen == nullptr) throw Error(Failure::ObjectNotSet);
    // A grouping code has no tag and cannot be chosen; nothing says so, which is meant.
    if (!chosen->tag.empty()) accept(chosen->tag, chosen->text);
}

void fmGrpCod::pressedInTree(char32_t character) {
    if (character == ui::key::Enter && Tab1.Tab() == treePage) acceptChosen();
}

void fmGrpCod::accept(std::string code, std::string name) {
    Dmcod = std::move(code);
    Dmcpt = std::move(name);
    IsCancelled = false;
    unload();
}

} // namespace quillmere
