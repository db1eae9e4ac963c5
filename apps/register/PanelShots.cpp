#include "register/PanelShots.h"

#include "panels/PanelCatalogue.h"
#include "platform/data/Connection.h"
#include "platform/ui/Desktop.h"
#include "shell/frmPersonWh.h"

#include <quillmere/IUserCtrl.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>
#include <iostream>
#include <stdexcept>

namespace quillmere::host {

namespace {

constexpr std::int16_t maintain = 4;
constexpr std::int16_t unitType = 6;
constexpr QSize windowSize(1360, 860);
constexpr int highestWindow = 4000;

void require(bool condition, const QString& what) {
    if (!condition) throw std::runtime_error(QStringLiteral("截图中断：%1").arg(what).toStdString());
}

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The window builds the panel and lays itself out. Each round may make the next one due; a few end all
/// of them, however slow the machine.
void settle() {
    for (int round = 0; round < 4; ++round)
        QApplication::processEvents();
}

/// How many pixels of a panel cannot be seen, or an estimate where a part counts in lines.
int hiddenHeight(const QWidget& window) {
    constexpr int line = 28;
    int hidden = 0;
    for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
        // The menu scrolls for itself.
        if (area->isVisible() && area->property("role") != "menu")
            hidden = std::max(hidden, area->verticalScrollBar()->maximum());
    }
    for (const QPlainTextEdit* box : window.findChildren<QPlainTextEdit*>()) {
        if (box->isVisible()) hidden = std::max(hidden, box->verticalScrollBar()->maximum() * line);
    }
    for (const QTableView* table : window.findChildren<QTableView*>()) {
        if (table->isVisible()) hidden = std::max(hidden, table->verticalScrollBar()->maximum() * line);
    }
    return hidden;
}

/// Makes the window as high as it takes to see all of its panel.
void showWhole(QWidget& window) {
    window.resize(windowSize);
    settle();
    for (int hidden = hiddenHeight(window); hidden > 0; hidden = hiddenHeight(window)) {
        const int height = window.height() + hidden;
        require(height <= highestWindow, QStringLiteral("窗口放不下整个面板"));
        window.resize(window.width(), height);
        settle();
    }
}

} // namespace

PanelShots::PanelShots(Order order) : order_(std::move(order)) {
    require(QDir().mkpath(order_.directory), QStringLiteral("不能建立目录 %1").arg(order_.directory));
}

const std::vector<PanelShots::Visit>& PanelShots::visits() {
    static const std::vector<Visit> all = [] {
        std::vector<Visit> made;
        for (std::int16_t type = 1; type <= 7; ++type) {
            made.push_back({type, "01", {1, 2, 3}});
            made.push_back({type, "02", {4}});
            made.push_back({type, "03", {5}});
        }
        return made;
    }();
    return all;
}

std::string PanelShots::recordFor(data::Connection& connection, const Visit& visit) {
    const bool unit = visit.sponsorshipType == unitType;
    const std::string table = unit ? "B01" : "A01";
    std::string sql = "select R.A00 from " + table + " R join P01 on P01.A00=R.A00 where P0123='" +
                      std::string(visit.stage) + "'";
    if (!unit) sql += " and A0136='0" + std::to_string(visit.sponsorshipType) + "'";
    const data::RowSet rows = connection.query(sql + " order by R.A00");
    return rows.empty() ? std::string() : rows.at(0, 0).toText();
}

void PanelShots::run(const std::shared_ptr<data::Connection>& connection) {
    for (const Visit& visit : visits()) {
        const std::string record = recordFor(*connection, visit);
        if (record.empty()) continue;
        visit_ = &visit;
        IUserCtrl window;
        window.setConnection(connection);
        window.setOperationType(maintain);
        window.setZZtype(visit.sponsorshipType);
        window.setPersonID(record);
        window.setSkinPath(order_.skin.toStdString());
        (void)window.ShowPersonWh();
    }
    writeIndex();
    requireAll();
    std::cout << shots_.size() << std::endl;
}

