#pragma once

#include <QScrollArea>

namespace quillmere::qt {

class FieldGrid;

/// Scrolls a grid of fields, and is as high as they are where there is room.
class FieldScroll final : public QScrollArea {
public:
    explicit FieldScroll(FieldGrid* fields);

    [[nodiscard]] QSize sizeHint() const override;
    /// A few rows, where there are that many.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A bar only where the fields need more room than there is.
    void chooseBar();
};

} // namespace quillmere::qt
