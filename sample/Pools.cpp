#include "sample/Pools.h"

#include "platform/Error.h"
#include "sample/Catalogue.h"
#include "sample/Csv.h"
#include "sample/EmbeddedFiles.h"

namespace quillmere::sample {
namespace {

constexpr std::size_t countyLength = 6;

CsvTable read(const std::string& file) { return parseCsv(embeddedFile(file), file); }

const std::vector<std::string>&
listOf(const std::map<std::string, std::vector<std::string>, std::less<>>& lists, std::string_view name) {
    const auto found = lists.find(name);
    if (found == lists.end()) throw Error(Failure::ItemNotFound, "没有词表 " + std::string(name), "Pools");
    return found->second;
}

} // namespace

Pools::Pools() {
    for (const char* file : {"pools.csv", "record_words.csv"}) {
        const CsvTable words = read(file);
        for (const auto& row : words.rows())
            words_[row[0]].push_back(row[1]);
    }
    const CsvTable majors = read("pool_majors.csv");
    for (const auto& row : majors.rows())
        majors_.push_back({row[0], row[1], row[2]});
    const CsvTable employers = read("pool_employers.csv");
    for (const auto& row : employers.rows()) {
        employers_.push_back({row[0], row[1], row[2], row[3], row[4], row[5], row[6]});
    }
    for (const std::string& table : codeTableNames())
        readCodes(table);
}

void Pools::readCodes(const std::string& table) {
    const CsvTable rows = read(table + ".csv");
    for (const auto& row : rows.rows()) {
        if (row[3] != "true") continue;
        codes_[table].push_back(row[0]);
        if (table != "DM_XZQH" || row[0].size() != countyLength) continue;
        counties_.push_back(row[0]);
        countyNames_[row[0]] = row[1];
    }
}

const std::vector<std::string>& Pools::words(std::string_view pool) const { return listOf(words_, pool); }

const std::vector<std::string>& Pools::codes(std::string_view table) const { return listOf(codes_, table); }

std::string Pools::address(const Employer& employer, std::size_t street, int house) const {
    const auto& streets = words("street");
    const auto county = countyNames_.find(employer.division);
    if (county == countyNames_.end()) {
        throw Error(Failure::ItemNotFound, "没有行政区划 " + employer.division, "Pools");
    }
    return county->second + streets[street % streets.size()] + std::to_string(house) + "号";
}

} // namespace quillmere::sample
