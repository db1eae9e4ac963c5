#include "postgresql/Administration.h"

#include "adapters/postgresql/JetSchema.h"
#include "adapters/postgresql/PostgreSqlConnection.h"

#include <ostream>
#include <string_view>

namespace quillmere::postgresql {

namespace {

constexpr std::string_view usage =
    "usage: quillmere-postgresql install ADDRESS\n"
    "       quillmere-postgresql version ADDRESS\n"
    "\n"
    "Prepares a database on a PostgreSQL server for a register.\n"
    "\n"
    "  install   puts the schema jet into the database, or brings it up to date: the functions, the\n"
    "            operator and the collation that the statements of the system need. Makes the empty\n"
    "            schema data for the register's tables when there is none. Running it again does no harm\n"
    "  version   tells which version of the schema jet is there, and which one is needed; the status\n"
    "            is 1 when it is too old or missing\n"
    "  ADDRESS   postgresql://role@server/database, with libpq's options behind a question mark. The\n"
    "            password belongs into PGPASSWORD or the password file\n"
    "  --help    this text\n";

Outcome install(PostgreSqlConnection& connection, std::ostream& out) {
    const int before = installedJetVersion(connection);
    installJetSchema(connection);
    const int after = installedJetVersion(connection);
    if (before == after) {
        out << "The schema jet is there: version " << after << ".\n";
    } else {
        out << "Installed the schema jet, version " << after << ".\n";
    }
    return Outcome::Done;
}

Outcome tellVersion(PostgreSqlConnection& connection, std::ostream& out) {
    const int installed = installedJetVersion(connection);
    out << "installed " << installed << ", needed " << neededJetVersion() << "\n";
    return installed < neededJetVersion() ? Outcome::Failed : Outcome::Done;
}

} // namespace

Outcome administer(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& complaints) {
    if (!arguments.empty() && (arguments.front() == "--help" || arguments.front() == "-h")) {
        out << usage;
        return Outcome::Done;
    }
    const bool known =
        arguments.size() == 2 && (arguments.front() == "install" || arguments.front() == "version");
    if (!known) {
        complaints << usage;
        return Outcome::Misused;
    }
    const auto connection = open({.address = arguments[1]});
    return arguments.front() == "install" ? install(*connection, out) : tellVersion(*connection, out);
}

} // namespace quillmere::postgresql
