#include "save/SaveEngine.h"

#include "metadata/Catalogue.h"
#include "metadata/Globals.h"
#include "metadata/Identity.h"
#include "panels/A1ctrlUser.h"
#include "platform/Error.h"
#include "platform/convert/Convert.h"
#include "platform/data/Connection.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/Label.h"
#include "save/Walk.h"

#include <array>

namespace quillmere {

namespace {

constexpr std::int32_t newRecord = 0;
constexpr std::int32_t existingRecord = 4;

/// What the two master tables, persons and units, do in their own way.
struct MasterTable {
    std::string_view table;
    std::string_view runningNumber;
    std::string_view runningNumberSql;
    std::string_view nameField;
    std::string_view unitField;
    bool (*nameExists)(std::string_view);
    std::string_view duplicateQuestion;
    std::string_view nameSql;
};

constexpr std::array masterTables{
    MasterTable{"A01", "A0199", "select iif(max(A0199) is null,0,max(A0199)) from a01  ", "A0101", "A0130",
                PersonNameExists, "系统已包含此姓名的用户，确定继续？",
                "select iif(a0101 is null,'',a0101) from a01 where a00='"},
    MasterTable{"B01", "B0199", "select iif(max(B0199) is null,0,max(B0199)) from B01  ", "B0101", "",
                UnitNameExists, "系统已包含此名称的单位，确定继续？",
                "select iif(B0101 is null,'',B0101) from B01 where a00='"},
};

const MasterTable* findMaster(const std::string& table) {
    for (const MasterTable& master : masterTables) {
        if (master.table == table) return &master;
    }
    return nullptr;
}

std::string quoted(std::string_view text) { return "'" + std::string(text) + "'"; }

/// The single value of a query. Raises NoCurrentRecord when there is no row.
data::Value single(const std::string& sql) {
    const data::RowSet rows = gConn().query(sql);
    if (rows.empty()) throw Error(Failure::NoCurrentRecord);
    return rows.at(0, std::size_t{0});
}

/// The columns and values of an insert, each list in the form in which it stands in the statement.
struct InsertLists {
    std::string columns;
    std::string values;

    void add(std::string_view column, std::string_view value) {
        columns.append(",").append(column);
        values.append(",").append(value);
    }
    void add(const std::vector<ColumnValue>& stored) {
        // A date that was left empty is left out, so that its column takes its default.
        for (const ColumnValue& value : stored) {
            if (value.text) add(value.column, quoted(*value.text));
        }
    }
    void execute(const std::string& table) const {
        gConn().execute("insert into " + table + "(" + columns + ") values(" + values + ")");
    }
};

std::string assignments(const std::vector<ColumnValue>& stored) {
    std::string list;
    for (const ColumnValue& value : stored) {
        if (!list.empty()) list += ",";
        list += value.column + " = " + (value.text ? quoted(*value.text) : std::string("null"));
    }
    return list;
}

/// One save of one panel.
class SaveRun {
public:
    SaveRun(A1ctrlUser& panel, const SaveContext& context)
        : panel_(panel), info_(panel.WhInfo), context_(context), master_(findMaster(info_.TabId)) {}

    bool run() {
        if (info_.TabId == "P01") return update({.requiredOnlyWhenVisible = true});
        if (master_ == nullptr) return replace();
        if (context_.WhState == newRecord) return insert();
        if (context_.WhState == existingRecord) return update(masterRules());
        return true;
    }

private:
    [[nodiscard]] WalkRules masterRules() const {
        return {.unitField = master_->unitField, .UnitCode = context_.UnitCode};
    }

    bool insert() {
        const auto number =
            convert::toInteger16(single(std::string(master_->runningNumberSql)).toLong() + 1.0);
        InsertLists lists{" A00," + std::string(master_->runningNumber),
                          quoted(info_.personID) + "," + std::to_string(number)};
        WalkRules rules = masterRules();
        rules.nameField = master_->nameField;
        const WalkResult walk = walkWidgets(panel_, rules);
        lists.add(walk.values);
        // The question comes before the complaints, as required: a person may be asked about a name
        // and then told that the record cannot be saved.
        if (!confirmName(walk.nameToCheck) || !accept(walk.complaints)) return false;
        addDefaults(lists);
        lists.execute(info_.TabId);
        showName();
        insertProject();
        return true;
    }

