#include "adapters/sqlite/SqliteFunctions.h"

#include "adapters/sqlite/SqliteError.h"
#include "platform/Error.h"
#include "platform/convert/Convert.h"
#include "platform/convert/Format.h"
#include "platform/text/Text.h"

#include <sqlite3.h>

#include <array>
#include <exception>
#include <limits>
#include <string>
#include <string_view>

namespace quillmere::sqlite {

namespace {

using Arguments = sqlite3_value**;
using Body = void (*)(sqlite3_context* context, int count, Arguments arguments);

std::string toText(sqlite3_value* value) {
    // SQLite's own text of a real keeps ".0" on whole numbers.
    if (sqlite3_value_type(value) == SQLITE_FLOAT) return convert::toText(sqlite3_value_double(value));
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

void giveText(sqlite3_context* context, std::string_view text) {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

void len(sqlite3_context* context, int, Arguments arguments) {
    sqlite3_result_int64(context, static_cast<sqlite3_int64>(text::length(toText(arguments[0]))));
}

void mid(sqlite3_context* context, int count, Arguments arguments) {
    const auto start = sqlite3_value_int64(arguments[1]);
    const auto length =
        count == 3 ? sqlite3_value_int64(arguments[2]) : std::numeric_limits<sqlite3_int64>::max();
    if (start < 1 || length < 0) throw Error(Failure::InvalidCall);
    giveText(context, text::mid(toText(arguments[0]), static_cast<std::size_t>(start),
                                static_cast<std::size_t>(length)));
}

void format(sqlite3_context* context, int, Arguments arguments) {
    giveText(context, convert::format(toText(arguments[0]), toText(arguments[1])));
}

/// Null for a null argument, and no exception into SQLite, which could not carry it.
template <Body body>
void guarded(sqlite3_context* context, int count, Arguments arguments) {
    for (int i = 0; i < count; ++i)
        if (sqlite3_value_type(arguments[i]) == SQLITE_NULL) return sqlite3_result_null(context);
    try {
        body(context, count, arguments);
    } catch (const std::exception& failure) {
        sqlite3_result_error(context, failure.what(), -1);
    }
}

struct Function {
    const char* name;
    int argumentCount;
    void (*call)(sqlite3_context*, int, Arguments);
};

/// `format` is given with exactly two arguments: that wins over SQLite's variadic one, which prints
/// by another kind of picture.
constexpr std::array functions{
    Function{"len", 1, guarded<len>},
    Function{"mid", 2, guarded<mid>},
    Function{"mid", 3, guarded<mid>},
    Function{"format", 2, guarded<format>},
};

} // namespace

void addFunctions(sqlite3* database) {
    // Deterministic functions may stand in indexes and checks, innocuous ones in any schema.
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    for (const auto& function : functions) {
        const int code = sqlite3_create_function_v2(database, function.name, function.argumentCount, flags,
                                                    nullptr, function.call, nullptr, nullptr, nullptr);
        if (code != SQLITE_OK) raiseLatest(database, code);
    }
}

} // namespace quillmere::sqlite
