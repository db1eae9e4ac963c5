#pragma once

#include "qt/RealPerson.h"

#include <QAccessible>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quillmere::test {

/// The events that assistive programs were told of while this lives.
class AccessibleEvents {
public:
    AccessibleEvents() {
        events().clear();
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->object() == nullptr) return;
            events().emplace_back(event->type(), event->object()->objectName().toStdString());
        });
    }
    AccessibleEvents(const AccessibleEvents&) = delete;
    AccessibleEvents& operator=(const AccessibleEvents&) = delete;
    ~AccessibleEvents() { QAccessible::installUpdateHandler(nullptr); }

    /// Qt sends nothing while nothing can listen.
    [[nodiscard]] static bool isPossible() {
        if (qEnvironmentVariableIsEmpty("QT_LINUX_ACCESSIBILITY_ALWAYS_ON")) return QAccessible::isActive();
        return waitUntil([] { return QAccessible::isActive(); });
    }

    [[nodiscard]] bool has(QAccessible::Event type, const std::string& object) const {
        return std::ranges::find(events(), std::pair(type, object)) != events().end();
    }

private:
    static std::vector<std::pair<QAccessible::Event, std::string>>& events() {
        static std::vector<std::pair<QAccessible::Event, std::string>> all;
        return all;
    }
};

} // namespace quillmere::test
