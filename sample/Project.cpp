#include "sample/Project.h"

#include "sample/Person.h"

namespace quillmere::sample {
namespace {

constexpr int goesAbroad = 1;

std::string projectNumber(Random& random, int year, int serial) {
    return "KVEL" + padded(year % 100, 2) + padded(random.between(1, 12), 2) +
           padded(random.between(1, 28), 2) + padded(serial % 1000, 3) + padded(random.between(0, 999), 3);
}

} // namespace

std::string amountText(int hundredths) {
    std::string text = std::to_string(hundredths / 100);
    if (hundredths % 100 != 0) text += "." + padded(hundredths % 100, 2);
    return text;
}

Project makeProject(const Pools& pools, Random& random, const std::string& key, int year, int type,
                    int serial) {
    Project project;
    project.key = key;
    project.year = year;
    project.stage = year >= 2026 ? "01" : year == 2025 ? "02" : "03";
    project.title = random.pick(pools.words("topic"));
    project.group = random.pick(pools.codes("DM_XMFZ"));
    const int total = 25 * random.between(40, 400);
    const int sponsored = total / 2 / 25 * 25;
    project.sponsoredHundredths = sponsored;
    project.matchingHundredths = total - sponsored;
    project.total = amountText(total);
    project.sponsored = amountText(project.sponsoredHundredths);
    project.matching = amountText(project.matchingHundredths);
    project.from = std::to_string(year) + "-" + padded(random.between(1, 6), 2);
    const int length = project.stage == "03" ? 1 : random.between(1, 2);
    project.to = std::to_string(year + length) + "-12";
    if (type == goesAbroad) project.goingAbroad = std::to_string(year) + "-09";
    if (project.stage == "01") return project;
    project.number = projectNumber(random, year, serial);
    if (project.stage == "02") return project;
    project.closed = project.to;
    project.closingForm = random.pick(pools.codes("DM_JTXS"));
    project.acceptedBy = "市科学技术委员会";
    return project;
}

} // namespace quillmere::sample
