#include "shell/PanelOfItem.h"

#include <array>

namespace quillmere {

namespace {

constexpr std::int32_t planGroup = 3;
constexpr std::int32_t closingGroup = 5;
constexpr std::int32_t collectiveType = 6;

constexpr std::string_view scheduleCaption = "项目工作进度计划";
constexpr std::string_view budgetCaption = "经费使用安排";
constexpr std::string_view fundingCaption = "项目总体经费使用…";

constexpr std::array captions{scheduleCaption, budgetCaption, fundingCaption};

} // namespace

std::span<const std::string_view> comparedCaptions() { return captions; }

std::string panelOfProjectItem(std::int32_t group, std::string_view caption, std::int32_t zzType) {
    if (group == planGroup) return zzType == 1 ? "PP01A" : "PP01";
    if (group == closingGroup) return "JP01";
    if (caption == scheduleCaption) return "P02_DG";
    if (caption == budgetCaption || caption == fundingCaption) {
        return zzType == collectiveType ? "C04" : "P03";
    }
    return "P01";
}

} // namespace quillmere
