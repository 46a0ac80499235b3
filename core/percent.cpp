// Percent: of the running value inside a chain, in exact decimal, and with a prompt for the rate, in double.

#include "core/failure.h"
#include "core/key_press.h"
#include "core/number_format.h"
#include "core/tape.h"

namespace zifferon {

void KeyPress::percentOfOne() {
    s.operand = s.operand.toDecimal(s.separators()) / Decimal(100);
    setEntry(s.operand.toText(s.separators()));
    eat();
    s.txtop.setText(u"%");
}

// The amount is an entry that may still be changed: the next operator or Enter prints it.
void KeyPress::percentOfRunningValue() {
    const Separators separators = s.separators();
    s.eingabe.maxLength = 50;
    s.operand = s.accumulator.toDecimal(separators) / Decimal(100) * s.operand.toDecimal(separators);
    setEntry(s.operand.toText(separators));
    eat();
    s.txtop.setText(u"%");
    s.calls->copyEntryToClipboard();
}

void KeyPress::startPercentPrompt() {
    s.percentRunning = true;
    s.zurück.enabled = false;
    rubOut();
    const Text base = format(s.eingabe.text(), s.numberFormat, s.separators());
    s.percentBase = base;
    s.zwischen.setText(base);
    s.txtop.setText(u"%");
    s.pendingOpCode = 37;
    s.percentPrompt = true;
    s.eingabe.setText(u"");
}

void KeyPress::percentPromptStage() {
    if (isV()) {
        if (s.eingabe.empty()) return eat();
        return negateEntry();
    }
    if (isAny(u"rR")) return eat(), s.txtop.setText(u"R");
    if (isC()) {
        leavePercent();
        s.txtop.setText(u"");
        tape::addCancelOnTape(s);
        s.pendingOpCode = u"";
        return finishKey();
    }
    if (isDigit() || isSeparator()) {
        s.operand = s.zwischen.text();
        return;
    }
    if (isEnter()) return percentResult();
    if (!isBackspace()) eat();
}

void KeyPress::percentResult() {
    const Separators separators = s.separators();
    if (s.eingabe.empty()) s.eingabe.setText(u"0");
    s.percentRate = s.eingabe.text();
    const CalcValue result = s.percentBase.toDouble(separators) / 100 * s.percentRate.toDouble(separators);
    s.percentPrompt = false;
    const Text shown = format(result, s.numberFormat, separators);
    s.zwischen.setText(shown);
    s.eingabe.setText(shown);
    s.txtop.setText(u"=");
    s.eingabe.caretToEnd();
    Text sentence = format(s.percentRate, s.numberFormat, separators);
    sentence += s.inLanguage({u" %  von  ", u" %  of  "});
    sentence += format(s.percentBase, s.numberFormat, separators);
    tape::addLine(s.anzeige, {sentence, u"      \r\n\r\n", shown, u" =   "});
    tape::addLine(s.superdruck,
                  {tape::pad(sentence.size()), sentence, u"\r\n\r\n", tape::pad(shown.size()), shown, u" ="});
    s.percentRunning = false;
    s.percentDone = true;
    eat();
    s.operand = s.zwischen.text();
}

void KeyPress::percentDoneStage() {
    if (isEnter()) {
        closeCalculation();
        s.percentDone = false;
        return eat();
    }
    if (isAny(u"mM")) {
        s.pendingOpCode = 61;
        return eat(), s.txtop.setText(u"M");
    }
    if (isC()) {
        leavePercent();
        tape::addCancelOnTape(s);
        s.txtop.setText(u"");
        return finishKey();
    }
    if (isOperator()) {
        s.chainTotalled = true;
        s.percentDone = false;
        return operatorsAndWiping();
    }
    if (is(u'd')) {
        s.txtop.setText(u"");
        s.chainActive = 0;
        s.chainTotalled = s.percentDone = s.percentPrompt = false;
        eat();
        addDifferenceHeadingOnTape();
        return differenceStage();
    }
    if (isW()) {
        s.operand = s.zwischen.text();
        return rootOfValue();
    }
    eat();
}

void KeyPress::leavePercent() {
    s.percentDone = s.percentPrompt = s.chainTotalled = false;
    s.chainActive = 0;
    s.tapeClearArmed = true;
    s.zwischen.alignment = Alignment::right;
}

}  // namespace zifferon
