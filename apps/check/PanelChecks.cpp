#include "check/CheckGroup.h"
#include "check/RegisterView.h"

#include "platform/Error.h"
#include "platform/text/Text.h"
#include "platform/ui/VerticalMenu.h"
#include "shell/MenuComposition.h"
#include "shell/PanelOfItem.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace quillmere::check {

namespace {

constexpr FindingKind captionMissing{
    .id = "caption-missing",
    .title = "没有信息集使用系统辨认的名称",
    .effect = "系统靠这个名称一字不差地辨认进度计划和经费安排的菜单项；没有它，点击以后打开的是项目基本信息，"
              "进度计划或者经费安排无从录入。",
    .remedy = "P02 的 tbldesc 写“项目工作进度计划”，P03 写“经费使用安排”，C04 写“项目总体经费使用…”"
              "（末尾是一个省略号字符）。"};

constexpr FindingKind captionNotCompared{
    .id = "caption-not-compared",
    .title = "进度计划或经费安排的名称不是系统辨认的",
    .effect = "点击这个菜单项，打开的是项目基本信息，进度计划或者经费安排无从录入。",
    .remedy =
        "把它的 tbldesc 改成“项目工作进度计划”（P02）、“经费使用安排”（P03）或“项目总体经费使用…”（C04）。"};

constexpr FindingKind noPanel{
    .id = "menu-no-panel",
    .title = "菜单项没有面板",
    .effect = "系统没有这个信息集的面板：点击它的菜单项，窗口关闭。以 E、F、M、N 开头的信息集自动进入菜单。",
    .remedy = "从菜单列表中去掉它；以 E、F、M、N 开头的，从 s_infotable 中删去，或者换一个名称。",
    .failure = Failure::CannotCreateObject};

constexpr FindingKind wrongGroup{
    .id = "menu-wrong-group",
    .title = "信息集放错了菜单组",
    .effect = "这个信息集的面板显示的是别的表的字段，只有在项目组里才能打开；从这个组里点击它，窗口关闭。",
    .remedy = "P03 和 C04 只写在 ProjectItem 中。",
    .failure = Failure::InvalidCall};

constexpr FindingKind firstItem{
    .id = "menu-first-item",
    .title = "第一个菜单项不是基本信息",
    .effect = "窗口打开时点击第一组的第一项。它不是 A01 或 B01 "
              "时，新建人员或单位只看到“必须先维护基本信息集，然后再维护其它信息集。”，"
              "录入不能开始。",
    .remedy = "PersonItem 中写上 A01（集体项目写 B01），它的 OtherProp 要比同组的都小。"};

constexpr FindingKind groupEmpty{
    .id = "menu-group-empty",
    .title = "菜单组里没有项目",
    .effect = "这一组是空的；按进展或结题打开窗口时，要点击的第一项不存在，窗口打不开。",
    .remedy = "在 s_infotable 中登记这一组的信息集：进展组取 E 开头的，类型 6 取 M 开头的；结题组取 F "
              "开头的和 P01，"
              "类型 6 取 N 开头的和 P01。",
    .failure = Failure::SubscriptOutOfRange};

constexpr FindingKind unreached{.id = "panel-unreached",
                                .level = Level::Note,
                                .title = "哪个菜单都到不了的面板",
                                .effect = "七种资助类型的菜单里都没有一项打开这个面板，它的字段不能录入。",
                                .remedy = "不用这个面板时不必处理；要用时，把它的信息集写进菜单列表。"};

constexpr const FindingKind* kinds[] = {&captionMissing, &captionNotCompared, &noPanel,  &wrongGroup,
                                        &firstItem,      &groupEmpty,         &unreached};

constexpr std::int32_t lastType = 7;
constexpr std::int32_t skilledType = 7;
constexpr std::size_t projectGroup = 2;

using Group = ui::VerticalMenu::Group;
using Item = ui::VerticalMenu::Item;

std::string codeOf(std::int32_t type) { return "0" + std::to_string(type); }

/// The menu of a type; none when it cannot be composed, which the checks of the lists tell of.
std::optional<std::vector<Group>> menuOf(std::int32_t type) {
    constexpr int groups = 5;
    ui::VerticalMenu menu("VMenu1");
    for (int group = 0; group < groups; ++group)
        menu.addGroup({}, 0);
    try {
        composeMenu(menu, type);
    } catch (const Error&) {
        return std::nullopt;
    }
    return menu.groups();
}

/// The panels behind an item: of a skilled worker's base record it is one or the other.
std::vector<std::string> panelsOf(const Item& item, std::size_t group, std::int32_t type) {
    if (item.key == "P01") return {panelOfProjectItem(static_cast<std::int32_t>(group), item.caption, type)};
    if (item.key == "A01" && type == skilledType) return {"G01", "A01"};
    return {item.key};
}

/// What is seen while the menus of all types are walked through.
class Menus {
public:
    Menus(const RegisterView& view, Report& report) : view_(view), report_(report) {}

