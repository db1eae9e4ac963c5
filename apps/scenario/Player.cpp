#include "scenario/Player.h"

#include "scenario/Commands.h"

#include "platform/Error.h"
#include "platform/ui/Form.h"

#include <algorithm>
#include <array>

namespace quillmere::scenario {

namespace {

bool accepts(const Command& command, const Words& words) {
    const std::size_t arguments = words.size() - 1;
    return command.name == words.front() && arguments >= command.leastArguments &&
           arguments <= command.mostArguments;
}

const Command* find(std::span<const Command> commands, const Words& words) {
    for (const Command& command : commands) {
        if (accepts(command, words)) return &command;
    }
    return nullptr;
}

/// Runs a command of the script's own, whose failures are none of the system's.
void runOwn(const Command& command, Scene& scene, const Words& words) {
    try {
        command.run(scene, words);
    } catch (const Error& error) {
        throw Stop{error.description()};
    }
}

bool isName(const Words& words) {
    const auto bears = [&](std::span<const Command> commands) {
        return std::ranges::any_of(commands, [&](const Command& row) { return row.name == words.front(); });
    };
    return bears(setUpCommands()) || bears(personCommands()) || bears(lookCommands());
}

std::string_view nameOf(ui::Buttons buttons) { return buttons == ui::Buttons::Ok ? "ok" : "yesno"; }

std::string_view nameOf(ui::Icon icon) {
    static constexpr std::array<std::string_view, 5> names{"none", "information", "warning", "question",
                                                           "error"};
    return names[static_cast<std::size_t>(icon)];
}

} // namespace

void Player::breakOff(Stop stop, int line) {
    // A line that is read on inside a command has put in its own number.
    if (stop.line == 0) stop.line = line;
    scene_.out.silence();
    stopped_ = stop;
    throw stop;
}

void Player::play() {
    while (step()) {
    }
}

Words Player::take() {
    if (stopped_) throw Stop(*stopped_);
    const auto line = script_.next();
    if (!line) return {};
    scene_.out.line("> " + line->text);
    scene_.line = line->number;
    try {
        return splitWords(line->text);
    } catch (const Stop& reason) {
        breakOff(reason, line->number);
    }
}

bool Player::step() {
    const Words words = take();
    if (words.empty()) return false;
    const int line = scene_.line;
    try {
        run(words);
    } catch (const Stop& reason) {
        breakOff(reason, line);
    }
    return true;
}

void Player::run(const Words& words) {
    if (const Command* own = find(setUpCommands(), words)) {
        runOwn(*own, scene_, words);
    } else if (const Command* look = find(lookCommands(), words)) {
        runOwn(*look, scene_, words);
    } else if (const Command* person = find(personCommands(), words)) {
        (void)scene_.front();
        person->run(scene_, words);
    } else if (words.front() == "answer") {
        throw Stop{"there is no message box to answer"};
    } else if (words.front() == "choose") {
        throw Stop{"there is no file dialog to choose in"};
    } else if (isName(words)) {
        throw Stop{words.front() + " does not take these arguments"};
    } else {
        throw Stop{"unknown command " + words.front()};
    }
}

void Player::seeOpened(const ui::Form& form) { scene_.out.line("WINDOW " + form.Caption() + " opened"); }

void Player::seeClosed(const ui::Form& form) { scene_.out.line("WINDOW " + form.Caption() + " closed"); }

void Player::work(ui::Form& form) {
    struct InFront {
        std::vector<ui::Form*>& forms;
        ~InFront() { forms.pop_back(); }
    };
    scene_.forms.push_back(&form);
    const InFront inFront{scene_.forms};
    while (form.isOpen() && !scene_.toolkit.isFailing()) {
        if (!step())
            breakOff({"the script ends with the window " + form.Caption() + " open"}, script_.lastNumber());
    }
}

Words Player::takeBehindShots() {
    Words words = take();
    for (; !words.empty() && words.front() == "shot"; words = take()) {
        try {
            run(words);
        } catch (const Stop& reason) {
            breakOff(reason, script_.lastNumber());
        }
    }
    return words;
}

std::string Player::argumentOf(std::string_view command, const std::string& front, const Words& words) {
    if (words.empty()) breakOff({"the script ends with " + front}, script_.lastNumber());
    if (words.front() != command)
        breakOff({words.front() + " cannot be done with " + front}, script_.lastNumber());
    if (words.size() != 2) breakOff({words.front() + " does not take these arguments"}, script_.lastNumber());
    return words[1];
}

ui::Answer Player::answer(const ui::MessageBox& box) {
    scene_.out.line("MSG " + box.title + "|" + box.text + "|" + std::string(nameOf(box.buttons)) + "|" +
                    std::string(nameOf(box.icon)));
    const std::string button = argumentOf("answer", "a message box in front", takeBehindShots());
    const bool yesNo = box.buttons == ui::Buttons::YesNo;
    if (button == "ok" && !yesNo) return ui::Answer::Ok;
    if (button == "yes" && yesNo) return ui::Answer::Yes;
    if (button == "no" && yesNo) return ui::Answer::No;
    breakOff({"the message box has no button " + button}, script_.lastNumber());
}

std::string Player::choose(const ui::FileDialog& dialog) {
    scene_.out.line("FILEDIALOG " + dialog.filter + "|" + dialog.directory);
    const std::string name = argumentOf("choose", "a file dialog in front", take());
    return name == "none" ? std::string() : scene_.photos.pathOf(name);
}

void Player::hearBeep() { scene_.out.line("BEEP"); }

} // namespace quillmere::scenario
