#include "adapters/qt/PanelLayout.h"

#include "adapters/qt/ControlGroup.h"
#include "adapters/qt/FieldGrid.h"
#include "adapters/qt/FieldScroll.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Icons.h"
#include "adapters/qt/LabelPeer.h"
#include "adapters/qt/LayoutParts.h"
#include "adapters/qt/PanelHeader.h"
#include "adapters/qt/Style.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <string_view>

namespace quillmere::qt {

namespace {

constexpr int helpHeight = 32;

/// Frames of the old drawing that only framed the help and the legend; both have places of their own.
bool isDrawnFrame(const ui::Control* control) {
    return control != nullptr && (control->name() == "Frm1" || control->name() == "Frm2");
}

/// The sign before the help text, which goes with the text.
class HelpSign final : public QLabel {
public:
    HelpSign(QLabel& help, QWidget* parent) : QLabel(parent) {
        setPixmap(icons::icon(icons::Glyph::Information, &Colours::mutedText).pixmap(16, 16));
        help.installEventFilter(this);
        // Shown before it has a place, it would be a window of its own in front of all others.
        if (help.text().isEmpty()) hide();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // The label's looks tell when it turns blank.
        if (event->type() == QEvent::DynamicPropertyChange)
            setVisible(!static_cast<const QLabel*>(watched)->text().isEmpty());
        return false;
    }
};

class PanelBuilder {
public:
    PanelBuilder(FormPeer& form, ui::UserControl& panel, QWidget& surface)
        : form_(form), panel_(panel), column_(new QVBoxLayout(&surface)) {}

    void build() {
        column_->setContentsMargins(12, 12, 12, 12);
        column_->setSpacing(10);
        group_ = groupControls(form_, panel_, [](const ui::Control& control) {
            const ui::Control* container = control.Container();
            return (container == nullptr || container == control.form()->find("frmCtrl") ||
                    isDrawnFrame(container)) &&
                   !isDrawnFrame(&control) && !isHeading(control);
        });
        addFieldCard();
        std::vector<ControlPeer*> buttons;
        for (ControlPeer* button : group_.buttons) {
            if (button != photoButton()) buttons.push_back(button);
        }
        if (!group_.grids.empty() || !buttons.empty()) addGridCard(*column_, group_.grids, buttons);
        for (ControlPeer* frame : group_.frames)
            addFrame(*frame);
        // Takes what is left where nothing with a stretch of its own shows, and next to nothing else.
        constexpr int overwhelming = 1000;
        for (int i = 0; i < column_->count(); ++i)
            column_->setStretch(i, column_->stretch(i) * overwhelming);
        column_->addStretch(1);
        placeWithin(group_);
    }

private:
    static bool isHeading(const ui::Control& control) {
        static constexpr std::array<std::string_view, 4> headings{"Title", "labOpt", "LabInterFace",
                                                                  "labExplain"};
        return std::ranges::find(headings, control.name()) != headings.end();
    }

    LabelPeer* heading(std::string_view name, const char* role) {
        auto* peer = dynamic_cast<LabelPeer*>(form_.peerOf(panel_.find(name)));
        if (peer != nullptr) setLook(peer->label(), "role", role);
        return peer;
    }

    ControlPeer* photoButton() const {
        return group_.images.empty() ? nullptr : form_.peerOf(panel_.find("cmdAddPhoto"));
    }

    void addHeader(QVBoxLayout& card) {
        auto* header = new PanelHeader;
        if (LabelPeer* title = heading("Title", "title"); title != nullptr) {
            header->setTitle(title->label());
            title->place();
        }
        if (LabelPeer* option = heading("labOpt", "pill"); option != nullptr) {
            header->setOption(option->label());
            option->place();
        }
        if (LabelPeer* legend = heading("LabInterFace", "legend"); legend != nullptr) {
            legend->showAsLegend();
            header->setLegend(legend->label());
            legend->place();
        }
        card.addWidget(header);
        card.addWidget(makeRule());
    }

