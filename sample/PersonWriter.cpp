#include "sample/RowWriters.h"

namespace quillmere::sample {

PersonWriter::PersonWriter(data::Connection& connection)
    : master_(connection, "A01",
              "A00,A0199,A0101,A0104,A0106,A0103,A0109,A0105,A0107,A0108,A0110,A0111,A0113,A0112,A0115,"
              "A0118,A0119,A0120,A0114,A0117,A0123,A0138,A0122,A0124,A0125,A0116,A0130,A0121,A0126,A0127,"
              "A0128,A0129,A0131,A0133,A0135,A0134,A0132,A0139,A0141,A0140,A0143,A0144,A0142,A0145,A0146,"
              "A0147,A0148,A0136,A0137")
    , studies_(connection, "A02", "A00,A0299,A0201,A0202,A0203,A0204,A0205")
    , jobs_(connection, "A03", "A00,A0399,A0301,A0302,A0303,A0304,A0305")
    , papers_(connection, "A08", "A00,A0899,A0801,A0802,A0803,A0804") {}

void PersonWriter::write(const Person& person, const Pools& pools, Random& random) {
    writeMaster(person);
    const std::string key = quoted(person.key);
    int sequence = 0;
    for (const Stage& s : person.studies) {
        studies_.add({key, std::to_string(++sequence), quoted(s.from), quotedOrNull(s.to), quoted(s.place),
                      quoted(s.subject), quoted(s.code)});
    }
    sequence = 0;
    for (const Stage& s : person.jobs) {
        jobs_.add({key, std::to_string(++sequence), quoted(s.from), quotedOrNull(s.to), quoted(s.place),
                   quoted(s.subject), quoted(s.code)});
    }
    const int papers = person.title.empty() ? 0 : random.between(0, 3);
    for (sequence = 1; sequence <= papers; ++sequence) {
        const std::string year = std::to_string(random.between(2012, 2025));
        papers_.add({key, std::to_string(sequence), quoted(random.pick(pools.words("topic"))),
                     quoted(random.pick(pools.words("school")) + "学报"),
                     quoted(year + "-" + padded(random.between(1, 12), 2)),
                     std::to_string(random.between(1, 4))});
    }
}

void PersonWriter::writeMaster(const Person& person) {
    const Employer& employer = person.employer;
    std::vector<std::string> row{quoted(person.key), std::to_string(runningNumber(++written_))};
    const auto add = [&row](std::initializer_list<std::string_view> values) {
        for (const std::string_view value : values)
            row.push_back(quoted(value));
    };
    add({person.name,
         person.sex,
         person.birthday,
         person.identity,
         person.nativePlace,
         person.ethnicity,
         person.party,
         person.education,
         person.studies.back().place,
         person.studies.back().to,
         person.studies.back().subject,
         person.degree,
         person.workSince,
         person.major.field,
         person.major.name,
         person.title,
         employer.name,
         employer.nature,
         person.post,
         person.rank,
         person.titleLevel,
         person.address,
         employer.postcode,
         employer.kind,
         employer.department,
         employer.industry,
         person.phone,
         "",
         person.mobile,
         person.mail,
         person.advisorYear,
         "",
         "",
         person.allowanceYear,
         ""});
    writeSkills(person, row);
    add({"0" + std::to_string(person.type), person.year});
    master_.add(row);
}

void PersonWriter::writeSkills(const Person& person, std::vector<std::string>& row) {
    for (const std::string& value : {person.trade, person.tradeYears, person.qualification, person.issuer,
                                     person.certificate, person.certificateYear}) {
        row.push_back(quoted(value));
    }
    // The four honours of a skilled worker, which nobody in the sample has yet.
    row.insert(row.end(), 4, quoted(""));
}

void PersonWriter::flush() {
    master_.flush();
    studies_.flush();
    jobs_.flush();
    papers_.flush();
}

} // namespace quillmere::sample
