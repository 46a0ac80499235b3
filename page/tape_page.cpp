#include "page/tape_page.h"

#include <utility>

#include "platform/key.h"
#include "storage/settings_files.h"

namespace zifferon {

TapePage::TapePage(CalculatorState& state, TapePageControls& controls, Stripes& stripes, Window& window,
                   const Messages& messages, const Settings& settings)
    : s(state), c(controls), stripes_(stripes), window_(window), messages_(messages), settings_(settings) {}

void TapePage::wire() {
    c.edit.onClick = [this] { open(); };
    c.leave.onClick = [this] { leave(); };
    c.Check33.onClick = [this] { c.insertmode.setTicked(c.Check33.ticked()); };
    c.insertmode.onClick = [this] { window_.setFocus(s.superdruck); };
    s.superdruck.takesFocus = true;
    s.superdruck.onKeyDown = [this](int& code) { superdruckKeyDown(code); };
    s.superdruck.onGotFocus = [this] { stripes_.show(); };
    s.superdruck.onDoubleClick = [this] { stripes_.toggle(); };
}

void TapePage::open() {
    keepAlwaysOnTop();
    c.insertmode.visible = s.superdruck.visible = c.blende.visible = true;
    showDeskOptions(false);
    c.Check33.visible = true;
    setCaptions();
    c.blendevorschau.visible = c.Frame7.visible = true;
    s.zurück.visible = false;
    // The focus shows the stripes, also those that the user has taken away.
    window_.setFocus(s.superdruck);
    if (stripes_.stripesOff()) stripes_.hide();
}

void TapePage::leave() {
    stripes_.hide();
    s.calls->focusEntry();
    c.savedAlwaysOnTop = wasAlwaysOnTop();
    c.blendevorschau.visible = s.superdruck.visible = c.blende.visible = false;
    c.insertmode.visible = c.Frame7.visible = c.Check33.visible = false;
    showDeskOptions(true);
    s.zurück.visible = true;
    if (c.savedAlwaysOnTop) s.Checkob.setTicked(true);
}

void TapePage::keepAlwaysOnTop() {
    settings_.storing("visible.zfr", [this] { writeAlwaysOnTop(settings_.files(), s.Checkob.ticked()); });
}

bool TapePage::wasAlwaysOnTop() const {
    try {
        return readAlwaysOnTop(settings_.files());
    } catch (const FileFailure&) {
        return false;
    }
}

void TapePage::setCaptions() {
    for (Control* box : {&c.Check33, &c.insertmode}) {
        box->caption = s.inLanguage({u"Überschreibmodus", u"overwrite mode"});
        box->place.left = s.language == Language::english ? 6400 : 6200;
    }
}

void TapePage::showDeskOptions(bool visible) {
    s.Checkob.visible = s.clipcheck.visible = s.Checksound.visible = visible;
}

void TapePage::superdruckKeyDown(int& code) {
    if (code == keyCode::f1) s.calls->openHelp();
    if (code == keyCode::space) leaveOverwritingAtStart();
    if (overwrites() && c.Check33.ticked()) insertNoticeGiven_ = false;
    resumeOverwriting();
    if (code == keyCode::enter) leaveOverwritingByEnter();
    if (code == keyCode::back) suspendOverwriting(code);
    if (code == keyCode::insert && c.blende.visible) switchOverwriting();
    if (overwrites()) selectNextCharacter();
    if (overwrites() && code == keyCode::left) s.superdruck.setCaret(s.superdruck.caret());
}

void TapePage::leaveOverwritingAtStart() {
    if (!c.Check33.ticked() || s.superdruck.caret() > 0) return;
    c.Check33.setTicked(false);
    tellInserting();
}

void TapePage::resumeOverwriting() {
    if (!overwrites() && std::exchange(overwriteSuspended_, false)) c.insertmode.setTicked(true);
}

// It would replace a character by a line end.
void TapePage::leaveOverwritingByEnter() {
    if (insertNoticeGiven_ || !(overwrites() || c.Check33.ticked())) return;
    c.insertmode.setTicked(false);
    c.Check33.setTicked(false);
    tellInserting();
    insertNoticeGiven_ = true;
}

// A Backspace rubs out as it does when inserting; to the rules behind this one it is the Insert key.
void TapePage::suspendOverwriting(int& code) {
    if (!overwrites()) return;
    code = keyCode::insert;
    overwriteSuspended_ = true;
}

void TapePage::switchOverwriting() {
    if (!overwrites()) {
        c.insertmode.setTicked(true);
        c.Check33.setTicked(true);
        return;
    }
    c.insertmode.setTicked(false);
    if (!overwriteSuspended_) c.Check33.setTicked(false);
}

// So that a typed character replaces it. At the end of a line it is added: the line end stays.
void TapePage::selectNextCharacter() {
    TextField& copy = s.superdruck;
    const bool atLineEnd = TextView(copy.text()).substr(copy.caret()).starts_with(u'\r');
    copy.select(copy.caret(), atLineEnd ? 0 : 1);
}

void TapePage::tellInserting() {
    messages_.tell({u"Einfügemodus aktiv!   ", u"Insert mode activated!   "});
    window_.setFocus(s.superdruck);
}

}  // namespace zifferon
