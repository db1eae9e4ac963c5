#pragma once

#include <QStyledItemDelegate>

namespace quillmere::qt {

/// Rows of lists, trees and grids: one height, and no dotted frame around the current cell.
class RowLooks final : public QStyledItemDelegate {
public:
    RowLooks(int height, QObject* parent) : QStyledItemDelegate(parent), height_(height) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width() + 12, height_};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus;
        // The chosen row looks the same whether or not the window is in front.
        option->state |= QStyle::State_Active;
    }

private:
    int height_;
};

} // namespace quillmere::qt
