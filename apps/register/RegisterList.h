#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quillmere::data {
class Connection;
}

namespace quillmere::host {

/// The two kinds of record that a register keeps.
enum class Kind { Persons, Units };

/// A column of the list, as the screen shows it.
struct Column {
    const char* title;
    /// Pixels.
    int width;
};

[[nodiscard]] const std::vector<Column>& columnsOf(Kind kind);

/// A record of the list.
struct Entry {
    /// `A00`.
    std::string id;
    /// 1 to 7.
    std::int16_t sponsorshipType = 1;
    /// One text for each column; the first one is the name.
    QStringList cells;
};

/// A sponsorship type as the register names it.
struct SponsorshipType {
    std::int16_t number = 1;
    QString name;
};

/// The sponsorship type whose records are units.
inline constexpr std::int16_t collectiveType = 6;

/// The queries behind the main window. All of them raise quillmere::Error.
class RegisterList {
public:
    explicit RegisterList(std::shared_ptr<data::Connection> connection)
        : connection_(std::move(connection)) {}

    [[nodiscard]] const std::shared_ptr<data::Connection>& connection() const { return connection_; }

    /// Records whose name or number holds the searched text, the newest first. The number is a person's
    /// identity card, a unit's identity or the code of its bureau.
    [[nodiscard]] std::vector<Entry> page(Kind kind, const QString& search, int offset, int limit) const;
    [[nodiscard]] int count(Kind kind, const QString& search) const;

    [[nodiscard]] std::vector<SponsorshipType> sponsorshipTypes() const;
    /// The type that new records get, 1 when the register has no valid setting.
    [[nodiscard]] std::int16_t newRecordType() const;
    void setNewRecordType(std::int16_t type) const;

private:
    std::shared_ptr<data::Connection> connection_;
};

} // namespace quillmere::host
