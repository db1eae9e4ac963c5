#pragma once

namespace quillmere::ui {
class Desktop;
}

namespace quillmere::component {

/// A toolkit is a module of its own, `quillmere-toolkit`, beside the server, so that a host which shows
/// nothing loads no toolkit and can unload the server. It exports one function, under this name: it makes the
/// desktop at the first call, keeps it for the life of the process, and may raise Error. Server and toolkit
/// come from one build.
constexpr const char* makeDesktopName = "quillmereMakeDesktop";
using MakeDesktop = ui::Desktop* (*)();

/// Null when there is no such module. Raises Error for one that cannot be loaded.
[[nodiscard]] MakeDesktop loadToolkitModule();

} // namespace quillmere::component
