#pragma once

#include <string>
#include <vector>

namespace quillmere::cinterface {

/// The names of the functions that quillmere.h declares, sorted.
std::vector<std::string> declaredFunctions();

/// Those whose arguments begin with one of the texts.
std::vector<std::string> functionsBeginningWith(const std::vector<std::string>& arguments);

} // namespace quillmere::cinterface
