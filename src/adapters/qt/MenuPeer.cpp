#include "adapters/qt/MenuPeer.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/Icons.h"
#include "adapters/qt/QtText.h"
#include "adapters/qt/Style.h"

#include "platform/ui/VerticalMenu.h"

#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include <array>

namespace quillmere::qt {

namespace {

/// The groups' icons, in their order; a further group starts over.
constexpr std::array groupIcons{icons::Glyph::Person, icons::Glyph::Folder, icons::Glyph::Calendar,
                                icons::Glyph::Chart, icons::Glyph::Check};

QVBoxLayout* bareColumn(QWidget* widget) {
    auto* column = new QVBoxLayout(widget);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

/// A button of the accordion; long names are cut with dots and told by the tool tip.
class MenuButton final : public QPushButton {
public:
    MenuButton(const char* role, QWidget* parent) : QPushButton(parent) {
        setProperty("role", role);
        setFocusPolicy(Qt::NoFocus);
        setFlat(true);
    }

    void caption(const QString& text) {
        caption_ = text;
        setAccessibleName(text);
        fit();
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QPushButton::resizeEvent(event);
        fit();
    }

private:
    void fit() {
        constexpr int edges = 56;
        const QString shown = fontMetrics().elidedText(caption_, Qt::ElideRight, width() - edges);
        setText(QString(shown).replace(QLatin1Char('&'), QStringLiteral("&&")));
        setToolTip(shown == caption_ ? QString() : caption_);
    }

    QString caption_;
};

} // namespace

MenuPeer::MenuPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QScrollArea(&form.window())) {
    auto& area = *static_cast<QScrollArea*>(widget());
    area.setProperty("role", "menu");
    area.setFocusPolicy(Qt::NoFocus);
    area.setFrameShape(QFrame::NoFrame);
    area.setWidgetResizable(true);
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* content = new QWidget;
    content->setProperty("role", "menuContent");
    column_ = bareColumn(content);
    const int count = static_cast<int>(as<ui::VerticalMenu>().groups().size());
    for (int number = 1; number <= count; ++number)
        addGroup(number);
    column_->addStretch(1);
    area.setWidget(content);
    showItems();
}

void MenuPeer::addGroup(int number) {
    Group group;
    auto* header = new MenuButton("menuGroup", nullptr);
    const auto place = static_cast<std::size_t>(number) - 1;
    header->setObjectName(QStringLiteral("%1_%2").arg(widget()->objectName()).arg(number));
    header->setIcon(icons::icon(groupIcons[place % groupIcons.size()], &Colours::menuIcon));
    header->setIconSize({18, 18});
    header->caption(toQt(as<ui::VerticalMenu>().groups()[place].caption));
    connect(header, &QPushButton::clicked, this, [this, number] {
        guarded([this, number] {
            if (this->control() == nullptr) return;
            this->form().perform([this, number] { as<ui::VerticalMenu>().openByPerson(number); });
        });
    });
    group.header = header;
    group.area = new QWidget;
    group.area->setProperty("role", "menuItems");
    group.column = bareColumn(group.area);
    group.column->setContentsMargins(0, 4, 0, 6);
    column_->addWidget(group.header);
    column_->addWidget(group.area);
    groups_.push_back(group);
}

void MenuPeer::showItemsLater() {
    // Items are named one after the other; the menu shows when that is done.
    if (std::exchange(stale_, true)) return;
    QTimer::singleShot(0, this, [this] {
        guarded([this] {
            if (this->control() != nullptr) showItems();
        });
    });
}

void MenuPeer::showItems() {
    stale_ = false;
    const auto& models = as<ui::VerticalMenu>().groups();
    for (std::size_t g = 0; g < groups_.size() && g < models.size(); ++g) {
        Group& group = groups_[g];
        const auto& items = models[g].items;
        while (group.items.size() > items.size()) {
            group.items.back()->hide();
            group.items.back()->deleteLater();
            group.items.pop_back();
        }
        while (group.items.size() < items.size()) {
            const int item = static_cast<int>(group.items.size()) + 1;
            const int number = static_cast<int>(g) + 1;
            auto* button = new MenuButton("menuItem", nullptr);
            button->setObjectName(
                QStringLiteral("%1_%2_%3").arg(widget()->objectName()).arg(number).arg(item));
            connect(button, &QPushButton::clicked, this, [this, number, item] {
                guarded([this, number, item] {
                    if (this->control() != nullptr) as<ui::VerticalMenu>().clickItem(number, item);
                });
            });
            group.column->addWidget(button);
            group.items.push_back(button);
        }
        for (std::size_t i = 0; i < items.size(); ++i) {
            static_cast<MenuButton*>(group.items[i])->caption(toQt(items[i].caption));
        }
    }
    showState();
}

void MenuPeer::showState() {
    const auto& menu = as<ui::VerticalMenu>();
    for (std::size_t g = 0; g < groups_.size(); ++g) {
        const int number = static_cast<int>(g) + 1;
        const bool open = number == menu.OpenGroup();
        groups_[g].area->setVisible(open && !groups_[g].items.empty());
        setLook(*groups_[g].header, "open", open);
        for (std::size_t i = 0; i < groups_[g].items.size(); ++i) {
            const bool current =
                number == menu.AddressedGroup() && static_cast<int>(i) + 1 == menu.AddressedItem();
            setLook(*groups_[g].items[i], "current", current);
        }
    }
}

void MenuPeer::mirror(ui::Property property) {
    if (property == ui::Property::Items) showItemsLater();
    if (property == ui::Property::Current) showState();
}

} // namespace quillmere::qt