    bool update(const WalkRules& rules) {
        const WalkResult walk = walkWidgets(panel_, rules);
        if (!accept(walk.complaints)) return false;
        const std::string list = assignments(walk.values);
        if (list.empty()) return true;
        std::string sql = "update " + info_.TabId + " set " + list + " where A00='" + info_.personID + "'";
        if (master_ != nullptr && info_.IsMult)
            sql += " and " + info_.TabId + "99 = " + std::to_string(info_.id);
        gConn().execute(sql);
        if (master_ != nullptr) showName();
        return true;
    }

    bool replace() {
        const std::string& table = info_.TabId;
        std::string removal = "delete from " + table + " where A00='" + info_.personID + "' ";
        if (info_.IsMult) removal += " and " + table + "99 = " + std::to_string(info_.id);
        // Before any field is looked at: what a refused save has removed is not put back. Meant so.
        gConn().execute(removal);
        InsertLists lists{" A00 ", quoted(info_.personID)};
        if (info_.IsMult) lists.add(table + "99", quoted(std::to_string(info_.id)));
        const WalkResult walk = walkWidgets(panel_, {.doubleQuotes = true});
        lists.add(walk.values);
        if (!accept(walk.complaints)) return false;
        lists.execute(table);
        if (info_.IsMult) renumber();
        return true;
    }

    /// Numbers the person's records from 1 in the order of the set. All are first raised by 200, so
    /// that a new number cannot meet one that is still to be handled.
    void renumber() {
        const std::string& table = info_.TabId;
        const std::string sequence = table + "99";
        gConn().execute("update " + table + " set " + sequence + " = " + sequence + " +200 where a00='" +
                        info_.personID + "'");
        const auto rows = OpenRecordset("select * from " + table + " where A00 ='" + info_.personID +
                                        "' order by " + info_.FldOrder);
        for (int number = 1; !rows->EOF_(); ++number, rows->MoveNext()) {
            gConn().execute("update " + table + " set " + sequence + " = " + std::to_string(number) +
                            " where a00='" + info_.personID + "' and " + sequence + " = " +
                            rows->Fields(sequence).toText());
        }
        rows->close();
    }

    [[nodiscard]] bool confirmName(const std::string& name) const {
        if (name.empty() || !master_->nameExists(name)) return true;
        const auto answer = ui::desktop().msgBox(
            {std::string(master_->duplicateQuestion), "提示", ui::Buttons::YesNo, ui::Icon::None});
        return answer == ui::Answer::Yes;
    }

    [[nodiscard]] static bool accept(const Complaints& complaints) {
        if (complaints.empty()) return true;
        ui::desktop().msgBox({complaints.text(), "错误信息", ui::Buttons::Ok, ui::Icon::None});
        return false;
    }

    void addDefaults(InsertLists& lists) const {
        if (info_.TabId == "A01") {
            lists.columns += ",A0136,A0137";
            lists.values += ",'0" + std::to_string(gZZType) + "','" + gZZYear + "'";
        } else {
            lists.add("B0124", quoted(gZZYear));
        }
    }

    void showName() {
        const std::string sql = std::string(master_->nameSql) + context_.personID + "'";
        context_.labPersonName.setCaption(single(sql).toText());
    }

    /// Every person and every unit has a project row from its first save on; its number stays empty.
    void insertProject() {
        if (info_.TabId == "A01") {
            gConn().execute("insert into P01 (A00,P0123,P0120) values('" + info_.personID + "','01','')");
        } else {
            gConn().execute("insert into P01 (A00,P0123,P0120,P0111) values('" + info_.personID +
                            "','01','','" + context_.UnitCode + "')");
        }
    }

    A1ctrlUser& panel_;
    const cWhInfo& info_;
    const SaveContext& context_;
    const MasterTable* master_;
};

} // namespace

bool Save(A1ctrlUser& panel, const SaveContext& context) {
    try {
        return SaveRun(panel, context).run();
    } catch (const Error& failure) {
        ui::desktop().msgBox({failure.description(), "信息保存", ui::Buttons::Ok, ui::Icon::None});
        return false;
    }
}

} // namespace quillmere
