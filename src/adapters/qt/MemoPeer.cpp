#include "adapters/qt/MemoPeer.h"

#include "adapters/qt/EditMenu.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/QtKeys.h"
#include "adapters/qt/QtText.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextBlock>

#include <algorithm>
#include <array>

namespace quillmere::qt {

namespace {

class MemoEditor final : public QPlainTextEdit {
public:
    explicit MemoEditor(QWidget* parent) : QPlainTextEdit(parent) {
        setFocusPolicy(Qt::TabFocus);
        setTabChangesFocus(true);
        setAcceptDrops(false);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    TextEntry* peer = nullptr;

    /// A few lines; more where there is room.
    [[nodiscard]] QSize sizeHint() const override { return {300, 84}; }

protected:
    void inputMethodEvent(QInputMethodEvent* event) override {
        guarded([&] {
            peer->compose(*event,
                          [this](QInputMethodEvent& part) { QPlainTextEdit::inputMethodEvent(&part); });
        });
    }

    void focusOutEvent(QFocusEvent* event) override {
        QPlainTextEdit::focusOutEvent(event);
        const bool back =
            event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
        if (!back) guarded([this] { peer->dropComposition(); });
    }

    void insertFromMimeData(const QMimeData* source) override {
        guarded([&] { peer->enterPasted(source->text()); });
    }

    void contextMenuEvent(QContextMenuEvent* event) override {
        EditCommands commands;
        const bool open = !isReadOnly();
        const bool selected = textCursor().hasSelection();
        if (open && document()->isUndoAvailable()) commands.undo = [this] { undo(); };
        if (open && document()->isRedoAvailable()) commands.redo = [this] { redo(); };
        if (open && selected) commands.cut = [this] { cut(); };
        if (selected) commands.copy = [this] { copy(); };
        if (open) commands.paste = [this] { paste(); };
        if (open && selected) commands.erase = [this] { textCursor().removeSelectedText(); };
        commands.selectAll = [this] { selectAll(); };
        showEditMenu(*this, event->globalPos(), commands);
    }
};

constexpr std::array caretKeys{Qt::Key_Left, Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,    Qt::Key_Home,
                               Qt::Key_End,  Qt::Key_Delete, Qt::Key_PageUp, Qt::Key_PageDown};

constexpr std::array editCommands{QKeySequence::Undo,      QKeySequence::Redo,
                                  QKeySequence::Cut,       QKeySequence::Copy,
                                  QKeySequence::SelectAll, QKeySequence::DeleteStartOfWord};

} // namespace

MemoPeer::MemoPeer(FormPeer& form, ui::Control& control)
    : TextEntry(form, control, new MemoEditor(&form.window())) {
    static_cast<MemoEditor&>(editor()).peer = this;
    showLooks();
    mirror(ui::Property::Text);
    connect(&editor(), &QPlainTextEdit::textChanged, this, [this] { guarded([this] { follow(); }); });
    connect(&editor(), &QPlainTextEdit::cursorPositionChanged, this,
            [this] { guarded([this] { follow(); }); });
    connect(&editor(), &QPlainTextEdit::selectionChanged, this, [this] { guarded([this] { follow(); }); });
}

QPlainTextEdit& MemoPeer::editor() const { return *static_cast<QPlainTextEdit*>(widget()); }

QString MemoPeer::shownText() const { return editor().toPlainText(); }

void MemoPeer::showText(const QString& text) { editor().setPlainText(text); }

void MemoPeer::showSelection(int start, int length) {
    QTextCursor cursor = editor().textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == start + length) return;
    cursor.setPosition(start);
    cursor.setPosition(start + length, QTextCursor::KeepAnchor);
    editor().setTextCursor(cursor);
}

int MemoPeer::selectionStart() const { return editor().textCursor().selectionStart(); }

QString MemoPeer::selectedText() const {
    return editor().textCursor().selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

void MemoPeer::insert(const QString& text) { editor().insertPlainText(text); }

void MemoPeer::eraseBackwards() { editor().textCursor().deletePreviousChar(); }

QString MemoPeer::fromModel(const std::string& text) const {
    return toQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

std::string MemoPeer::toModel(const QString& text) const {
    return fromQt(QString(text).replace(QLatin1Char('\n'), QStringLiteral("\r\n")));
}

bool MemoPeer::isNativeCommand(const QKeyEvent& event) const {
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    return (!alt && std::ranges::find(caretKeys, event.key()) != caretKeys.end()) ||
           std::ranges::any_of(editCommands, [&](auto command) { return event.matches(command); });
}

void MemoPeer::pressEnter() { enterLineBreak(); }

void MemoPeer::showLooks() {
    editor().setReadOnly(box().Locked());
    setLook(editor(), "coded", isCoded());
    setLook(editor(), "locked", box().Locked() && !isCoded());
}

} // namespace quillmere::qt
