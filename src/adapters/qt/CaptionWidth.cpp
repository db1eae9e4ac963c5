#include "adapters/qt/CaptionWidth.h"

#include <QFontMetrics>
#include <QLabel>

namespace quillmere::qt {

namespace {

QFontMetrics boldMetrics(const QLabel& caption) {
    QFont font = caption.font();
    font.setBold(true);
    return QFontMetrics(font);
}

} // namespace

int boldWidth(const QLabel& caption) { return boldMetrics(caption).horizontalAdvance(caption.text()) + 2; }

int balancedWidth(const QLabel& caption) {
    const QFontMetrics metrics = boldMetrics(caption);
    const auto heightAt = [&](int width) {
        return metrics.boundingRect(0, 0, width, 0, Qt::TextWordWrap, caption.text()).height();
    };
    const int height = heightAt(widestCaption);
    int width = widestCaption;
    while (heightAt(width - 1) == height)
        --width;
    return width + 2;
}

} // namespace quillmere::qt
