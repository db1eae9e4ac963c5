#include "adapters/qt/FieldGrid.h"

#include "adapters/qt/LabelPeer.h"
#include "adapters/qt/Style.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QResizeEvent>

#include <algorithm>

namespace quillmere::qt {

namespace {

constexpr int twoColumnsFrom = 560;
constexpr int threeColumnsFrom = 860;
constexpr int widestCaption = 150;
constexpr int narrowestEditor = 120;
constexpr int memoHeight = 84;
constexpr int cornerRows = 5;
constexpr int columnGap = 18;
constexpr int sideMargin = 20;
/// Columns of the layout that one column of fields takes: caption, editor, unit, gap.
constexpr int perColumn = 4;

void keepPlace(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

/// All boxes of a column are as wide as the column, whatever they would like to be.
void evenOut(QWidget& editor) {
    editor.setMinimumWidth(narrowestEditor);
    editor.setSizePolicy(QSizePolicy::Ignored, editor.sizePolicy().verticalPolicy());
    keepPlace(editor);
}

int boldWidth(const QLabel& label) {
    QFont font = label.font();
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(label.text()) + 2;
}

} // namespace

/// Deals out places row by row, around the corner.
class FieldGrid::Slots {
public:
    Slots(int columns, bool corner)
        : columns_(columns), cornerRows_(corner ? (columns > 1 ? cornerRows : 1) : 0) {
        if (corner && columns == 1) row_ = 1;
    }

    [[nodiscard]] std::pair<int, int> next() {
        const std::pair<int, int> place{row_, column_};
        if (++column_ >= columnsIn(row_)) newRow();
        return place;
    }

    /// The first of `count` rows that no field stands in yet.
    [[nodiscard]] int wholeRows(int count) {
        if (column_ != 0) newRow();
        row_ = std::max(row_, cornerRows_);
        const int first = row_;
        row_ += count;
        return first;
    }

    [[nodiscard]] int rowsUsed() const { return std::max(cornerRows_, column_ == 0 ? row_ : row_ + 1); }

private:
    [[nodiscard]] int columnsIn(int row) const {
        return columns_ > 1 && row < cornerRows_ ? columns_ - 1 : columns_;
    }

    void newRow() {
        ++row_;
        column_ = 0;
    }

