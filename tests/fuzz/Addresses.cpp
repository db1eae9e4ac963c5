// Addresses of registers: whatever is wrong with one, none of it is repeated.

#include "support/Fuzzing.h"

#include "adapters/postgresql/ConnectionString.h"
#include "address/RegisterAddress.h"

#include <algorithm>
#include <array>
#include <set>

namespace {

using namespace quillmere;
using fuzz::hold;

void hasWhatEveryConnectionHas(const postgresql::ConnectionOptions& options) {
    std::set<std::string> names;
    for (const auto& [name, value] : options) {
        hold(names.insert(name).second, "an option stands once");
        if (name == "client_encoding")
            hold(value == "UTF8", "the encoding is ours whatever the address says");
        if (name == "options")
            hold(value.ends_with(
                     " -c search_path=data,jet,pg_catalog,public -c standard_conforming_strings=on "
                     "-c datestyle=ISO"),
                 "our settings come last, and so win");
    }
    for (const char* name : {"client_encoding", "options", "connect_timeout"})
        hold(names.contains(name), "no option is missing");
}

bool isKnownComplaint(std::string_view description) {
    constexpr std::array<std::string_view, 3> hints{
        "用户名和密码中的 @ / ? # : % 要写成 %40 %2F %3F %23 %3A %25", "含有无效字符",
        "应为 postgresql://用户@服务器:端口/数据库"};
    return std::ranges::any_of(hints, [&](std::string_view hint) {
        return description == "数据库连接地址写得不对：" + std::string(hint);
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string name = fuzz::Input(data, size).rest();
    const RegisterAddress address = readAddress(name);
    hold(address.onServer == name.starts_with("postgresql:"), "a server is told by its scheme");
    hold(address.onServer ? shownAddress(name) == "postgresql:…" : shownAddress(name) == name,
         "of a server's address nothing is shown");
    hold(address.onServer ? name.ends_with(address.way) : name == address.way,
         "the way is a part of the name");
    try {
        hasWhatEveryConnectionHas(
            postgresql::connectionOptions(address.onServer ? address.way : name, "data"));
    } catch (const Error& error) {
        hold(static_cast<Failure>(error.number()) == Failure::BadArguments,
             "an address is readable or a bad argument");
        hold(isKnownComplaint(error.description()), "a complaint repeats nothing of the address");
    }
    return 0;
}
