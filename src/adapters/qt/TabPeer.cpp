#include "adapters/qt/TabPeer.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/QtText.h"

#include "platform/ui/TabStrip.h"

#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace quillmere::qt {

TabPeer::TabPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new QWidget(&form.window())), bar_(new QTabBar), pages_(new QStackedWidget) {
    bar_->setObjectName(widget()->objectName() + QStringLiteral("_bar"));
    bar_->setFocusPolicy(Qt::TabFocus);
    bar_->setExpanding(false);
    bar_->setDrawBase(false);
    auto* column = new QVBoxLayout(widget());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar_);
    column->addWidget(pages_, 1);
    for (const std::string& caption : as<ui::TabStrip>().captions()) {
        bar_->addTab(toQt(caption));
        pages_->addWidget(new QWidget);
    }
    mirror(ui::Property::Page);
}

QWidget* TabPeer::focusTarget() const { return bar_; }

QWidget& TabPeer::page(int number) const { return *pages_->widget(number); }

int TabPeer::count() const { return pages_->count(); }

bool TabPeer::mousePressed(QMouseEvent& event, QWidget& target) {
    if (&target != bar_) return false;
    if (refusesFocus() || event.button() != Qt::LeftButton) return true;
    const int number = bar_->tabAt(event.position().toPoint());
    if (number >= 0) form().perform([&] { as<ui::TabStrip>().setTab(number); });
    return true;
}

void TabPeer::mirror(ui::Property property) {
    if (property != ui::Property::Page) return;
    bar_->setCurrentIndex(as<ui::TabStrip>().Tab());
    pages_->setCurrentIndex(as<ui::TabStrip>().Tab());
}

} // namespace quillmere::qt
