#include "memory/command_keys.h"

#include "core/prompts.h"
#include "memory/command_questions.h"
#include "memory/tax.h"
#include "platform/key.h"

namespace zifferon {

namespace {

class CommandKeys {
  public:
    CommandKeys(CommandDesk& commandDesk, int& keyCode)
        : desk(commandDesk), s(commandDesk.state), code(keyCode) {}

    void run() {
        takeOutLoneBlank();
        if (guardState() == end || questionsAnywhere() == end || tax() == end) return;
        if (guardEntry() == end || guardClearing() == end || guardIdle() == end || guardBlanks() == end)
            return;
        if (guardPrompts() == end || undo() == end || window() == end) return;
        colours();
    }

  private:
    enum class Flow { goOn, end };
    using enum Flow;

    // The blank of a Space whose release has not come yet, as when fast keys overlap.
    void takeOutLoneBlank() {
        if (s.eingabe.is(u" ")) s.eingabe.setText(u"");
    }

    Flow guardState() {
        if (is(keyCode::del) && s.txtop.is(u"=")) return code = 0, end;
        if (s.undoCounter < 0) s.undoCounter = 0;
        if (is(keyCode::f2)) s.Texterror.visible = false;
        s.calls->placeTexterror();
        if (isSpace() && s.eingabe.empty() && s.checkrnd.caption == u"&RND R") return end;
        return s.roundingBlock ? end : goOn;
    }

    Flow questionsAnywhere() {
        if (is(keyCode::f10)) return askNumberFormat(desk), end;
        const bool storePrefix = s.txtop.is(u"M");
        if (is(keyCode::f4) && storePrefix) return desk.calls.askSeparator(), end;
        if (is(keyCode::f3) && storePrefix) switchStoreConfirmation(desk);
        if (is(keyCode::f12)) {
            if (confirmsQuit(desk.messages, desk.window.caption)) desk.calls.quit();
            return end;
        }
        return goOn;
    }

    Flow tax() {
        const bool adds = s.txtop.is(u"+");
        const bool subtracts = s.txtop.is(u"-");
        if (!is(keyCode::t) || (!adds && !subtracts)) return goOn;
        if (s.memo[0].empty()) return showNoTaxRate(desk), end;
        if (subtracts) takeTaxOut(s, desk.memory);
        if (adds) s.calls->SendKeysEx(u"r1p{ENTER}");
        return goOn;
    }

    Flow guardEntry() {
        if (is(keyCode::right)) s.eingabe.maxLength = 50;
        if (isSpace() && s.eingabe.empty()) return end;
        if (is(keyCode::w) && s.eingabe.contains(u"-") && !s.txtop.is(u"%") && !promptWordStands(s))
            return end;
        if (is(keyCode::right) && s.zurück.enabled) s.zwischen.alignment = Alignment::right;
        return goOn;
    }

    Flow guardClearing() {
        const bool isC = is(keyCode::c);
        const bool isEscape = is(keyCode::escape);
        if (isC || isEscape) s.percentRunning = false;
        if (isSpace() && s.percentRunning) return end;
        if (isEscape && !s.tapeDirty) return end;
        if (s.zwischen.contains(u"Dif")) s.zwischen.setText(u"0");
        if (is(keyCode::f11)) return askToPrint(desk), end;
        if (!is(keyCode::f6)) s.eingabeForeColor = s.eingabe.foreColour;
        if (isC) hideLetterBehindEntry();
        return isC && !s.tapeDirty ? (rubOutLater(), end) : goOn;
    }

    Flow guardIdle() {
        const bool isC = is(keyCode::c);
        if (!isC && !is(keyCode::escape)) s.idleClearLatch = false;
        if (s.idleClearLatch) return rubOutLater(), end;
        desk.memory.undoRepeatArmed = is(keyCode::right);
        if (s.keyBlockedOnce) return end;
        if (isC && s.anzeige.empty() && s.eingabe.empty() && s.txtop.empty()) {
            s.skipSnapshot = true;
            return rubOutLater(), end;
        }
        return goOn;
    }

    // The letter C, which may stand in the entry until its Backspace arrives, is not seen there.
    void hideLetterBehindEntry() {
        const Colour& back = s.eingabe.backColour;
        if (back == Colour{0xE0, 0xE0, 0xE0} || back == Colour{0xFF, 0xFF, 0xFF}) s.eingabe.foreColour = back;
    }

    Flow guardBlanks() {
        const bool isAlt = is(keyCode::alt);
        if (s.txtop.is(u"W") && (isAlt || isSpace())) {
            if (isAlt) s.blockedKeyReleased = false;
            s.skipSnapshot = true;
            return goOn;
        }
        if (s.txtop.is(u"%") && (isAlt || isSpace())) {
            if (isAlt) s.blockedKeyReleased = false;
            return goOn;
        }
        if (isAlt && !s.txtop.is(u"=")) return s.blockedKeyReleased = true, end;
        if (isSpace() && !s.txtop.is(u"=")) return rubOutLater(), end;
        return goOn;
    }

    Flow guardPrompts() {
        if (is(keyCode::alt) && germanPromptStands()) return s.promptKeyBlocked = true, end;
        if (isSpace() && englishPromptStands()) return end;
        s.promptKeyBlocked = false;
        if (promptStands(s)) return s.zurück.enabled = false, end;
        return goOn;
    }

    Flow undo() {
        if (!is(keyCode::right)) return goOn;
        if (s.zurück.enabled) desk.calls.applyUndo();
        return end;
    }

    Flow window() {
        if (is(keyCode::up)) s.calls->SendKeysEx(u"{end}");
        const bool tapeShown = desk.window.place.width != 5735;
        if ((is(keyCode::pageUp) || is(keyCode::pageDown)) && s.anzeige.locked && tapeShown) {
            s.anzeige.locked = false;
            return desk.window.setFocus(s.anzeige), end;
        }
        if (is(keyCode::f5)) desk.window.place.left = desk.window.place.top = 0;
        if (is(keyCode::f9)) return askStartOptions(desk), end;
        if (is(keyCode::f8)) return askStandardColours(desk), end;
        return goOn;
    }

    void colours() {
        if (is(keyCode::f1)) s.calls->openHelp();
        if (is(keyCode::f6)) return desk.calls.nextTextColours();
        if (is(keyCode::f7)) return desk.calls.nextBackColours();
        if (is(keyCode::f2) && s.Checkob.visible) desk.calls.nextWindowMode();
    }

    bool germanPromptStands() const { return promptStands(s) && s.zwischen.contains(u"Wert"); }
    bool englishPromptStands() const { return promptStands(s) && !germanPromptStands(); }

    bool is(int other) const { return code == other; }
    bool isSpace() const { return code == keyCode::space; }
    void rubOutLater() { s.calls->SendKeysEx(u"{BS}"); }

    CommandDesk& desk;
    CalculatorState& s;
    int& code;
};

}  // namespace

void handleCommandKey(CommandDesk& desk, int& code) { CommandKeys(desk, code).run(); }

}  // namespace zifferon
