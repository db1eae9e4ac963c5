#pragma once

#include <QWidget>

class QBoxLayout;
class QLabel;

namespace quillmere::qt {

/// The head of a panel: title, what is being done, and the legend, which moves to a line of its own
/// where the panel is too narrow for all three.
class PanelHeader final : public QWidget {
public:
    PanelHeader();

    /// Each at most once, in this order.
    void setTitle(QLabel& title);
    void setOption(QLabel& option);
    void setLegend(QLabel& legend);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] bool fitsOneLine() const;

    QBoxLayout* first_;
    QBoxLayout* second_;
    QLabel* title_ = nullptr;
    QLabel* option_ = nullptr;
    QLabel* legend_ = nullptr;
    bool oneLine_ = true;
};

} // namespace quillmere::qt