    void visit(std::int32_t type) {
        const auto groups = menuOf(type);
        if (!groups) {
            isComplete_ = false;
            return;
        }
        checkFirstItem(type, groups->front());
        for (std::size_t group = 1; group <= groups->size(); ++group)
            visit(type, group, (*groups)[group - 1].items);
    }

    void checkCaptions() {
        for (const std::string_view caption : comparedCaptions()) {
            const bool isBorne = std::ranges::any_of(
                view_.sets(), [caption](const SetEntry& set) { return set.caption == caption; });
            if (isBorne) continue;
            isComplete_ = false;
            report_.add(captionMissing, "s_infotable", {{"tbldesc", std::string(caption)}});
        }
        if (!isComplete_) return;
        for (const std::string& set : mistaken_)
            report_.add(captionNotCompared, "s_infotable", {{"tblname", set}});
    }

    /// Says nothing where a finding about the menus explains why a panel is not reached.
    void checkPanels() {
        if (!isComplete_ || !mistaken_.empty()) return;
        for (const PanelRow& panel : panelCatalogue()) {
            if (!reached_.contains(text::lower(panel.className)))
                report_.add(unreached, "s_infotable", {{"panel", std::string(panel.className)}},
                            std::string(panel.title));
        }
    }

private:
    void visit(std::int32_t type, std::size_t group, const std::vector<Item>& items) {
        if (items.empty()) noteEmpty(type, group);
        for (const Item& item : items) {
            for (const std::string& panel : panelsOf(item, group, type))
                reach(item.key, panel);
            if (group == projectGroup && item.key == "P01") noteMistaken(item, type);
        }
    }

    void noteEmpty(std::int32_t type, std::size_t group) {
        isComplete_ = false;
        // Of a list whose names are all wrong the checks of the lists tell.
        if (group <= customisedColumns().size()) return;
        report_.add(groupEmpty, "s_infotable", {{"type", codeOf(type)}, {"group", std::to_string(group)}});
    }

    /// The key is the table whose fields are loaded for the panel.
    void reach(const std::string& key, const std::string& suffix) {
        const std::string name = "A1ctrlUser" + suffix;
        const PanelRow* panel = findPanel(name);
        const bool isFitting = panel != nullptr && text::equalsNoCase(panel->widgetTable, key);
        if (isFitting) reached_.insert(text::lower(name));
        if (isFitting || !told_.insert(text::lower(key)).second) return;
        report_.add(panel == nullptr ? noPanel : wrongGroup, "s_infotable", {{"tblname", key}});
    }

    /// An item that opens the project's own panel, though its set is another one.
    void noteMistaken(const Item& item, std::int32_t type) {
        if (panelOfProjectItem(projectGroup, item.caption, type) != "P01") return;
        for (const SetEntry& set : view_.sets()) {
            const bool isHidden = set.name != item.key && projectKey(set.name, type) == item.key;
            if (isHidden && set.caption == item.caption) mistaken_.insert(set.name);
        }
    }

    void checkFirstItem(std::int32_t type, const Group& group) {
        if (group.items.empty()) return;
        const std::string& key = group.items.front().key;
        if (key != "A01" && key != "B01")
            report_.add(firstItem, "TS_SetCustomize", {{"DmCod", codeOf(type)}}, "第一项是 " + key);
    }

    const RegisterView& view_;
    Report& report_;
    bool isComplete_ = true;
    std::set<std::string> reached_;
    std::set<std::string> told_;
    std::set<std::string> mistaken_;
};

void run(const RegisterView& view, Report& report) {
    Menus menus(view, report);
    for (std::int32_t type = 1; type <= lastType; ++type)
        menus.visit(type);
    menus.checkCaptions();
    menus.checkPanels();
}

} // namespace

CheckGroup panelChecks() { return {kinds, run}; }

} // namespace quillmere::check
