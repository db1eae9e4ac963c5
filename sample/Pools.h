#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::sample {

/// A subject of study with its codes: discipline of the degree, and professional field.
struct Major {
    std::string name;
    std::string discipline;
    std::string field;
};

/// An employer with the codes of its kind, nature, supervising department, industry and division.
struct Employer {
    std::string name;
    std::string kind;
    std::string nature;
    std::string department;
    std::string industry;
    std::string division;
    std::string postcode;
};

/// What the sample's people and units are made of: names, schools, employers, and the codes that a
/// person may choose.
class Pools {
public:
    Pools();

    /// The words of a pool. Raises ItemNotFound for a pool that is not there or empty.
    [[nodiscard]] const std::vector<std::string>& words(std::string_view pool) const;
    /// The codes of a code table that may be chosen. Raises ItemNotFound likewise.
    [[nodiscard]] const std::vector<std::string>& codes(std::string_view table) const;
    /// The codes of counties and districts, six digits.
    [[nodiscard]] const std::vector<std::string>& counties() const { return counties_; }

    [[nodiscard]] const std::vector<Major>& majors() const { return majors_; }
    [[nodiscard]] const std::vector<Employer>& employers() const { return employers_; }
    /// The address of an employer's house, from its division's name.
    [[nodiscard]] std::string address(const Employer& employer, std::size_t street, int house) const;

private:
    void readCodes(const std::string& table);

    std::map<std::string, std::vector<std::string>, std::less<>> words_;
    std::map<std::string, std::vector<std::string>, std::less<>> codes_;
    std::map<std::string, std::string, std::less<>> countyNames_;
    std::vector<std::string> counties_;
    std::vector<Major> majors_;
    std::vector<Employer> employers_;
};

} // namespace quillmere::sample