    int columns_;
    int cornerRows_;
    int row_ = 0;
    int column_ = 0;
};

FieldGrid::FieldGrid(const std::vector<Field>& fields) : fields_(fields) {
    setProperty("role", "fields");
    for (const Field& field : fields_)
        prepare(field);
    arrange(1);
}

void FieldGrid::prepare(const Field& field) {
    QWidget& editor = *field.editor->widget();
    keepPlace(editor);
    if (field.isWide())
        editor.setMinimumHeight(memoHeight);
    else if (field.editor->control()->kind() != ui::Kind::CheckBox)
        evenOut(editor);
    if (field.unit != nullptr) {
        setLook(field.unit->label(), "role", "unit");
        keepPlace(field.unit->label());
        unitWidth_ = std::max(unitWidth_, field.unit->label().sizeHint().width());
        if (auto* line = qobject_cast<QLineEdit*>(&editor); line != nullptr)
            line->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    if (field.caption == nullptr) return;
    QLabel& caption = field.caption->label();
    setLook(caption, "role", "caption");
    keepPlace(caption);
    editor.setAccessibleName(QString(caption.text()).remove(QLatin1Char(' ')));
    if (field.isWide()) {
        caption.setWordWrap(true);
        caption.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
        return;
    }
    // Room for the bold form, so that nothing moves when a caption turns bold.
    const int width = boldWidth(caption);
    caption.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    caption.setWordWrap(width > widestCaption);
    caption.setMinimumWidth(std::min(width, widestCaption));
    captionWidth_ = std::max(captionWidth_, std::min(width, widestCaption));
}

void FieldGrid::setCorner(QLabel* caption, QWidget* corner) {
    cornerCaption_ = caption;
    corner_ = corner;
    if (caption != nullptr) {
        // As high as a field, so that it stands in line with the captions beside it.
        caption->setFixedHeight(style::fieldHeight);
        caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    arrange(std::max(1, columns_));
}

bool FieldGrid::hasWideFields() const { return std::ranges::any_of(fields_, &Field::isWide); }

QSize FieldGrid::minimumSizeHint() const {
    constexpr int spacings = 24;
    return {captionWidth_ + narrowestEditor + unitWidth_ + 2 * sideMargin + spacings,
            QWidget::minimumSizeHint().height()};
}

int FieldGrid::columnsFor(int width) const {
    const int byWidth = width >= threeColumnsFrom ? 3 : width >= twoColumnsFrom ? 2 : 1;
    const int fitting = std::max(1, width / (captionWidth_ + narrowestEditor + unitWidth_ + columnGap + 16));
    return std::min({byWidth, fitting, mostColumns_});
}

void FieldGrid::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int columns = columnsFor(width());
    if (columns != columns_) arrange(columns);
}

void FieldGrid::placeField(QGridLayout& grid, const Field& field, int row, int column) {
    const int first = column * perColumn;
    if (field.caption != nullptr) grid.addWidget(field.caption->widget(), row, first);
    const int span = field.unit == nullptr ? 2 : 1;
    grid.addWidget(field.editor->widget(), row, first + 1, 1, span);
    if (field.unit != nullptr) grid.addWidget(field.unit->widget(), row, first + 2);
}

void FieldGrid::placeCorner(QGridLayout& grid) {
    if (corner_ == nullptr) return;
    const int first = (columns_ - 1) * perColumn;
    const int rows = columns_ == 1 ? 1 : cornerRows;
    if (cornerCaption_ != nullptr) grid.addWidget(cornerCaption_, 0, first, rows, 1, Qt::AlignTop);
    grid.addWidget(corner_, 0, first + 1, rows, 2, Qt::AlignTop);
}

void FieldGrid::arrange(int columns) {
    columns_ = columns;
    // A fresh layout, since rows and columns keep stretches and widths of the last arrangement.
    delete layout();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(sideMargin, 14, sideMargin, 14);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(7);
    const int all = columns * perColumn - 1;
    for (int column = 0; column < columns; ++column) {
        grid->setColumnMinimumWidth(column * perColumn, captionWidth_);
        grid->setColumnStretch(column * perColumn + 1, 1);
        // Equal columns, whether or not a unit stands in this one.
        grid->setColumnMinimumWidth(column * perColumn + 2, unitWidth_);
        if (column + 1 < columns) grid->setColumnMinimumWidth(column * perColumn + 3, columnGap);
    }
    Slots places(columns, corner_ != nullptr);
    placeCorner(*grid);
    for (const Field& field : fields_) {
        if (!field.isWide()) {
            const auto [row, column] = places.next();
            grid->setRowMinimumHeight(row, style::fieldHeight);
            placeField(*grid, field, row, column);
            continue;
        }
        const int row = places.wholeRows(2);
        if (field.caption != nullptr) grid->addWidget(field.caption->widget(), row, 0, 1, all);
        grid->addWidget(field.editor->widget(), row + 1, 0, 1, all);
        grid->setRowStretch(row + 1, 1);
    }
    if (!hasWideFields()) grid->setRowStretch(places.rowsUsed(), 1);
    updateGeometry();
}

FieldScroll::FieldScroll(FieldGrid* fields) {
    setWidget(fields);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    fields->setAutoFillBackground(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize FieldScroll::sizeHint() const {
    const QWidget& fields = *widget();
    // Captions that run over two lines need a height that depends on the width.
    const bool known = fields.hasHeightForWidth() && isVisible();
    return {600, known ? fields.heightForWidth(viewport()->width()) : fields.sizeHint().height()};
}

QSize FieldScroll::minimumSizeHint() const {
    constexpr QSize fewRows(200, 96);
    return fewRows.boundedTo(sizeHint());
}

void FieldScroll::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (event->oldSize().width() != event->size().width()) updateGeometry();
}

bool FieldScroll::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return handled;
}

} // namespace quillmere::qt
