#pragma once

#include "component/automation/Automation.h"

#include <unordered_map>

namespace quillmere::component {

/// Which objects of a class are of this server. An interface pointer alone does not tell whose object it is,
/// and those of another copy of the server in the process are strangers.
template <class Object>
class KnownObjects {
public:
    static void add(Object* object) { all()[object] = object; }
    static void remove(Object* object) { all().erase(object); }
    /// Null for a stranger.
    [[nodiscard]] static Object* find(IDispatch* object) {
        const auto found = all().find(object);
        return found == all().end() ? nullptr : found->second;
    }

private:
    static std::unordered_map<const IDispatch*, Object*>& all() {
        static std::unordered_map<const IDispatch*, Object*> objects;
        return objects;
    }
};

} // namespace quillmere::component
