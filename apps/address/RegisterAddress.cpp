#include "address/RegisterAddress.h"

namespace quillmere {

namespace {

constexpr std::string_view postgreSql = "postgresql:";

} // namespace

RegisterAddress readAddress(std::string_view name) {
    if (!name.starts_with(postgreSql)) return {.onServer = false, .way = std::string(name)};
    // "postgresql://server/database" alone is taken for the address that it is.
    const std::string_view rest = name.substr(postgreSql.size());
    return {.onServer = true, .way = std::string(rest.starts_with("//") ? name : rest)};
}

std::string shownAddress(std::string_view name) {
    return name.starts_with(postgreSql) ? std::string(postgreSql) + "…" : std::string(name);
}

} // namespace quillmere
