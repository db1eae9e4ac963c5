#include "register/FilterBar.h"

#include "register/Look.h"

#include <QAction>
#include <QButtonGroup>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace quillmere::host {

namespace {

/// A pause in typing that is taken for its end.
constexpr auto typingPause = std::chrono::milliseconds(150);
/// A search that takes longer than this shows how far it is.
constexpr auto unremarkable = std::chrono::milliseconds(500);
constexpr QColor hintColour(0x66, 0x75, 0x8C);
constexpr int searchWidth = 330;
constexpr int wholePermille = 1000;

const char* const placeholders[] = {"姓名、拼音首字母、身份证号或单位（Ctrl+F）",
                                    "单位名称、拼音首字母或代码（Ctrl+F）"};

/// A choice with the arrow that the style sheet leaves out.
class Choice final : public QComboBox {
    void paintEvent(QPaintEvent* event) override {
        constexpr int size = 16;
        QComboBox::paintEvent(event);
        QPainter painter(this);
        const QRect place(width() - size - 7, (height() - size) / 2, size, size);
        look::icon(look::Glyph::Down, hintColour)
            .paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }
};

} // namespace

FilterBar::FilterBar(const std::vector<SponsorshipType>& types, Listener listener)
    : listener_(std::move(listener)) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(18, 13, 18, 11);
    row->setSpacing(8);
    row->addWidget(buildKinds());
    count_ = new QLabel;
    count_->setProperty("role", "count");
    count_->setObjectName(QStringLiteral("count"));
    row->addSpacing(8);
    row->addWidget(count_);
    buildProgress();
    row->addWidget(stop_);
    row->addStretch(1);

    QList<Option> typeOptions{{QStringLiteral("全部资助类型"), 0}};
    for (const SponsorshipType& type : types)
        typeOptions << Option{type.name, static_cast<int>(type.number)};
    types_ = buildChoice("types", QStringLiteral("按资助类型筛选"), typeOptions);
    QList<Option> stageOptions{{QStringLiteral("全部阶段"), QString()}};
    for (const Stage& stage : stages)
        stageOptions << Option{QString::fromUtf8(stage.name), QLatin1String(stage.code)};
    stages_ = buildChoice("stages", QStringLiteral("按项目阶段筛选"), stageOptions);
    buildSearch();
    for (QWidget* part : std::initializer_list<QWidget*>{types_, stages_, search_})
        row->addWidget(part);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row);
    column->addWidget(progress_);
    follow();
}

QWidget* FilterBar::buildKinds() {
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    auto* group = new QButtonGroup(this);
    for (const Kind kind : {Kind::Persons, Kind::Units}) {
        const bool persons = kind == Kind::Persons;
        auto* segment = new QPushButton(persons ? QStringLiteral("人员") : QStringLiteral("单位"));
        segment->setObjectName(persons ? QStringLiteral("persons") : QStringLiteral("units"));
        segment->setAccessibleName(persons ? QStringLiteral("人员名单") : QStringLiteral("单位名单"));
        segment->setProperty("segment", true);
        segment->setCheckable(true);
        group->addButton(segment);
        connect(segment, &QPushButton::clicked, this, [this] {
            follow();
            pause_.stop();
            listener_.changed();
        });
        kinds_[static_cast<std::size_t>(kind)] = segment;
        row->addWidget(segment);
    }
    kinds_[0]->setChecked(true);
    return both;
}

QComboBox* FilterBar::buildChoice(const char* name, const QString& accessibleName,
                                  const QList<Option>& options) {
    auto* choice = new Choice;
    choice->setObjectName(QLatin1String(name));
    choice->setAccessibleName(accessibleName);
    choice->setToolTip(accessibleName);
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (const auto& [caption, value] : options)
        choice->addItem(caption, value);
    connect(choice, &QComboBox::currentIndexChanged, this, [this] {
        follow();
        pause_.stop();
        listener_.changed();
    });
    return choice;
}

void FilterBar::buildSearch() {
    search_ = new QLineEdit;
    search_->setObjectName(QStringLiteral("search"));
    search_->setAccessibleName(QStringLiteral("查找"));
    search_->setMinimumWidth(searchWidth);
    search_->installEventFilter(this);
    QAction* sign =
        search_->addAction(look::icon(look::Glyph::Search, hintColour), QLineEdit::LeadingPosition);
    sign->setText(QStringLiteral("到查找框"));
    connect(sign, &QAction::triggered, search_, qOverload<>(&QWidget::setFocus));
    clear_ = search_->addAction(look::icon(look::Glyph::Clear, hintColour), QLineEdit::TrailingPosition);
    clear_->setText(QStringLiteral("清除查找内容"));
    clear_->setToolTip(QStringLiteral("清除（Esc）"));
    clear_->setVisible(false);
    connect(clear_, &QAction::triggered, search_, &QLineEdit::clear);
    connect(search_, &QLineEdit::textChanged, this, &FilterBar::typed);
    connect(search_, &QLineEdit::returnPressed, this, [this] { listener_.goToList(); });
    pause_.setSingleShot(true);
    pause_.setInterval(typingPause);
    connect(&pause_, &QTimer::timeout, this, [this] { listener_.changed(); });
}

