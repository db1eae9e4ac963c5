#include "adapters/qt/PanelHeader.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillmere::qt {

namespace {

constexpr int sideMargin = 20;
constexpr int gap = 12;
constexpr int lineHeight = 24;

} // namespace

PanelHeader::PanelHeader() {
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(sideMargin, 10, sideMargin, 10);
    lines->setSpacing(4);
    first_ = new QHBoxLayout;
    first_->setSpacing(gap);
    second_ = new QHBoxLayout;
    lines->addLayout(first_);
    lines->addLayout(second_);
    setMinimumHeight(lineHeight + 20);
}

void PanelHeader::setTitle(QLabel& title) {
    title_ = &title;
    title.setWordWrap(true);
    first_->addWidget(&title, 1);
}

void PanelHeader::setOption(QLabel& option) {
    option_ = &option;
    option.setFixedHeight(lineHeight);
    first_->addWidget(&option, 0, Qt::AlignVCenter);
}

void PanelHeader::setLegend(QLabel& legend) {
    legend_ = &legend;
    first_->addWidget(&legend, 0, Qt::AlignVCenter);
}

bool PanelHeader::fitsOneLine() const {
    int needed = 2 * sideMargin;
    if (title_ != nullptr) {
        title_->ensurePolished();
        needed += QFontMetrics(title_->font()).horizontalAdvance(title_->text()) + gap;
    }
    if (option_ != nullptr) needed += option_->sizeHint().width() + gap;
    return legend_ == nullptr || needed + legend_->sizeHint().width() <= width();
}

void PanelHeader::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const bool fits = fitsOneLine();
    if (legend_ == nullptr || fits == oneLine_) return;
    oneLine_ = fits;
    (fits ? second_ : first_)->removeWidget(legend_);
    (fits ? first_ : second_)->addWidget(legend_, 0, Qt::AlignVCenter);
}

} // namespace quillmere::qt
