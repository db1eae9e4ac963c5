#include "shell/frmPersonWh.h"

#include "metadata/Catalogue.h"
#include "metadata/Globals.h"
#include "platform/Error.h"
#include "platform/convert/Clock.h"
#include "platform/data/Connection.h"
#include "platform/text/Text.h"
#include "shell/MenuComposition.h"

#include <array>

// How a maintenance run starts: sponsorship context, menu, identity check, first item.

namespace quillmere {

namespace {

/// What the window is opened for: the group that stands open, and the item that is clicked.
struct OpeningRow {
    std::int32_t operationType;
    int openGroup;
    int group;
    int item;
};

constexpr std::array openings{OpeningRow{0, 2, 1, 1}, OpeningRow{1, 3, 3, 1}, OpeningRow{2, 4, 4, 1},
                              OpeningRow{3, 5, 5, 1}, OpeningRow{4, 2, 1, 1}};

constexpr std::int32_t newRecordOpening = 0;
constexpr std::int32_t maintainOpening = 4;

int openGroupOf(const OpeningRow& row, const std::string& stage) {
    if (row.operationType == maintainOpening && stage == "02") return 4;
    if (row.operationType == maintainOpening && stage == "03") return 5;
    return row.openGroup;
}

/// The type that a text of one or two digits stands for, "1" or "01" to "7" or "07"; 1 for any other.
std::int32_t typeFromText(std::string_view text, std::string_view prefix) {
    for (std::int32_t type = 1; type <= 7; ++type) {
        if (text == std::string(prefix) + std::to_string(type)) return type;
    }
    return 1;
}

} // namespace

void frmPersonWh::GetZZType() {
    constexpr std::size_t longestForeignIdentity = 32;
    try {
        const bool fresh = text::length(personID) > longestForeignIdentity;
        const auto rows = fresh ? OpenRecordset("select * from ZZStyle", 2)
                                : OpenRecordset("select A0136 from A01 where A00='" + personID + "'", 2);
        gZZType = rows->EOF_() ? 1
                  : fresh      ? typeFromText(rows->Fields("ZZType").toTextOrEmpty(), "")
                               : typeFromText(rows->Fields("A0136").toTextOrEmpty(), "0");
        // The person's row has no such column, so for a stored person this fails every time, and the
        // window runs as type 1. Meant so.
        gZZYear = rows->Fields("ZZYear").toText();
        rows->close();
    } catch (const Error&) {
        gZZType = 1;
    }
}

std::string frmPersonWh::GetP0123(std::string_view id) const {
    const auto rows = OpenRecordset("select * from P01 where A00='" + std::string(id) + "'", 2);
    std::string stage = rows->EOF_() ? std::string() : rows->Fields("P0123").toTextOrEmpty();
    rows->close();
    return stage;
}

void frmPersonWh::onLoad() {
    removeAll();
    buildWidgets();
    if (OperationType == newRecordOpening) {
        GetZZType();
    } else {
        gZZType = ZZtype;
        gZZYear = std::to_string(clock::now().year);
    }
    projectStage_ = GetP0123(personID);
    composeMenu(*VMenu1_, gZZType);
    IsSaved = false;
    startByOperationType();
    Skin1_->LoadSkin(SkinPath);
    Skin1_->ApplySkin();
    // A window that unloaded itself in the identity check has gone on loading; its panel goes now.
    if (!isLoaded()) onUnload();
}

void frmPersonWh::startByOperationType() {
    for (const OpeningRow& row : openings) {
        if (row.operationType != OperationType) continue;
        whState_ = OperationType;
        if (OperationType == newRecordOpening) {
            labPersonName_->setCaption("");
            showNamePhoto();
        } else {
            checkIdentity();
        }
        VMenu1_->setOpenGroup(openGroupOf(row, projectStage_));
        VMenu1_ItemClick(row.group, row.item);
    }
}

void frmPersonWh::checkIdentity() {
    const data::RowSet person = gConn().query("select a0101 from a01 where a00='" + personID + "'");
    const data::RowSet unit = gConn().query("select B0101 from B01 where A00='" + personID + "'");
    if (person.rowCount() != 1 && unit.rowCount() != 1) {
        tell("无法维护此条信息。可能不存在此Id号或Id号重复。", Caption());
        unload();
    }
    // A person takes precedence over a unit of the same identity.
    const data::RowSet& named = person.rowCount() == 1 ? person : unit;
    if (named.empty()) return;
    labPersonName_->setCaption(named.at(0, std::size_t{0}).toTextOrEmpty());
    namesPerson_ = person.rowCount() == 1;
    showNamePhoto();
}

} // namespace quillmere
