#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace quillmere {

namespace data {
class Connection;
}

/// The entry object: a host creates one, fills its properties and calls `ShowPersonWh`, which opens
/// the maintenance window and returns when it has closed. All properties are plain stored values;
/// none is checked when written. Used on the host's user-interface thread.
class IUserCtrl {
public:
    IUserCtrl();
    ~IUserCtrl();
    IUserCtrl(const IUserCtrl&) = delete;
    IUserCtrl& operator=(const IUserCtrl&) = delete;

    /// The database to work on; the host owns it and closes it. Reading before any writing gives a
    /// new, unopened connection, which is kept.
    /// @{
    void setConnection(std::shared_ptr<data::Connection> connection);
    [[nodiscard]] std::shared_ptr<data::Connection> Connection() const;
    /// @}

    /// Opens the window and works until it is closed. True when a record was saved with the Save
    /// button. Raises quillmere::Error for a failure that left the window.
    [[nodiscard]] bool ShowPersonWh();

    /// 0 new record, 1 plan, 2 progress, 3 closing, 4 maintain everything; other values open the
    /// window with nothing to do.
    /// @{
    void setOperationType(std::int16_t value);
    [[nodiscard]] std::int16_t OperationType() const;
    /// @}

    /// Sponsorship type 1 to 7; honoured when `OperationType` is not 0.
    /// @{
    void setZZtype(std::int16_t value);
    [[nodiscard]] std::int16_t ZZtype() const;
    /// @}

    /// Handed to the window, where nothing reads it.
    /// @{
    void setPersonType(std::int16_t value);
    [[nodiscard]] std::int16_t PersonType() const;
    /// @}

    /// Directory of the photo files.
    /// @{
    void setPhotoPath(std::string value);
    [[nodiscard]] const std::string& PhotoPath() const;
    /// @}

    /// The identity of the person, unit or project.
    /// @{
    void setPersonID(std::string value);
    [[nodiscard]] const std::string& personID() const;
    /// @}

    /// Unit code, used when a new record is stored.
    /// @{
    void setUnitCode(std::string value);
    [[nodiscard]] const std::string& UnitCode() const;
    /// @}

    /// Path of the skin file; empty for the default look.
    /// @{
    void setSkinPath(std::string value);
    [[nodiscard]] const std::string& SkinPath() const;
    /// @}

private:
    struct Properties;
    std::unique_ptr<Properties> properties_;
};

} // namespace quillmere
