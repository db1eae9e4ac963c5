#pragma once

#include "register/RegisterSearch.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::data {
class Connection;
}

namespace quillmere::host {

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

    /// All records of a kind, the newest first.
    [[nodiscard]] std::vector<Entry> page(Kind kind, int offset, int limit) const;
    [[nodiscard]] int count(Kind kind) const;

    /// What a search has found, in the order of the keys. Records deleted since are left out.
    [[nodiscard]] std::vector<Entry> entries(Kind kind, std::span<const RecordKey> keys) const;
    /// The record of that identity, if there is one.
    [[nodiscard]] std::optional<Entry> find(Kind kind, std::string_view id) const;

    [[nodiscard]] std::vector<SponsorshipType> sponsorshipTypes() const;
    /// The type that new records get, 1 when the register has no valid setting.
    [[nodiscard]] std::int16_t newRecordType() const;
    void setNewRecordType(std::int16_t type) const;

private:
    std::shared_ptr<data::Connection> connection_;
};

} // namespace quillmere::host
