#include "adapters/qt/TextEntry.h"

#include "adapters/qt/FormPeer.h"
#include "adapters/qt/QtKeys.h"
#include "adapters/qt/QtText.h"

#include "platform/text/Text.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>

#include <algorithm>
#include <utility>

namespace quillmere::qt {

bool TextEntry::isCoded() const { return box().Locked() && box().BackColor() == ui::colour::codedField; }

char32_t TextEntry::admit(char32_t character) {
    if (control() == nullptr) return 0;
    const char32_t left = form().filterCharacter(*control(), character);
    const bool stillHere = control() != nullptr && form().ActiveControl() == control();
    return stillHere && left != ui::bellCharacter ? left : 0;
}

void TextEntry::enter(const QString& text) {
    const QString admitted = fromModel(box().roomFor(fromQt(text)));
    if (!admitted.isEmpty()) insert(admitted);
    follow();
}

void TextEntry::enterTyped(const QString& text) {
    form().perform([&] {
        QString admitted;
        for (const char32_t character : text.toStdU32String()) {
            const char32_t left = admit(character);
            if (left >= U' ') admitted += QString::fromUcs4(&left, 1);
        }
        if (control() == nullptr || admitted.isEmpty() || box().Locked()) return;
        enter(admitted);
    });
}

void TextEntry::compose(QInputMethodEvent& event, const std::function<void(QInputMethodEvent&)>& base) {
    if (control() == nullptr || box().Locked()) {
        const QString refused = event.commitString();
        base(event);
        if (control() != nullptr && !refused.isEmpty()) enterTyped(refused);
        return;
    }
    const QString composed = event.commitString();
    const bool replaces = event.replacementLength() != 0;
    if (!composing_ && composed.isEmpty() && event.preeditString().isEmpty() && !replaces) {
        base(event);
        return;
    }
    if (!composing_) composedOver_ = box().Text();
    composing_ = true;
    if (composed.isEmpty() && !replaces) {
        base(event);
        if (event.preeditString().isEmpty()) endComposition();
        return;
    }
    // The composition ends without a text of its own; what it gave is typed.
    const int replacedFrom = std::max(0, selectionStart() + event.replacementStart());
    QInputMethodEvent ending;
    ending.setCommitString(QString(), event.replacementStart(), event.replacementLength());
    base(ending);
    composing_ = false;
    if (replaces) {
        showSelection(replacedFrom, 0);
        follow();
    } else {
        showModel();
    }
    enterTyped(composed);
    if (event.preeditString().isEmpty() || control() == nullptr) return;
    QInputMethodEvent next(event.preeditString(), event.attributes());
    compose(next, base);
}

void TextEntry::endComposition() {
    composing_ = false;
    showModel();
}

void TextEntry::finishComposition() {
    if (!composing_) return;
    if (widget()->hasFocus()) QGuiApplication::inputMethod()->commit();
    dropComposition();
}

void TextEntry::dropComposition() {
    if (composing_ && widget()->hasFocus()) QGuiApplication::inputMethod()->reset();
    if (!composing_) return;
    QInputMethodEvent nothing;
    QCoreApplication::sendEvent(widget(), &nothing);
}

void TextEntry::enterPasted(const QString& text) {
    form().perform([&] {
        if (control() != nullptr && !box().Locked()) enter(text);
    });
}

void TextEntry::enterBackspace() {
    form().perform([&] {
        const char32_t left = admit(ui::key::Backspace);
        if (left == 0 || control() == nullptr || box().Locked()) return;
        eraseBackwards();
        follow();
    });
}

void TextEntry::enterLineBreak() {
    form().perform([&] {
        const char32_t left = admit(ui::key::Enter);
        if (left != ui::key::Enter || control() == nullptr || box().Locked()) return;
        insert(QStringLiteral("\n"));
        follow();
    });
}

void TextEntry::follow() {
    if (mirroring_ || composing_ || control() == nullptr) return;
    const QString shown = shownText();
    const auto caret = text::length(toModel(shown.left(selectionStart())));
    std::string edited = toModel(shown);
    if (shown != fromModel(box().Text())) {
        form().perform([&] { box().personEdited(std::move(edited), caret); });
    } else {
        box().setSelection(caret, text::length(toModel(selectedText())));
    }
}

void TextEntry::openCodes() {
    if (control() != nullptr && isCoded()) form().doubleClick(*control());
}

bool TextEntry::keyPressed(QKeyEvent& event) {
    const bool meansSomething = strokeOf(event).has_value() || !typedText(event).isEmpty();
    if (meansSomething) finishComposition();
    if (control() == nullptr) return true;
    if (opensCodes(event) && isCoded()) {
        openCodes();
        return true;
    }
    if (event.matches(QKeySequence::Paste)) {
        enterPasted(QGuiApplication::clipboard()->text());
        return true;
    }
    if (isNativeCommand(event)) return false;
    if (const QString typed = typedText(event); !typed.isEmpty()) {
        enterTyped(typed);
        return true;
    }
    const auto stroke = strokeOf(event);
    if (!stroke) return false;
    const bool plain = (stroke->shift & (ui::shift::Ctrl | ui::shift::Alt)) == 0;
    if (stroke->code == ui::key::Backspace && plain) {
        enterBackspace();
    } else if (stroke->code == ui::key::Enter && plain) {
        pressEnter();
    } else {
        form().pressKey(*stroke);
        // The form around a box scrolls by these.
        return stroke->code != ui::key::PageUp && stroke->code != ui::key::PageDown;
    }
    return true;
}

bool TextEntry::mousePressed(QMouseEvent& event, QWidget& target) {
    // Scroll bars work without the focus; the list button comes here a second time when it fires.
    if (target.inherits("QScrollBar")) return false;
    if (target.inherits("QToolButton")) return refusesFocus();
    const bool reached = tellClick(event);
    // A double click has selected the word already; the editor would take another one.
    return !reached || isDoubleClick(event);
}

void TextEntry::showModel() {
    if (control() == nullptr) return;
    const bool nested = std::exchange(mirroring_, true);
    const QString text = fromModel(box().Text());
    // An equal text stays, and with it what can be undone.
    if (text != shownText()) showText(text);
    const std::string before = text::left(box().Text(), box().SelStart());
    const std::string inside = text::mid(box().Text(), box().SelStart() + 1, box().SelLength());
    showSelection(static_cast<int>(fromModel(before).size()), static_cast<int>(fromModel(inside).size()));
    mirroring_ = nested;
}

void TextEntry::mirror(ui::Property property) {
    switch (property) {
    case ui::Property::Text:
    case ui::Property::Selection:
        // What is being composed stays, unless the text is no longer the one that it goes into.
        if (composing_ && box().Text() == composedOver_) break;
        if (composing_)
            dropComposition();
        else
            showModel();
        break;
    case ui::Property::Locked:
    case ui::Property::BackColor:
        showLooks();
        break;
    default:
        break;
    }
}

} // namespace quillmere::qt
