#include "panels/PanelCatalogue.h"
#include "platform/ui/VerticalMenu.h"
#include "qt/MaintenanceTest.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <set>

namespace quillmere::test {

namespace {

using Complaints = std::vector<std::string>;

QRect placeOf(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint()), widget.size()}; }

/// Whether one of two widgets hides something of the other. What is scrolled out of sight hides nothing.
bool overlap(const QWidget& one, const QWidget& other) {
    if (one.parentWidget() == other.parentWidget()) return one.geometry().intersects(other.geometry());
    const auto seen = [](const QWidget& widget) {
        return widget.visibleRegion().boundingRect().translated(placeOf(widget).topLeft());
    };
    return seen(one).intersects(seen(other));
}

/// What stands on the panel: the widget, and what it is for the model.
struct Part {
    const ui::Control* control;
    const QWidget* widget;
};

bool isValue(const ui::Control& control) {
    return control.kind() == ui::Kind::TextBox || control.kind() == ui::Kind::MaskEdBox ||
           control.kind() == ui::Kind::CheckBox;
}

/// Looks at the panel on show, and gathers what is wrong with it.
class Inspection {
public:
    Inspection(const A1ctrlUser& panel, const QWidget& window)
        : panel_(panel), area_(*window.findChild<QWidget*>(QString::fromStdString(panel.name()))) {
        for (const auto& control : panel.Controls()) {
            const auto* widget = area_.findChild<QWidget*>(QString::fromStdString(control->name()));
            if (widget == nullptr || !widget->isVisible()) continue;
            if (isValue(*control)) values_.push_back({control.get(), widget});
            if (qobject_cast<const QLabel*>(widget) != nullptr) labels_.push_back({control.get(), widget});
        }
        std::ranges::stable_sort(values_, {}, [](const Part& part) { return part.control->TabIndex(); });
    }

    Complaints complaints() {
        checkThatFieldsShow();
        checkTexts();
        checkButtons();
        checkPlaces();
        checkOrder();
        checkCaptions();
        checkLooks();
        checkScrolling();
        return std::move(complaints_);
    }

private:
    void complain(const Part& part, const std::string& what) {
        complaints_.push_back(part.control->name() + " " + what);
    }

    void checkThatFieldsShow() {
        if (values_.empty()) complaints_.emplace_back("no field shows");
        for (const auto& control : panel_.Controls()) {
            const bool shows =
                std::ranges::any_of(values_, [&](const Part& part) { return part.control == control.get(); });
            if (isValue(*control) && control->Visible() && !shows)
                complaints_.push_back(control->name() + " does not show");
        }
    }

    /// A label whose text is wider or higher than the label.
    void checkTexts() {
        for (const Part& part : labels_) {
            const auto& label = *static_cast<const QLabel*>(part.widget);
            const QString role = label.property("role").toString();
            if (label.text().isEmpty() || role == QStringLiteral("legend")) continue;
            const QRect inside = label.contentsRect();
            const int flags = label.wordWrap() ? Qt::TextWordWrap : Qt::TextSingleLine;
            const QSize needed =
                label.fontMetrics().boundingRect(0, 0, inside.width(), 0, flags, label.text()).size();
            // The help runs on to the right as far as there is room.
            if (needed.width() > inside.width() && role != QStringLiteral("help"))
                complain(part, "too narrow");
            if (needed.height() > inside.height()) complain(part, "too low");
        }
    }

    void checkButtons() {
        for (const auto* button : area_.findChildren<QAbstractButton*>()) {
            if (!button->isVisible() || qobject_cast<const QCheckBox*>(button) != nullptr) continue;
            const QString text = QString(button->text()).remove(u'&');
            if (button->fontMetrics().horizontalAdvance(text) > button->contentsRect().width() - 20 &&
                !text.isEmpty())
                complaints_.push_back(button->objectName().toStdString() + " too narrow");
        }
    }

    void checkPlaces() {
        std::vector<Part> parts = values_;
        parts.insert(parts.end(), labels_.begin(), labels_.end());
        for (std::size_t i = 0; i < parts.size(); ++i) {
            if (!contentsAround(*parts[i].widget).contains(placeOf(*parts[i].widget)))
                complain(parts[i], "outside of the panel");
            for (std::size_t j = 0; j < i; ++j) {
                if (overlap(*parts[i].widget, *parts[j].widget))
                    complain(parts[i], "over " + parts[j].control->name());
            }
        }
    }

    /// What can be seen or scrolled to.
    QRect contentsAround(const QWidget& widget) const {
        for (const QWidget* around = widget.parentWidget(); around != &area_;
             around = around->parentWidget()) {
            if (qobject_cast<const QScrollArea*>(around->parentWidget()->parentWidget()) != nullptr)
                return placeOf(*around);
        }
        return placeOf(area_);
    }

    /// Rows from top to bottom, and in a row from left to right, as the focus goes.
    void checkOrder() {
        for (std::size_t i = 1; i < values_.size(); ++i) {
            const QRect before = placeOf(*values_[i - 1].widget);
            const QRect now = placeOf(*values_[i].widget);
            const bool sameRow = std::abs(now.center().y() - before.center().y()) < 8;
            const bool follows = sameRow ? now.left() > before.right() : now.top() > before.bottom();
            if (!follows) complain(values_[i], "not behind " + values_[i - 1].control->name());
        }
    }

