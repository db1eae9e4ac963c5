#pragma once

#include "binding/ControlItems.h"
#include "binding/FieldEvents.h"
#include "metadata/cFieldItems.h"
#include "metadata/cWhInfo.h"
#include "panels/DesignProperties.h"
#include "panels/PanelCatalogue.h"
#include "platform/data/Recordset.h"
#include "platform/ui/DataGrid.h"
#include "platform/ui/Label.h"
#include "platform/ui/UserControl.h"

#include <memory>
#include <string>

namespace quillmere {

class PanelWindow;

/// The panel of an information set: a form of named value widgets over a grid of the person's rows.
/// One template for all of them; the row of the catalogue says what differs.
///
/// The window writes `WhInfo` and calls `setCtrl` or `setDGItems`; the panel owns its widgets and
/// its grid's recordset. No operation traps a failure.
class A1ctrlUser : public ui::UserControl, private FieldContext {
public:
    /// `name` is the control's name; it may differ in case from the class name of the row.
    A1ctrlUser(const PanelRow& row, std::string name, PanelWindow& window);
    ~A1ctrlUser() override;

    /// Field metadata and values of the record on show; the window stores into it as well.
    std::shared_ptr<cFieldItems> FieldItems;
    cWhInfo WhInfo;
    /// Kept and given back, of no effect on what the panel does.
    DesignProperties design;

    /// Fills the widgets from a field set: colours and locks coded fields, limits lengths, shows each
    /// value in its widget's form, marks required captions. Does not keep the set.
    void setCtrl(const std::shared_ptr<cFieldItems>& items);
    /// Rebuilds the grid from the catalogue and moves to the first row, which fills the widgets.
    void setDGItems();
    /// Puts the focus into the value widget of the lowest tab index, as the panel's row allows.
    void FocusFirstField();

    [[nodiscard]] const PanelRow& row() const { return row_; }
    /// The grid's rows; none on a single-record set.
    [[nodiscard]] const std::shared_ptr<data::Recordset>& AdodcRs() const { return adodcRs_; }

protected:
    void terminate() override;
    /// The widgets have been filled from a field set; what a panel shows beside its fields follows.
    virtual void onFilled() {}
    [[nodiscard]] PanelWindow& window() const { return window_; }

private:
    // FieldContext
    cFieldItems& fieldItems() override { return *FieldItems; }
    cWhInfo& whInfo() override { return WhInfo; }
    bool isLoading() const override { return isLoading_; }
    ui::Label& explainLabel() override { return *labExplain_; }
    bool caretToFront() const override { return row_.caretToFront; }

    void panelKeyDown(int& code, int shift);
    void movePrevious();
    void moveNext();
    void pressToolbar(std::string_view key);

    void AdodcRs_WillMove(data::MoveStatus& status);
    void AdodcRs_MoveComplete();
    [[nodiscard]] std::int16_t sequenceOfCurrentRow() const;

    const PanelRow& row_;
    PanelWindow& window_;
    bool isGridLive_ = false;
    bool isLoading_ = false;
    ControlItems cItems_;
    std::unique_ptr<FieldEvents> fieldEvents_;
    std::shared_ptr<data::Recordset> adodcRs_;
    ui::Label* labOpt_ = nullptr;
    ui::Label* labExplain_ = nullptr;
    ui::DataGrid* grid_ = nullptr;
};

} // namespace quillmere
