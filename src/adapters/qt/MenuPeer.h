#pragma once

#include "adapters/qt/ControlPeer.h"

#include <vector>

class QPushButton;
class QVBoxLayout;

namespace quillmere::qt {

/// The accordion: groups one below the other, the items of the open one between them. Group buttons
/// are named after the menu and the group ("VMenu1_2"), item buttons after both ("VMenu1_2_5").
class MenuPeer final : public ControlPeer {
public:
    MenuPeer(FormPeer& form, ui::Control& control);

protected:
    void mirror(ui::Property property) override;

private:
    struct Group {
        QPushButton* header = nullptr;
        QWidget* area = nullptr;
        QVBoxLayout* column = nullptr;
        std::vector<QPushButton*> items;
    };

    void addGroup(int number);
    void showItemsLater();
    void showItems();
    void showState();

    QVBoxLayout* column_ = nullptr;
    std::vector<Group> groups_;
    bool stale_ = false;
};

} // namespace quillmere::qt
