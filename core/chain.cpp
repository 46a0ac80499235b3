// The chain: no precedence, each operator applies to the running value in `zwischen` and the number just
// typed.

#include "core/key_press.h"
#include "core/number_format.h"
#include "core/tape.h"

namespace zifferon {

void KeyPress::parseOperands() {
    s.accumulator = parseDecimal(s.zwischen.text(), s.separators());
    if (!s.eingabe.empty()) s.operand = parseDecimal(s.eingabe.text(), s.separators());
}

void KeyPress::operandStage() {
    if (s.txtop.is(u"%") && (isV() || isW())) return eat();
    if (chainRuns()) return chainStage();
    parseOperands();
    if (!s.eingabe.empty() && isEnter() && s.chainTotalled) closeCalculation();
    if (isDigit()) return;
    if (isV()) return negateEntry();
    if (!s.txtop.is(u"=") && !s.txtop.is(u"%") && isPercent()) return percentOfOne();
    if (s.txtop.is(u"=")) return firstOperand();
    if (s.eingabe.empty()) return eat(), firstOperand();
    if (isW()) return rootOfEntry();
    firstOperand();
}

void KeyPress::firstOperand() {
    if (s.eingabe.empty() && (isOperator() || isEnter())) return rubOut();
    if (isSeparator()) return;
    if (isOperator()) {
        const Text number = s.eingabe.text();
        s.zwischen.setText(format(number, s.numberFormat, s.separators()));
        s.eingabe.setText(u"");
        s.pendingOpCode = key;
        s.chainActive = 1;
        // A total stands on the tape already.
        if (!s.chainTotalled) tape::addFirstNumber(s, number);
        s.txtop.setText(operatorOfKey(key)->sign);
    }
    finishKey();
}

void KeyPress::chainStage() {
    if (isDigit()) return;
    parseOperands();
    if (s.eingabe.empty() && isOperator()) return rubOut();
    if (!s.txtop.is(u"=") && !s.txtop.is(u"%") && isPercent()) return percentOfRunningValue();
    if (isV()) return negateEntry();
    if (s.txtop.is(u"=")) return firstOperand();
    if (s.eingabe.empty()) return eat(), step();
    if (isW()) return rootOfEntry();
    step();
}

void KeyPress::step() {
    if (isSeparator()) return;
    const Operator* const pending = pendingOperator(s);
    if (isOperator() && pending != nullptr) return stepByOperator(*pending);
    if (isEnter() && pending != nullptr) return stepByEnter(*pending);
    if (isBackspace()) return;
    eat();
}

void KeyPress::compute(const Operator& pending) {
    const Separators separators = s.separators();
    s.operand = pending.compute(s.accumulator.toDecimal(separators), s.operand.toDecimal(separators));
    s.zwischen.setText(format(s.operand, s.numberFormat, separators));
}

// The print copy gets its line before the operation, the visible tape after it: when the operation fails,
// only the print copy shows the number.
void KeyPress::stepByOperator(const Operator& pending) {
    const Text number = format(s.eingabe.text(), s.numberFormat, s.separators());
    tape::addLine(s.superdruck, {tape::pad(number.size()), number, pending.onPrint});
    compute(pending);
    s.pendingOpCode = key;
    s.eingabe.setText(u"");
    tape::addLine(s.anzeige, {number, pending.onTape});
    s.txtop.setText(operatorOfKey(key)->sign);
    eat();
}

void KeyPress::stepByEnter(const Operator& pending) {
    const std::size_t width = format(s.eingabe.text(), s.numberFormat, s.separators()).size();
    const Text number = format(s.eingabe.text(), s.tapeFormat, s.separators());
    compute(pending);
    s.eingabe.maxLength = 50;
    setEntry(format(s.operand, s.numberFormat, s.separators()));
    s.chainActive = 0;
    tape::addLine(s.anzeige, {number, pending.onTape});
    tape::addLine(s.superdruck, {tape::pad(width), number, pending.onPrint});
    standTotal();
    eat();
}

void KeyPress::standTotal() {
    tape::addTotal(s);
    s.chainTotalled = true;
    s.eingabe.locked = true;
    s.txtop.setText(u"=");
    s.pendingOpCode = u"61";
}

// The number that stands in `zwischen` is the total; nothing is added to it.
void KeyPress::totalDisplayedValue() {
    s.accumulator = 0;
    s.operand = s.zwischen.text();
    s.zwischen.setText(format(s.operand, s.numberFormat, s.separators()));
    s.eingabe.maxLength = 50;
    setEntry(format(s.operand, s.numberFormat, s.separators()));
    s.chainActive = 0;
    standTotal();
}

void KeyPress::closeCalculation() {
    tape::addClose(s);
    s.eingabe.setText(u"");
    s.chainTotalled = false;
    s.zwischen.setText(u"0");
    s.eingabe.locked = false;
    s.tapeClearArmed = true;
    s.txtop.setText(u"");
    s.pendingOpCode = u"";
}

void KeyPress::negateEntry() {
    const Decimal number = parseDecimal(s.eingabe.text(), s.separators());
    const Decimal negated = number - number * Decimal(2);
    s.operand = negated;
    setEntry(generalText(negated, s.separators()));
    eat();
}

void KeyPress::finishKey() {
    s.secondValuePrompt = false;
    s.eingabe.locked = false;
    if (isC() || isEscape()) {
        rubOut();
        s.zwischen.setText(u"0");
        s.eingabe.setText(u"");
        s.pendingOpCode = 0;
        s.chainActive = 0;
        s.operand = 0;
        s.accumulator = 0;
        return;
    }
    if (!isBackspace()) eat();
}

// Every failure of the arithmetic ends here. The flags of the percent and difference modes stay as they were.
void KeyPress::enterErrorState() {
    if (isW()) s.eingabe.locked = false;
    eat();
    s.zwischen.alignment = Alignment::centre;
    s.zwischen.setText(u"Error");
    s.eingabe.setText(u"");
    s.txtop.setText(u"");
    s.pendingOpCode = 0;
    s.chainActive = 0;
    s.operand = 0;
    s.accumulator = 0;
    s.chainTotalled = false;
    tape::addCancel(s);
}

}  // namespace zifferon
