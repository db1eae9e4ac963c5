#pragma once

#include "panels/PanelCatalogue.h"

#include <span>

/// The rows of the catalogue, group by group.
namespace quillmere::catalogue {

/// The person: master record and curriculum sets.
[[nodiscard]] std::span<const PanelRow> personPanels();
/// The employing unit.
[[nodiscard]] std::span<const PanelRow> unitPanels();
/// Individual projects: application, approval, closing.
[[nodiscard]] std::span<const PanelRow> projectPanels();
/// Collective projects: application.
[[nodiscard]] std::span<const PanelRow> collectivePanels();
/// The plan of a project: schedule, equipment, materials, research costs.
[[nodiscard]] std::span<const PanelRow> planPanels();
/// Periodic reports, one set of rows per 上报年度.
[[nodiscard]] std::span<const PanelRow> reportPanels();
/// Final reports.
[[nodiscard]] std::span<const PanelRow> closingPanels();

} // namespace quillmere::catalogue
