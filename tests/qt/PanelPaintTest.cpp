#include "qt/MaintenanceTest.h"

#include <QApplication>
#include <QTest>

#include <set>

namespace quillmere::test {

namespace {

/// Where on its window a widget stood each time that it was painted.
class PaintedPlaces final : public QObject {
public:
    explicit PaintedPlaces(const char* name) : name_(QLatin1String(name)) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
        auto* widget = static_cast<QWidget*>(watched);
        // A list is painted by its viewport.
        if (widget->parentWidget() != nullptr && widget->parentWidget()->objectName() == name_)
            widget = widget->parentWidget();
        if (widget->objectName() == name_) {
            const QPoint place = widget->mapTo(widget->window(), QPoint());
            places.insert({place.x(), place.y()});
        }
        return false;
    }

    std::set<std::pair<int, int>> places;

private:
    QString name_;
};

using PanelPaintTest = MaintenanceTest;

} // namespace

TEST_F(PanelPaintTest, AnotherPanelIsPaintedOnlyWhenItIsLaidOut) {
    maintain([](frmPersonWh&) {
        clickMenu(1, 3);
        const PaintedPlaces list("DGItems");
        const PaintedPlaces field("A02_A0205_v");
        clickMenu(1, 2);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !list.places.empty() && !field.places.empty(); }));
        const QWidget& now = widgetNamed("A02_A0205_v");
        const QPoint rests = now.mapTo(now.window(), QPoint());
        EXPECT_EQ((std::set<std::pair<int, int>>{{rests.x(), rests.y()}}), field.places);
        // That of the panel before, if it was painted once more, and its own.
        EXPECT_EQ(1U, list.places.size());
    });
}

} // namespace quillmere::test
