#include "sample/SampleRegister.h"

#include "platform/Error.h"
#include "sample/Catalogue.h"
#include "sample/Identity.h"
#include "sample/Months.h"
#include "sample/RecordWriter.h"
#include "sample/RowWriters.h"
#include "sample/Schema.h"

namespace quillmere::sample {
namespace {

constexpr int collectiveProject = 6;

/// Rolls back what was begun unless it was committed.
class Transaction {
public:
    explicit Transaction(data::Connection& connection) : connection_(connection) {
        connection_.execute("begin");
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction() {
        if (committed_) return;
        try {
            connection_.execute("rollback");
        } catch (
            const std::exception&) { // NOLINT(bugprone-empty-catch): the first failure is the one to tell
        }
    }

    void commit() {
        connection_.execute("commit");
        committed_ = true;
    }

private:
    data::Connection& connection_;
    bool committed_ = false;
};

constexpr std::uint64_t personStream = 0x9E3779B97F4A7C15ULL;
constexpr std::uint64_t unitStream = 0xC2B2AE3D27D4EB4FULL;

/// The year of the further people and units, by turns, so that few of them show every stage.
int yearByTurns(int turn) { return 2024 + turn % 3; }

/// Writes people, units and their projects. What a person or unit is draws on one stream of chance; the
/// records of the further sets draw on a stream for each, so that a change to these leaves the people alone.
class Population {
public:
    Population(data::Connection& connection, const Options& options)
        : seed_(options.seed)
        , random_(options.seed)
        , people_(connection)
        , units_(connection)
        , projects_(connection)
        , records_(connection, pools_) {}

    void addPerson(int number) {
        Person person = makePerson(pools_, random_, number);
        if (number > plainPersons) person.year = std::to_string(yearByTurns(number / 3));
        people_.write(person, pools_, random_);
        const Project project =
            makeProject(pools_, random_, person.key, std::stoi(person.year), person.type, number);
        projects_.write(project, pools_, random_);
        if (number <= plainPersons) return;
        const Subject subject{
            person.key, person.type, person.employer.name, person.major.name, monthFrom(person.workSince),
            &project};
        Random own(seed_ + personStream * static_cast<std::uint64_t>(number));
        records_.writeCurriculum(subject, own);
        // Every fourth has not filled in more than the project's basic data yet.
        if (number <= lastWithRecords && number % 4 != 0) records_.writeProject(subject, own);
    }

    void addUnit(int number) {
        const std::string key = recordKey(random_);
        const int drawn = random_.between(2024, 2026);
        const int year = number <= plainUnits ? drawn : yearByTurns(number);
        units_.write(key, number, year, pools_, random_);
        Project project = makeProject(pools_, random_, key, year, collectiveProject, number);
        project.department = unitEmployer(pools_, number).department;
        projects_.write(project, pools_, random_);
        if (number <= plainUnits || number > lastWithRecords) return;
        const Subject subject{key, collectiveProject, unitName(pools_, number), "人才队伍建设", 0, &project};
        Random own(seed_ + unitStream * static_cast<std::uint64_t>(number));
        records_.writeProject(subject, own);
    }

    void flush() {
        people_.flush();
        units_.flush();
        projects_.flush();
        records_.flush();
    }

private:
    Pools pools_;
    std::uint64_t seed_;
    Random random_;
    PersonWriter people_;
    UnitWriter units_;
    ProjectWriter projects_;
    RecordWriter records_;
};

/// By rounds of so many people and units, so that a bigger register begins with the rows of a smaller one.
void writePeople(data::Connection& connection, const Options& options) {
    Population population(connection, options);
    int person = 0;
    int unit = 0;
    while (person < options.persons || unit < options.units) {
        for (int i = 0; i < plainPersons && person < options.persons; ++i)
            population.addPerson(++person);
        for (int i = 0; i < plainUnits && unit < options.units; ++i)
            population.addUnit(++unit);
    }
    population.flush();
}

} // namespace

void build(data::Connection& connection, const Options& options) {
    if (options.persons < 0 || options.units < 0) {
        throw Error(Failure::BadArguments, "人数和单位数不能小于0", "SampleRegister");
    }
    Transaction transaction(connection);
    const std::vector<SetRow> sets = informationSets();
    createTables(connection, sets, dialectOf(options.engine));
    writeCatalogue(connection);
    writeCodeTables(connection);
    if (options.people) writePeople(connection, options);
    // An index made over rows that are there takes a fraction of the time that it takes to grow with them.
    createIndexes(connection, sets, dialectOf(options.engine));
    transaction.commit();
}

} // namespace quillmere::sample
