#pragma once

#include "scenario/Host.h"
#include "scenario/PhotoFolder.h"
#include "scenario/Register.h"
#include "scenario/Stop.h"
#include "scenario/Toolkit.h"
#include "scenario/Transcript.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

class A1ctrlUser;

namespace ui {
class Control;
class Form;
} // namespace ui

} // namespace quillmere

namespace quillmere::scenario {

/// What the commands of one script work on.
struct Scene {
    Scene(Transcript& transcript, Toolkit& screen, Engine& engine)
        : out(transcript), toolkit(screen), database(transcript, engine) {}

    Transcript& out;
    Toolkit& toolkit;
    Register database;
    Host host;
    PhotoFolder photos;
    /// Open forms, the one in front last.
    std::vector<ui::Form*> forms;
    /// Of the last `rows`.
    std::size_t rowsRead = 0;
    /// Expectations that did not hold.
    int failures = 0;
    /// Of the command that runs.
    int line = 0;
    /// Directory for pictures of what is in front; empty when none are wanted.
    std::string pictures;

    /// The form in front. Raises Stop when none is open.
    [[nodiscard]] ui::Form& front() const;
};

/// The panel that stands on a form, none when there is none.
[[nodiscard]] A1ctrlUser* panelOn(const ui::Form& form);

/// A widget of the form in front, or of its panel, by name. Raises Stop when it is not there.
[[nodiscard]] ui::Control& findWidget(const Scene& scene, const std::string& name);

/// The same as a T; Stop, with the name of the kind, for a widget of another kind.
template <class T>
[[nodiscard]] T& findWidgetAs(const Scene& scene, const std::string& name, std::string_view kind) {
    auto* typed = dynamic_cast<T*>(&findWidget(scene, name));
    if (typed == nullptr) throw Stop{name + " is no " + std::string(kind)};
    return *typed;
}

} // namespace quillmere::scenario
