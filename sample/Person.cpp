#include "sample/Person.h"

#include "sample/Identity.h"

namespace quillmere::sample {
namespace {

constexpr int skilledWorker = 7;
constexpr int thisYear = 2026;

std::string month(int year, int monthOfYear) { return std::to_string(year) + "-" + padded(monthOfYear, 2); }

void nameAndBirth(Person& person, const Pools& pools, Random& random, int birthYear) {
    const bool male = random.chance(58);
    person.sex = male ? "1" : "2";
    person.name =
        random.pick(pools.words("surname")) + random.pick(pools.words(male ? "givenMale" : "givenFemale"));
    person.birthday = month(birthYear, random.between(1, 12)) + "-" + padded(random.between(1, 28), 2);
    person.nativePlace = random.pick(pools.counties());
    const int sequence = 990 + 2 * random.between(0, 4) + (male ? 1 : 0);
    person.identity = identityNumber(person.nativePlace, person.birthday, std::to_string(sequence));
    person.ethnicity = random.chance(85) ? "01" : random.pick(pools.codes("DM_MZ"));
    person.party = random.chance(55) ? "01" : random.pick(pools.codes("DM_ZZMM"));
}

/// Study from the bachelor's degree up; returns the year of the last graduation.
int studyAtUniversity(Person& person, const Pools& pools, Random& random, int birthYear) {
    struct Level {
        const char* education;
        const char* degree;
        int years;
    };
    static constexpr Level levels[] = {{"21", "4", 4}, {"14", "3", 3}, {"11", "2", 3}};
    person.major = random.pick(pools.majors());
    const int reached = random.between(1, 3);
    int year = birthYear + 18;
    for (int i = 0; i < reached; ++i) {
        const Level& level = levels[i];
        const std::string degree = level.degree + person.major.discipline;
        person.studies.push_back({month(year, 9), month(year + level.years, 7),
                                  random.pick(pools.words("school")), person.major.name, degree});
        year += level.years;
        person.education = level.education;
        person.degree = degree;
    }
    return year;
}

int learnTrade(Person& person, const Pools& pools, Random& random, int birthYear) {
    const int year = birthYear + 16;
    person.trade = random.pick(pools.words("trade"));
    person.major = {person.trade, "", "D460"};
    person.education = random.chance(60) ? "47" : "31";
    person.studies.push_back(
        {month(year, 9), month(year + 3, 7), random.pick(pools.words("vocationalSchool")), person.trade, ""});
    person.qualification = std::to_string(random.between(1, 3));
    person.certificateYear = std::to_string(year + 3 + random.between(2, 8));
    person.tradeYears = std::to_string(thisYear - year - 3);
    person.issuer = random.pick(pools.words("issuer"));
    person.certificate = person.certificateYear + padded(random.between(1, 999999), 6);
    return year + 3;
}

/// A title and the level that its last digit stands for.
void awardTitle(Person& person, const Pools& pools, Random& random) {
    person.title = random.pick(pools.codes("DM_ZYJSZW"));
    person.titleLevel = person.title.substr(2);
    const bool professor = person.titleLevel == "1";
    const std::string year = std::to_string(random.between(2005, 2022));
    if (professor && random.chance(60)) person.advisorYear = year;
    if (professor && random.chance(30)) person.allowanceYear = year;
}

void employ(Person& person, const Pools& pools, Random& random, int year) {
    person.employer = random.pick(pools.employers());
    person.address = pools.address(person.employer, random.below(100), random.between(1, 199));
    person.workSince = month(year, 8);
    if (random.chance(60)) {
        person.post = random.pick(pools.words("post"));
        person.rank = random.chance(70) ? "131" : "132";
    }
    int from = year;
    if (random.chance(55) && thisYear - year > 6) {
        const int to = year + random.between(2, 5);
        person.jobs.push_back({month(from, 8), month(to, 6), random.pick(pools.employers()).name,
                               random.pick(pools.words("secondTitle")), ""});
        from = to;
    }
    person.jobs.push_back({month(from, person.jobs.empty() ? 8 : 7), "", person.employer.name,
                           person.post.empty() ? random.pick(pools.words("secondTitle")) : person.post,
                           person.title});
}

} // namespace

std::string padded(int number, int width) {
    std::string digits = std::to_string(number);
    const auto wanted = static_cast<std::size_t>(width);
    if (digits.size() < wanted) digits.insert(0, wanted - digits.size(), '0');
    return digits;
}

Person makePerson(const Pools& pools, Random& random, int number) {
    static const std::vector<int> types{1, 1, 2, 2, 3, 4, 4, 4, 5, skilledWorker, skilledWorker};
    Person person;
    person.key = recordKey(random);
    person.type = random.pick(types);
    person.year = std::to_string(random.between(2024, thisYear));
    const int birthYear = random.between(1962, 1992);
    nameAndBirth(person, pools, random, birthYear);
    int graduated = 0;
    if (person.type == skilledWorker) {
        graduated = learnTrade(person, pools, random, birthYear);
    } else {
        graduated = studyAtUniversity(person, pools, random, birthYear);
        awardTitle(person, pools, random);
    }
    employ(person, pools, random, graduated);
    // No subscriber has a number that begins in 0 behind the area code, or a mobile one in 100.
    person.phone = "010-0" + padded(random.between(0, 9999999), 7);
    person.mobile = "100" + padded(random.between(0, 99999999), 8);
    person.mail = "person" + padded(number, 3) + "@example.org";
    return person;
}

} // namespace quillmere::sample
