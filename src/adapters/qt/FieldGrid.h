#pragma once

#include "adapters/qt/ControlGroup.h"

#include <QScrollArea>
#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

namespace quillmere::qt {

/// Fields with their captions in one, two or three columns, by the width at hand. Boxes for many lines
/// span all columns with their caption above.
class FieldGrid final : public QWidget {
public:
    explicit FieldGrid(const std::vector<Field>& fields);

    /// Something higher than a field that stands in the upper right corner, a photo for example. There
    /// may be no caption.
    void setCorner(QLabel* caption, QWidget* corner);
    [[nodiscard]] bool hasWideFields() const;
    void limitColumns(int most) { mostColumns_ = most; }

    /// As narrow as one column may be, whatever the columns on show need.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Slots;

    void prepare(const Field& field);
    [[nodiscard]] int columnsFor(int width) const;
    void arrange(int columns);
    void placeCorner(QGridLayout& grid);
    void placeField(QGridLayout& grid, const Field& field, int row, int column);

    std::vector<Field> fields_;
    QLabel* cornerCaption_ = nullptr;
    QWidget* corner_ = nullptr;
    int captionWidth_ = 0;
    int unitWidth_ = 0;
    int mostColumns_ = 3;
    int columns_ = 0;
};

/// Scrolls a grid of fields, and is as high as they are where there is room.
class FieldScroll final : public QScrollArea {
public:
    explicit FieldScroll(FieldGrid* fields);

    [[nodiscard]] QSize sizeHint() const override;
    /// A few rows, where there are that many.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quillmere::qt
