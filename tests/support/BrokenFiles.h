#pragma once

#include "platform/Error.h"
#include "platform/files/FileSystem.h"

namespace quillmere::test {

/// The files in use for as long as this object lives: the machine's own, of which chosen operations
/// fail with a description.
class BrokenFiles final : public files::FileSystem {
public:
    BrokenFiles() { files::use(this); }
    ~BrokenFiles() override { files::use(nullptr); }

    /// Empty while the operation works.
    std::string existsFails;
    std::string copyFails;
    std::string removeFails;

    bool exists(std::string_view path) override {
        raise(existsFails);
        return files::machine().exists(path);
    }
    std::uint64_t size(std::string_view path) override { return files::machine().size(path); }
    std::string read(std::string_view path) override { return files::machine().read(path); }
    void removeForced(std::string_view path) override {
        raise(removeFails);
        files::machine().removeForced(path);
    }
    void copyOver(std::string_view from, std::string_view to) override {
        raise(copyFails);
        files::machine().copyOver(from, to);
    }

private:
    static void raise(const std::string& description) {
        if (!description.empty()) throw Error(Failure::PathAccess, description, "test");
    }
};

} // namespace quillmere::test
