#pragma once

#include "platform/ui/TreeView.h"

#include <QAbstractItemModel>

namespace quillmere::qt {

/// The nodes of a tree, as a Qt view asks for them: nothing is copied.
class TreeModel final : public QAbstractItemModel {
public:
    TreeModel(const ui::TreeView& tree, QObject* parent) : QAbstractItemModel(parent), tree_(&tree) {}

    /// Takes the nodes over anew.
    void reload();

    [[nodiscard]] QModelIndex indexOf(const ui::TreeView::Node* node) const;
    [[nodiscard]] static ui::TreeView::Node* nodeOf(const QModelIndex& index);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// The heading does not show, but is read out.
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] const std::vector<ui::TreeView::Node*>& childrenOf(const QModelIndex& parent) const;

    const ui::TreeView* tree_;
};

} // namespace quillmere::qt
