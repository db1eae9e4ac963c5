#pragma once

#include <QWidget>

namespace quillmere::qt {

class FormPeer;

/// The top-level window of a form.
class FormWindow final : public QWidget {
public:
    FormWindow(FormPeer& peer, QWidget* parent);

    /// Sizes the window by the form and the screen, and shows it over its parent.
    void open();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// Qt moves the focus nowhere by itself.
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QSize preferredSize() const;
    /// What the window stands in the middle of: the place that the form has taken on the screen, else
    /// the window below.
    [[nodiscard]] QRect placeWanted() const;

    FormPeer& peer_;
    bool opened_ = false;
};

} // namespace quillmere::qt
