#include "register/StartWindow.h"

#include "register/Look.h"

#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillmere::host {

namespace {

constexpr QSize openingSize(640, 440);
constexpr int samplePersons = 200;
constexpr int sampleUnits = 20;
/// What takes no longer shows no progress.
constexpr auto unremarkable = std::chrono::milliseconds(500);

QLabel* text(const char* role, const QString& content = {}) {
    auto* label = new QLabel(content);
    label->setProperty("role", role);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

StartWindow::StartWindow(Listener listener)
    : listener_(std::move(listener))
    , maker_({.working = [this](const QString& part) { part_->setText(part); },
              .made =
                  [this](const QString& path) {
                      setMaking(false);
                      listener_.chosen(path);
                  },
              .failed =
                  [this](const QString& description) {
                      setMaking(false);
                      showProblem({QStringLiteral("样例库没有做成"), description});
                  }}) {
    setObjectName(QStringLiteral("start"));
    setWindowTitle(QStringLiteral("人才登记库"));
    setAttribute(Qt::WA_StyledBackground);
    setProperty("role", "ground");
    look::dress(*this);
    resize(openingSize);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(40, 32, 40, 28);
    column->setSpacing(12);
    buildWelcome(*column);
    buildProblem(*column);
    buildChoices(*column);
    buildProgress(*column);
    column->addStretch(1);
    patience_.setSingleShot(true);
    patience_.setInterval(unremarkable);
    connect(&patience_, &QTimer::timeout, this, [this] { making_->show(); });
}

void StartWindow::buildWelcome(QBoxLayout& column) {
    column.addWidget(text("startTitle", QStringLiteral("人才登记库")));
    column.addWidget(text("emptyHint", QStringLiteral("打开一个登记库，或者先用样例库看看。"
                                                      "下次启动时会打开这次用的登记库。")));
    column.addSpacing(6);
}

void StartWindow::buildProblem(QBoxLayout& column) {
    problem_ = new QFrame;
    problem_->setProperty("role", "problem");
    problemTitle_ = text("problemTitle");
    problemTitle_->setObjectName(QStringLiteral("problemTitle"));
    problemText_ = text("problemText");
    problemText_->setObjectName(QStringLiteral("problemText"));
    auto* inside = new QVBoxLayout(problem_);
    inside->setContentsMargins(16, 12, 16, 12);
    inside->setSpacing(4);
    inside->addWidget(problemTitle_);
    inside->addWidget(problemText_);
    problem_->hide();
    column.addWidget(problem_);
}

void StartWindow::buildChoices(QBoxLayout& column) {
    const QPushButton* openFile =
        addChoice(column, "openFile", QStringLiteral("打开登记库文件…"),
                  QStringLiteral("选择电脑上已有的登记库（.db）"), look::icon(look::Glyph::Open));
    const QPushButton* sample =
        addChoice(column, "makeSample", QStringLiteral("制作样例库…"),
                  QStringLiteral("虚构的 %1 人、%2 个单位，可以随意试用").arg(samplePersons).arg(sampleUnits),
                  look::icon(look::Glyph::Sample));
    connect(openFile, &QPushButton::clicked, this, [this] {
        const QString path = listener_.askForFile();
        if (!path.isEmpty()) listener_.chosen(path);
    });
    connect(sample, &QPushButton::clicked, this, [this] {
        const QString path = listener_.askForPlace();
        if (!path.isEmpty()) makeSample(path);
    });
}

QPushButton* StartWindow::addChoice(QBoxLayout& column, const char* name, const QString& caption,
                                    const QString& hint, const QIcon& icon) {
    auto* button = new QPushButton(icon, caption);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(caption);
    button->setAccessibleDescription(hint);
    button->setProperty("choice", true);
    button->setIconSize({22, 22});
    button->setAutoDefault(true);
    auto* row = new QHBoxLayout(button);
    row->setContentsMargins(0, 0, 18, 0);
    auto* side = text("emptyHint", hint);
    side->setWordWrap(false);
    side->setAttribute(Qt::WA_TransparentForMouseEvents);
    row->addStretch(1);
    row->addWidget(side);
    column.addWidget(button);
    choices_.push_back(button);
    return button;
}

void StartWindow::buildProgress(QBoxLayout& column) {
    making_ = new QWidget;
    making_->setObjectName(QStringLiteral("making"));
    part_ = text("emptyHint");
    auto* bar = new QProgressBar;
    bar->setAccessibleName(QStringLiteral("样例库正在制作"));
    // How many statements a register takes is known only when it is made.
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setFixedHeight(4);
    auto* cancel = new QPushButton(QStringLiteral("取消"));
    cancel->setObjectName(QStringLiteral("cancelMaking"));
    cancel->setProperty("plain", true);
    connect(cancel, &QPushButton::clicked, this, [this] {
        maker_.cancel();
        setMaking(false);
    });
    auto* row = new QHBoxLayout;
    row->addWidget(part_, 1);
    row->addWidget(cancel);
    auto* inside = new QVBoxLayout(making_);
    inside->setContentsMargins(0, 8, 0, 0);
    inside->addLayout(row);
    inside->addWidget(bar);
    making_->hide();
    column.addWidget(making_);
}

void StartWindow::showProblem(const Problem& problem) {
    problemTitle_->setText(problem.title);
    problemText_->setText(problem.text);
    problem_->show();
}

void StartWindow::makeSample(const QString& path) {
    problem_->hide();
    setMaking(true);
    maker_.start(path, samplePersons, sampleUnits);
}

void StartWindow::setMaking(bool making) {
    for (QPushButton* choice : choices_)
        choice->setEnabled(!making);
    if (making) return patience_.start();
    patience_.stop();
    making_->hide();
}

} // namespace quillmere::host