    /// A caption stands left of its field, or above it; a unit right of it, close by.
    void checkCaptions() {
        constexpr int closeBy = 16;
        for (const Part& value : values_) {
            const std::string& name = value.control->name();
            if (!name.ends_with("_v")) continue;
            const std::string stem = name.substr(0, name.size() - 2);
            const QRect field = placeOf(*value.widget);
            for (const Part& label : labels_) {
                const QRect place = placeOf(*label.widget);
                if (label.control->name() == stem + "_c") {
                    const bool left = std::abs(place.center().y() - field.center().y()) <= 2 &&
                                      place.right() < field.left() && place.right() + closeBy > field.left();
                    const bool above = place.bottom() < field.top() && place.bottom() + closeBy > field.top();
                    if (!left && !above) complain(label, "not at its field");
                } else if (label.control->name() == stem + "_u") {
                    if (place.left() <= field.right() || place.left() > field.right() + closeBy)
                        complain(label, "not behind its field");
                }
            }
        }
    }

    /// Coded fields are blue and lead to their codes; required captions are bold.
    void checkLooks() {
        for (const Part& part : values_) {
            const auto* box = dynamic_cast<const ui::TextBox*>(part.control);
            if (box == nullptr || box->MultiLine()) continue;
            const bool blue = box->Locked() && part.widget->property("coded").toBool();
            const bool action = std::ranges::any_of(part.widget->findChildren<QAbstractButton*>(),
                                                    [](const auto* button) { return button->isVisible(); });
            if (blue != action) complain(part, "has no dots, or has them for nothing");
            if (box->Locked() && !blue) complain(part, "coded and not blue");
        }
        for (const Part& part : labels_) {
            const auto& label = static_cast<const ui::Label&>(*part.control);
            if (label.name().ends_with("_c") && label.FontBold() != part.widget->font().bold())
                complain(part, "bold where it is not required");
        }
    }

    void checkScrolling() {
        for (const auto* area : area_.findChildren<QScrollArea*>()) {
            if (area->isVisible() && area->widget()->width() > area->viewport()->width())
                complaints_.emplace_back("wider than the window");
            // Below a panel without long texts and lists there is room left.
            const bool room = area->isVisible() && placeOf(*area).bottom() + 200 < placeOf(area_).bottom() &&
                              !hasWideParts();
            if (room && area->verticalScrollBar()->maximum() > 0)
                complaints_.emplace_back("scrolls without need");
        }
    }

    bool hasWideParts() const {
        const auto parts = area_.findChildren<QAbstractScrollArea*>();
        return std::ranges::any_of(parts, [](const auto* part) {
            return part->isVisible() && qobject_cast<const QScrollArea*>(part) == nullptr;
        });
    }

    const A1ctrlUser& panel_;
    const QWidget& area_;
    /// In tab order.
    std::vector<Part> values_;
    std::vector<Part> labels_;
    Complaints complaints_;
};

class PanelLayoutTest : public MaintenanceTest {
protected:
    PanelLayoutTest() { sample::build(*whole, {}); }

    /// The first record of a sponsorship type whose project is still being applied for.
    std::string recordOf(int type) const {
        constexpr int unitType = 6;
        const std::string from = type == unitType ? "B01 R join P01 on P01.A00=R.A00 where "
                                                  : "A01 R join P01 on P01.A00=R.A00 where A0136='0" +
                                                        std::to_string(type) + "' and ";
        return whole->query("select R.A00 from " + from + "P0123='01' order by R.A00").at(0, 0).toText();
    }

    /// Goes to each panel that the menu of the record leads to and that has not been seen.
    void inspectPanels(frmPersonWh& form) {
        QWidget& window = windowNamed("frmPersonWh");
        const auto groups = form.menu().groups();
        for (std::size_t g = 0; g < groups.size(); ++g) {
            for (std::size_t i = 0; i < groups[g].items.size(); ++i) {
                ASSERT_TRUE(form.menu().clickItem(static_cast<int>(g) + 1, static_cast<int>(i) + 1));
                const A1ctrlUser& panel = *form.GetUserCtrl();
                if (!seen.insert(std::string(panel.row().className)).second) continue;
                for (const QSize size : {QSize(776, 744), QSize(1280, 800), QSize(1600, 1000)}) {
                    window.resize(size);
                    settle();
                    EXPECT_EQ(Complaints{}, Inspection(panel, window).complaints())
                        << panel.name() << " " << size.width();
                }
            }
        }
    }

    std::shared_ptr<data::Connection> whole = sqlite::openInMemory();
    std::set<std::string> seen;
};

} // namespace

TEST_F(PanelLayoutTest, EveryPanelOfTheCatalogueIsLaidOutWell) {
    screen.person.answerWhenAsked("数据被修改且未保存，是否保存？", ui::Answer::No);
    for (int type = 1; type <= 7; ++type) {
        screen.person.onForm([&](ui::Form& form) { inspectPanels(static_cast<frmPersonWh&>(form)); },
                             "frmPersonWh");
        IUserCtrl host;
        host.setConnection(whole);
        host.setOperationType(4);
        host.setZZtype(static_cast<std::int16_t>(type));
        host.setPersonID(recordOf(type));
        (void)host.ShowPersonWh();
    }
    std::set<std::string> all;
    for (const PanelRow& row : panelCatalogue())
        all.insert(std::string(row.className));
    EXPECT_EQ(all, seen);
}

} // namespace quillmere::test
