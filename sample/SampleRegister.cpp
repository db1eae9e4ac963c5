#include "sample/SampleRegister.h"

#include "platform/Error.h"
#include "sample/Catalogue.h"
#include "sample/Identity.h"
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

void writePeople(data::Connection& connection, const Options& options) {
    const Pools pools;
    Random random(options.seed);
    PersonWriter people(connection);
    UnitWriter units(connection);
    ProjectWriter projects(connection);
    for (int number = 1; number <= options.persons; ++number) {
        const Person person = makePerson(pools, random, number);
        people.write(person, pools, random);
        projects.write(makeProject(pools, random, person.key, std::stoi(person.year), person.type, number),
                       pools, random);
    }
    for (int number = 1; number <= options.units; ++number) {
        const std::string key = recordKey(random);
        const int year = random.between(2024, 2026);
        units.write(key, number, year, pools, random);
        Project project = makeProject(pools, random, key, year, collectiveProject, number);
        project.department = unitEmployer(pools, number).department;
        projects.write(project, pools, random);
    }
    people.flush();
    units.flush();
    projects.flush();
}

} // namespace

void build(data::Connection& connection, const Options& options) {
    if (options.persons < 0 || options.units < 0) {
        throw Error(Failure::BadArguments, "人数和单位数不能小于0", "SampleRegister");
    }
    Transaction transaction(connection);
    createSchema(connection, informationSets(), dialectOf(options.engine));
    writeCatalogue(connection);
    writeCodeTables(connection);
    if (options.people) writePeople(connection, options);
    transaction.commit();
}

} // namespace quillmere::sample
