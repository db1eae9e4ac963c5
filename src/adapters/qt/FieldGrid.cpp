#include "adapters/qt/FieldGrid.h"

#include "adapters/qt/CaptionWidth.h"
#include "adapters/qt/LabelPeer.h"
#include "adapters/qt/Style.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QResizeEvent>
#include <QTimer>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace quillmere::qt {

namespace {

constexpr int twoColumnsFrom = 560;
constexpr int threeColumnsFrom = 860;
constexpr int narrowestEditor = 120;
/// What a box should have before a long caption may stand on one line.
constexpr int comfortableEditor = 160;
constexpr int memoHeight = 84;
constexpr int columnGap = 18;
constexpr int spacing = 8;
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

/// Whether every second field has the same caption: a date with each amount, for example.
bool comeInPairs(const std::vector<Field>& fields) {
    const auto captionOf = [&](std::size_t i) {
        return fields[i].caption == nullptr ? QString() : fields[i].caption->label().text();
    };
    if (fields.size() < 4 || fields.size() % 2 != 0 || captionOf(0) == captionOf(1)) return false;
    for (std::size_t i = 3; i < fields.size(); i += 2) {
        if (captionOf(i) != captionOf(1)) return false;
    }
    return true;
}

std::vector<QObject*> partsOf(const Field& field) {
    std::vector<QObject*> parts{field.editor};
    if (field.caption != nullptr) parts.push_back(field.caption);
    if (field.unit != nullptr) parts.push_back(field.unit);
    return parts;
}

} // namespace

FieldGrid::FieldGrid(const std::vector<Field>& fields) : all_(fields) {
    setProperty("role", "fields");
    for (const Field& field : all_) {
        prepare(field);
        field.editor->widget()->installEventFilter(this);
        for (QObject* part : partsOf(field))
            connect(part, &QObject::destroyed, this, [this](const QObject* gone) { forget(gone); });
    }
    findVisible();
    arrange({});
}

FieldGrid::~FieldGrid() {
    // The peers go with the widgets that stand here, when nothing is left that could forget them.
    for (const Field& field : all_) {
        for (QObject* part : partsOf(field))
            part->disconnect(this);
    }
}

void FieldGrid::forget(const QObject* gone) {
    for (std::vector<Field>* list : {&all_, &fields_}) {
        std::erase_if(*list, [gone](const Field& field) { return field.editor == gone; });
        for (Field& field : *list) {
            if (field.caption == gone) field.caption = nullptr;
            if (field.unit == gone) field.unit = nullptr;
        }
    }
}

std::vector<Field> FieldGrid::visibleFields() const {
    std::vector<Field> visible;
    std::ranges::copy_if(all_, std::back_inserter(visible), [](const Field& field) {
        return field.editor->control() != nullptr && field.editor->control()->Visible();
    });
    return visible;
}

void FieldGrid::findVisible() {
    fields_ = visibleFields();
    const auto narrow = std::ranges::count_if(fields_, [](const Field& field) { return !field.isWide(); });
    // Two rows of two look better than three fields and one.
    evenColumns_ = narrow == 2 || narrow == 4 || comeInPairs(fields_) ? 2 : mostColumns_;
}

bool FieldGrid::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool shows = event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent;
    if (!shows || scheduled_ || visibleFields() == fields_) return false;
    scheduled_ = true;
    // The field moves into its gap when its own event is over.
    QTimer::singleShot(0, this, [this] {
        scheduled_ = false;
        findVisible();
        arrange(shapeFor(width()));
    });
    return false;
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
    caption.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    captionWidth_ = std::max(captionWidth_, captionWidth(caption, true));
    longestCaption_ = std::max(longestCaption_, captionWidth(caption, false));
}

int FieldGrid::captionWidth(const QLabel& caption, bool wraps) {
    const int width = boldWidth(caption);
    return wraps && width > widestCaption ? balancedWidth(caption) : width;
}

void FieldGrid::setCorner(QLabel* caption, QWidget* corner) {
    cornerCaption_ = caption;
    corner_ = corner;
    if (caption != nullptr) {
        // As high as a field, so that it stands in line with the captions beside it.
        caption->setFixedHeight(style::fieldHeight);
        caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    arrange(shape_);
}

void FieldGrid::standInDialog() {
    mostColumns_ = 1;
    sideMargin_ = 0;
    arrange(shape_);
}

bool FieldGrid::hasWideFields() const { return std::ranges::any_of(all_, &Field::isWide); }

QSize FieldGrid::minimumSizeHint() const {
    constexpr int spacings = 24;
    return {captionWidth_ + narrowestEditor + unitWidth_ + 2 * sideMargin_ + spacings,
            QWidget::minimumSizeHint().height()};
}

int FieldGrid::columnsFor(int width) const {
    const int byWidth = width >= threeColumnsFrom ? 3 : width >= twoColumnsFrom ? 2 : 1;
    const int fitting = std::max(1, width / (captionWidth_ + narrowestEditor + unitWidth_ + columnGap + 16));
    return std::min({byWidth, fitting, mostColumns_, evenColumns_});
}

FieldGrid::Shape FieldGrid::shapeFor(int width) const {
    const int columns = columnsFor(width);
    const std::vector<int> captions = captionWidths({columns, false}, placesIn(columns));
    const int others =
        2 * sideMargin_ + (columns - 1) * columnGap + columns * (unitWidth_ + perColumn * spacing);
    const int room = width - others - std::accumulate(captions.begin(), captions.end(), 0);
    return {columns, captionWidth_ < longestCaption_ && room < columns * comfortableEditor};
}

void FieldGrid::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const Shape shape = shapeFor(width());
    if (shape != shape_) arrange(shape);
}

