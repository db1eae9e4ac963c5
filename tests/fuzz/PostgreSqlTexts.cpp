// Any texts in the statement that changes one row: what the adapter for PostgreSQL sends still ends in its
// condition, as the server reads it.

#include "support/Fuzzing.h"
#include "support/ServerLexer.h"

#include "adapters/postgresql/StatementGuard.h"

#include <algorithm>
#include <array>

namespace {

using quillmere::fuzz::hold;

bool endsInItsCondition(const std::vector<std::string_view>& pieces) {
    constexpr std::array<std::string_view, 4> condition{"where", "A00", "=", "'{1}'"};
    return pieces.size() >= condition.size() &&
           std::equal(condition.rbegin(), condition.rend(), pieces.rbegin());
}

} // namespace

/// A line with the text of one column, and the text of the next.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    namespace fuzz = quillmere::fuzz;
    fuzz::Input input(data, size);
    const std::string first = input.line();
    const std::string second = input.rest();
    const std::string sql = "update P02 set P0203='" + first + "',P0204='" + second + "' where A00='{1}'";

    const auto failure = fuzz::failureOf([&] { quillmere::postgresql::requireDialect(sql); });
    const bool plain = (first + second).find_first_of(std::string("'\0", 2)) == std::string::npos;
    hold(!plain || !failure, "texts without a quote are sent");
    if (failure) return 0;
    const auto read = fuzz::cutByServer(sql);
    // The server refuses what does not end.
    if (!read) return 0;
    hold(!read->hasComment, "no comment is sent");
    hold(endsInItsCondition(read->pieces), "the condition is not lost");
    return 0;
}
