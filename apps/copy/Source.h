#pragma once

#include "copy/Store.h"

#include <memory>

namespace quillmere {
struct RegisterAddress;
}

namespace quillmere::copy {

/// A register that is there, opened.
struct Source {
    std::shared_ptr<data::Connection> connection;
    std::unique_ptr<Store> store;
};

/// Raises what the system raises for a register that is missing, and for what is none.
[[nodiscard]] Source openSource(const RegisterAddress& address);

} // namespace quillmere::copy
