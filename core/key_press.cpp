#include "core/key_press.h"

#include "core/failure.h"
#include "core/prompts.h"
#include "core/tape.h"

namespace zifferon {

void eingabe_KeyPress(CalculatorState& state, char16_t& key) { KeyPress(state, key).run(); }

void KeyPress::run() {
    try {
        if (head() == end || enterLatch() == end || enterOnEmptyEntry() == end) return;
        if (normaliseEntry() == end || firstDispatch() == end || percentAndRepeatedRoot() == end) return;
        if (clearBareEntry() == end || secondDispatch() == end) return;
        operatorsAndWiping();
    } catch (const CalculationFailure&) {
        enterErrorState();
    }
}

KeyPress::Flow KeyPress::head() {
    const bool prompted = promptWordStands(s);
    if (s.undoCounter < 0) s.undoCounter = 0;
    if (is(u'<')) s.rndleft.click();
    if (is(u'>')) s.rndright.click();
    if (s.roundingBlock) return eat(), end;
    if (isEnter() && pendingIs(37)) s.eingabe.maxLength = 50;
    if (s.eingabe.empty() && isSpace()) return end;
    if (isW() && s.eingabe.contains(u"-") && !s.txtop.is(u"%") && !prompted) return enterErrorState(), end;
    if (s.percentRunning && isSpace()) return s.calls->SendKeysEx(u"{BS}"), end;
    if (isEnter() && pendingIs(37) && s.txtop.is(u"=") && s.eingabe.text() == s.zwischen.text()) {
        return percentDoneStage(), end;
    }
    if (is(u'*')) s.multiplyPressed = true;
    if (is(u'/')) s.dividePressed = true;
    if (s.anzeige.empty() && isEscape()) return cancelByEscape(), end;
    if (s.anzeige.empty() && isC()) s.superdruck.setText(u"");
    if (s.keyBlockedOnce) return end;
    if (s.anzeige.empty() && s.eingabe.empty() && s.txtop.empty() && isC()) return end;
    const bool roundable = s.txtop.is(u"=") || s.txtop.is(u"W") || s.txtop.is(u"%");
    if ((key == 18 || isSpace()) && !roundable) return end;
    if (s.promptKeyBlocked) return end;
    if (promptStands(s) && isSpace()) return s.calls->SendKeysEx(u"{BS}"), end;
    return goOn;
}

// These rules only prepare the key release, but for the Enter that is held down.
KeyPress::Flow KeyPress::enterLatch() {
    if (s.eingabe.empty() && isOperator()) s.skipSnapshot = true;
    if (s.enterHeld && isEnter()) return eat(), end;
    latches();
    return goOn;
}

void KeyPress::latches() {
    if (isEnter()) s.enterHeld = true;
    if (s.txtop.is(u"W") && isSpace()) s.skipSnapshot = false;
    if (s.txtop.empty() && isEnter()) s.skipSnapshot = true;
    if (secondPromptStands(s) && s.txtop.empty() && isEnter()) s.skipSnapshot = false;
    const bool rounded = s.roundingDone || s.roundingDoneSpecial;
    if (isSpace() && rounded && s.eingabe.text() == s.zwischen.text()) s.skipSnapshot = true;
    s.keySound = isEnter() ? 1 : 0;
    if (isW()) s.roundingDone = s.rootDone = s.roundingDoneSpecial = false;
}

KeyPress::Flow KeyPress::enterOnEmptyEntry() {
    if (isEnter() && s.eingabe.empty() && operatorPends()) return totalDisplayedValue(), eat(), end;
    s.suppressClipboard = false;
    if (isEnter()) s.roundingDone = s.rootDone = s.roundingDoneSpecial = false;
    if (isSpace()) return roundKey(), end;
    return goOn;
}

// Comma and point both type the separator in use.
void KeyPress::mapSeparator() {
    if (s.decimalPointStyle == 1 && is(u',')) key = u'.';
    if (s.decimalPointStyle == 0 && is(u'.')) key = u',';
}

void KeyPress::startFraction(char16_t separator) { setEntry(separator == u',' ? u"0," : u"0."); }

KeyPress::Flow KeyPress::normaliseEntry() {
    TextField& entry = s.eingabe;
    mapSeparator();
    if (s.txtop.is(u"%") && entry.empty() && isSeparator()) {
        startFraction(key);
        eat();
    }
    if (entry.contains(u".") && is(u'.')) eat();
    if (entry.contains(u",") && is(u',')) eat();
    if (s.zwischen.is(u"0") && s.txtop.is(u"W") && !entry.empty() && isEnter()) {
        entry.setText(u"");
        s.txtop.setText(u"");
    }
    // A guard against an operator character that reached the field; a minus may stand there.
    if (entry.text().find_first_of(u"/+*cC") != Text::npos) {
        eat();
        entry.setText(u"");
        return end;
    }
    if (entry.is(u"0") && isDigit() && !is(u'0')) {
        entry.setText(u"");
        return end;
    }
    if (s.zwischen.is(u"0") && s.txtop.empty() && isEnter()) entry.setText(u"");
    if (entry.is(u"0") && is(u'0')) return eat(), end;
    if (entry.empty() && isSeparator()) startFraction(key);
    if (s.txtop.is(u"=") && isAny(u"pP")) s.percentDone = false;
    if (isEscape()) return cancelByEscape(), end;
    return goOn;
}

KeyPress::Flow KeyPress::firstDispatch() {
    if (s.txtop.is(u"M") && s.percentDone) return s.calls->memoryStoreStage(key), eat(), end;
    if (s.percentDone) return percentDoneStage(), end;
    if (s.txtop.is(u"R") && s.percentPrompt) return s.calls->memoryRecallStage(key), eat(), end;
    if (s.percentPrompt) return percentPromptStage(), end;
    return goOn;
}

KeyPress::Flow KeyPress::percentAndRepeatedRoot() {
    if (s.differenceActive) return goOn;
    const bool entryStands = !s.eingabe.empty();
    if (s.zwischen.is(u"0") && entryStands && s.txtop.is(u"W") && isPercent())
        return startPercentPrompt(), end;
    if (entryStands && s.txtop.empty() && isPercent()) return startPercentPrompt(), end;
    if (isW() && s.rootRepeat.equals(1, s.separators())) return rootOfValue(), end;
    s.rootRepeat = 0;
    return goOn;
}

KeyPress::Flow KeyPress::clearBareEntry() {
    TextField& entry = s.eingabe;
    const bool idle = s.zwischen.is(u"0");
    if (!entry.empty() && idle && ((s.txtop.is(u"W") && isC()) || (s.txtop.is(u"%") && is(u'c')))) {
        s.txtop.setText(u"");
        return finishKey(), end;
    }
    if (entry.empty() && s.txtop.empty() && idle && isEnter()) return eat(), end;
    if (!entry.empty() && s.txtop.empty() && idle && isC()) {
        eat();
        entry.setText(u"");
    }
    if (!entry.empty() && idle && s.anzeige.empty() && isC()) {
        eat();
        entry.setText(u"");
        tape::addCancelOnTape(s);
        s.tapeClearArmed = true;
        s.txtop.setText(u"");
        return end;
    }
    if (s.anzeige.empty() && isC()) s.tapeClearArmed = true;
    if (s.differenceShown) s.zwischen.setText(u"0");
    s.differenceShown = false;
    if (s.zwischen.is(u"Error")) s.zwischen.setText(u"0");
    s.zwischen.alignment = Alignment::right;
    entry.maxLength = 25;
    return goOn;
}

KeyPress::Flow KeyPress::secondDispatch() {
    if (s.txtop.is(u"M")) return s.calls->memoryStoreStage(key), eat(), end;
    if (s.txtop.is(u"R")) return s.calls->memoryRecallStage(key), eat(), end;
    if (s.differenceStart) return differenceStage(), end;
    return s.txtop.is(u"=") ? afterTotal() : goOn;
}

KeyPress::Flow KeyPress::afterTotal() {
    if (isBackspace()) return eat(), end;
    if (isAny(u"+-/*\rmMcCdD")) return goOn;
    if (isAny(u"pP")) {
        s.eingabe.locked = false;
        return startPercentPrompt(), end;
    }
    if (isW()) return rootOfTotal(), end;
    eat();
    return goOn;
}

void KeyPress::operatorsAndWiping() {
    TextField& entry = s.eingabe;
    if (s.tapeClearArmed && isC()) {
        s.anzeige.setText(u"");
        s.superdruck.setText(u"");
        s.tapeClearArmed = false;
        return eat();
    }
    s.tapeClearArmed = false;
    if ((entry.contains(u",") && is(u',')) || (entry.contains(u".") && is(u'.'))) eat();
    if (entry.empty() && (isV() || isPercent())) return eat();
    if (entry.empty() && isOperator() && operatorOnEmptyEntry() == end) return;
    if (isAny(u"mM")) return eat(), s.txtop.setText(u"M");
    if (isAny(u"rR")) return eat(), s.txtop.setText(u"R");
    if (entry.locked && (isBackspace() || is(u'w'))) return;
    if (entry.locked && (isW() || isV() || isPercent())) return eat();
    if (isOperator()) entry.locked = false;
    if (isC()) cancelCalculation();
    if (isAny(u"dD")) return openDifference();
    operandStage();
}

// A second operator corrects the pending one, and nothing is written to the tape.
KeyPress::Flow KeyPress::operatorOnEmptyEntry() {
    s.pendingOpCode = key;
    s.txtop.setText(operatorOfKey(key)->sign);
    eat();
    if (!s.zwischen.is(u"0")) return goOn;
    s.txtop.setText(u"");
    return end;
}

void KeyPress::clearAll() {
    s.anzeige.setText(u"");
    s.superdruck.setText(u"");
    for (TextField& cell : s.memo) cell.setText(u"");
    s.txtop.setText(u"");
    s.chainActive = 0;
    s.chainTotalled = s.percentDone = s.percentPrompt = s.differenceStart = s.differenceActive = false;
    s.zwischen.alignment = Alignment::right;
}

void KeyPress::cancelByEscape() {
    clearAll();
    finishKey();
}

void KeyPress::cancelCalculation() {
    s.eingabe.locked = false;
    s.chainActive = 0;
    s.chainTotalled = false;
    s.zwischen.setText(u"0");
    tape::addCancel(s);
    s.tapeClearArmed = true;
    s.txtop.setText(u"");
    s.pendingOpCode = u"";
}

}  // namespace zifferon
