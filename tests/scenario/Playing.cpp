#include "scenario/Playing.h"

#include "scenario/Engine.h"
#include "scenario/ModelToolkit.h"

#include <sstream>

namespace quillmere::test {

Played play(std::string_view script) {
    scenario::ModelToolkit toolkit;
    const auto engine = scenario::makeEngine("sqlite");
    std::ostringstream out;
    std::ostringstream complaints;
    Played played;
    played.status = scenario::playScript(script, "script", {toolkit, *engine}, "", out, complaints);
    played.transcript = out.str();
    played.complaints = complaints.str();
    std::istringstream lines(played.transcript);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("> ")) played.printed.push_back(line);
    }
    return played;
}

Played playInWindow(std::string_view lines) {
    return play("clock 2026-01-15T10:20:30\n"
                "database sample\n"
                "host OperationType 4\n"
                "host ZZtype 1\n"
                "host personID " +
                std::string(personID) + "\nopen\n" + std::string(lines));
}

} // namespace quillmere::test
