// The widgets of the main window and what connects them.
#include "register/MainWindow.h"

#include "register/EmptyState.h"
#include "register/FilterBar.h"
#include "register/Look.h"
#include "register/RegisterSource.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace quillmere::host {

namespace {

constexpr QSize openingSize(1280, 800);
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
    button->setAccessibleName(caption);
    button->setIcon(icon);
    button->setIconSize({18, 18});
    button->setFocusPolicy(Qt::NoFocus);
    return button;
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
    if (settings_.readOnly) buildNotice(*column);
    buildCard(*column);
    buildStatusBar();
    buildShortcuts();
    resize(openingSize);
    restoreGeometry(settings_.memory.geometry());
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
    new_->setAccessibleName(QStringLiteral("新建记录"));
    new_->setEnabled(!settings_.readOnly);
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
    recent_ = toolButton("recent", QStringLiteral("最近打开"), look::icon(look::Glyph::Clock));
    recent_->setToolTip(QStringLiteral("最近打开的人员和单位（Ctrl+H）"));
    recent_->setPopupMode(QToolButton::InstantPopup);
    recent_->setProperty("quietMenu", true);
    recent_->setMenu(new QMenu(recent_));
    row->addWidget(recent_);
    another_ = toolButton("openAnother", QStringLiteral("打开…"), look::icon(look::Glyph::Open));
    another_->setToolTip(QStringLiteral("打开另一个登记库（Ctrl+O）"));
    another_->setShortcut(QKeySequence::Open);
    another_->hide();
    connect(another_, &QToolButton::clicked, this, [this] { openAnother_(); });
    row->addWidget(another_);
    column.addWidget(bar);
}

void MainWindow::buildNotice(QBoxLayout& column) {
    auto* notice = new QLabel(QStringLiteral("这个登记库是只读的：可以查看，不能新建和保存。"));
    notice->setObjectName(QStringLiteral("notice"));
    notice->setProperty("role", "notice");
    column.addWidget(notice);
}

void MainWindow::buildCard(QBoxLayout& column) {
    auto* card = frame("card");
    auto* inside = new QVBoxLayout(card);
    inside->setContentsMargins(1, 1, 1, 8);
    inside->setSpacing(0);
    buildTable();
    buildFilter();
    inside->addWidget(filter_);
    empty_ = new EmptyState;
    pages_ = new QStackedWidget;
    pages_->addWidget(table_);
    pages_->addWidget(empty_);
    inside->addWidget(pages_, 1);

    auto* around = new QVBoxLayout;
    around->setContentsMargins(12, 12, 12, 12);
    around->addWidget(card);
    column.addLayout(around, 1);
}

void MainWindow::buildTable() {
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
    table_->horizontalHeader()->setAccessibleName(QStringLiteral("名单的列"));
    connect(table_, &QTableView::activated, this, [this] { startOn(Operation::Maintain); });
}

void MainWindow::buildFilter() {
    filter_ = new FilterBar(list_.sponsorshipTypes(), {.changed = [this] { request(); },
                                                       .goToList = [this] { goToList(); },
                                                       .stopped = [this] { stopSearching(); }});
}

void MainWindow::buildStatusBar() {
    message_ = new QLabel;
    message_->setObjectName(QStringLiteral("message"));
    message_->setTextFormat(Qt::PlainText);
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
    on(QKeySequence::Refresh, [this] { request(); });
    on(QKeySequence::Find, [this] { filter_->focusSearch(); });
    on(Qt::Key_Slash, [this] { filter_->focusSearch(); });
    on(Qt::Key_Escape, [this] { escape(); });
    on(Qt::CTRL | Qt::Key_H, [this] {
        if (recent_->isEnabled()) recent_->showMenu();
    });
}

void MainWindow::layColumns() {
    const std::vector<Column>& columns = sourceOf(model_.kind()).columns;
    const QList<int> kept = settings_.memory.columnWidths(model_.kind());
    const bool usable = std::cmp_equal(kept.size(), columns.size());
    QHeaderView* header = table_->horizontalHeader();
    // The name of the project takes what the others leave.
    const int stretched = static_cast<int>(columns.size()) - 2;
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        header->setSectionResizeMode(i, i == stretched ? QHeaderView::Stretch : QHeaderView::Interactive);
        header->resizeSection(i, usable ? kept[i] : columns[static_cast<std::size_t>(i)].width);
    }
}

void MainWindow::keepColumns() {
    const QHeaderView& header = *table_->horizontalHeader();
    QList<int> widths;
    for (int i = 0; i < header.count(); ++i)
        widths << header.sectionSize(i);
    settings_.memory.setColumnWidths(model_.kind(), widths);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    settings_.memory.setGeometry(saveGeometry());
    keepColumns();
    QMainWindow::closeEvent(event);
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
