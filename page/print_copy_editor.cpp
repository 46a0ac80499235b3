#include "page/print_copy_editor.h"

#include <algorithm>
#include <utility>

#include "platform/key.h"

namespace zifferon {

void PrintCopyEditor::wire() {
    c.Check33.onClick = [this] { c.insertmode.setTicked(c.Check33.ticked()); };
    c.insertmode.onClick = [this] { window_.setFocus(s.superdruck); };
    s.superdruck.takesFocus = s.superdruck.keepsChanges = true;
    s.superdruck.onKeyDown = [this](int& code) { superdruckKeyDown(code); };
    s.superdruck.onDoubleClick = [this] { c.stripes.toggle(); };
}

void PrintCopyEditor::superdruckKeyDown(int& code) {
    if (code == keyCode::f1) s.calls->openHelp();
    caretAtKey_ = s.superdruck.caret();
    if (code == keyCode::space) leaveOverwritingAtStart();
    if (overwrites() && c.Check33.ticked()) insertNoticeGiven_ = false;
    resumeOverwriting();
    if (code == keyCode::enter) leaveOverwritingByEnter();
    if (code == keyCode::back) suspendOverwriting(code);
    if (code == keyCode::insert && c.blende.visible) switchOverwriting();
    if (overwrites()) selectNextCharacter();
    if (overwrites() && code == keyCode::left) s.superdruck.setCaret(s.superdruck.caret());
}

TextView PrintCopyEditor::textToLastKey() const {
    return TextView(s.superdruck.text()).substr(0, caretAtKey_.value_or(0));
}

int PrintCopyEditor::caretLine() const {
    const TextView text = textToLastKey();
    return caretAtKey_ ? 1 + static_cast<int>(std::count(text.begin(), text.end(), u'\n')) : 0;
}

int PrintCopyEditor::caretColumn() const {
    const TextView text = textToLastKey();
    return caretAtKey_ ? static_cast<int>(text.size() - text.rfind(u'\n'))
                       : 0;  // none is one before the first
}

void PrintCopyEditor::leaveOverwritingAtStart() {
    if (!c.Check33.ticked() || s.superdruck.caret() > 0) return;
    c.Check33.setTicked(false);
    tellInserting();
}

void PrintCopyEditor::resumeOverwriting() {
    if (!overwrites() && std::exchange(overwriteSuspended_, false)) c.insertmode.setTicked(true);
}

// It would replace a character by a line end.
void PrintCopyEditor::leaveOverwritingByEnter() {
    if (insertNoticeGiven_ || !(overwrites() || c.Check33.ticked())) return;
    c.insertmode.setTicked(false);
    c.Check33.setTicked(false);
    tellInserting();
    insertNoticeGiven_ = true;
}

// A Backspace rubs out as it does when inserting; to the rules behind this one it is the Insert key.
void PrintCopyEditor::suspendOverwriting(int& code) {
    if (!overwrites()) return;
    code = keyCode::insert;
    overwriteSuspended_ = true;
}

void PrintCopyEditor::switchOverwriting() {
    if (!overwrites()) {
        c.insertmode.setTicked(true);
        c.Check33.setTicked(true);
        return;
    }
    c.insertmode.setTicked(false);
    if (!overwriteSuspended_) c.Check33.setTicked(false);
}

// So that a typed character replaces it. At the end of a line it is added: the line end stays.
void PrintCopyEditor::selectNextCharacter() {
    TextField& copy = s.superdruck;
    const bool atLineEnd = TextView(copy.text()).substr(copy.caret()).starts_with(u'\r');
    copy.select(copy.caret(), atLineEnd ? 0 : 1);
}

void PrintCopyEditor::tellInserting() {
    messages_.tell({u"Einfügemodus aktiv!   ", u"Insert mode activated!   "});
    window_.setFocus(s.superdruck);
}

}  // namespace zifferon