void FieldGrid::placeField(QGridLayout& grid, const Field& field, const FieldPlace& place) {
    const int first = place.column * perColumn;
    if (field.isWide()) {
        const int all = shape_.columns * perColumn - 1;
        if (field.caption != nullptr) grid.addWidget(field.caption->widget(), place.row, 0, 1, all);
        grid.addWidget(field.editor->widget(), place.row + 1, 0, 1, all);
        grid.setRowStretch(place.row + 1, 1);
        return;
    }
    grid.setRowMinimumHeight(place.row, style::fieldHeight);
    if (field.caption != nullptr) {
        QLabel& caption = field.caption->label();
        const bool wraps = shape_.wraps && boldWidth(caption) > widestCaption;
        const int column = grid.columnMinimumWidth(first);
        caption.setWordWrap(wraps);
        caption.setContentsMargins(wraps ? column - captionWidth(caption, true) : 0, 0, 0, 0);
        // A label that wraps would like to be wider than it needs to be.
        caption.setMaximumWidth(wraps ? column : QWIDGETSIZE_MAX);
        grid.addWidget(&caption, place.row, first);
    }
    const int span = field.unit == nullptr ? 2 : 1;
    grid.addWidget(field.editor->widget(), place.row, first + 1, 1, span);
    if (field.unit != nullptr) grid.addWidget(field.unit->widget(), place.row, first + 2);
}

void FieldGrid::placeCorner(QGridLayout& grid) {
    if (corner_ == nullptr) return;
    const int first = (shape_.columns - 1) * perColumn;
    const int rows = shape_.columns == 1 ? 1 : cornerRows;
    if (cornerCaption_ != nullptr) grid.addWidget(cornerCaption_, 0, first, rows, 1, Qt::AlignTop);
    grid.addWidget(corner_, 0, first + 1, rows, 2, Qt::AlignTop);
}

std::vector<int> FieldGrid::captionWidths(const Shape& shape, const std::vector<FieldPlace>& places) const {
    std::vector<int> widths(static_cast<std::size_t>(shape.columns), 0);
    if (cornerCaption_ != nullptr) widths.back() = boldWidth(*cornerCaption_);
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        if (fields_[i].isWide() || fields_[i].caption == nullptr) continue;
        int& widest = widths[static_cast<std::size_t>(places[i].column)];
        widest = std::max(widest, captionWidth(fields_[i].caption->label(), shape.wraps));
    }
    return widths;
}

std::vector<FieldPlace> FieldGrid::placesIn(int columns) const {
    std::vector<bool> wide;
    std::ranges::transform(fields_, std::back_inserter(wide), &Field::isWide);
    return placesFor(wide, columns, corner_ != nullptr);
}

void FieldGrid::setColumns(QGridLayout& grid, const std::vector<FieldPlace>& places) {
    const std::vector<int> captions = captionWidths(shape_, places);
    for (int column = 0; column < shape_.columns; ++column) {
        const int first = column * perColumn;
        grid.setColumnMinimumWidth(first, captions[static_cast<std::size_t>(column)]);
        grid.setColumnStretch(first + 1, 1);
        // Equal columns, whether or not a unit stands in this one.
        grid.setColumnMinimumWidth(first + 2, unitWidth_);
        if (column + 1 < shape_.columns) grid.setColumnMinimumWidth(first + 3, columnGap);
    }
}

void FieldGrid::arrange(const Shape& shape) {
    shape_ = shape;
    // A fresh layout, since rows and columns keep stretches and widths of the last arrangement.
    delete layout();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(sideMargin_, 14, sideMargin_, 14);
    grid->setHorizontalSpacing(spacing);
    grid->setVerticalSpacing(7);
    const std::vector<FieldPlace> places = placesIn(shape.columns);
    setColumns(*grid, places);
    placeCorner(*grid);
    for (std::size_t i = 0; i < fields_.size(); ++i)
        placeField(*grid, fields_[i], places[i]);
    // The last row takes what is left over.
    if (!hasWideFields()) grid->setRowStretch(grid->rowCount(), 1);
    updateGeometry();
}

} // namespace quillmere::qt
