#pragma once

#include "adapters/qt/ControlPeer.h"
#include "adapters/qt/TreeModel.h"

class QTreeView;

namespace quillmere::qt {

/// A tree of nodes. What is open and what is selected is the model's.
class TreePeer final : public ControlPeer {
public:
    TreePeer(FormPeer& form, ui::Control& control);

    bool keyPressed(QKeyEvent& event) override;
    bool mousePressed(QMouseEvent& event, QWidget& target) override;

protected:
    void mirror(ui::Property property) override;

private:
    [[nodiscard]] QTreeView& view() const;
    [[nodiscard]] ui::TreeView& tree() const;
    /// Opens what is open in the model, in a view in which nothing is open yet.
    void openAll();
    void showExpansion(const ui::TreeView::Node& node);
    void showSelection();
    void toggle(ui::TreeView::Node& node);

    TreeModel* model_;
};

} // namespace quillmere::qt
