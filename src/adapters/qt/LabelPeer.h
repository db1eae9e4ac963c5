#pragma once

#include "adapters/qt/ControlPeer.h"

#include <functional>
#include <string>

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

    /// Whoever shows the picture beside the label: is told of the one it has now, and of each that follows.
    void onPicture(std::function<void(const std::string& path)> show);

    bool mousePressed(QMouseEvent& event, QWidget& target) override;

protected:
    void mirror(ui::Property property) override;

private:
    void showCaption();

    std::function<void(const std::string& path)> showPicture_;
    bool legend_ = false;
};

} // namespace quillmere::qt