void PanelShots::formOpened(ui::Form& form) {
    auto* window = dynamic_cast<frmPersonWh*>(&form);
    require(window != nullptr, QStringLiteral("打开了意外的窗口“%1”").arg(toQString(form.Caption())));
    for (const int group : visit_->groups)
        visitGroup(*window, group);
    form.closeByFrame();
}

void PanelShots::visitGroup(frmPersonWh& window, int group) {
    const ui::VerticalMenu::Group listed = window.menu().groups().at(static_cast<std::size_t>(group) - 1);
    for (int item = 1; item <= static_cast<int>(listed.items.size()); ++item) {
        require(window.menu().clickItem(group, item), QStringLiteral("菜单项不可用"));
        const A1ctrlUser* panel = window.GetUserCtrl();
        require(panel != nullptr, QStringLiteral("没有面板"));
        const std::string className(panel->row().className);
        if (!seen_.insert(className).second) continue;
        const std::string& caption = listed.items[static_cast<std::size_t>(item) - 1].caption;
        takePicture(window, className,
                    QStringLiteral("资助类型 %1：%2 > %3")
                        .arg(visit_->sponsorshipType)
                        .arg(toQString(listed.caption), toQString(caption)));
    }
}

void PanelShots::takePicture(const frmPersonWh& window, const std::string& className, const QString& place) {
    QWidget* shown = QApplication::activeModalWidget();
    require(shown != nullptr && shown->objectName() == toQString(window.name()),
            QStringLiteral("维护窗口不在前面"));
    if (order_.size.isValid()) {
        shown->resize(order_.size);
        settle();
    } else {
        showWhole(*shown);
    }
    const QString file = toQString(className) + QStringLiteral(".png");
    const QString path = QDir(order_.directory).filePath(file);
    require(shown->grab().save(path, "PNG"), QStringLiteral("不能写截图 %1").arg(path));
    shots_.push_back({toQString(className), file, place});
    std::cout << path.toStdString() << std::endl;
}

std::optional<ui::Answer> PanelShots::messageOpened(const ui::MessageBox& message) {
    // A set without a row opens with a new one, which the next click on the menu leaves.
    require(message.buttons == ui::Buttons::YesNo && message.text == "数据被修改且未保存，是否保存？",
            QStringLiteral("出现了意外的提示“%1”").arg(toQString(message.text)));
    return ui::Answer::No;
}

void PanelShots::writeIndex() const {
    QString page = QStringLiteral("<!DOCTYPE html>\n<html lang=\"zh-CN\">\n<meta charset=\"utf-8\">\n"
                                  "<title>全部面板</title>\n"
                                  "<style>body{font:14px sans-serif;background:#eef2f7;margin:24px}"
                                  "figure{display:inline-block;margin:8px;vertical-align:top}"
                                  "img{width:640px;border:1px solid #d9e1ec}</style>\n"
                                  "<h1>全部面板（%1）</h1>\n")
                       .arg(shots_.size());
    for (const Shot& shot : shots_) {
        page += QStringLiteral("<figure><a href=\"%1\"><img src=\"%1\" alt=\"%2\"></a>"
                               "<figcaption>%2 — %3</figcaption></figure>\n")
                    .arg(shot.file, shot.className, shot.place.toHtmlEscaped());
    }
    QFile file(QDir(order_.directory).filePath(QStringLiteral("index.html")));
    require(file.open(QIODevice::WriteOnly) && file.write(page.toUtf8()) > 0,
            QStringLiteral("不能写 %1").arg(file.fileName()));
}

void PanelShots::requireAll() const {
    QStringList missing;
    for (const PanelRow& row : panelCatalogue()) {
        if (!seen_.contains(std::string(row.className))) missing << toQString(row.className);
    }
    require(missing.isEmpty(), QStringLiteral("没有到达的面板：%1").arg(missing.join(u' ')));
}

} // namespace quillmere::host
