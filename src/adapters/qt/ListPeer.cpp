#include "adapters/qt/ListPeer.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/RowLooks.h"
#include "adapters/qt/Style.h"

#include "platform/ui/ListBox.h"

#include <QListView>
#include <QTimer>

#include <algorithm>

namespace quillmere::qt {

/// The rows as of the last showing; the list itself may be ahead.
class ListPeer::Rows final : public QAbstractListModel {
public:
    explicit Rows(QObject* parent) : QAbstractListModel(parent) {}

    void show(const std::vector<std::string>& items) {
        beginResetModel();
        items_ = items;
        endResetModel();
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(items_.size());
    }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || role != Qt::DisplayRole) return {};
        return toQt(items_[static_cast<std::size_t>(index.row())]);
    }

private:
    std::vector<std::string> items_;
};

ListPeer::ListPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QListView(&form.window())), rows_(new Rows(this)) {
    list().setModel(rows_);
    list().setItemDelegate(new RowLooks(style::listRowHeight, this));
    list().setUniformItemSizes(true);
    list().setFocusPolicy(Qt::TabFocus);
    list().setEditTriggers(QAbstractItemView::NoEditTriggers);
    list().setMouseTracking(true);
    list().viewport()->setMouseTracking(true);
    showItems();
}

QListView& ListPeer::list() const { return *static_cast<QListView*>(widget()); }

void ListPeer::showItems() {
    stale_ = false;
    if (control() == nullptr) return;
    rows_->show(as<ui::ListBox>().items());
    showSelection();
}

void ListPeer::showItemsLater() {
    // A long list is filled row by row; it shows when that is done.
    if (std::exchange(stale_, true)) return;
    QTimer::singleShot(0, this, [this] {
        guarded([this] {
            if (stale_) showItems();
        });
    });
}

void ListPeer::showSelection() {
    if (stale_) return;
    const int row = as<ui::ListBox>().ListIndex();
    if (row < 0)
        list().setCurrentIndex({});
    else
        list().setCurrentIndex(rows_->index(row));
}

void ListPeer::mirror(ui::Property property) {
    if (property == ui::Property::Items) showItemsLater();
    if (property == ui::Property::Current) showSelection();
}

bool ListPeer::keyPressed(QKeyEvent& event) {
    auto& box = as<ui::ListBox>();
    const bool up = event.key() == Qt::Key_PageUp;
    if (!up && event.key() != Qt::Key_PageDown) return ControlPeer::keyPressed(event);
    const int page = std::max(1, list().viewport()->height() / style::listRowHeight - 1);
    const int row = std::clamp(box.ListIndex() + (up ? -page : page), 0, box.ListCount() - 1);
    if (box.ListCount() > 0) form().perform([&] { box.setListIndex(row); });
    return true;
}

void ListPeer::mouseMoved(QMouseEvent& event, QWidget& target) {
    if (&target != list().viewport()) return;
    as<ui::ListBox>().setRowUnderPointer(list().indexAt(event.position().toPoint()).row());
    tellMouseMove(event);
}

bool ListPeer::mousePressed(QMouseEvent& event, QWidget& target) {
    if (&target != list().viewport()) return false;
    auto& box = as<ui::ListBox>();
    if (refusesFocus() || event.button() != Qt::LeftButton) return true;
    const int row = list().indexAt(event.position().toPoint()).row();
    if (row >= 0 && row < box.ListCount()) form().perform([&] { box.setListIndex(row); });
    if (event.type() == QEvent::MouseButtonDblClick && control() != nullptr) form().doubleClick(box);
    return true;
}

} // namespace quillmere::qt
