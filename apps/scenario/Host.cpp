#include "scenario/Host.h"

#include "scenario/Numbers.h"
#include "scenario/Stop.h"

#include <array>
#include <limits>

namespace quillmere::scenario {

namespace {

struct NumberRow {
    std::string_view name;
    void (IUserCtrl::*write)(std::int16_t);
};

constexpr std::array numbers{
    NumberRow{"OperationType", &IUserCtrl::setOperationType},
    NumberRow{"ZZtype", &IUserCtrl::setZZtype},
    NumberRow{"PersonType", &IUserCtrl::setPersonType},
};

struct TextRow {
    std::string_view name;
    void (IUserCtrl::*write)(std::string);
};

constexpr std::array texts{
    TextRow{"PhotoPath", &IUserCtrl::setPhotoPath},
    TextRow{"personID", &IUserCtrl::setPersonID},
    TextRow{"UnitCode", &IUserCtrl::setUnitCode},
    TextRow{"SkinPath", &IUserCtrl::setSkinPath},
};

} // namespace

void Host::renew() {
    entry_ = std::make_unique<IUserCtrl>();
    if (connection_) entry_->setConnection(connection_);
}

void Host::setConnection(std::shared_ptr<data::Connection> connection) {
    connection_ = std::move(connection);
    entry_->setConnection(connection_);
}

void Host::set(std::string_view property, const std::string& value) {
    using Limits = std::numeric_limits<std::int16_t>;
    for (const NumberRow& row : numbers) {
        if (row.name != property) continue;
        ((*entry_).*row.write)(static_cast<std::int16_t>(parseNumber(value, Limits::min(), Limits::max())));
        return;
    }
    for (const TextRow& row : texts) {
        if (row.name != property) continue;
        ((*entry_).*row.write)(value);
        return;
    }
    throw Stop{"the entry object has no property " + std::string(property)};
}

} // namespace quillmere::scenario
