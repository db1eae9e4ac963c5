#pragma once

#include "adapters/qt/ControlPeer.h"

class QStackedWidget;
class QTabBar;

namespace quillmere::qt {

/// Pages with their tabs above.
class TabPeer final : public ControlPeer {
public:
    TabPeer(FormPeer& form, ui::Control& control);

    [[nodiscard]] QWidget* focusTarget() const override;
    /// Where the controls of a page stand, from 0.
    [[nodiscard]] QWidget& page(int number) const;
    [[nodiscard]] int count() const;

    bool mousePressed(QMouseEvent& event, QWidget& target) override;

protected:
    void mirror(ui::Property property) override;

private:
    QTabBar* bar_;
    QStackedWidget* pages_;
};

} // namespace quillmere::qt
