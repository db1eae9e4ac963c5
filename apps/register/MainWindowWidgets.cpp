// The widgets of the main window and what connects them.
#include "register/MainWindow.h"

#include "register/Look.h"

#include <QActionGroup>
#include <QButtonGroup>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillmere::host {

namespace {

constexpr QSize openingSize(1280, 800);
constexpr QColor hintColour(0x7C, 0x88, 0x99);
constexpr int rowHeight = 30;
constexpr int headerHeight = 36;

/// A way into the maintenance window, as the top bar shows it.
struct OperationButton {
    Operation operation;
    const char* name;
    const char* caption;
    look::Glyph glyph;
    const char* key;
    const char* hint;
};

constexpr std::array operationButtons{
    OperationButton{Operation::Maintain, "maintain", "维护", look::Glyph::Edit, "", "维护全部信息（Enter）"},
    OperationButton{Operation::Plan, "plan", "计划", look::Glyph::Plan, "Ctrl+1", "打开项目计划（Ctrl+1）"},
    OperationButton{Operation::Progress, "progress", "进展", look::Glyph::Progress, "Ctrl+2",
                    "打开项目进展（Ctrl+2）"},
    OperationButton{Operation::Closing, "closing", "结题", look::Glyph::Closing, "Ctrl+3",
                    "打开项目结题（Ctrl+3）"},
};

QToolButton* toolButton(const char* name, const QString& caption, const QIcon& icon) {
    auto* button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setText(caption);
    button->setIcon(icon);
    button->setIconSize({18, 18});
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QLabel* label(const char* role) {
    auto* result = new QLabel;
    result->setProperty("role", role);
    return result;
}

QFrame* frame(const char* role) {
    auto* result = new QFrame;
    result->setProperty("role", role);
    return result;
}

} // namespace

void MainWindow::buildWidgets() {
    auto* centre = new QWidget;
    centre->setProperty("role", "ground");
    centre->setAttribute(Qt::WA_StyledBackground);
    look::dress(*centre);
    setCentralWidget(centre);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    buildTopBar(*column);
    buildCard(*column);
    buildStatusBar();
    buildShortcuts();
    resize(openingSize);
    table_->setFocus();
}

void MainWindow::buildTopBar(QBoxLayout& column) {
    auto* bar = new QWidget;
    bar->setProperty("role", "topBar");
    bar->setAttribute(Qt::WA_StyledBackground);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(14, 9, 14, 9);
    row->setSpacing(6);

    new_ = toolButton("newRecord", {}, look::icon(look::Glyph::Add, Qt::white));
    new_->setProperty("primary", true);
    new_->setToolTip(QStringLiteral("新建一条记录（Ctrl+N）；箭头处选择新记录的资助类型"));
    new_->setPopupMode(QToolButton::MenuButtonPopup);
    typeMenu_ = new QMenu(new_);
    new_->setMenu(typeMenu_);
    connect(new_, &QToolButton::clicked, this, &MainWindow::startNewRecord);
    row->addWidget(new_);

    auto* rule = frame("separator");
    rule->setFixedSize(1, 22);
    row->addSpacing(6);
    row->addWidget(rule);
    row->addSpacing(6);
    for (const OperationButton& facts : operationButtons) {
        QToolButton* button =
            toolButton(facts.name, QString::fromUtf8(facts.caption), look::icon(facts.glyph));
        button->setToolTip(QString::fromUtf8(facts.hint));
        button->setShortcut(QKeySequence(QLatin1String(facts.key)));
        connect(button, &QToolButton::clicked, this,
                [this, operation = facts.operation] { startOn(operation); });
        operations_.push_back(button);
        row->addWidget(button);
    }
    row->addStretch(1);
    column.addWidget(bar);
}

void MainWindow::buildCard(QBoxLayout& column) {
    auto* card = frame("card");
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(1, 1, 1, 8);
    inside->setSpacing(0);
    table_ = new QTableView;
    table_->setObjectName(QStringLiteral("list"));
    table_->setModel(&model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setAlternatingRowColors(true);
    table_->setWordWrap(false);
    table_->setTabKeyNavigation(false);
    table_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(rowHeight);
    table_->horizontalHeader()->setFixedHeight(headerHeight);
    table_->horizontalHeader()->setHighlightSections(false);
    table_->horizontalHeader()->setMinimumSectionSize(56);
    connect(table_, &QTableView::activated, this, [this] { startOn(Operation::Maintain); });

    inside->addWidget(buildFilterRow());
    pages_ = new QStackedWidget;
    pages_->addWidget(table_);
    pages_->addWidget(buildEmptyState());
    inside->addWidget(pages_, 1);

    auto* around = new QVBoxLayout;
    around->setContentsMargins(12, 12, 12, 12);
    around->addWidget(card);
    column.addLayout(around, 1);
}

QWidget* MainWindow::buildFilterRow() {
    auto* filter = new QWidget;
    auto* row = new QHBoxLayout(filter);
    row->setContentsMargins(18, 13, 18, 13);
    row->setSpacing(0);
    auto* group = new QButtonGroup(this);
    for (const Kind kind : {Kind::Persons, Kind::Units}) {
        const bool persons = kind == Kind::Persons;
        auto* segment = new QPushButton(persons ? QStringLiteral("人员") : QStringLiteral("单位"));
        segment->setObjectName(persons ? QStringLiteral("persons") : QStringLiteral("units"));
        segment->setProperty("segment", true);
        segment->setCheckable(true);
        group->addButton(segment);
        connect(segment, &QPushButton::clicked, this, [this, kind] { showRecords(kind, model_.search()); });
        kinds_[static_cast<std::size_t>(kind)] = segment;
        row->addWidget(segment);
    }
    count_ = label("count");
    count_->setObjectName(QStringLiteral("count"));
    row->addSpacing(16);
    row->addWidget(count_);
    row->addStretch(1);

    search_ = new QLineEdit;
    search_->setObjectName(QStringLiteral("search"));
    search_->setFixedWidth(360);
    search_->addAction(look::icon(look::Glyph::Search, hintColour), QLineEdit::LeadingPosition);
    QAction* clear =
        search_->addAction(look::icon(look::Glyph::Clear, hintColour), QLineEdit::TrailingPosition);
    clear->setToolTip(QStringLiteral("清除（Esc）"));
    clear->setVisible(false);
    connect(clear, &QAction::triggered, search_, &QLineEdit::clear);
    connect(search_, &QLineEdit::textChanged, this, [this, clear](const QString& text) {
        clear->setVisible(!text.isEmpty());
        showRecords(model_.kind(), text);
    });
    connect(search_, &QLineEdit::returnPressed, table_, [this] { table_->setFocus(); });
    row->addWidget(search_);
    return filter;
}

QWidget* MainWindow::buildEmptyState() {
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    emptyTitle_ = label("emptyTitle");
    emptyTitle_->setObjectName(QStringLiteral("emptyTitle"));
    emptyHint_ = label("emptyHint");
    column->setSpacing(8);
    column->addStretch(2);
    column->addWidget(emptyTitle_, 0, Qt::AlignHCenter);
    column->addWidget(emptyHint_, 0, Qt::AlignHCenter);
    column->addStretch(3);
    return page;
}

void MainWindow::buildStatusBar() {
    message_ = new QLabel;
    message_->setObjectName(QStringLiteral("message"));
    newRecords_ = new QLabel;
    auto* file = new QLabel(settings_.file);
    statusBar()->addWidget(message_, 1);
    statusBar()->addPermanentWidget(newRecords_);
    statusBar()->addPermanentWidget(file);
    statusBar()->setSizeGripEnabled(false);
    look::dress(*statusBar());
}

void MainWindow::buildShortcuts() {
    const auto on = [this](const QKeySequence& keys, auto&& work) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, work);
    };
    on(QKeySequence::New, [this] { startNewRecord(); });
    on(QKeySequence::Refresh, [this] { refresh(); });
    on(QKeySequence::Find, [this] {
        search_->setFocus();
        search_->selectAll();
    });
    on(Qt::Key_Escape, [this] {
        search_->clear();
        table_->setFocus();
    });
}

void MainWindow::fillTypeMenu() {
    typeMenu_->addAction(QStringLiteral("新记录的资助类型"))->setEnabled(false);
    auto* group = new QActionGroup(typeMenu_);
    for (const SponsorshipType& type : list_.sponsorshipTypes()) {
        QAction* action = typeMenu_->addAction(type.name);
        action->setCheckable(true);
        action->setData(static_cast<int>(type.number));
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [this, number = type.number] { chooseNewRecordType(number); });
    }
}

} // namespace quillmere::host
