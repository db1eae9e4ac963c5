#include "shell/frmPersonWh.h"

#include "metadata/Catalogue.h"
#include "metadata/FieldLoaders.h"
#include "metadata/Globals.h"
#include "photos/PhotoStore.h"
#include "platform/data/Connection.h"

#include <array>

// The five commands of the toolbar on the panel on show. They nest: Save reloads, a reload may add.

namespace quillmere {

void frmPersonWh::TbMain_ButtonClick(ui::Toolbar::Button& button) {
    struct CommandRow {
        std::string_view key;
        void (frmPersonWh::*command)(A1ctrlUser&);
    };
    static constexpr std::array commands{
        CommandRow{"Add", &frmPersonWh::commandAdd},   CommandRow{"Delete", &frmPersonWh::commandDelete},
        CommandRow{"Save", &frmPersonWh::commandSave}, CommandRow{"Cancel", &frmPersonWh::commandCancel},
        CommandRow{"Exit", &frmPersonWh::commandExit},
    };
    perform([&] {
        A1ctrlUser* panel = GetUserCtrl();
        // A window without a panel obeys no command, not even Exit. Meant so.
        if (panel == nullptr) return;
        for (const CommandRow& row : commands) {
            if (row.key == button.Key()) (this->*row.command)(*panel);
        }
    });
}

void frmPersonWh::reload() { VMenu1_ItemClick(VMenu1_->AddressedGroup(), VMenu1_->AddressedItem()); }

void frmPersonWh::commandAdd(A1ctrlUser& panel) {
    cWhInfo& info = panel.WhInfo;
    if (const std::int16_t limit = IsMaxNumber(info); limit != 0) {
        tell("此信息集最多只能录入" + std::to_string(limit) + "条记录。", Caption());
        return;
    }
    if (info.IsChange && ask("数据被修改且未保存，是否保存？", "") && !Save(panel)) return;
    if (info.TabId == "A01") {
        NewPersonRecord();
    } else {
        const std::string& table = info.TabId;
        info.IsChange = false;
        info.id = 0;
        if (info.IsMult) {
            // Taken now and not at Save: the number stands in the context while the person types.
            const auto next = OpenRecordset("select iif(max(" + table + "99) is null,0,max(" + table +
                                            "99))+1  from " + table + " where A00 ='" + personID + "' ");
            info.id = next->Fields(std::size_t{0}).toInteger16();
            next->close();
        }
        const auto items = LoadFieldItemsWithValues(table, personID, info.id);
        panel.setCtrl(items);
        panel.FieldItems = items;
        info.IsChange = false;
        frmCtrl_->setEnabled(true);
        setAddAndDelete(false);
    }
    SetLabOpt(panel, "Add");
}

void frmPersonWh::commandDelete(A1ctrlUser& panel) {
    const cWhInfo info = panel.WhInfo;
    const std::string& table = info.TabId;
    const std::string question = table == "A01"   ? "此操作将删除此人所有信息，是否删除？"
                                 : table == "B01" ? "此操作将删除此单位所有信息，是否删除？"
                                                  : "是否删除此条记录？";
    if (!ask(question, Caption())) return;
    std::string sql = "delete from " + table + " where A00='" + personID + "' ";
    if (table == "A01") {
        DeletePersonPhoto(personID, PhotoPath);
        showNamePhoto();
    }
    if (info.IsMult) sql += " and " + table + "99 = " + std::to_string(info.id);
    gConn().execute(sql);
    if (table == "A01" || table == "B01") gConn().execute("delete from P01 where A00='" + personID + "'");
    if (info.IsMult) closeUpNumbers(info);
    reload();
}

void frmPersonWh::closeUpNumbers(const cWhInfo& info) {
    const std::string& table = info.TabId;
    const auto rows =
        OpenRecordset("select * from " + table + " where A00='" + personID + "' order by " + info.FldOrder);
    if (!rows->EOF_()) {
        // Runs once when one row is left and not at all when two or more are: meant so.
        for (std::int32_t number = rows->RecordCount(); number <= 1; ++number) {
            gConn().execute("update " + table + " set " + table + "99 = " + std::to_string(number) +
                            " where a00='" + personID + "' and " + table +
                            "99 = " + rows->Fields(table + "99").toText());
            rows->MoveNext();
        }
    }
    rows->close();
}

void frmPersonWh::commandSave(A1ctrlUser& panel) {
    if (!Save(panel)) return;
    const std::int16_t limit = IsMaxNumber(panel.WhInfo);
    IsSaved = true;
    whState_ = 4;
    panel.WhInfo.IsChange = false;
    reload();
    const std::string key = VMenu1_->ItemKey();
    if (ui::Toolbar::Button& add = toolbarButton("Add"); key != "A01" && limit == 0 && add.Enabled()) {
        TbMain_ButtonClick(add);
    }
    if (key == "A01" || key == "B01") tell("保存成功!", "提示");
}

void frmPersonWh::commandCancel(A1ctrlUser& panel) {
    if (panel.WhInfo.IsChange && !ask("数据已被修改并且未被保存，是否取消？", Caption())) return;
    // The edits still count as such, so the reload asks a question of its own. Meant so.
    reload();
    if (whState_ == 0) toolbarButton("Add").setEnabled(true);
}

void frmPersonWh::commandExit(A1ctrlUser& panel) {
    if (panel.WhInfo.IsChange && ask("数据被修改但未保存，是否保存？", Caption()) && !Save(panel)) return;
    unload();
}

} // namespace quillmere
