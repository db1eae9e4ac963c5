#include "shell/frmPersonWh.h"

#include "metadata/Catalogue.h"
#include "metadata/FieldLoaders.h"
#include "metadata/Globals.h"
#include "metadata/Identity.h"
#include "panels/PanelFactory.h"
#include "photos/PhotoStore.h"
#include "platform/Error.h"
#include "platform/data/Connection.h"
#include "platform/text/Text.h"
#include "platform/ui/CoolBar.h"
#include "platform/ui/Desktop.h"
#include "save/SaveEngine.h"
#include "shell/ControlsByPrefix.h"

#include <array>
#include <memory>

namespace quillmere {

namespace {

constexpr std::string_view panelPrefix = "A1ctrlUser";
constexpr ui::Rect windowSize{0, 0, 15240, 11010};
constexpr ui::Rect menuFrame{15, 495, 2115, 10125};
constexpr ui::Rect panelFrameRect{2175, 480, 12945, 10095};
constexpr ui::Rect panelRect{300, 300, 13000, 9800};
constexpr int bandHeight = 390;

struct MenuGroup {
    const char* caption;
    std::size_t designedItems;
};

constexpr std::array menuGroups{MenuGroup{"基本信息", 50}, MenuGroup{"项目信息", 30},
                                MenuGroup{"计划信息", 20}, MenuGroup{"进展信息", 20},
                                MenuGroup{"结题信息", 20}};

std::unique_ptr<frmPersonWh> defaultWindow;

} // namespace

frmPersonWh::frmPersonWh() : Form("frmPersonWh", "信息维护") {
    setGeometry(windowSize);
    buildWidgets();
}

frmPersonWh::~frmPersonWh() = default;

frmPersonWh& frmPersonWh::defaultInstance() {
    if (!defaultWindow) defaultWindow = std::make_unique<frmPersonWh>();
    return *defaultWindow;
}

void frmPersonWh::releaseDefaultInstance() {
    if (defaultWindow && defaultWindow->isLoaded()) throw Error(Failure::InvalidCall);
    defaultWindow.reset();
}

void frmPersonWh::buildWidgets() {
    Skin1_ = &add<ui::Skin>("Skin1");
    auto& menuHolder = add<ui::Frame>("frmVMenu");
    menuHolder.setGeometry(menuFrame);
    VMenu1_ = &add<ui::VerticalMenu>("VMenu1");
    VMenu1_->setContainer(&menuHolder);
    for (const MenuGroup& group : menuGroups)
        VMenu1_->addGroup(group.caption, group.designedItems);
    VMenu1_->ItemClick.connect([this](int& group, int& item) { VMenu1_ItemClick(group, item); });

    frmCtrl_ = &add<ui::Frame>("frmCtrl");
    frmCtrl_->setGeometry(panelFrameRect);

    auto& nameStrip = add<ui::Frame>("P2");
    labPersonName_ = &add<ui::Label>("labPersonName");
    labPersonName_->setContainer(&nameStrip);
    labPersonName_->setFontName("楷体_GB2312");

    TbMain_ = &add<ui::Toolbar>("TbMain");
    TbMain_->addButton("Add", "增加(&N)");
    TbMain_->addButton("Delete", "删除(&D)");
    TbMain_->addButton("Save", "保存(&S)");
    TbMain_->addButton("Cancel", "取消(&C)");
    TbMain_->addSeparator();
    TbMain_->addButton("Exit", "退出(&X)");
    TbMain_->ButtonClick.connect([this](ui::Toolbar::Button& button) { TbMain_ButtonClick(button); });

    CBar1_ = &add<ui::CoolBar>("CBar1");
    CBar1_->addBand(nameStrip);
    CBar1_->addBand(*TbMain_);
}

A1ctrlUser* frmPersonWh::GetUserCtrl() const {
    for (const auto& control : Controls()) {
        const std::string& name = control->name();
        if (name.size() > panelPrefix.size() && name.starts_with(panelPrefix)) {
            return dynamic_cast<A1ctrlUser*>(control.get());
        }
    }
    return nullptr;
}

A1ctrlUser& frmPersonWh::LoadUCtrl(std::string_view name) {
    RemoveCtrlByPrefix(*this, panelPrefix);
    auto created = createPanel(name, *this);
    A1ctrlUser& panel = *created;
    place(std::move(created));
    panel.setContainer(frmCtrl_);
    panel.setVisible(true);
    panel.moveTo(panelRect);
    return panel;
}

void frmPersonWh::IniUCtrl(A1ctrlUser& panel, std::string_view table, std::int32_t state) {
    cWhInfo& info = panel.WhInfo;
    info.personID = personID;
    info.TabId = table;
    info.IsMult = GetIsMult(table);
    info.id = info.IsMult ? 1 : 0;
    auto items = std::make_shared<cFieldItems>();
    if (state == 0) {
        items = LoadFieldItems(table);
    } else if (state >= 1 && state <= 4) {
        items = LoadFieldItemsWithValues(table, personID, info.id);
    }
    const auto order = OpenRecordset("select iif(orderfield is null , '',orderfield) as orderfield  from "
                                     "s_infotable where tblname ='" +
                                     std::string(table) + "'  and orderfield<>'' ");
    if (order->EOF_()) {
        info.FldOrder = info.IsMult ? std::string(table) + "99" : std::string();
    } else {
        info.FldOrder = order->Fields("orderfield").toText();
    }
    order->close();
    if (info.IsMult) {
        // The grid's record movement fills the widgets. The panel is left with the collection that was
        // loaded above all the same, that of record 1, whichever row came first. Meant so.
        panel.setDGItems();
    } else {
        panel.setCtrl(items);
    }
    info.IsChange = false;
    panel.FieldItems = items;
}

bool frmPersonWh::Save(A1ctrlUser& panel) {
    if (!quillmere::Save(panel, {whState_, personID, UnitCode, *labPersonName_})) return false;
    if (const std::string& table = panel.WhInfo.TabId; table == "A01" || table == "B01") {
        namesPerson_ = table == "A01";
        showNamePhoto();
    }
    return true;
}

void frmPersonWh::SetState(std::int32_t /*a*/, std::int32_t /*b*/) {}

void frmPersonWh::SetLabOpt(A1ctrlUser& panel, std::string_view mode) {
    for (const auto& control : panel.Controls()) {
        if (!text::equalsNoCase(control->name(), "labopt")) continue;
        auto* label = dynamic_cast<ui::Label*>(control.get());
        if (label != nullptr && mode == "Add") label->setCaption("当前操作：增加");
        if (label != nullptr && mode == "Mod") label->setCaption("当前操作：修改");
        return;
    }
}

std::int16_t frmPersonWh::IsMaxNumber(const cWhInfo& info) const {
    if (!info.IsMult) return 0;
    const auto maximum =
        OpenRecordset("select iif(maxnumber is null,0,maxnumber) as maxnumber from  s_infotable  "
                      "where tblname ='" +
                      info.TabId + "'");
    const std::int16_t limit = maximum->EOF_() ? std::int16_t{0} : maximum->Fields("maxnumber").toInteger16();
    maximum->close();
    if (limit <= 0) return 0;
    const auto count =
        OpenRecordset("select count(*) from " + info.TabId + " where a00='" + info.personID + "'");
    const bool reached = count->Fields(std::size_t{0}).toLong() >= limit;
    count->close();
    return reached ? limit : std::int16_t{0};
}

void frmPersonWh::NewPersonRecord() {
    VMenu1_->setAddressedItem(VMenu1_->AddressedItem());
    frmCtrl_->setEnabled(true);
    setAddAndDelete(false);
    A1ctrlUser* panel = GetUserCtrl();
    if (panel == nullptr) return;
    personID = NewGuid();
    cWhInfo& info = panel->WhInfo;
    info.TabId = "A01";
    info.id = 0;
    info.personID = personID;
    info.IsMult = false;
    const auto items = LoadFieldItemsWithValues("A01", personID, 0);
    panel->setCtrl(items);
    panel->FieldItems = items;
    frmCtrl_->setEnabled(true);
    setAddAndDelete(false);
    whState_ = 0;
    labPersonName_->setCaption("");
    showNamePhoto();
    info.IsChange = false;
}

void frmPersonWh::showNamePhoto() {
    const bool named = namesPerson_ && !labPersonName_->Caption().empty();
    labPersonName_->setPicture(named ? quillmere::photoPath(PhotoPath, personID) : std::string());
}

void frmPersonWh::setAddAndDelete(bool enabled) {
    toolbarButton("Add").setEnabled(enabled);
    toolbarButton("Delete").setEnabled(enabled);
}

bool frmPersonWh::ask(std::string text, std::string title) const {
    return ui::desktop().msgBox({std::move(text), std::move(title), ui::Buttons::YesNo, ui::Icon::None}) ==
           ui::Answer::Yes;
}

void frmPersonWh::tell(std::string text, std::string title) const {
    ui::desktop().msgBox({std::move(text), std::move(title), ui::Buttons::Ok, ui::Icon::None});
}

void frmPersonWh::onUnload() { RemoveCtrlByPrefix(*this, panelPrefix); }

void frmPersonWh::onResize() {
    CBar1_->setMinHeight(0, bandHeight);
    CBar1_->setMinHeight(1, bandHeight);
    A1ctrlUser* panel = GetUserCtrl();
    if (panel == nullptr) return;
    ui::Rect rect = panel->geometry();
    if (const int width = geometry().width - rect.left; width > 0) rect.width = width;
    if (const int height = geometry().height - rect.top; height > 0) rect.height = height;
    panel->moveTo(rect);
}

} // namespace quillmere
