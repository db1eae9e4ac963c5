#pragma once

#include <QWidget>

namespace quillmere::qt {

/// Frames a widget that has the keyboard, from above: what it frames neither moves nor needs a border.
class FocusRing final : public QWidget {
public:
    /// Stands beside `around`, in the same parent.
    explicit FocusRing(QWidget& around);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void follow();

    QWidget& around_;
};

} // namespace quillmere::qt
