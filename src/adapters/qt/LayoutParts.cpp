#include "adapters/qt/LayoutParts.h"

#include "adapters/qt/FocusRing.h"
#include "adapters/qt/LabelPeer.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace quillmere::qt {

namespace {

constexpr int lowestGrid = 130;

/// Whether there is anything to see in it: a table without columns is none.
bool hasSubstance(const QWidget& widget) {
    if (widget.isHidden()) return false;
    const auto* table = qobject_cast<const QTableView*>(&widget);
    return table == nullptr || table->model()->columnCount() != 0;
}

/// A card that shows while something in it does.
class GridCard final : public QFrame {
public:
    void watch(QWidget& widget) {
        watched_.push_back(&widget);
        widget.installEventFilter(this);
        if (const auto* table = qobject_cast<QTableView*>(&widget); table != nullptr) {
            connect(table->model(), &QAbstractItemModel::modelReset, this, [this] { refresh(); });
        }
    }

    void refresh() {
        setVisible(
            std::ranges::any_of(watched_, [](const QWidget* widget) { return hasSubstance(*widget); }));
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) refresh();
        return false;
    }

private:
    std::vector<QWidget*> watched_;
};

} // namespace

QFrame* makeCard() {
    auto* card = new QFrame;
    card->setProperty("role", "card");
    return card;
}

QFrame* makeRule() {
    auto* rule = new QFrame;
    rule->setProperty("role", "rule");
    rule->setFixedHeight(1);
    return rule;
}

void placeWithin(const ControlGroup& group) {
    for (const Field& field : group.fields) {
        if (field.caption != nullptr) field.caption->place();
        if (field.unit != nullptr) field.unit->place();
        field.editor->place();
    }
    for (const auto* list : {&group.images, &group.lists, &group.grids, &group.buttons, &group.tabs}) {
        for (ControlPeer* peer : *list)
            peer->place();
    }
    for (LabelPeer* note : group.notes)
        note->place();
}

void addGridCard(QVBoxLayout& column, const std::vector<ControlPeer*>& grids,
                 const std::vector<ControlPeer*>& buttons, const std::vector<LabelPeer*>& notes) {
    auto* card = new GridCard;
    card->setProperty("role", "card");
    auto* inside = new QVBoxLayout(card);
    // The heading reaches the border; the last row keeps off the round corners.
    inside->setContentsMargins(0, 0, 0, 4);
    inside->setSpacing(0);
    if (!buttons.empty() || !notes.empty()) {
        card->setProperty("headed", true);
        auto* row = new QHBoxLayout;
        row->setContentsMargins(14, 8, 8, 8);
        row->setSpacing(8);
        for (LabelPeer* note : notes) {
            setLook(note->label(), "role", "caption");
            row->addWidget(note->widget());
        }
        row->addStretch(1);
        for (ControlPeer* button : buttons)
            row->addWidget(button->widget());
        inside->addLayout(row);
    }
    for (ControlPeer* grid : grids) {
        grid->widget()->setMinimumHeight(lowestGrid);
        inside->addWidget(grid->widget(), 1);
        new FocusRing(*grid->widget());
    }
    for (const auto* list : {&grids, &buttons}) {
        for (ControlPeer* peer : *list)
            card->watch(*peer->widget());
    }
    column.addWidget(card, 1);
    card->refresh();
}

} // namespace quillmere::qt