    /// The photo stands like a field: its caption before it, and its button below.
    void addPhoto(FieldGrid& fields) {
        auto* picture = new QWidget;
        auto* row = new QHBoxLayout(picture);
        row->setContentsMargins(0, 0, 0, 0);
        auto* column = new QVBoxLayout;
        column->setSpacing(7);
        column->addWidget(group_.images.front()->widget());
        if (ControlPeer* button = photoButton(); button != nullptr) column->addWidget(button->widget());
        row->addLayout(column);
        row->addStretch(1);
        QLabel* caption = nullptr;
        if (!group_.notes.empty()) {
            caption = &group_.notes.front()->label();
            setLook(*caption, "role", "caption");
        }
        fields.setCorner(caption, picture);
    }

    void addFieldCard() {
        QFrame* card = makeCard();
        auto* inside = new QVBoxLayout(card);
        inside->setContentsMargins(0, 0, 0, 0);
        inside->setSpacing(0);
        addHeader(*inside);
        auto* fields = new FieldGrid(group_.fields);
        if (!group_.images.empty()) addPhoto(*fields);
        inside->addWidget(new FieldScroll(fields), 1);
        if (group_.images.empty()) {
            for (LabelPeer* note : group_.notes) {
                setLook(note->label(), "role", "note");
                note->label().setContentsMargins(20, 0, 20, 6);
                inside->addWidget(note->widget());
            }
        }
        addHelp(*inside);
        // Boxes for long texts share the room that is left with the lists below. A largest height would
        // not follow the width, as the heights of title and captions do.
        const bool wide = fields->hasWideFields();
        card->setSizePolicy(QSizePolicy::Preferred, wide ? QSizePolicy::Expanding : QSizePolicy::Preferred);
        column_->addWidget(card, wide ? 2 : 0);
        // Left to the layout it would show a round later, and the list would flash up alone before it.
        card->show();
    }

    void addHelp(QVBoxLayout& card) {
        LabelPeer* help = heading("labExplain", "help");
        auto* bar = new QWidget;
        bar->setProperty("role", "helpBar");
        bar->setAttribute(Qt::WA_StyledBackground);
        bar->setFixedHeight(helpHeight);
        auto* row = new QHBoxLayout(bar);
        row->setContentsMargins(20, 0, 20, 0);
        row->setSpacing(8);
        if (help != nullptr) {
            row->addWidget(new HelpSign(help->label(), bar));
            // The tail of a long help text must not widen the panel.
            help->label().setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
            row->addWidget(help->widget(), 1);
            help->place();
        }
        card.addWidget(bar);
    }

    void addFrame(ControlPeer& frame) {
        const ui::Control* container = frame.control();
        const ControlGroup group = groupControls(form_, panel_, [container](const ui::Control& control) {
            return control.Container() == container;
        });
        auto* inside = new QVBoxLayout(frame.surface());
        inside->setContentsMargins(0, 0, 0, 0);
        inside->setSpacing(10);
        if (!group.fields.empty()) {
            QFrame* card = makeCard();
            auto* rows = new QVBoxLayout(card);
            rows->setContentsMargins(1, 1, 1, 1);
            rows->addWidget(new FieldScroll(new FieldGrid(group.fields)));
            inside->addWidget(card);
        }
        if (!group.grids.empty() || !group.buttons.empty())
            addGridCard(*inside, group.grids, group.buttons, group.notes);
        placeWithin(group);
        column_->addWidget(frame.widget(), 1);
        frame.place();
    }

    FormPeer& form_;
    ui::UserControl& panel_;
    QVBoxLayout* column_;
    ControlGroup group_;
};

} // namespace

void layOutPanel(FormPeer& form, ui::UserControl& panel, QWidget& surface) {
    PanelBuilder(form, panel, surface).build();
}

} // namespace quillmere::qt
