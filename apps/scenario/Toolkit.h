#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace quillmere::scenario {

class Hand;
class Player;

/// What a scenario runs on. While one lives, its desktop is the one that the system uses.
class Toolkit {
public:
    Toolkit() = default;
    Toolkit(const Toolkit&) = delete;
    Toolkit& operator=(const Toolkit&) = delete;
    virtual ~Toolkit() = default;

    /// Who deals with what comes in front from now on; none to end it.
    virtual void employ(Player* player) = 0;
    [[nodiscard]] virtual Hand& hand() = 0;
    /// Writes a picture of what is in front. A toolkit without a screen does nothing.
    virtual void takePicture(const std::string& path) = 0;
    /// What is in front has failed, and is left as soon as its loop has control again.
    [[nodiscard]] virtual bool isFailing() const = 0;
};

/// The toolkit of that name; none when it was not built in.
[[nodiscard]] std::unique_ptr<Toolkit> makeToolkit(std::string_view name);

} // namespace quillmere::scenario
