#include "panels/A1ctrlUser.h"

#include "metadata/FieldLoaders.h"
#include "metadata/Globals.h"
#include "panels/FillWidgets.h"
#include "panels/GridStatement.h"
#include "panels/PanelWidgets.h"
#include "panels/PanelWindow.h"
#include "photos/PhotoStore.h"
#include "platform/Error.h"
#include "platform/data/Connection.h"
#include "platform/text/Text.h"
#include "platform/ui/CheckBox.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/MaskEdBox.h"
#include "platform/ui/TextBox.h"

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

/// What a panel key does; `toolbarKey` names a button of the window, else the grid moves.
struct PanelKey {
    int code;
    std::string_view toolbarKey;
    bool backwards;
};

constexpr std::array panelKeys{
    PanelKey{'N', "Add", false},
    PanelKey{'S', "Save", false},
    PanelKey{ui::key::Comma, {}, true},
    PanelKey{ui::key::Period, {}, false},
};

std::string trimmedText(const ui::Control& widget) {
    return text::trim(widget.property("Text").value_or(""));
}

/// A broken photo must not keep the person's record from being opened: the image keeps what it shows.
void showPhoto(ui::Control& image, const std::string& path) {
    try {
        LoadPersonPhoto(image, path);
    } catch (const Error&) {
        return;
    }
}

} // namespace

A1ctrlUser::A1ctrlUser(const PanelRow& row, std::string name, PanelWindow& window)
    : UserControl(std::move(name)), FieldItems(std::make_shared<cFieldItems>()), row_(row), window_(window) {
    const PanelWidgets built = buildPanelWidgets(*this, row_);
    labOpt_ = built.labOpt;
    labExplain_ = built.labExplain;
    grid_ = built.grid;
    for (const auto& widget : Controls())
        cItems_.AddControl(*widget);
    fieldEvents_ = std::make_unique<FieldEvents>(static_cast<FieldContext&>(*this), cItems_);
    isLoading_ = true;

    KeyDown.connect([this](int& code, int shift) { panelKeyDown(code, shift); });
    KeyPress.connect([](char32_t& character) {
        if (character == U'\'') character = 0;
    });
    Shown.connect([this] { FocusFirstField(); });
    if (grid_ != nullptr) {
        grid_->GotFocus.connect([this] { isGridLive_ = true; });
    }
}

A1ctrlUser::~A1ctrlUser() = default;

void A1ctrlUser::terminate() {
    if (adodcRs_ && adodcRs_->State() == 1) adodcRs_->close();
    adodcRs_.reset();
}

void A1ctrlUser::setCtrl(const std::shared_ptr<cFieldItems>& items) {
    isLoading_ = true;
    for (const auto& widget : Controls()) {
        if (isValueWidget(widget->name())) {
            fillValueWidget(*widget, items->Item(fieldKey(widget->name())), row_.fill);
        } else if (isCaptionWidget(widget->name())) {
            fillCaption(*widget, items->Item(fieldKey(widget->name())));
        } else if (row_.fill == FillTemplate::Person && widget->kind() == ui::Kind::Image) {
            showPhoto(*widget, quillmere::photoPath(window_.photoPath(), WhInfo.personID));
        }
    }
    WhInfo.IsChange = false;
    isLoading_ = false;
    onFilled();
}

void A1ctrlUser::setDGItems() {
    if (grid_ == nullptr) return;
    isGridLive_ = false;
    if (WhInfo.TabId.empty()) return;
    const GridStatement statement = makeGridStatement(WhInfo, row_.aliasedGridCatalogue);
    if (adodcRs_) {
        // Should the opening below fail, the grid still shows the old rows; they no longer reach the panel.
        adodcRs_->onWillMove({});
        adodcRs_->onMoveComplete({});
    }
    adodcRs_ = std::make_shared<data::Recordset>();
    adodcRs_->onWillMove([this](data::MoveStatus& status) { AdodcRs_WillMove(status); });
    adodcRs_->onMoveComplete([this] { AdodcRs_MoveComplete(); });
    adodcRs_->open(statement.sql, gConn());
    grid_->setDataSource(adodcRs_);
    isGridLive_ = true;
    if (adodcRs_->RecordCount() >= 1) {
        adodcRs_->MoveFirst();
    } else {
        FieldItems = LoadFieldItems(WhInfo.TabId);
        setCtrl(FieldItems);
    }
    for (std::size_t column = 0; column < statement.widths.size(); ++column) {
        grid_->setColumnWidth(column, statement.widths[column]);
        const cFieldItem* field = FieldItems->find(WhInfo.TabId + "_" + statement.fields[column]);
        if (field != nullptr && holdsNumbers(*field)) grid_->setColumnAlignment(column, ui::Alignment::Right);
    }
    if (row_.gridFollowsSet) grid_->setVisible(WhInfo.IsMult);
}

