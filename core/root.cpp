// Square roots, in double precision.

#include <cmath>

#include "core/failure.h"
#include "core/key_press.h"
#include "core/number_format.h"
#include "core/tape.h"

namespace zifferon {

namespace {

CalcValue squareRoot(const CalcValue& value, Separators separators) {
    const double number = value.toDouble(separators);
    if (number < 0) throw CalculationFailure(FailureKind::notANumber);
    return std::sqrt(number);
}

}  // namespace

// The root is an entry: it leaves no line, and goes on as the number of a step or as a first number.
void KeyPress::rootOfEntry() {
    s.eingabe.maxLength = 50;
    s.operand = squareRoot(s.operand, s.separators());
    setEntry(s.operand.toText(s.separators()));
    eat();
    s.txtop.setText(u"W");
    s.calls->copyEntryToClipboard();
}

void KeyPress::rootOfValue() {
    s.eingabe.maxLength = 50;
    s.operand = squareRoot(s.operand, s.separators());
    s.eingabe.setText(s.operand.toText(s.separators()));
    s.zwischen.setText(format(s.operand, s.tapeFormat, s.separators()));
    s.eingabe.caretToEnd();
    eat();
    s.txtop.setText(u"=");
    const Text& root = s.zwischen.text();
    tape::addLine(s.anzeige, {root, u" (sqr) =   "});
    tape::addLine(s.superdruck, {tape::pad(root.size(), 54), root, u" (sqr) ="});
}

// W at once takes the root of the root.
void KeyPress::rootOfTotal() {
    rootOfValue();
    s.rootRepeat = 1;
}

}  // namespace zifferon
