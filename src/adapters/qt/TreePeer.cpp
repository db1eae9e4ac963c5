#include "adapters/qt/TreePeer.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Icons.h"
#include "adapters/qt/RowLooks.h"
#include "adapters/qt/Style.h"

#include <QPainter>
#include <QScrollBar>
#include <QTreeView>

#include <algorithm>

namespace quillmere::qt {

namespace {

constexpr int indentStep = 20;

class TreeWidget final : public QTreeView {
public:
    using QTreeView::QTreeView;

protected:
    void drawBranches(QPainter* painter, const QRect& area, const QModelIndex& index) const override {
        if (!model()->hasChildren(index)) return;
        constexpr int side = 14;
        QRect place(0, 0, side, side);
        place.moveCenter({area.right() - indentStep / 2 + 1, area.center().y()});
        const auto glyph = isExpanded(index) ? icons::Glyph::ChevronDown : icons::Glyph::ChevronRight;
        icons::paint(*painter, glyph, place, style::colours().mutedText);
    }
};

} // namespace

TreePeer::TreePeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new TreeWidget(&form.window()))
    , model_(new TreeModel(static_cast<ui::TreeView&>(control), this)) {
    view().setModel(model_);
    view().setItemDelegate(new RowLooks(style::listRowHeight, this));
    view().setUniformRowHeights(true);
    view().setHeaderHidden(true);
    view().setIndentation(indentStep);
    view().setFocusPolicy(Qt::TabFocus);
    view().setTabKeyNavigation(false);
    view().setExpandsOnDoubleClick(false);
    view().setEditTriggers(QAbstractItemView::NoEditTriggers);
    openAll();
    showSelection();
}

QTreeView& TreePeer::view() const { return *static_cast<QTreeView*>(widget()); }

ui::TreeView& TreePeer::tree() const { return as<ui::TreeView>(); }

void TreePeer::openAll() {
    for (const auto& node : tree().nodes()) {
        if (node->expanded && !node->children.empty()) view().expand(model_->indexOf(node.get()));
    }
}

void TreePeer::showExpansion(const ui::TreeView::Node& node) {
    if (node.children.empty()) return;
    const QModelIndex index = model_->indexOf(&node);
    if (view().isExpanded(index) != node.expanded) view().setExpanded(index, node.expanded);
}

void TreePeer::showSelection() {
    const ui::TreeView::Node* selected = tree().SelectedItem();
    const QModelIndex index = model_->indexOf(selected);
    if (view().currentIndex() == index) return;
    if (!index.isValid()) {
        view().selectionModel()->clear();
        return;
    }
    view().setCurrentIndex(index);
    // Qt has opened whatever hid the node; the model says what is open.
    for (const ui::TreeView::Node* above = selected->parent; above != nullptr; above = above->parent)
        showExpansion(*above);
}

void TreePeer::mirror(ui::Property property) {
    switch (property) {
    case ui::Property::Items:
        model_->reload();
        openAll();
        showSelection();
        break;
    case ui::Property::Rows:
        if (const auto* toggled = tree().lastToggled(); toggled != nullptr) showExpansion(*toggled);
        break;
    case ui::Property::Current:
        showSelection();
        break;
    default:
        break;
    }
}

bool TreePeer::keyPressed(QKeyEvent& event) {
    QModelIndex target;
    const int page = std::max(1, view().viewport()->height() / style::listRowHeight - 1);
    switch (event.key()) {
    case Qt::Key_Home:
        target = model_->index(0, 0);
        break;
    case Qt::Key_End:
        target = model_->indexOf(tree().lastShown());
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
        target = view().currentIndex();
        for (int i = 0; i < page && target.isValid(); ++i) {
            const bool up = event.key() == Qt::Key_PageUp;
            const QModelIndex next = up ? view().indexAbove(target) : view().indexBelow(target);
            if (!next.isValid()) break;
            target = next;
        }
        break;
    }
    default:
        return ControlPeer::keyPressed(event);
    }
    if (target.isValid()) form().perform([&] { tree().setSelectedItem(TreeModel::nodeOf(target)); });
    return true;
}

void TreePeer::toggle(ui::TreeView::Node& node) {
    form().perform([&] { tree().setExpanded(node, !node.expanded); });
}

bool TreePeer::mousePressed(QMouseEvent& event, QWidget& target) {
    if (&target != view().viewport()) return false;
    if (refusesFocus() || event.button() != Qt::LeftButton) return true;
    const QModelIndex index = view().indexAt(event.position().toPoint());
    if (!index.isValid()) return true;
    ui::TreeView::Node& node = *TreeModel::nodeOf(index);
    const bool onArrow = event.position().x() < view().visualRect(index).left();
    if (onArrow && !node.children.empty()) {
        toggle(node);
        return true;
    }
    form().perform([&] { tree().setSelectedItem(&node); });
    if (event.type() != QEvent::MouseButtonDblClick) {
        form().click(tree());
        return true;
    }
    form().doubleClick(tree());
    // A double click that chose nothing opens or closes the node.
    if (control() != nullptr && form().isOpen() && !node.children.empty()) toggle(node);
    return true;
}

} // namespace quillmere::qt
