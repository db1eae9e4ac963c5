#include "sample/RowWriters.h"

namespace quillmere::sample {
namespace {

std::string leader(const Pools& pools, Random& random) {
    return random.pick(pools.words("surname")) + random.pick(pools.words("givenMale"));
}

std::string phone(Random& random) { return "010-0" + padded(random.between(0, 9999999), 7); }

/// Staff, master's degrees, doctor's degrees, technical, senior, intermediate, administrative,
/// bureau level, division level.
std::vector<std::string> headCounts(Random& random) {
    const int staff = random.between(60, 2400);
    const int technical = staff * random.between(30, 70) / 100;
    const int senior = technical / 5;
    std::vector<std::string> counts;
    for (const int count : {staff, staff / 6, staff / 20, technical, senior, technical / 3, staff / 10,
                            random.between(0, 4), random.between(3, 20)}) {
        counts.push_back(std::to_string(count));
    }
    return counts;
}

} // namespace

const Employer& unitEmployer(const Pools& pools, int number) {
    return pools.employers()[static_cast<std::size_t>(number - 1) % pools.employers().size()];
}

std::string unitName(const Pools& pools, int number) {
    const auto branch = static_cast<std::size_t>(number - 1) / pools.employers().size();
    return unitEmployer(pools, number).name + (branch == 0 ? "" : "第" + std::to_string(branch) + "分部");
}

UnitWriter::UnitWriter(data::Connection& connection)
    : master_(connection, "B01",
              "A00,B0199,B0101,B0102,B0103,B0104,B0105,B0106,B0107,B0108,B0109,B0110,B0111,B0112,B0113,B0114,"
              "B0115,B0116,B0117,B0118,B0119,B0120,B0121,B0122,B0124")
    , investment_(connection, "B02", "A00,B0299,B0201,B0202,B0203,B0204") {}

void UnitWriter::write(const std::string& key, int number, int year, const Pools& pools, Random& random) {
    const Employer& employer = unitEmployer(pools, number);
    std::vector<std::string> row{quoted(key), std::to_string(runningNumber(number))};
    for (const std::string& value :
         {unitName(pools, number), employer.kind, employer.nature, employer.department,
          pools.address(employer, random.below(100), random.between(1, 199)), employer.postcode,
          leader(pools, random), random.pick(pools.words("leaderPost")), phone(random), leader(pools, random),
          std::string("人事处处长"), phone(random)}) {
        row.push_back(quoted(value));
    }
    for (std::string& count : headCounts(random))
        row.push_back(std::move(count));
    row.push_back(
        quoted("建立了单位领导联系人才、导师带教和年度考核相结合的培养机制，近三年有多人晋升高级职称。"));
    row.push_back(quoted(std::to_string(year)));
    master_.add(row);
    const int investments = random.between(1, 3);
    for (int sequence = 1; sequence <= investments; ++sequence) {
        investment_.add({quoted(key), std::to_string(sequence),
                         quoted(random.pick(pools.words("investment"))),
                         quoted(std::to_string(random.between(5, 300))), quoted("人事处"),
                         quoted(random.pick(pools.codes("DM_TRFS")))});
    }
}

void UnitWriter::flush() {
    master_.flush();
    investment_.flush();
}

} // namespace quillmere::sample
