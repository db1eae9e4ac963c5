#pragma once

#include "adapters/qt/ControlPeer.h"

#include <QAbstractListModel>

class QListView;

namespace quillmere::ui {
class ListBox;
}

namespace quillmere::qt {

/// A list of texts of which one row may be selected.
class ListPeer final : public ControlPeer {
public:
    ListPeer(FormPeer& form, ui::Control& control);

    bool keyPressed(QKeyEvent& event) override;
    bool mousePressed(QMouseEvent& event, QWidget& target) override;
    void mouseMoved(QMouseEvent& event, QWidget& target) override;

protected:
    void mirror(ui::Property property) override;

private:
    class Rows;

    [[nodiscard]] QListView& list() const;
    void showItems();
    void showItemsLater();
    void showSelection();

    Rows* rows_;
    bool stale_ = false;
};

} // namespace quillmere::qt
