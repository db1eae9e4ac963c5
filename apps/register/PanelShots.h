#pragma once

#include "adapters/qt/Companion.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

class QWidget;

namespace quillmere {
class frmPersonWh;
}

namespace quillmere::data {
class Connection;
}

namespace quillmere::host {

/// Takes a picture of every panel of the catalogue, each once, in the window that a clerk works in. It
/// opens records of all sponsorship types in the stages of their projects and goes through the menu.
class PanelShots final : public qt::Companion {
public:
    struct Order {
        /// For the pictures, named after the panels' classes, and a page `index.html` with all of them; it
        /// is made when it is not there.
        QString directory;
        /// Skin file that the window wears; empty for the toolkit's own look.
        QString skin;
        /// Of the window; when it is invalid, the window is as high as each panel needs.
        QSize size;
    };

    explicit PanelShots(Order order);

    /// Prints the path of each picture, and their number. Raises std::exception for what went wrong, and
    /// for panels that no record led to.
    void run(const std::shared_ptr<data::Connection>& connection);

    void formOpened(ui::Form& form) override;
    [[nodiscard]] std::optional<ui::Answer> messageOpened(const ui::MessageBox& message) override;

private:
    /// What one opening of the window is for.
    struct Visit {
        std::int16_t sponsorshipType;
        /// Of the record's project, as stored. Each stage keeps other groups of the menu open for work.
        std::string_view stage;
        std::vector<int> groups;
    };
    struct Shot {
        QString className;
        QString file;
        QString place;
    };

    [[nodiscard]] static const std::vector<Visit>& visits();
    [[nodiscard]] static std::string recordFor(data::Connection& connection, const Visit& visit);
    void visitGroup(frmPersonWh& window, int group);
    void takePicture(const frmPersonWh& window, const std::string& className, const QString& place);
    void writeIndex() const;
    void requireAll() const;

    Order order_;
    const Visit* visit_ = nullptr;
    std::set<std::string> seen_;
    std::vector<Shot> shots_;
};

} // namespace quillmere::host
