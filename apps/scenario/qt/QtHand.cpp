#include "scenario/qt/QtHand.h"

#include "scenario/Stop.h"

#include "platform/ui/DataGrid.h"
#include "platform/ui/Form.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/TabStrip.h"
#include "platform/ui/VerticalMenu.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QTabBar>
#include <QTableView>
#include <QTreeView>

#include <algorithm>
#include <array>

namespace quillmere::scenario {

namespace {

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Works off what is due in the event loop: each round may make the next one due.
void settle() {
    constexpr int rounds = 4;
    for (int round = 0; round < rounds; ++round) {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }
}

QWidget* activeWindowOf(const ui::Form& form) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const bool named = window->objectName() == toQString(form.name());
        if (named && window->isVisible() && window->isActiveWindow()) return window;
    }
    return nullptr;
}

/// The window of a form, once it is in front.
QWidget& windowOf(const ui::Form& form) {
    constexpr qint64 mostMilliseconds = 5000;
    QElapsedTimer waited;
    waited.start();
    settle();
    while (activeWindowOf(form) == nullptr) {
        if (waited.elapsed() > mostMilliseconds) throw Stop{"the window " + form.name() + " is not in front"};
        QApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    }
    return *activeWindowOf(form);
}

QWidget& widgetNamed(const ui::Form& form, const QString& name) {
    // A panel that was just replaced may still be there, out of sight.
    const auto all = windowOf(form).findChildren<QWidget*>(name);
    const auto shown = std::ranges::find_if(all, [](const QWidget* each) { return each->isVisible(); });
    if (shown == all.end()) throw Stop{"there is nothing on the screen for " + name.toStdString()};
    return **shown;
}

template <class T>
T& widgetOf(const ui::Form& form, const ui::Control& control, const QString& part = {}) {
    auto* widget = qobject_cast<T*>(&widgetNamed(form, toQString(control.name()) + part));
    if (widget == nullptr) throw Stop{control.name() + " shows as another kind of widget"};
    return *widget;
}

void sendMouse(const QPointer<QWidget>& widget, QEvent::Type type, const QPoint& point,
               Qt::MouseButton button) {
    // The event before this one may have closed the window.
    if (widget.isNull() || !widget->isVisible()) return;
    const Qt::MouseButtons held =
        type == QEvent::MouseButtonRelease ? Qt::MouseButtons(Qt::NoButton) : Qt::MouseButtons(button);
    QMouseEvent event(type, QPointF(point), QPointF(widget->mapToGlobal(point)), button, held,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void clickAt(QWidget& target, const QPoint& point) {
    const QPointer<QWidget> widget(&target);
    sendMouse(widget, QEvent::MouseButtonPress, point, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, point, Qt::LeftButton);
    settle();
}

/// The second press comes only when the first has reached the control: a message that came in between
/// has taken the person's eyes off it.
void doubleClickAt(QWidget& target, const QPoint& point, const ui::Form& form, const ui::Control& control) {
    const QPointer<QWidget> widget(&target);
    clickAt(target, point);
    if (!form.isOpen() || form.ActiveControl() != &control) return;
    sendMouse(widget, QEvent::MouseButtonDblClick, point, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, point, Qt::LeftButton);
    settle();
}

/// Where a click acts on a widget: a check box has its box at the left, and in a text a click takes the
/// caret along, so it goes where the caret stands.
QPoint pointOn(const QWidget& widget) {
    constexpr int insideTheBox = 10;
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr) return {insideTheBox, widget.rect().center().y()};
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    return widget.rect().center();
}

void sendKey(const ui::Form& form, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    QWidget* target = &windowOf(form);
    if (QApplication::focusWidget() != nullptr) target = QApplication::focusWidget();
    const QPointer<QWidget> widget(target);
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(widget, &down);
    if (!widget.isNull()) {
        QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
        QApplication::sendEvent(widget, &up);
    }
    settle();
}

struct KeyRow {
    int code;
    Qt::Key key;
    char text;
};

constexpr std::array keys{
    KeyRow{ui::key::Enter, Qt::Key_Return, '\r'},
    KeyRow{ui::key::Tab, Qt::Key_Tab, '\t'},
    KeyRow{ui::key::Backspace, Qt::Key_Backspace, '\b'},
    KeyRow{ui::key::Delete, Qt::Key_Delete, 0},
    KeyRow{ui::key::Home, Qt::Key_Home, 0},
    KeyRow{ui::key::End, Qt::Key_End, 0},
    KeyRow{ui::key::Left, Qt::Key_Left, 0},
    KeyRow{ui::key::Right, Qt::Key_Right, 0},
    KeyRow{ui::key::Up, Qt::Key_Up, 0},
    KeyRow{ui::key::Down, Qt::Key_Down, 0},
    KeyRow{ui::key::Comma, Qt::Key_Comma, 0},
    KeyRow{ui::key::Period, Qt::Key_Period, 0},
};

Qt::KeyboardModifiers modifiersOf(int shift) {
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    if ((shift & ui::shift::Shift) != 0) modifiers |= Qt::ShiftModifier;
    if ((shift & ui::shift::Ctrl) != 0) modifiers |= Qt::ControlModifier;
    return modifiers;
}

QPoint pointOf(QAbstractItemView& view, const QModelIndex& index) {
    view.scrollTo(index);
    return view.visualRect(index).center();
}

QModelIndex indexOf(const QAbstractItemModel& model, const ui::TreeView& tree,
                    const ui::TreeView::Node& node) {
    const auto& siblings = node.parent == nullptr ? tree.roots() : node.parent->children;
    const auto row = static_cast<int>(std::ranges::find(siblings, &node) - siblings.begin());
    const QModelIndex parent = node.parent == nullptr ? QModelIndex() : indexOf(model, tree, *node.parent);
    return model.index(row, 0, parent);
}

/// Opens a node and what it stands in by their arrows; a node that does not show cannot be clicked.
void open(QTreeView& view, const ui::TreeView& tree, const ui::TreeView::Node* node) {
    if (node == nullptr || node->expanded) return;
    open(view, tree, node->parent);
    const QModelIndex index = indexOf(*view.model(), tree, *node);
    view.scrollTo(index);
    const QRect row = view.visualRect(index);
    clickAt(*view.viewport(), {row.left() - view.indentation() / 2, row.center().y()});
}

/// A click that is not told what to hit must not choose a row: it reaches the list as a whole.
bool holdsRows(const ui::Control& control) {
    const ui::Kind kind = control.kind();
    return kind == ui::Kind::DataGrid || kind == ui::Kind::ListBox || kind == ui::Kind::TreeView;
}

/// A rule and a frame are drawn by the layout, without a widget that a click could reach.
bool isBackground(const ui::Control& control) {
    return control.kind() == ui::Kind::Line || control.kind() == ui::Kind::Frame;
}

} // namespace

