#include "register/Tour.h"

#include "platform/ui/DataGrid.h"
#include "platform/ui/Desktop.h"
#include "platform/ui/Toolbar.h"
#include "platform/ui/TreeView.h"
#include "platform/ui/VerticalMenu.h"
#include "sample/Identity.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QTableView>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <stdexcept>

namespace quillmere::host {

namespace {

const QString newName = QStringLiteral("祁望舒");
constexpr std::string_view birthday = "1988-04-16";
constexpr int nameColumn = 0;
constexpr auto moment = std::chrono::milliseconds(150);
constexpr int titleHeight = 32;
constexpr QColor shade(22, 36, 58, 46);

void require(bool condition, const QString& what) {
    if (!condition) throw std::runtime_error(QStringLiteral("演示中断：%1").arg(what).toStdString());
}

/// The control of that name on a form or on the panel that it shows.
template <class T>
T& controlOf(const ui::Form& form, std::string_view name) {
    auto* control = dynamic_cast<T*>(form.findDeep(name));
    require(control != nullptr,
            QStringLiteral("窗口上没有 %1").arg(QString::fromStdString(std::string(name))));
    return *control;
}

void type(ui::Form& form, std::string_view field, const QString& text) {
    require(form.moveFocus(controlOf<ui::Control>(form, field)), QStringLiteral("焦点没有移到字段"));
    for (const char32_t character : text.toStdU32String())
        form.typeCharacter(character);
}

void press(const ui::Form& form, std::string_view key) {
    auto& toolbar = controlOf<ui::Toolbar>(form, "TbMain");
    require(toolbar.clickButton(toolbar.Buttons(key)), QStringLiteral("工具栏按钮不可用"));
}

void openSet(const ui::Form& form, int group, const std::string& key) {
    auto& menu = controlOf<ui::VerticalMenu>(form, "VMenu1");
    const auto& items = menu.groups().at(static_cast<std::size_t>(group) - 1).items;
    const auto found = std::ranges::find(items, key, &ui::VerticalMenu::Item::key);
    require(found != items.end(), QStringLiteral("菜单上没有信息集 %1").arg(QString::fromStdString(key)));
    require(menu.clickItem(group, static_cast<int>(found - items.begin()) + 1),
            QStringLiteral("菜单项不可用"));
}

void pickCode(ui::Form& selector, std::string_view name) {
    auto& tree = controlOf<ui::TreeView>(selector, "tvGrpCod");
    const auto node = std::ranges::find_if(
        tree.nodes(), [&](const auto& each) { return each->text.find(name) != std::string::npos; });
    require(node != tree.nodes().end(), QStringLiteral("代码表中没有要选的代码"));
    tree.setSelectedItem(node->get());
}

/// A moment to look at the window, in which it also lays itself out.
void pause() {
    QEventLoop loop;
    QTimer::singleShot(moment, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Goes on when the condition holds.
void waitUntil(const std::function<bool()>& condition, const QString& failure) {
    constexpr int mostMoments = 200;
    for (int i = 0; i < mostMoments && !condition(); ++i)
        pause();
    require(condition(), failure);
}

/// A dialog under its title, which else is the window manager's to draw.
void drawFramed(QPainter& painter, QWidget& dialog, const QRect& place) {
    const QRect title = place.adjusted(0, -titleHeight, 0, -place.height());
    painter.fillRect(title, QColor(0xF6, 0xF9, 0xFD));
    painter.setPen(QColor(0x43, 0x53, 0x6B));
    painter.setFont(dialog.font());
    painter.drawText(title.adjusted(12, 0, -12, 0), Qt::AlignVCenter, dialog.windowTitle());
    painter.drawPixmap(place.topLeft(), dialog.grab());
    painter.setPen(QColor(0x9A, 0xA8, 0xBA));
    painter.drawRect(title.united(place).adjusted(-1, -1, 0, 0));
}

/// The window in front with what it stands over, up to the window that fills the screen.
QPixmap screen(QWidget& mainWindow) {
    QList<QWidget*> windows;
    QWidget* window = QApplication::activeModalWidget();
    while (window != nullptr && window != &mainWindow) {
        windows.prepend(window);
        window = window->windowFlags().testFlag(Qt::Dialog) && window->parentWidget() != nullptr
                     ? window->parentWidget()->window()
                     : nullptr;
    }
    QWidget* ground = windows.isEmpty() ? &mainWindow : windows.takeFirst();
    QPixmap picture = ground->grab();
    QPainter painter(&picture);
    for (QWidget* over : windows) {
        painter.fillRect(picture.rect(), shade);
        drawFramed(painter, *over, QRect(over->pos() - ground->pos(), over->size()));
    }
    return picture;
}

} // namespace

template <class F>
auto Tour::keeping(F&& work) {
    try {
        return work();
    } catch (...) {
        // The main window tells a failed maintenance run and goes on; the tour must not.
        if (!failure_) failure_ = std::current_exception();
        throw;
    }
}

template <class T>
T& Tour::child(const QString& name) const {
    T* found = main_->findChild<T*>(name);
    require(found != nullptr, QStringLiteral("主窗口上没有 %1").arg(name));
    return *found;
}

Tour::Tour(QString directory) : directory_(std::move(directory)) {
    require(QDir().mkpath(directory_), QStringLiteral("不能建立目录 %1").arg(directory_));
}

void Tour::run(QWidget& mainWindow) {
    main_ = &mainWindow;
    mainWindow.show();
    require(rowCount() > 0, QStringLiteral("登记库里没有人员"));
    takePicture(QStringLiteral("register"));
    search();
    enterNewPerson();
    showStudies();
    showProject(QStringLiteral("在研"), QStringLiteral("plan"));
    showProject(QStringLiteral("在研"), QStringLiteral("progress"));
    showProject(QStringLiteral("已结题"), QStringLiteral("closing"));
    showUnits();
}

void Tour::search() {
    auto& box = child<QLineEdit>(QStringLiteral("search"));
    const auto& count = child<QLabel>(QStringLiteral("count"));
    const QString all = count.text();
    const QString surname = cell(0, nameColumn).left(1);
    box.setFocus();
    box.setText(surname);
    waitUntil([&count] { return count.text().startsWith(QStringLiteral("找到")); },
              QStringLiteral("查找没有结束"));
    require(rowCount() > 0 && count.text() != all, QStringLiteral("查找没有缩小名单"));
    // Those whose name begins so come first.
    require(cell(0, nameColumn).startsWith(surname), QStringLiteral("查找到的姓名不对"));
    takePicture(QStringLiteral("search"));
    box.clear();
    require(count.text() == all, QStringLiteral("清除查找后名单不完整"));
}

void Tour::enterNewPerson() {
    maintain(QStringLiteral("newRecord"), [this](ui::Form& form) {
        takePicture(QStringLiteral("new-person"));
        forms_.emplace_back([this](ui::Form& selector) {
            pickCode(selector, "女");
            takePicture(QStringLiteral("code-selector"));
            require(selector.click(controlOf<ui::Control>(selector, "cmdOK")),
                    QStringLiteral("不能确定代码"));
        });
        require(form.doubleClick(controlOf<ui::Control>(form, "A01_A0104_v")),
                QStringLiteral("不能选择性别"));
        type(form, "A01_A0106_v", QString::fromStdString(std::string(birthday)).remove(u'-'));
        type(form, "A01_A0103_v", QString::fromStdString(sample::identityNumber("110105", birthday, "996")));
        type(form, "A01_A0114_v", QStringLiteral("市城市规划设计研究院"));

        messages_.push_back(
            {QStringLiteral("错误信息"), QStringLiteral("姓名 为必填项"), QStringLiteral("refused-save")});
        press(form, "Save");
        require(messages_.empty(), QStringLiteral("没有姓名也能保存"));
        type(form, "A01_A0101_v", newName);
        messages_.push_back({QStringLiteral("提示"), QStringLiteral("保存成功!"), QStringLiteral("saved")});
        press(form, "Save");
        require(messages_.empty(), QStringLiteral("补上姓名后没有保存"));
        press(form, "Exit");
    });
    require(cell(0, nameColumn) == newName, QStringLiteral("名单上没有新建的人员"));
    takePicture(QStringLiteral("register-with-new-person"));
}

int Tour::rowInStage(const QString& stage) const {
    const int stageColumn = child<QTableView>(QStringLiteral("list")).model()->columnCount() - 1;
    for (int row = 0; row < rowCount(); ++row) {
        if (cell(row, stageColumn) == stage && cell(row, nameColumn) != newName) return row;
    }
    throw std::runtime_error(QStringLiteral("演示中断：登记库里没有%1的项目").arg(stage).toStdString());
}

void Tour::showStudies() {
    // From the next stage on the sets of a person are locked.
    selectRow(rowInStage(QStringLiteral("申报")));
    maintain(QStringLiteral("maintain"), [this](ui::Form& form) {
        takePicture(QStringLiteral("person"));
        openSet(form, 1, "A02");
        auto& grid = controlOf<ui::DataGrid>(form, "DGItems");
        require(grid.rowCount() > 0, QStringLiteral("这个人员没有学习经历"));
        require(grid.clickRow(static_cast<int>(grid.rowCount())), QStringLiteral("不能选择表格的行"));
        takePicture(QStringLiteral("studies"));
        press(form, "Exit");
    });
}

void Tour::showProject(const QString& stage, const QString& button) {
    selectRow(rowInStage(stage));
    maintain(button, [this, &button](ui::Form& form) {
        takePicture(button);
        press(form, "Exit");
    });
}

void Tour::showUnits() {
    child<QAbstractButton>(QStringLiteral("units")).click();
    require(rowCount() > 0, QStringLiteral("登记库里没有单位"));
    takePicture(QStringLiteral("units"));
}

void Tour::maintain(const QString& button, Work work) {
    forms_.push_back(std::move(work));
    child<QAbstractButton>(button).click();
    if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
    const auto& message = child<QLabel>(QStringLiteral("message"));
    require(message.property("outcome").toString() != u"failure", message.text());
    require(forms_.empty(), QStringLiteral("窗口没有打开"));
}

void Tour::formOpened(ui::Form& form) {
    keeping([&] {
        require(!forms_.empty(),
                QStringLiteral("打开了意外的窗口“%1”").arg(QString::fromStdString(form.Caption())));
        const Work work = std::move(forms_.front());
        forms_.pop_front();
        work(form);
        require(!form.isOpen(),
                QStringLiteral("窗口“%1”没有关闭").arg(QString::fromStdString(form.Caption())));
    });
}

std::optional<ui::Answer> Tour::messageOpened(const ui::MessageBox& message) {
    return keeping([&] {
        const QString text = QString::fromStdString(message.text);
        require(!messages_.empty() && QString::fromStdString(message.title) == messages_.front().title &&
                    text.contains(messages_.front().part),
                QStringLiteral("出现了意外的提示“%1”").arg(text));
        takePicture(messages_.front().picture);
        messages_.pop_front();
        return std::optional(ui::Answer::Ok);
    });
}

void Tour::selectRow(int row) const { child<QTableView>(QStringLiteral("list")).selectRow(row); }

int Tour::rowCount() const { return child<QTableView>(QStringLiteral("list")).model()->rowCount(); }

QString Tour::cell(int row, int column) const {
    const QAbstractItemModel& model = *child<QTableView>(QStringLiteral("list")).model();
    return model.index(row, column).data().toString();
}

void Tour::takePicture(const QString& name) {
    pause();
    const QString file = QStringLiteral("%1-%2.png").arg(++pictures_, 2, 10, QLatin1Char('0')).arg(name);
    const QString path = QDir(directory_).filePath(file);
    require(screen(*main_).save(path, "PNG"), QStringLiteral("不能写截图 %1").arg(path));
    std::cout << path.toStdString() << std::endl;
}

} // namespace quillmere::host
