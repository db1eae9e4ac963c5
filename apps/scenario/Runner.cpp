#include "scenario/Runner.h"

#include "scenario/Engine.h"
#include "scenario/Player.h"
#include "scenario/Toolkit.h"

#include "metadata/Globals.h"
#include "platform/Error.h"
#include "platform/convert/Clock.h"
#include "shell/frmPersonWh.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>

namespace quillmere::scenario {

namespace {

constexpr std::string_view usage = "usage: quillmere-scenario [--toolkit model|qt] [--database "
                                   "sqlite|postgresql:URI] [--shots DIR] FILE...\n"
                                   "       quillmere-scenario --help\n";

/// What a script begins with, whatever ran in the process before.
struct CleanSlate {
    CleanSlate() { wipe(); }
    ~CleanSlate() { wipe(); }
    CleanSlate(const CleanSlate&) = delete;
    CleanSlate& operator=(const CleanSlate&) = delete;

    static void wipe() {
        clock::fix({});
        frmPersonWh::releaseDefaultInstance();
        publishConnection(nullptr);
        gZZType = 0;
        gZZYear.clear();
    }
};

struct EmployPlayer {
    EmployPlayer(Toolkit& screen, Player& player) : toolkit(screen) { toolkit.employ(&player); }
    ~EmployPlayer() { toolkit.employ(nullptr); }
    EmployPlayer(const EmployPlayer&) = delete;
    EmployPlayer& operator=(const EmployPlayer&) = delete;

    Toolkit& toolkit;
};

/// Reads the arguments. Raises Stop.
Options parseArguments(const std::vector<std::string>& arguments) {
    Options options;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (!argument->starts_with("--")) {
            options.files.push_back(*argument);
            continue;
        }
        std::string* const value = *argument == "--toolkit"    ? &options.toolkit
                                   : *argument == "--database" ? &options.database
                                   : *argument == "--shots"    ? &options.shots
                                                               : nullptr;
        if (value == nullptr) throw Stop{"there is no option " + *argument};
        if (std::next(argument) == arguments.end()) throw Stop{*argument + " needs a value"};
        *value = *++argument;
    }
    if (options.files.empty()) throw Stop{"no file is given"};
    return options;
}

std::unique_ptr<Toolkit> requireToolkit(const std::string& name) {
    auto toolkit = makeToolkit(name);
    if (toolkit != nullptr) return toolkit;
    throw Stop{name == "qt" ? "the toolkit qt is not built in" : "there is no toolkit " + name};
}

void makeDirectory(const std::string& directory) {
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error) throw Stop{directory + " cannot be made: " + error.message()};
}

std::optional<std::string> readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    std::string content{std::istreambuf_iterator<char>(file), {}};
    if (file.bad()) return std::nullopt;
    return content;
}

Status playFile(const std::string& file, Toolkit& toolkit, const Options& options, std::ostream& out,
                std::ostream& complaints) {
    const auto text = readFile(file);
    if (!text) {
        complaints << file << ": cannot be read\n";
        return Status::Stopped;
    }
    const auto engine = makeEngine(options.database);
    return playScript(*text, file, {toolkit, *engine}, options.shots, out, complaints);
}

} // namespace

Status playScript(std::string_view text, const std::string& name, const Stage& stage,
                  const std::string& shots, std::ostream& out, std::ostream& complaints) {
    const CleanSlate slate;
    Transcript transcript(out);
    Scene scene(transcript, stage.toolkit, stage.engine);
    scene.pictures = shots;
    Player player(Script(text), scene);
    const EmployPlayer employed(stage.toolkit, player);
    try {
        player.play();
    } catch (const Stop& stop) {
        out.flush();
        complaints << name << ":" << stop.line << ": " << stop.reason << '\n';
        return Status::Stopped;
    }
    return scene.failures == 0 ? Status::Held : Status::Failed;
}

Status runProgram(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& complaints) {
    try {
        if (std::ranges::find(arguments, "--help") != arguments.end()) {
            out << usage;
            return Status::Held;
        }
        const Options options = parseArguments(arguments);
        (void)makeEngine(options.database);
        const auto toolkit = requireToolkit(options.toolkit);
        if (!options.shots.empty()) makeDirectory(options.shots);
        Status worst = Status::Held;
        for (const std::string& file : options.files)
            worst = std::max(worst, playFile(file, *toolkit, options, out, complaints));
        return worst;
    } catch (const Stop& stop) {
        complaints << stop.reason << '\n' << usage;
        return Status::Stopped;
    }
}

} // namespace quillmere::scenario
