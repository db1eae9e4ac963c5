#pragma once

#include "component/automation/ComPtr.h"

#include <string>

namespace quillmere::component {

/// A server in the process, for as long as this object lives.
class LoadedServer {
public:
    /// Raises Error (CannotCreateObject) for a file that is no server.
    explicit LoadedServer(std::string path);
    LoadedServer(const LoadedServer&) = delete;
    LoadedServer& operator=(const LoadedServer&) = delete;
    ~LoadedServer();

    [[nodiscard]] const std::string& path() const { return path_; }

    /// Raises Error (CannotCreateObject) with the server's result code in its description.
    [[nodiscard]] ComPtr<IUnknown> create(REFCLSID classId) const;
    [[nodiscard]] bool canUnload() const;

    void registerServer() const;
    void unregisterServer() const;

private:
    [[nodiscard]] void* function(const char* name) const;
    void callRegistration(const char* name) const;

    std::string path_;
    void* handle_;
};

} // namespace quillmere::component
