#include "adapters/qt/DialogLayout.h"

#include "adapters/qt/FieldGrid.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/LabelPeer.h"
#include "adapters/qt/LayoutParts.h"
#include "adapters/qt/TabPeer.h"

#include "platform/text/Text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quillmere::qt {

namespace {

/// Roles of buttons by their names: what confirms, what leaves, and everything else at the left.
bool confirms(const ControlPeer& button) { return text::startsWithNoCase(button.control()->name(), "cmdOK"); }

bool leaves(const ControlPeer& button) {
    const std::string& name = button.control()->name();
    return text::startsWithNoCase(name, "cmdCancel") || text::startsWithNoCase(name, "cmdExit");
}

class DialogBuilder {
public:
    explicit DialogBuilder(FormPeer& form) : form_(form), column_(new QVBoxLayout(&form.window())) {}

    void build() {
        setLook(form_.window(), "role", "dialog");
        column_->setContentsMargins(16, 14, 16, 14);
        column_->setSpacing(10);
        const ControlGroup group = groupIn(nullptr, -1);
        buttons_ = group.buttons;
        fill(*column_, group);
        for (ControlPeer* frame : group.frames) {
            auto* inside = new QVBoxLayout(frame->surface());
            inside->setContentsMargins(0, 0, 0, 0);
            const ControlGroup within = groupIn(frame->control(), -1);
            fill(*inside, within);
            std::ranges::copy(within.buttons, std::back_inserter(buttons_));
            column_->addWidget(frame->widget(), 1);
            frame->place();
        }
        addButtons();
    }

private:
    ControlGroup groupIn(const ui::Control* container, int page) const {
        return groupControls(form_, form_.form(), [container, page](const ui::Control& control) {
            return control.Container() == container && (page < 0 || control.page() == page);
        });
    }

    void fill(QVBoxLayout& column, const ControlGroup& group) {
        for (ControlPeer* tabs : group.tabs)
            addTabs(column, *tabs);
        if (!group.images.empty()) addPictures(column, group);
        addFields(column, group);
        for (ControlPeer* list : group.lists)
            column.addWidget(list->widget(), 1);
        for (ControlPeer* grid : group.grids)
            column.addWidget(grid->widget(), 1);
        placeWithin(group);
    }

    void addTabs(QVBoxLayout& column, ControlPeer& peer) {
        column.addWidget(peer.widget(), 1);
        const auto& tabs = static_cast<const TabPeer&>(peer);
        for (int page = 0; page < tabs.count(); ++page) {
            auto* inside = new QVBoxLayout(&tabs.page(page));
            inside->setContentsMargins(0, 10, 0, 0);
            inside->setSpacing(8);
            fill(*inside, groupIn(peer.control(), page));
        }
    }

    /// Pictures side by side, each with its label below.
    void addPictures(QVBoxLayout& column, const ControlGroup& group) {
        auto* row = new QHBoxLayout;
        row->setSpacing(24);
        for (std::size_t i = 0; i < group.images.size(); ++i) {
            auto* picture = new QVBoxLayout;
            picture->setSpacing(8);
            group.images[i]->widget()->setMinimumSize(192, 256);
            picture->addWidget(group.images[i]->widget(), 1);
            if (i < group.notes.size()) {
                group.notes[i]->label().setAlignment(Qt::AlignCenter);
                group.notes[i]->label().setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
                picture->addWidget(group.notes[i]->widget());
            }
            row->addLayout(picture, 1);
        }
        column.addLayout(row, 1);
    }

    void addFields(QVBoxLayout& column, const ControlGroup& group) {
        const bool search = group.fields.size() == 1 && !group.lists.empty();
        if (search) {
            // One box over a list is what the list is searched by.
            if (group.fields.front().caption != nullptr)
                column.addWidget(group.fields.front().caption->widget());
            column.addWidget(group.fields.front().editor->widget());
        } else if (!group.fields.empty()) {
            auto* fields = new FieldGrid(group.fields);
            fields->standInDialog();
            column.addWidget(fields, 1);
        }
        if (!group.images.empty()) return;
        for (LabelPeer* note : group.notes) {
            setLook(note->label(), "role", "note");
            note->label().setWordWrap(true);
            column.addWidget(note->widget());
        }
    }

    void addButtons() {
        if (buttons_.empty()) return;
        auto* row = new QHBoxLayout;
        row->setSpacing(10);
        const auto add = [&](auto accepts) {
            for (ControlPeer* button : buttons_) {
                if (!accepts(*button)) continue;
                row->addWidget(button->widget());
                button->widget()->setMinimumWidth(60);
                // The buttons of a frame that is out of use are out of use with it.
                button->place();
            }
        };
        add([](const ControlPeer& button) { return !confirms(button) && !leaves(button); });
        row->addStretch(1);
        add(confirms);
        add(leaves);
        for (ControlPeer* button : buttons_) {
            if (confirms(*button)) setLook(*button->widget(), "primary", true);
        }
        column_->addLayout(row);
    }

    FormPeer& form_;
    QVBoxLayout* column_;
    std::vector<ControlPeer*> buttons_;
};

} // namespace

void layOutDialog(FormPeer& form) { DialogBuilder(form).build(); }

void putInto(QWidget& surface, ControlPeer& peer) {
    auto* column = qobject_cast<QVBoxLayout*>(surface.layout());
    if (column == nullptr) {
        column = new QVBoxLayout(&surface);
        column->setContentsMargins(0, 0, 0, 0);
    }
    column->addWidget(peer.widget(), 1);
    peer.place();
}

} // namespace quillmere::qt
