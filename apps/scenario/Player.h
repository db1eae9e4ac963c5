#pragma once

#include "scenario/Scene.h"
#include "scenario/Script.h"

#include "platform/ui/Desktop.h"

#include <optional>
#include <string>

namespace quillmere::scenario {

/// Plays one script. It is the person before the screen: while a window, dialog or message box is in
/// front, the toolkit asks the player to deal with it, and the player reads on in the same script.
class Player {
public:
    Player(Script script, Scene& scene) : script_(std::move(script)), scene_(scene) {}

    /// Plays the script to its end. Raises Stop, with its line, when it cannot go on.
    void play();

    // What a toolkit tells and asks.

    void seeOpened(const ui::Form& form);
    void seeClosed(const ui::Form& form);
    /// Works on the form until it has closed.
    void work(ui::Form& form);
    [[nodiscard]] ui::Answer answer(const ui::MessageBox& box);
    /// The chosen path, empty for a cancelled dialog.
    [[nodiscard]] std::string choose(const ui::FileDialog& dialog);
    void hearBeep();

private:
    /// Takes and echoes the next line and gives its words; empty at the end of the script.
    [[nodiscard]] Words take();
    /// The next command, when there is one.
    bool step();
    void run(const Words& words);
    /// The next command that takes no picture of what is in front; those that do are run.
    [[nodiscard]] Words takeBehindShots();
    /// The argument of the one command that an open box or dialog takes, out of the words of a line.
    [[nodiscard]] std::string argumentOf(std::string_view command, const std::string& front,
                                         const Words& words);
    /// Ends the script: from now on nothing is printed and no line is read.
    [[noreturn]] void breakOff(Stop stop, int line);

    Script script_;
    Scene& scene_;
    /// Why the script was broken off: a toolkit may still ask while it unwinds.
    std::optional<Stop> stopped_;
};

} // namespace quillmere::scenario