void QtHand::focus(ui::Form& form, ui::Control& control) {
    const bool clickIsHarmless = control.kind() == ui::Kind::TextBox || control.kind() == ui::Kind::MaskEdBox;
    if (clickIsHarmless) {
        QWidget& widget = widgetOf<QWidget>(form, control);
        clickAt(widget, pointOn(widget));
    } else {
        // A click would press the button, or choose a row.
        form.moveFocus(control);
        settle();
    }
}

void QtHand::selectAll(ui::Form& form) { sendKey(form, Qt::Key_A, Qt::ControlModifier, {}); }

void QtHand::type(ui::Form& form, char32_t character) {
    constexpr char32_t endOfAscii = 128;
    const int key = character < endOfAscii ? QChar(static_cast<char16_t>(character)).toUpper().unicode() : 0;
    sendKey(form, key, Qt::NoModifier, QString::fromUcs4(&character, 1));
}

void QtHand::paste(ui::Form& form, std::string_view text) {
    QApplication::clipboard()->setText(toQString(text));
    sendKey(form, Qt::Key_V, Qt::ControlModifier, {});
}

void QtHand::press(ui::Form& form, const ui::KeyStroke& stroke) {
    const auto row = std::ranges::find(keys, stroke.code, &KeyRow::code);
    // A letter has the same code everywhere.
    const int key = row == keys.end() ? stroke.code : static_cast<int>(row->key);
    const bool writes = row != keys.end() && row->text != 0 && stroke.shift == ui::shift::None;
    sendKey(form, key, modifiersOf(stroke.shift), writes ? QString(QLatin1Char(row->text)) : QString());
}

void QtHand::click(ui::Form& form, ui::Control& control) {
    if (isBackground(control)) return;
    if (holdsRows(control)) return focus(form, control);
    QWidget& widget = widgetOf<QWidget>(form, control);
    clickAt(widget, pointOn(widget));
}

void QtHand::doubleClick(ui::Form& form, ui::Control& control) {
    if (isBackground(control)) return;
    if (auto* tree = dynamic_cast<ui::TreeView*>(&control);
        tree != nullptr && tree->SelectedItem() != nullptr)
        return clickNode(form, *tree, *tree->SelectedItem(), true);
    if (holdsRows(control)) return focus(form, control);
    QWidget& widget = widgetOf<QWidget>(form, control);
    doubleClickAt(widget, pointOn(widget), form, control);
}

void QtHand::clickButton(ui::Form& form, ui::Toolbar& toolbar, ui::Toolbar::Button& button) {
    QWidget& widget = widgetOf<QWidget>(form, toolbar, QLatin1Char('_') + toQString(button.Key()));
    clickAt(widget, pointOn(widget));
}

void QtHand::clickItem(ui::Form& form, ui::VerticalMenu& menu, int group, int item) {
    const QString header = QStringLiteral("_%1").arg(group);
    if (menu.OpenGroup() != group) {
        QWidget& widget = widgetOf<QWidget>(form, menu, header);
        clickAt(widget, pointOn(widget));
    }
    QWidget& widget = widgetOf<QWidget>(form, menu, header + QStringLiteral("_%1").arg(item));
    clickAt(widget, pointOn(widget));
}

void QtHand::clickRow(ui::Form& form, ui::DataGrid& grid, int row) {
    auto& view = widgetOf<QTableView>(form, grid);
    int column = 0;
    while (column + 1 < view.model()->columnCount() && view.isColumnHidden(column))
        ++column;
    clickAt(*view.viewport(), pointOf(view, view.model()->index(row - 1, column)));
}

void QtHand::clickPage(ui::Form& form, ui::TabStrip& tabs, int page) {
    auto& bar = widgetOf<QTabBar>(form, tabs, QStringLiteral("_bar"));
    clickAt(bar, bar.tabRect(page).center());
}

void QtHand::clickNode(ui::Form& form, ui::TreeView& tree, ui::TreeView::Node& node, bool twice) {
    auto& view = widgetOf<QTreeView>(form, tree);
    open(view, tree, node.parent);
    const QPoint point = pointOf(view, indexOf(*view.model(), tree, node));
    twice ? doubleClickAt(*view.viewport(), point, form, tree) : clickAt(*view.viewport(), point);
}

void QtHand::clickListRow(ui::Form& form, ui::ListBox& list, int row) {
    auto& view = widgetOf<QAbstractItemView>(form, list);
    clickAt(*view.viewport(), pointOf(view, view.model()->index(row, 0)));
}

void QtHand::closeByFrame(ui::Form& form) {
    windowOf(form).close();
    settle();
}

} // namespace quillmere::scenario
