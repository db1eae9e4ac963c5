#include "shell/ProjectNumber.h"

#include "metadata/Catalogue.h"
#include "metadata/Globals.h"
#include "platform/Error.h"
#include "platform/convert/Clock.h"
#include "platform/convert/Format.h"
#include "platform/data/Connection.h"
#include "platform/text/Text.h"

#include <chrono>
#include <random>

namespace quillmere {

namespace {

std::string today() { return convert::format(clock::now(), "yymmdd"); }

} // namespace

std::string PadZeros(std::string_view text, std::int16_t side, std::int16_t count) {
    const std::string zeros(count > 0 ? static_cast<std::size_t>(count) : 0, '0');
    if (side == 0) return zeros + std::string(text);
    if (side == 1) return std::string(text) + zeros;
    return {};
}

std::string NextDaySerial() {
    constexpr std::size_t width = 3;
    // Four letters stand before the date in a project number.
    const auto rows = OpenRecordset("select * from P01 where mid(P0120,5,6)='" + today() + "'", 2);
    const std::string serial = std::to_string(rows->RecordCount() + 1);
    rows->close();
    if (serial.size() >= width) return text::left(serial, width);
    return PadZeros(serial, 0, static_cast<std::int16_t>(width - serial.size()));
}

std::string RandomDigits() {
    std::mt19937_64 generator(
        static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
    std::uniform_int_distribution<int> digit(0, 9);
    std::string digits;
    for (int drawn = 0; drawn < 3; ++drawn)
        digits += std::to_string(digit(generator));
    return digits;
}

std::string MakeProjectNo() {
    try {
        const std::string date = today();
        const std::string serial = NextDaySerial();
        return "KVEL" + date + serial + RandomDigits();
    } catch (const Error&) {
        return {};
    }
}

std::string ListFilledSets(std::string_view id) {
    std::string filled;
    try {
        const auto sets = OpenRecordset("SELECT * FROM s_infotable order by OtherProp");
        for (; !sets->EOF_(); sets->MoveNext()) {
            const data::RowSet count =
                gConn().query("select count(1) from " + sets->Fields("tblname").toText() + " where A00='" +
                              std::string(id) + "'");
            if (count.at(0, std::size_t{0}).toLong() > 0)
                filled += sets->Fields("tbldesc").toTextOrEmpty() + "\r";
        }
    } catch (const Error&) {
        // What was gathered so far is the answer.
    }
    return filled;
}

} // namespace quillmere
