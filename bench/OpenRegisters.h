#pragma once

#include "Options.h"
#include "Registers.h"
#include "WorkFolder.h"

#include <cstddef>
#include <map>

namespace quillmere::bench {

/// Registers by their size, each opened, and made if need be, when the first case works on it.
class OpenRegisters {
public:
    explicit OpenRegisters(const Options& options)
        : source_{.folder =
                      options.registers.empty() ? folder_.path() : std::filesystem::path(options.registers),
                  .server = options.server,
                  .keptQueries = options.keptQueries} {}

    [[nodiscard]] Register& of(std::size_t persons) {
        const auto found = open_.find(persons);
        if (found != open_.end()) return found->second;
        return open_.emplace(persons, openRegister(source_, persons)).first->second;
    }

private:
    // The registers are closed before the folder goes.
    WorkFolder folder_;
    Source source_;
    std::map<std::size_t, Register> open_;
};

} // namespace quillmere::bench