void FilterBar::buildProgress() {
    progress_ = new QProgressBar;
    progress_->setObjectName(QStringLiteral("progress"));
    progress_->setAccessibleName(QStringLiteral("查找进度"));
    progress_->setRange(0, wholePermille);
    progress_->setTextVisible(false);
    QSizePolicy policy = progress_->sizePolicy();
    // Room is kept for it, so that the list does not jump.
    policy.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(policy);
    progress_->setFixedHeight(3);
    stop_ = new QToolButton;
    stop_->setObjectName(QStringLiteral("stop"));
    stop_->setText(QStringLiteral("停止查找"));
    stop_->setAccessibleName(QStringLiteral("停止查找"));
    stop_->setProperty("quiet", true);
    stop_->setFocusPolicy(Qt::NoFocus);
    connect(stop_, &QToolButton::clicked, this, [this] { listener_.stopped(); });
    patience_.setSingleShot(true);
    patience_.setInterval(unremarkable);
    connect(&patience_, &QTimer::timeout, this, [this] {
        progress_->show();
        stop_->show();
    });
    hideProgress();
}

Query FilterBar::query() const {
    Query query;
    query.kind = kinds_[0]->isChecked() ? Kind::Persons : Kind::Units;
    query.text = search_->text();
    query.type = query.kind == Kind::Persons ? types_->currentData().toInt() : 0;
    query.stage = stages_->currentData().toString();
    return query;
}

void FilterBar::setKind(Kind kind) {
    kinds_[static_cast<std::size_t>(kind)]->setChecked(true);
    follow();
}

void FilterBar::follow() {
    const bool persons = kinds_[0]->isChecked();
    search_->setPlaceholderText(QString::fromUtf8(placeholders[persons ? 0 : 1]));
    types_->setVisible(persons);
    for (QComboBox* choice : {types_, stages_}) {
        // A filter that is on stands out, or its effect would be a riddle.
        choice->setProperty("active", choice->currentIndex() > 0);
        choice->style()->unpolish(choice);
        choice->style()->polish(choice);
    }
}

void FilterBar::typed(const QString& text) {
    clear_->setVisible(!text.isEmpty());
    if (!text.isEmpty()) return pause_.start();
    pause_.stop();
    listener_.changed();
}

void FilterBar::clearText() { search_->clear(); }

void FilterBar::clearFilters() {
    {
        const QSignalBlocker first(types_);
        const QSignalBlocker second(stages_);
        types_->setCurrentIndex(0);
        stages_->setCurrentIndex(0);
    }
    follow();
    listener_.changed();
}

void FilterBar::clearAll() {
    const auto changed = std::exchange(listener_.changed, [] {});
    clearText();
    clearFilters();
    listener_.changed = changed;
}

QString FilterBar::filterText() const {
    QStringList texts;
    for (const QComboBox* choice : {types_, stages_}) {
        const bool counts = choice != types_ || query().kind == Kind::Persons;
        if (counts && choice->currentIndex() > 0) texts << QStringLiteral("“%1”").arg(choice->currentText());
    }
    return texts.join(QStringLiteral("、"));
}

void FilterBar::flush() {
    if (!pause_.isActive()) return;
    pause_.stop();
    listener_.changed();
}

void FilterBar::focusSearch() {
    search_->setFocus();
    search_->selectAll();
}

void FilterBar::showCount(const QString& text) { count_->setText(text); }

void FilterBar::showProgress(int permille) {
    progress_->setValue(permille);
    if (progress_->isHidden() && !patience_.isActive()) patience_.start();
}

void FilterBar::hideProgress() {
    patience_.stop();
    progress_->hide();
    stop_->hide();
}

bool FilterBar::eventFilter(QObject* watched, QEvent* event) {
    const bool isKey = watched == search_ && event->type() == QEvent::KeyPress;
    if (!isKey || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Down)
        return QWidget::eventFilter(watched, event);
    listener_.goToList();
    return true;
}

} // namespace quillmere::host
