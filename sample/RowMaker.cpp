#include "sample/RowMaker.h"

#include "platform/text/Text.h"
#include "sample/Identity.h"
#include "sample/Person.h"

#include <numeric>

namespace quillmere::sample {
namespace {

// The youngest and the oldest of the people that records name beside their subject.
constexpr int firstBirthYear = 1962;
constexpr int lastBirthYear = 1995;

} // namespace

RowMaker::RowMaker(const Pools& pools, Random& random, const Subject& subject)
    : pools_(pools), random_(random), subject_(subject) {}

void RowMaker::beginSet(std::size_t rows) {
    chance_ = random_.bits();
    row_ = 0;
    weights_.clear();
    for (std::size_t i = 0; i < rows; ++i)
        weights_.push_back(random_.between(2, 6));
}

void RowMaker::beginRow(Span span, int reportYear, bool last) {
    ++row_;
    span_ = span;
    report_ = reportYear;
    last_ = last;
}

std::string RowMaker::start(const Filling&) { return monthText(span_.from); }
std::string RowMaker::end(const Filling&) { return monthText(span_.to); }
std::string RowMaker::openEnd(const Filling&) { return last_ ? "" : monthText(span_.to); }
std::string RowMaker::month(const Filling&) { return monthText(random_.between(span_.from, span_.to)); }
std::string RowMaker::year(const Filling&) { return std::to_string(yearOf(span_.from)); }
std::string RowMaker::report(const Filling&) { return std::to_string(report_); }

std::size_t RowMaker::placeIn(const Filling& filling) const {
    const std::size_t size = filling.guide->size();
    // Pools that tell of work in the order of its doing are not to begin anew in the middle of a set.
    const std::size_t room = size > weights_.size() ? size - weights_.size() + 1 : size;
    return ((chance_ >> filling.shift) % room + row_ - 1) % size;
}

std::string RowMaker::word(const Filling& filling) { return filledIn((*filling.words)[placeIn(filling)]); }
std::string RowMaker::named(const Filling& filling) { return filling.named[placeIn(filling)]; }

std::string RowMaker::code(const Filling& filling) {
    return random_.pick(filling.named.empty() ? *filling.words : filling.named);
}

std::string RowMaker::total(const Filling&) {
    return amountText(partOf(subject_.project->sponsoredHundredths) +
                      partOf(subject_.project->matchingHundredths));
}
std::string RowMaker::sponsored(const Filling&) {
    return amountText(partOf(subject_.project->sponsoredHundredths));
}
std::string RowMaker::matching(const Filling&) {
    return amountText(partOf(subject_.project->matchingHundredths));
}
std::string RowMaker::spent(const Filling&) {
    return amountText(partOf(soFar(subject_.project->sponsoredHundredths)));
}
std::string RowMaker::paid(const Filling&) {
    return amountText(partOf(soFar(subject_.project->matchingHundredths)));
}

std::string RowMaker::amount(const Filling& filling) {
    return amountText(random_.between(filling.low, filling.high));
}

std::string RowMaker::number(const Filling& filling) {
    number_ = random_.between(filling.low, filling.high);
    return std::to_string(number_);
}

std::string RowMaker::price(const Filling& filling) {
    price_ = random_.between(filling.low, filling.high);
    return std::to_string(price_);
}

std::string RowMaker::product(const Filling&) { return std::to_string(number_ * price_); }
std::string RowMaker::flag(const Filling& filling) { return random_.chance(filling.low) ? "true" : "false"; }

std::string RowMaker::name(const Filling&) {
    male_ = random_.chance(58);
    return random_.pick(pools_.words("surname")) +
           random_.pick(pools_.words(male_ ? "givenMale" : "givenFemale"));
}

std::string RowMaker::identity(const Filling&) {
    const std::string birthday = monthText(monthOf(random_.between(firstBirthYear, lastBirthYear), 1) +
                                           static_cast<int>(random_.below(12))) +
                                 "-" + padded(random_.between(1, 28), 2);
    const int sequence = 990 + 2 * random_.between(0, 4) + (male_ ? 1 : 0);
    return identityNumber(random_.pick(pools_.counties()), birthday, std::to_string(sequence));
}

std::string RowMaker::phone(const Filling&) { return "010-0" + padded(random_.between(0, 9999999), 7); }
std::string RowMaker::mail(const Filling&) {
    return "contact" + padded(random_.between(1, 9999), 4) + "@example.org";
}

std::string RowMaker::workplace(const Filling&) {
    if (last_) return subject_.unit;
    const auto& employers = pools_.employers();
    const auto nameAt = [&](std::size_t i) -> const std::string& {
        return employers[i % employers.size()].name;
    };
    const std::size_t place = chance_ % employers.size() + row_;
    // The subject's own comes last.
    return nameAt(place) == subject_.unit ? nameAt(place + weights_.size()) : nameAt(place);
}

std::string RowMaker::unit(const Filling&) { return subject_.unit; }
std::string RowMaker::field(const Filling&) { return subject_.field; }
std::string RowMaker::major(const Filling&) { return random_.pick(pools_.majors()).name; }
std::string RowMaker::title(const Filling&) { return subject_.project->title; }
std::string RowMaker::nothing(const Filling&) { return {}; }

int RowMaker::partOf(int sum) const {
    const auto before = weights_.begin() + static_cast<std::ptrdiff_t>(row_ - 1);
    const int all = std::accumulate(weights_.begin(), weights_.end(), 0);
    const int below = std::accumulate(weights_.begin(), before, 0);
    return sum * (below + *before) / all - sum * below / all;
}

int RowMaker::soFar(int sum) const { return subject_.project->stage == "03" ? sum : sum * 3 / 5; }

std::string RowMaker::filledIn(const std::string& words) const {
    if (words.find('{') == std::string::npos) return words;
    std::string text = text::replaceAll(words, "{title}", subject_.project->title);
    text = text::replaceAll(text, "{field}", subject_.field);
    return text::replaceAll(text, "{year}", std::to_string(report_));
}

} // namespace quillmere::sample
