#include "adapters/qt/TextBoxPeer.h"

#include "adapters/qt/EditMenu.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/Icons.h"
#include "adapters/qt/QtText.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QStyleOptionFrame>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <array>

namespace quillmere::qt {

namespace {

class LineEditor final : public QLineEdit {
public:
    explicit LineEditor(QWidget* parent) : QLineEdit(parent) {
        setFocusPolicy(Qt::TabFocus);
        setAcceptDrops(false);
    }

    TextEntry* peer = nullptr;

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !isTextCut())
            return QLineEdit::event(event);
        const QString whole = QStringLiteral("<span>%1</span>").arg(text().toHtmlEscaped());
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), whole, this);
        return true;
    }

    void inputMethodEvent(QInputMethodEvent* event) override {
        guarded([&] {
            peer->compose(*event, [this](QInputMethodEvent& part) { QLineEdit::inputMethodEvent(&part); });
        });
    }

    void focusOutEvent(QFocusEvent* event) override {
        QLineEdit::focusOutEvent(event);
        const bool back =
            event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
        if (!back) guarded([this] { peer->dropComposition(); });
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::MiddleButton) {
            QLineEdit::mouseReleaseEvent(event);
            return;
        }
        if (!QGuiApplication::clipboard()->supportsSelection()) return;
        guarded([&] { peer->enterPasted(QGuiApplication::clipboard()->text(QClipboard::Selection)); });
    }

    void contextMenuEvent(QContextMenuEvent* event) override {
        EditCommands commands;
        const bool open = !isReadOnly();
        if (open && isUndoAvailable()) commands.undo = [this] { undo(); };
        if (open && isRedoAvailable()) commands.redo = [this] { redo(); };
        if (open && hasSelectedText()) commands.cut = [this] { cut(); };
        if (hasSelectedText()) commands.copy = [this] { copy(); };
        if (open) commands.paste = [this] { peer->enterPasted(QGuiApplication::clipboard()->text()); };
        if (open && hasSelectedText())
            commands.erase = [this] {
                del();
                peer->follow();
            };
        commands.selectAll = [this] { selectAll(); };
        showEditMenu(*this, event->globalPos(), commands);
    }

private:
    /// Whether the text is longer than the box.
    [[nodiscard]] bool isTextCut() const {
        QStyleOptionFrame frame;
        initStyleOption(&frame);
        QRect room = style()->subElementRect(QStyle::SE_LineEditContents, &frame, this);
        for (const auto* button : findChildren<QToolButton*>())
            room.setRight(std::min(room.right(), button->x()));
        // The box keeps its text off both edges by this.
        constexpr int innerMargins = 4;
        return fontMetrics().horizontalAdvance(text()) > room.width() - innerMargins;
    }
};

constexpr std::array nativeCommands{
    QKeySequence::Undo,
    QKeySequence::Redo,
    QKeySequence::Cut,
    QKeySequence::Copy,
    QKeySequence::SelectAll,
    QKeySequence::Delete,
    QKeySequence::DeleteEndOfWord,
    QKeySequence::DeleteStartOfWord,
    QKeySequence::MoveToNextChar,
    QKeySequence::MoveToPreviousChar,
    QKeySequence::SelectNextChar,
    QKeySequence::SelectPreviousChar,
    QKeySequence::MoveToNextWord,
    QKeySequence::MoveToPreviousWord,
    QKeySequence::SelectNextWord,
    QKeySequence::SelectPreviousWord,
    QKeySequence::MoveToStartOfLine,
    QKeySequence::MoveToEndOfLine,
    QKeySequence::SelectStartOfLine,
    QKeySequence::SelectEndOfLine,
};

} // namespace

TextBoxPeer::TextBoxPeer(FormPeer& form, ui::Control& control)
    : TextEntry(form, control, new LineEditor(&form.window())) {
    static_cast<LineEditor&>(editor()).peer = this;
    showLooks();
    mirror(ui::Property::Alignment);
    mirror(ui::Property::Text);
    connect(&editor(), &QLineEdit::textEdited, this, [this] { guarded([this] { follow(); }); });
    connect(&editor(), &QLineEdit::cursorPositionChanged, this, [this] { guarded([this] { follow(); }); });
    connect(&editor(), &QLineEdit::selectionChanged, this, [this] { guarded([this] { follow(); }); });
}

QLineEdit& TextBoxPeer::editor() const { return *static_cast<QLineEdit*>(widget()); }

QString TextBoxPeer::shownText() const { return editor().text(); }

void TextBoxPeer::showText(const QString& text) { editor().setText(text); }

void TextBoxPeer::showSelection(int start, int length) {
    if (length != 0)
        editor().setSelection(start, length);
    else if (editor().hasSelectedText() || editor().cursorPosition() != start)
        editor().setCursorPosition(start);
}

int TextBoxPeer::selectionStart() const {
    return editor().hasSelectedText() ? editor().selectionStart() : editor().cursorPosition();
}

QString TextBoxPeer::selectedText() const { return editor().selectedText(); }

void TextBoxPeer::insert(const QString& text) { editor().insert(text); }

void TextBoxPeer::eraseBackwards() { editor().backspace(); }

QString TextBoxPeer::fromModel(const std::string& text) const { return toQt(text); }

std::string TextBoxPeer::toModel(const QString& text) const { return fromQt(text); }

bool TextBoxPeer::isNativeCommand(const QKeyEvent& event) const {
    return std::ranges::any_of(nativeCommands, [&](auto command) { return event.matches(command); });
}

void TextBoxPeer::pressEnter() { form().pressKey({ui::key::Enter, ui::shift::None}); }

void TextBoxPeer::mirror(ui::Property property) {
    TextEntry::mirror(property);
    if (property != ui::Property::Alignment) return;
    const bool right = box().Alignment() == ui::Alignment::Right;
    editor().setAlignment((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

void TextBoxPeer::showLooks() {
    editor().setReadOnly(box().Locked());
    setLook(editor(), "coded", isCoded());
    setLook(editor(), "locked", box().Locked() && !isCoded());
    if (isCoded() == (codes_ != nullptr)) return;
    if (codes_ != nullptr) {
        delete std::exchange(codes_, nullptr);
        return;
    }
    codes_ = editor().addAction(icons::icon(icons::Glyph::Ellipsis), QLineEdit::TrailingPosition);
    codes_->setToolTip(QStringLiteral("选择代码 (F2)"));
    for (auto* button : editor().findChildren<QToolButton*>())
        button->setAccessibleName(QStringLiteral("选择代码"));
    connect(codes_, &QAction::triggered, this, [this] { guarded([this] { openCodes(); }); });
}

} // namespace quillmere::qt
