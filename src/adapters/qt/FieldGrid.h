#pragma once

#include "adapters/qt/ControlGroup.h"
#include "adapters/qt/FieldPlaces.h"

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
    ~FieldGrid() override;

    /// Something higher than a field that stands in the upper right corner, a photo for example. There
    /// may be no caption.
    void setCorner(QLabel* caption, QWidget* corner);
    [[nodiscard]] bool hasWideFields() const;
    /// One column, flush with the other parts of a dialog.
    void standInDialog();

    /// As narrow as one column may be, whatever the columns on show need.
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// How the fields stand at a width.
    struct Shape {
        int columns = 1;
        /// Long captions take two lines, which leaves more to the boxes.
        bool wraps = false;
        bool operator==(const Shape&) const = default;
    };

    void prepare(const Field& field);
    /// A peer has gone with its control.
    void forget(const QObject* gone);
    [[nodiscard]] std::vector<Field> visibleFields() const;
    void findVisible();
    [[nodiscard]] int columnsFor(int width) const;
    [[nodiscard]] Shape shapeFor(int width) const;
    /// A place for each field, in their order.
    [[nodiscard]] std::vector<FieldPlace> placesIn(int columns) const;
    /// What the widest caption of each column needs.
    [[nodiscard]] std::vector<int> captionWidths(const Shape& shape,
                                                 const std::vector<FieldPlace>& places) const;
    void arrange(const Shape& shape);
    void placeCorner(QGridLayout& grid);
    /// Gives each column the width of its own captions; the boxes of all columns are equally wide.
    void setColumns(QGridLayout& grid, const std::vector<FieldPlace>& places);
    void placeField(QGridLayout& grid, const Field& field, const FieldPlace& place);
    [[nodiscard]] static int captionWidth(const QLabel& caption, bool wraps);

    std::vector<Field> all_;
    /// Those that show; a hidden one leaves no gap.
    std::vector<Field> fields_;
    QLabel* cornerCaption_ = nullptr;
    QWidget* corner_ = nullptr;
    /// What the captions need when the long ones wrap, and when none does.
    int captionWidth_ = 0;
    int longestCaption_ = 0;
    int unitWidth_ = 0;
    int mostColumns_ = 3;
    int sideMargin_ = 20;
    /// As many as make even rows.
    int evenColumns_ = 3;
    bool scheduled_ = false;
    Shape shape_;
};

} // namespace quillmere::qt
