#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace quillmere::data {
class Connection;
}

namespace quillmere::host {

/// What the maintenance window is opened for, by the numbers that `OperationType` takes.
enum class Operation : std::int16_t {
    NewRecord = 0,
    Plan = 1,
    Progress = 2,
    Closing = 3,
    Maintain = 4,
};

/// One opening of the maintenance window.
struct MaintenanceRun {
    std::shared_ptr<data::Connection> connection;
    Operation operation = Operation::Maintain;
    /// Sponsorship type 1 to 7. A new record has the type that the register is set to instead.
    std::int16_t sponsorshipType = 0;
    /// Of an existing record, or a fresh one for a new record.
    std::string personId;
    std::string unitCode;
    std::string photoPath;
};

/// True when a record was saved with the Save button. Raises quillmere::Error.
using OpenMaintenance = std::function<bool(const MaintenanceRun& run)>;

/// Opens the window and works until it is closed. A toolkit must be in use.
[[nodiscard]] bool openMaintenance(const MaintenanceRun& run);

/// A fresh identity for a new record. It is longer than 32 characters, by which the component knows
/// that type and year are those set for new records.
[[nodiscard]] std::string freshIdentity();

} // namespace quillmere::host
