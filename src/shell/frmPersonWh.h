#pragma once

#include "panels/A1ctrlUser.h"
#include "panels/PanelWindow.h"
#include "platform/ui/CoolBar.h"
#include "platform/ui/Form.h"
#include "platform/ui/Frame.h"
#include "platform/ui/Label.h"
#include "platform/ui/Skin.h"
#include "platform/ui/Toolbar.h"
#include "platform/ui/VerticalMenu.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillmere {

/// The maintenance window: the menu of information sets, the record commands, and one panel.
class frmPersonWh final : public ui::Form, public PanelWindow {
public:
    frmPersonWh();
    ~frmPersonWh() override;

    /// The window's single default instance, created on first use. It survives closing.
    [[nodiscard]] static frmPersonWh& defaultInstance();
    /// Ends the default instance, with what it remembers of earlier runs; the next use makes a new one.
    /// Raises InvalidCall while it is open.
    static void releaseDefaultInstance();

    // Written by the entry object before the window is shown.
    std::string personID;
    std::int32_t OperationType = 0;
    /// Handed over by the host; nothing reads it.
    std::int16_t PersonType = 0;
    bool IsSaved = false;
    std::string UnitCode;
    std::string SkinPath;
    std::string PhotoPath;
    std::int16_t ZZtype = 0;

    // The window's operations.
    void TbMain_ButtonClick(ui::Toolbar::Button& button) override;
    /// Replaces the panel on show by a new one of the class `name`. Raises CannotCreateObject.
    A1ctrlUser& LoadUCtrl(std::string_view name);
    /// Prepares a panel for a table; `state` is the work state.
    void IniUCtrl(A1ctrlUser& panel, std::string_view table, std::int32_t state);
    [[nodiscard]] bool Save(A1ctrlUser& panel);
    /// Does nothing and is called by nobody; it stays in the interface all the same.
    void SetState(std::int32_t a, std::int32_t b);
    /// The panel on show, none when there is none.
    [[nodiscard]] A1ctrlUser* GetUserCtrl() const;
    /// 0 when another record may be added, else the limit that has been reached.
    [[nodiscard]] std::int16_t IsMaxNumber(const cWhInfo& info) const;
    /// Names the operation on the panel: "Add" or "Mod"; any other mode changes nothing.
    void SetLabOpt(A1ctrlUser& panel, std::string_view mode);

    /// The single road to a panel; group and item count from 1.
    void VMenu1_ItemClick(std::int32_t group, std::int32_t item);

    [[nodiscard]] std::int32_t WhState() const { return whState_; }
    [[nodiscard]] const std::string& ProjectStage() const { return projectStage_; }

    ui::Toolbar& toolbar() const { return *TbMain_; }
    ui::VerticalMenu& menu() const { return *VMenu1_; }
    ui::Frame& panelFrame() const { return *frmCtrl_; }
    ui::Label& nameLabel() const { return *labPersonName_; }

    // PanelWindow
    ui::Toolbar::Button& toolbarButton(std::string_view key) override { return TbMain_->Buttons(key); }
    const std::string& photoPath() const override { return PhotoPath; }
    void photoChanged() override { showNamePhoto(); }

protected:
    void onLoad() override;
    void onUnload() override;
    void onResize() override;

private:
    void buildWidgets();
    void GetZZType();
    [[nodiscard]] std::string GetP0123(std::string_view id) const;
    void startByOperationType();
    void checkIdentity();
    void NewPersonRecord();
    /// The name strip shows the photo of the person whom it names: none of a unit, none without a name.
    void showNamePhoto();

    // Steps of a menu click.
    [[nodiscard]] bool keepOrDropEdits();
    [[nodiscard]] bool passesBaseRecordGate(const std::string& key);
    [[nodiscard]] std::string panelSuffix(const std::string& key, std::int32_t group) const;
    void showRecordOrAdd(A1ctrlUser& panel, const std::string& key);
    void applyStageLock(const std::string& key, std::int32_t group);

    // The record commands.
    void commandAdd(A1ctrlUser& panel);
    void commandDelete(A1ctrlUser& panel);
    void commandSave(A1ctrlUser& panel);
    void commandCancel(A1ctrlUser& panel);
    void commandExit(A1ctrlUser& panel);
    void closeUpNumbers(const cWhInfo& info);
    void reload();
    void setAddAndDelete(bool enabled);
    [[nodiscard]] bool ask(std::string text, std::string title) const;
    void tell(std::string text, std::string title) const;

    std::int32_t whState_ = 0;
    std::string projectStage_;
    bool namesPerson_ = false;
    ui::Skin* Skin1_ = nullptr;
    ui::VerticalMenu* VMenu1_ = nullptr;
    ui::Frame* frmCtrl_ = nullptr;
    ui::Toolbar* TbMain_ = nullptr;
    ui::Label* labPersonName_ = nullptr;
    ui::CoolBar* CBar1_ = nullptr;
};

} // namespace quillmere
