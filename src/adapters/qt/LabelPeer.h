#pragma once

#include "adapters/qt/ControlPeer.h"

class QLabel;

namespace quillmere::qt {

/// A label. The layout gives it its part to play (caption, unit, title, legend, help) as a look.
class LabelPeer final : public ControlPeer {
public:
    LabelPeer(FormPeer& form, ui::Control& control);

    [[nodiscard]] QLabel& label() const;
    /// Shows the legend: its lines side by side, the first one bold, the second one with the swatch of
    /// coded fields.
    void showAsLegend();

    bool mousePressed(QMouseEvent& event, QWidget& target) override;

protected:
    void mirror(ui::Property property) override;

private:
    void showCaption();

    bool legend_ = false;
};

} // namespace quillmere::qt
