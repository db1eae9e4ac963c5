#include "shell/frmPersonWh.h"

#include "metadata/Catalogue.h"
#include "metadata/Globals.h"
#include "platform/convert/Convert.h"
#include "platform/data/Connection.h"
#include "platform/text/Text.h"
#include "shell/ControlsByPrefix.h"
#include "shell/PanelOfItem.h"

#include <array>

// The single road to a panel: a click on an item of the menu, by a person or by a command.

namespace quillmere {

namespace {

constexpr std::int32_t planGroup = 3;
constexpr std::int32_t closingGroup = 5;
constexpr std::int32_t skilledType = 7;

std::int32_t countOf(const std::string& sql) { return gConn().query(sql).at(0, std::size_t{0}).toLong(); }

bool startsWithOneOf(const std::string& key, std::string_view letters) {
    return !key.empty() && letters.find(key.front()) != std::string_view::npos;
}

} // namespace

void frmPersonWh::VMenu1_ItemClick(std::int32_t group, std::int32_t item) {
    perform([&] {
        if (!keepOrDropEdits()) return;
        VMenu1_->setAddressedGroup(group);
        VMenu1_->setAddressedItem(item);
        const std::string key = VMenu1_->ItemKey();
        if (!passesBaseRecordGate(key)) return;
        A1ctrlUser& panel = LoadUCtrl("A1ctrlUser" + panelSuffix(key, group));
        IniUCtrl(panel, key, whState_);
        panel.WhInfo.IsChange = false;
        setAddAndDelete(panel.WhInfo.TabId == "A01" || panel.WhInfo.IsMult);
        showRecordOrAdd(panel, key);
        // The description is read and shown nowhere, as required.
        (void)gConn().query("select iif(tbldesc is null,'',tbldesc)  from s_infotable where tblname ='" +
                            panel.WhInfo.TabId + "'");
        applyStageLock(key, group);
    });
}

bool frmPersonWh::keepOrDropEdits() {
    if (!IsCtrlChanged(*this, "A1ctrlUser")) return true;
    if (!ask("数据被修改且未保存，是否保存？", Caption())) return true;
    A1ctrlUser* panel = GetUserCtrl();
    return panel == nullptr || Save(*panel);
}

bool frmPersonWh::passesBaseRecordGate(const std::string& key) {
    const auto persons = countOf("select count(A00) from a01 where a00 ='" + personID + "'");
    const auto units = countOf("select count(A00) from B01 where a00 ='" + personID + "'");
    if (key == "A01" || key == "B01" || persons == 1 || units == 1) return true;
    tell("必须先维护基本信息集，然后再维护其它信息集。", Caption());
    VMenu1_->setAddressedGroup(1);
    VMenu1_->setAddressedItem(1);
    return false;
}

std::string frmPersonWh::panelSuffix(const std::string& key, std::int32_t group) const {
    if (key == "P01") return panelOfProjectItem(group, VMenu1_->ItemCaption(), gZZType);
    if (key != "A01" || gZZType != skilledType) return key;
    const auto row = OpenRecordset("select * from A01 where A00='" + personID + "'");
    if (row->EOF_()) return "G01";
    const std::string type = row->Fields("A0136").toTextOrEmpty();
    return convert::isNumeric(type) && convert::toDouble(type) == gZZType ? "G01" : "A01";
}

void frmPersonWh::showRecordOrAdd(A1ctrlUser& panel, const std::string& key) {
    std::string count = "select count(*) from " + key + " where A00 ='" + personID + "'";
    if (panel.WhInfo.IsMult) count += " and " + key + "99 >0";
    if (countOf(count) > 0) {
        frmCtrl_->setEnabled(true);
        SetLabOpt(panel, "Mod");
    } else {
        frmCtrl_->setEnabled(false);
        TbMain_ButtonClick(toolbarButton("Add"));
    }
}

void frmPersonWh::applyStageLock(const std::string& key, std::int32_t group) {
    if (projectStage_ == "02") {
        if (startsWithOneOf(key, "ABCPG")) {
            if (text::left(key, 2) == "Pl") {
                // Plans stay open until the first progress row exists.
                const auto reports = countOf("select count(1) from E06 where a00 ='" + personID + "'");
                const auto collective = countOf("select count(1) from M02 where a00 ='" + personID + "'");
                if (reports <= 0 && collective <= 0) frmCtrl_->setEnabled(true);
            } else {
                frmCtrl_->setEnabled(false);
            }
        }
        if (key == "P01" && group == planGroup) frmCtrl_->setEnabled(true);
    } else if (projectStage_ == "03") {
        if (startsWithOneOf(key, "ABCPGEM")) frmCtrl_->setEnabled(false);
        if (key == "P01" && group == closingGroup) frmCtrl_->setEnabled(true);
    }
}

} // namespace quillmere