void A1ctrlUser::FocusFirstField() {
    if (row_.firstFocus == FirstFocus::Never) return;
    ui::Control* first = nullptr;
    for (const auto& widget : Controls()) {
        if (!isValueWidget(widget->name())) continue;
        if (first == nullptr || widget->TabIndex() < first->TabIndex()) first = widget.get();
    }
    if (first == nullptr) return;
    if (row_.firstFocus == FirstFocus::IfEmpty && !trimmedText(*first).empty()) return;
    first->SetFocus();
}

void A1ctrlUser::AdodcRs_WillMove(data::MoveStatus& status) {
    if (!WhInfo.IsChange) return;
    const auto answer =
        ui::desktop().msgBox({"数据已被修改并未保存，是否继续？", "", ui::Buttons::YesNo, ui::Icon::None});
    if (answer != ui::Answer::Yes) status = data::MoveStatus::Cancel;
}

std::int16_t A1ctrlUser::sequenceOfCurrentRow() const {
    const std::string& table = WhInfo.TabId;
    const data::RowSet description =
        gConn().query("select itemdesc from s_infoitem where itemdesc <>'' and  tblname = '" + table +
                      "' and itemname = '" + table + "99' ");
    if (description.empty()) return 0;
    const std::string column = description.at(0, std::size_t{0}).toText();
    return column.empty() ? std::int16_t{0} : adodcRs_->Fields(column).toInteger16();
}

void A1ctrlUser::AdodcRs_MoveComplete() {
    if (!isGridLive_) return;
    if (adodcRs_->RecordCount() > 0) {
        const std::int16_t sequence = sequenceOfCurrentRow();
        if (sequence < 1) {
            // A row without a number has no identity that could be loaded: it shows empty fields.
            FieldItems = LoadFieldItems(WhInfo.TabId);
        } else {
            WhInfo.id = sequence;
            FieldItems = LoadFieldItemsWithValues(WhInfo.TabId, WhInfo.personID, sequence);
            labOpt_->setCaption("当前操作：修改 ");
            window_.toolbarButton("Add").setEnabled(true);
            window_.toolbarButton("Delete").setEnabled(true);
        }
        setCtrl(FieldItems);
    }
    FocusFirstField();
}

void A1ctrlUser::panelKeyDown(int& code, int shift) {
    if (shift != ui::shift::Ctrl) return;
    const auto key = std::ranges::find(panelKeys, code, &PanelKey::code);
    if (key == panelKeys.end()) return;
    if (!key->toolbarKey.empty()) {
        pressToolbar(key->toolbarKey);
        return;
    }
    isGridLive_ = true;
    key->backwards ? movePrevious() : moveNext();
}

void A1ctrlUser::pressToolbar(std::string_view key) {
    ui::Toolbar::Button& button = window_.toolbarButton(key);
    if (button.Enabled()) window_.TbMain_ButtonClick(button);
}

void A1ctrlUser::movePrevious() {
    if (!adodcRs_ || adodcRs_->RecordCount() < 2) return;
    if (!adodcRs_->BOF() && adodcRs_->AbsolutePosition() >= 2) adodcRs_->MovePrevious();
}

void A1ctrlUser::moveNext() {
    if (!adodcRs_ || adodcRs_->RecordCount() < 2) return;
    if (!adodcRs_->EOF_() && adodcRs_->AbsolutePosition() < adodcRs_->RecordCount()) adodcRs_->MoveNext();
}

} // namespace quillmere
