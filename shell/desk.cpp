#include "shell/desk.h"

#include "core/failure.h"
#include "core/key_press.h"
#include "core/key_release.h"
#include "core/rounding.h"
#include "core/special_rounding.h"
#include "platform/key.h"

namespace zifferon {

void Desk::wire() {
    wireEntry();
    wireTape();
    wireTapePaging();
    wireRounding();
    wireButtons();
}

void Desk::wireEntry() {
    s.eingabe.onKeyDown = [this](int& code) { handleCommandKey(commands_, code); };
    s.eingabe.onKeyPress = [this](char16_t& character) { eingabe_KeyPress(s, character); };
    s.eingabe.onKeyUp = [this](int code) { eingabe_KeyUp(s, code); };
    s.eingabe.onChange = [this] { s.blockedKeyReleased = false; };
    s.eingabe.onGotFocus = [this] {
        s.anzeige.locked = true;
        sounds_.entryFocused();
    };
}

void Desk::wireTape() {
    s.anzeige.onChange = [this] {
        sounds_.tapeChanged();
        undo_.anzeigeChanged();
        s.anzeige.caretToEnd();
    };
    s.zwischen.onChange = [this] {
        undo_.zwischenChanged();
        clipboard_.publishSubtotal();
    };
}

// The tape has the focus only while it is paged; any other key and the mouse give it back.
void Desk::wireTapePaging() {
    s.anzeige.onKeyDown = [this](int& code) {
        const bool pages = code == keyCode::up || code == keyCode::down || code == keyCode::pageUp ||
                           code == keyCode::pageDown;
        if (!pages) s.calls->focusEntry();
    };
    s.anzeige.onKeyPress = [](char16_t& character) { character = 0; };
    s.anzeige.onClick = s.anzeige.onMouseDown = s.anzeige.onMouseUp = [this] { s.calls->focusEntry(); };
}

void Desk::wireRounding() {
    s.rndleft.onClick = [this] { stepSelectorLeft(s); };
    s.rndright.onClick = [this] { stepSelectorRight(s); };
    s.spezrnd.onClick = [this] {
        try {
            spezrnd_Click(s);
        } catch (const CalculationFailure&) {
            // The entry is no number: there is nothing to round.
        }
    };
    window_.nixspez.onClick = [this] {
        s.calls->beep();
        s.undoCounter -= 1;
        s.calls->focusEntry();
    };
    s.checkrnd.onClick = [this] {
        if (s.checkrnd.visible) s.calls->focusEntry();
    };
    s.errortimer.onTick = [this] { errortimerTick(s); };
}

void Desk::wireButtons() {
    s.zurück.onClick = [this] {
        s.calls->focusEntry();
        s.calls->SendKeysEx(u"{right}");
    };
    window_.cmdexit.onClick = [this] {
        s.calls->focusEntry();
        s.calls->SendKeysEx(u"{F12}");
    };
    window_.Command3.onClick = [this] { commands_.calls.nextWindowMode(); };
    window_.Picture1.onClick = [this] { s.calls->focusEntry(); };
    s.txtop.onMouseMove = [this] { window_.Command3.visible = true; };
    window_.onMouseMove = window_.Frame1.onMouseMove =
        s.anzeige.onMouseMove = [this] { window_.Command3.visible = false; };
}

}  // namespace zifferon
