#include "adapters/qt/TreeModel.h"

#include "adapters/qt/QtText.h"
#include "adapters/qt/Style.h"

namespace quillmere::qt {

void TreeModel::reload() {
    beginResetModel();
    endResetModel();
}

QModelIndex TreeModel::indexOf(const ui::TreeView::Node* node) const {
    if (node == nullptr) return {};
    return createIndex(static_cast<int>(node->index), 0, const_cast<ui::TreeView::Node*>(node));
}

ui::TreeView::Node* TreeModel::nodeOf(const QModelIndex& index) {
    return static_cast<ui::TreeView::Node*>(index.internalPointer());
}

const std::vector<ui::TreeView::Node*>& TreeModel::childrenOf(const QModelIndex& parent) const {
    return parent.isValid() ? nodeOf(parent)->children : tree_->roots();
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    const auto& children = childrenOf(parent);
    if (column != 0 || row < 0 || row >= static_cast<int>(children.size())) return {};
    return createIndex(row, 0, children[static_cast<std::size_t>(row)]);
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
    return index.isValid() ? indexOf(nodeOf(index)->parent) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    return static_cast<int>(childrenOf(parent).size());
}

int TreeModel::columnCount(const QModelIndex& /*parent*/) const { return 1; }

QVariant TreeModel::headerData(int /*section*/, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return QStringLiteral("名称");
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ui::TreeView::Node& node = *nodeOf(index);
    if (role == Qt::DisplayRole) return toQt(node.text);
    if (role == Qt::ForegroundRole) return style::toQColor(node.foreColor);
    return {};
}

} // namespace quillmere::qt
