#include "adapters/qt/MaskEdBoxPeer.h"

#include "adapters/qt/EditMenu.h"
#include "adapters/qt/FormPeer.h"
#include "adapters/qt/Guard.h"
#include "adapters/qt/QtKeys.h"
#include "adapters/qt/QtText.h"

#include "platform/ui/MaskEdBox.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>

namespace quillmere::qt {

namespace {

class MaskEditor final : public QLineEdit {
public:
    explicit MaskEditor(QWidget* parent) : QLineEdit(parent) {
        setFocusPolicy(Qt::TabFocus);
        setAcceptDrops(false);
        setAttribute(Qt::WA_InputMethodEnabled, false);
    }

    MaskEdBoxPeer* peer = nullptr;

    void copyAndErase() {
        copy();
        peer->eraseSelection();
    }

protected:
    void inputMethodEvent(QInputMethodEvent* event) override {
        // A composition is never shown inside the mask; what it gives is typed.
        event->accept();
        guarded([&] { peer->enterTyped(event->commitString()); });
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
        if (hasSelectedText()) {
            commands.cut = [this] { copyAndErase(); };
            commands.copy = [this] { copy(); };
            commands.erase = [this] { peer->eraseSelection(); };
        }
        commands.paste = [this] { peer->enterPasted(QGuiApplication::clipboard()->text()); };
        commands.selectAll = [this] { selectAll(); };
        showEditMenu(*this, event->globalPos(), commands);
    }
};

} // namespace

MaskEdBoxPeer::MaskEdBoxPeer(FormPeer& form, ui::Control& control)
    : ControlPeer(form, control, new MaskEditor(&form.window())) {
    static_cast<MaskEditor&>(editor()).peer = this;
    mirror(ui::Property::Text);
    connect(&editor(), &QLineEdit::cursorPositionChanged, this,
            [this] { guarded([this] { followCaret(); }); });
    connect(&editor(), &QLineEdit::selectionChanged, this, [this] { guarded([this] { followCaret(); }); });
}

QLineEdit& MaskEdBoxPeer::editor() const { return *static_cast<QLineEdit*>(widget()); }

void MaskEdBoxPeer::enterTyped(const QString& text) {
    for (const char32_t character : text.toStdU32String()) {
        if (control() != nullptr) form().typeCharacter(character);
    }
}

void MaskEdBoxPeer::enterPasted(const QString& text) { form().paste(fromQt(text)); }

void MaskEdBoxPeer::eraseSelection() { form().pressKey({ui::key::Delete, ui::shift::None}); }

void MaskEdBoxPeer::followCaret() {
    if (mirroring_ || control() == nullptr) return;
    const QString text = editor().text();
    const bool selected = editor().hasSelectedText();
    const int start = selected ? editor().selectionStart() : editor().cursorPosition();
    auto& box = as<ui::MaskEdBox>();
    const auto place = charactersIn(QStringView(text).left(start));
    if (selected) return box.setSelection(place, charactersIn(editor().selectedText()));
    box.pointByPerson(place);
    if (box.SelStart() != place) mirror(ui::Property::Selection);
}

bool MaskEdBoxPeer::keyPressed(QKeyEvent& event) {
    if (event.matches(QKeySequence::Copy)) return false;
    if (event.matches(QKeySequence::Cut)) {
        if (editor().hasSelectedText()) static_cast<MaskEditor&>(editor()).copyAndErase();
    } else if (event.matches(QKeySequence::Paste)) {
        enterPasted(QGuiApplication::clipboard()->text());
    } else if (event.matches(QKeySequence::SelectAll)) {
        form().selectAll();
    } else if (const QString typed = typedText(event); !typed.isEmpty()) {
        enterTyped(typed);
    } else if (const auto stroke = strokeOf(event); stroke) {
        form().pressKey(*stroke);
        // The form around the box scrolls by these.
        return stroke->code != ui::key::PageUp && stroke->code != ui::key::PageDown;
    } else {
        // Whatever else a line edit does by keys would write past the mask.
        return event.key() != Qt::Key_Shift && event.key() != Qt::Key_Control && event.key() != Qt::Key_Alt;
    }
    return true;
}

bool MaskEdBoxPeer::mousePressed(QMouseEvent& event, QWidget& /*target*/) {
    const bool bringsFocus = !control()->hasFocus() && event.button() == Qt::LeftButton;
    const bool reached = tellClick(event);
    // The click that brings the focus does not take the caret along: the mask is filled from where the
    // focus has put it.
    return !reached || (bringsFocus && !isDoubleClick(event));
}

void MaskEdBoxPeer::mirror(ui::Property property) {
    if (property != ui::Property::Text && property != ui::Property::Selection) return;
    const auto& box = as<ui::MaskEdBox>();
    mirroring_ = true;
    const QString text = toQt(box.Text());
    if (text != editor().text()) editor().setText(text);
    const int start = unitOf(text, box.SelStart());
    const int end = unitOf(text, box.SelStart() + box.SelLength());
    if (end > start)
        editor().setSelection(start, end - start);
    else
        editor().setCursorPosition(start);
    mirroring_ = false;
}

} // namespace quillmere::qt
