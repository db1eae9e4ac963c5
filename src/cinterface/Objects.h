#pragma once

#include "cinterface/Handles.h"
#include "quillmere/IUserCtrl.h"

#include <memory>

namespace quillmere::cinterface {

struct Database : Handled {
    std::shared_ptr<data::Connection> connection;
};

struct Entry : Handled {
    IUserCtrl control;
    /// Null until one is set.
    std::shared_ptr<Database> database;
};

} // namespace quillmere::cinterface
