#include "platform/Error.h"
#include "platform/text/Text.h"
#include "sample/RowMaker.h"

#include <algorithm>
#include <iterator>

namespace quillmere::sample {
namespace {

/// What stands behind a way's name in a recipe.
enum class Takes { Nothing, Pool, TwoPools, PoolAndCodes, CodeTable, Bounds, Percent };

struct Way {
    std::string_view name;
    Takes takes;
    std::string (RowMaker::*make)(const Filling&);
};

constexpr Way ways[] = {
    {"start", Takes::Nothing, &RowMaker::start},
    {"end", Takes::Nothing, &RowMaker::end},
    {"open-end", Takes::Nothing, &RowMaker::openEnd},
    {"month", Takes::Nothing, &RowMaker::month},
    {"year", Takes::Nothing, &RowMaker::year},
    {"report", Takes::Nothing, &RowMaker::report},
    {"pool", Takes::Pool, &RowMaker::word},
    {"along", Takes::TwoPools, &RowMaker::word},
    {"code-along", Takes::PoolAndCodes, &RowMaker::named},
    {"code", Takes::CodeTable, &RowMaker::code},
    {"total", Takes::Nothing, &RowMaker::total},
    {"sponsored", Takes::Nothing, &RowMaker::sponsored},
    {"matching", Takes::Nothing, &RowMaker::matching},
    {"spent", Takes::Nothing, &RowMaker::spent},
    {"paid", Takes::Nothing, &RowMaker::paid},
    {"amount", Takes::Bounds, &RowMaker::amount},
    {"number", Takes::Bounds, &RowMaker::number},
    {"price", Takes::Bounds, &RowMaker::price},
    {"product", Takes::Nothing, &RowMaker::product},
    {"flag", Takes::Percent, &RowMaker::flag},
    {"name", Takes::Nothing, &RowMaker::name},
    {"identity", Takes::Nothing, &RowMaker::identity},
    {"phone", Takes::Nothing, &RowMaker::phone},
    {"mail", Takes::Nothing, &RowMaker::mail},
    {"workplace", Takes::Nothing, &RowMaker::workplace},
    {"unit", Takes::Nothing, &RowMaker::unit},
    {"field", Takes::Nothing, &RowMaker::field},
    {"major", Takes::Nothing, &RowMaker::major},
    {"title", Takes::Nothing, &RowMaker::title},
    {"nothing", Takes::Nothing, &RowMaker::nothing},
};

bool fits(Takes takes, std::size_t words) {
    switch (takes) {
    case Takes::Nothing:
        return words == 0;
    case Takes::CodeTable:
    case Takes::PoolAndCodes:
        return words >= 1;
    case Takes::TwoPools:
    case Takes::Bounds:
        return words == 2;
    default:
        return words == 1;
    }
}

/// Sums the letters, so that the same pool always draws on the same bits.
unsigned shiftOf(std::string_view name) {
    constexpr unsigned usefulShifts = 48;
    unsigned sum = 0;
    for (const char c : name)
        sum += static_cast<unsigned char>(c);
    return sum % usefulShifts;
}

void goThrough(Filling& filling, const std::string& pool, const Pools& pools) {
    filling.guide = &pools.words(pool);
    filling.words = filling.guide;
    filling.shift = shiftOf(pool);
}

/// What the way draws on, read from the words behind its name; false when these do not go together.
bool fill(Filling& filling, Takes takes, const std::vector<std::string>& words, const Pools& pools) {
    switch (takes) {
    case Takes::Nothing:
        return true;
    case Takes::Pool:
        goThrough(filling, words[0], pools);
        return true;
    case Takes::TwoPools:
        goThrough(filling, words[0], pools);
        filling.words = &pools.words(words[1]);
        return filling.words->size() == filling.guide->size();
    case Takes::PoolAndCodes:
        goThrough(filling, words[0], pools);
        filling.named.assign(words.begin() + 1, words.end());
        return filling.named.size() == filling.guide->size();
    case Takes::CodeTable:
        filling.words = &pools.codes(words[0]);
        filling.named.assign(words.begin() + 1, words.end());
        return true;
    case Takes::Percent:
        filling.low = std::stoi(words[0]);
        return true;
    case Takes::Bounds:
        filling.low = std::stoi(words[0]);
        filling.high = std::stoi(words[1]);
        return filling.low <= filling.high;
    }
    return false;
}

} // namespace

Filling parseFilling(std::string_view content, const Pools& pools) {
    std::vector<std::string> words = text::split(content, " ");
    const auto way = std::ranges::find(ways, words.empty() ? "" : words.front(), &Way::name);
    const bool known = way != std::end(ways) && fits(way->takes, words.size() - 1);
    Filling filling;
    if (known) {
        words.erase(words.begin());
        filling.way = way->make;
    }
    if (!known || !fill(filling, way->takes, words, pools)) {
        throw Error(Failure::BadArguments, "字段内容写得不对：" + std::string(content), "Filling");
    }
    return filling;
}

} // namespace quillmere::sample
