#include "scenario/Commands.h"
#include "scenario/Numbers.h"
#include "scenario/Scene.h"

#include "platform/Error.h"
#include "platform/convert/Clock.h"

#include <algorithm>
#include <array>

namespace quillmere::scenario {

namespace {

bool readSwitch(const Words& words, std::size_t index) {
    if (words[index] == "on") return true;
    if (words[index] == "off") return false;
    throw Stop{words[index] + " is neither on nor off"};
}

void runDatabase(Scene& scene, const Words& words) {
    if (words[1] != "sample" && words[1] != "empty") throw Stop{"there is no database " + words[1]};
    if (!scene.forms.empty()) throw Stop{"a window is open on the database"};
    scene.database.make(words[1] == "sample");
    scene.host.setConnection(scene.database.connection());
}

void runSql(Scene& scene, const Words& words) { scene.database.direct().execute(words[1]); }

std::string shown(const data::Value& value) {
    if (value.isNull()) return "<null>";
    if (value.isBoolean()) return value.toBoolean() ? "true" : "false";
    return value.toText();
}

void runRows(Scene& scene, const Words& words) {
    const data::RowSet rows = scene.database.direct().query(words[1]);
    for (std::size_t row = 0; row < rows.rowCount(); ++row) {
        std::string line = "ROW ";
        for (std::size_t column = 0; column < rows.columns().size(); ++column) {
            if (column != 0) line += '|';
            line += shown(rows.at(row, column));
        }
        scene.out.line(line);
    }
    scene.rowsRead = rows.rowCount();
    scene.out.line("ROWS " + std::to_string(rows.rowCount()));
}

void runClock(Scene& /*scene*/, const Words& words) {
    if (words[1] == "real") {
        clock::fix({});
        return;
    }
    const auto moment = convert::parseDate(words[1]);
    if (!moment || words[1].find('T') == std::string::npos) throw Stop{words[1] + " is no moment"};
    clock::fix(moment);
}

void runPhotos(Scene& scene, const Words& words) {
    scene.photos.make(words[1]);
    scene.host.set("PhotoPath", words[1]);
}

std::size_t sizeOf(const Words& words) {
    constexpr int most = 100'000'000;
    return static_cast<std::size_t>(parseNumber(words[2], 0, most));
}

void runFile(Scene& scene, const Words& words) { scene.photos.addPicture(words[1], sizeOf(words)); }

void runBadFile(Scene& scene, const Words& words) { scene.photos.addBadFile(words[1], sizeOf(words)); }

void runFiles(Scene& scene, const Words& /*words*/) { scene.photos.list(scene.out); }

void runHost(Scene& scene, const Words& words) {
    if (words.size() == 3) {
        scene.host.set(words[1], words[2]);
    } else if (words[1] == "new") {
        scene.host.renew();
    } else {
        throw Stop{"a property of the host needs a value"};
    }
}

void runOpen(Scene& scene, const Words& /*words*/) {
    try {
        const bool saved = scene.host.entry().ShowPersonWh();
        scene.out.line(saved ? "RETURN true" : "RETURN false");
    } catch (const Error& error) {
        scene.out.line("FAILURE " + std::to_string(error.number()) + "|" + error.description());
    }
}

void runTrace(Scene& scene, const Words& words) {
    if (words[1] != "sql") throw Stop{words[1] + " cannot be traced"};
    scene.database.trace(readSwitch(words, 2));
}

void runFail(Scene& scene, const Words& words) {
    data::FailingConnection& connection = scene.database.failing();
    if (words[1] == "off" && words.size() == 2) {
        connection.failOff();
    } else if (words[1] == "after" && words.size() == 4) {
        connection.failAfter(parseCount(words[2]), words[3]);
    } else if (words[1] == "on" && words.size() == 4) {
        connection.failOn(words[2], words[3]);
    } else {
        throw Stop{"it is: fail after N TEXT, fail on PART TEXT, fail off"};
    }
}

constexpr std::array commands{
    Command{"database", 1, 1, runDatabase}, Command{"sql", 1, 1, runSql},
    Command{"rows", 1, 1, runRows},         Command{"clock", 1, 1, runClock},
    Command{"photos", 1, 1, runPhotos},     Command{"file", 2, 2, runFile},
    Command{"badfile", 2, 2, runBadFile},   Command{"files", 0, 0, runFiles},
    Command{"host", 1, 2, runHost},         Command{"open", 0, 0, runOpen},
    Command{"trace", 2, 2, runTrace},       Command{"fail", 1, 3, runFail},
};

} // namespace

std::span<const Command> setUpCommands() { return commands; }

} // namespace quillmere::scenario
