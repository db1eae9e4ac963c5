#include "check/Program.h"

#include "address/RegisterAddress.h"
#include "check/Arguments.h"
#include "check/CheckGroup.h"
#include "check/CheckRun.h"
#include "check/Database.h"
#include "check/EngineIndexes.h"
#include "check/Output.h"

#include "platform/Error.h"

#include <ostream>

namespace quillmere::check {

namespace {

Status statusOf(const Report& report) {
    if (report.count(Level::Error) > 0) return Status::Errors;
    if (report.count(Level::Warning) > 0) return Status::Warnings;
    return Status::Clean;
}

Status checkDatabase(const Arguments& arguments, std::ostream& out) {
    const Database database = openDatabase(arguments.database);
    const Report report = checkRegister(database.connection, *database.indexes);
    if (arguments.json)
        writeJson(out, shownAddress(arguments.database), report);
    else
        writeText(out, report);
    return statusOf(report);
}

} // namespace

Status runProgram(const std::vector<std::string>& words, std::ostream& out, std::ostream& complaints) {
    const Arguments arguments = parseArguments(words);
    if (!arguments.complaint.empty()) {
        complaints << "quillmere-check：" << arguments.complaint << "\n\n" << helpText();
        return Status::Unreadable;
    }
    if (arguments.help) {
        out << helpText();
        return Status::Clean;
    }
    if (arguments.list) {
        arguments.json ? writeKindsAsJson(out) : writeKinds(out);
        return Status::Clean;
    }
    try {
        return checkDatabase(arguments, out);
    } catch (const Error& failure) {
        complaints << "quillmere-check：" << shownAddress(arguments.database) << "：" << failure.description()
                   << '\n';
        return Status::Unreadable;
    }
}

} // namespace quillmere::check
