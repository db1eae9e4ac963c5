#include "adapters/postgresql/ConnectionString.h"

#include "platform/Error.h"

#include <libpq-fe.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

namespace quillmere::postgresql {

namespace {

struct FreeOptions {
    void operator()(PQconninfoOption* options) const { PQconninfoFree(options); }
};
using ParsedOptions = std::unique_ptr<PQconninfoOption, FreeOptions>;

struct Default {
    const char* option;
    const char* environment;
    const char* value;
};

/// Seconds, and milliseconds for the last. A dead connection is noticed within a minute.
constexpr std::array defaults{
    Default{"connect_timeout", "PGCONNECT_TIMEOUT", "10"},
    Default{"keepalives_idle", "", "30"},
    Default{"keepalives_interval", "", "10"},
    Default{"keepalives_count", "", "3"},
    Default{"tcp_user_timeout", "", "60000"},
};

[[noreturn]] void raiseUnreadable(std::string_view hint) {
    throw Error(Failure::BadArguments, std::string("数据库连接地址写得不对：").append(hint), "PostgreSQL");
}

bool isUri(std::string_view address) {
    return address.starts_with("postgresql://") || address.starts_with("postgres://");
}

/// A sign in a password that the address should have encoded cuts the address at the wrong place, and the
/// rest of the password would be told as the name of a server.
void refuseBareSigns(std::string_view address) {
    const std::string_view rest = address.substr(address.find("//") + 2);
    const std::size_t at = rest.find('@');
    if (at == std::string_view::npos) return;
    const bool bare = rest.find('@', at + 1) != std::string_view::npos || at > rest.find_first_of("/?#");
    if (bare) raiseUnreadable("用户名和密码中的 @ / ? # : % 要写成 %40 %2F %3F %23 %3A %25");
}

ParsedOptions parse(std::string_view address) {
    if (address.find('\0') != std::string_view::npos) raiseUnreadable("含有无效字符");
    if (isUri(address)) refuseBareSigns(address);
    char* complaint = nullptr;
    ParsedOptions parsed(PQconninfoParse(std::string(address).c_str(), &complaint));
    // What libpq complains of repeats a piece of the address.
    PQfreemem(complaint);
    if (!parsed) raiseUnreadable("应为 postgresql://用户@服务器:端口/数据库");
    return parsed;
}

std::string* find(ConnectionOptions& options, std::string_view name) {
    const auto found =
        std::ranges::find_if(options, [name](const auto& option) { return option.first == name; });
    return found == options.end() ? nullptr : &found->second;
}

void set(ConnectionOptions& options, std::string_view name, std::string_view value) {
    if (std::string* present = find(options, name); present != nullptr) {
        *present = value;
    } else {
        options.emplace_back(name, value);
    }
}

bool isSetOutside(const char* environment) {
    return *environment != '\0' && std::getenv(environment) != nullptr;
}

/// Settings of the session that the administrator asks for; ours go behind them and so win.
std::string givenSettings(ConnectionOptions& options) {
    if (const std::string* given = find(options, "options"); given != nullptr) return *given;
    const char* outside = std::getenv("PGOPTIONS");
    return outside == nullptr ? std::string() : std::string(outside);
}

} // namespace

ConnectionOptions connectionOptions(std::string_view address, std::string_view schema) {
    const ParsedOptions parsed = parse(address);
    ConnectionOptions options;
    for (const PQconninfoOption* option = parsed.get(); option->keyword != nullptr; ++option)
        if (option->val != nullptr) options.emplace_back(option->keyword, option->val);

    // pg_catalog has to be named: unnamed it would come first, before what the schema jet puts in its place.
    std::string settings = givenSettings(options);
    settings.append(" -c search_path=").append(schema).append(",jet,pg_catalog,public");
    settings.append(" -c standard_conforming_strings=on -c datestyle=ISO");
    set(options, "options", settings);
    set(options, "client_encoding", "UTF8");
    if (find(options, "application_name") == nullptr) set(options, "fallback_application_name", "quillmere");
    for (const Default& entry : defaults)
        if (find(options, entry.option) == nullptr && !isSetOutside(entry.environment))
            set(options, entry.option, entry.value);
    return options;
}

} // namespace quillmere::postgresql
