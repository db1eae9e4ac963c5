#pragma once

namespace quillmere::component {

/// What keeps the server in memory: each object of it holds one of these.
class LifeToken {
public:
    LifeToken();
    ~LifeToken();
    LifeToken(const LifeToken&) = delete;
    LifeToken& operator=(const LifeToken&) = delete;
};

/// A host asks for the server to stay, or takes that back.
void lockServer(bool lock);
/// From now on the server stays for the life of the process.
void keepServer();
/// Nothing keeps the server.
[[nodiscard]] bool canUnload();

} // namespace quillmere::component
