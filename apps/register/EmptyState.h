#pragma once

#include <QString>
#include <QWidget>

#include <array>
#include <functional>
#include <vector>

class QLabel;
class QPushButton;

namespace quillmere::host {

/// What stands in place of the list when there is nothing to list: what that means, and ways on.
class EmptyState final : public QWidget {
public:
    struct WayOn {
        QString caption;
        std::function<void()> take;
    };

    EmptyState();

    /// At most three ways on.
    void tell(const QString& title, const QString& hint, std::vector<WayOn> ways);

private:
    QLabel* title_ = nullptr;
    QLabel* hint_ = nullptr;
    std::array<QPushButton*, 3> buttons_{};
    std::vector<WayOn> ways_;
};

} // namespace quillmere::host
