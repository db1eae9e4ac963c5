#pragma once

#include <QWidget>

#include <string>

class QLabel;

namespace quillmere::qt {

class LabelPeer;

/// Whom the window is about: the name, and before it a small photo where the person has one and the bar
/// has room.
class NameStrip final : public QWidget {
public:
    /// Stands in `bar`, which `neighbour` shares with it.
    NameStrip(LabelPeer& name, const QWidget& neighbour, QWidget& bar);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showPhoto(const std::string& path);
    [[nodiscard]] bool hasRoom() const;

    class Photo;
    QLabel& name_;
    const QWidget& neighbour_;
    Photo* photo_;
};

} // namespace quillmere::qt
