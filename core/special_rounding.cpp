#include "core/special_rounding.h"

#include "core/failure.h"
#include "core/number_format.h"
#include "core/rounding.h"
#include "core/tape.h"

namespace zifferon {

namespace {

// Thirteen nines: above, the double that carries the value would lose its cents.
constexpr double largestValue = 9999999999999;

class SpecialRounding {
  public:
    explicit SpecialRounding(CalculatorState& state) : s(state) {}

    void press() {
        // Counted before the entry is read: the decimals that the calculation left, not the rounded ones.
        entryDecimals = countDecimalsOrNone(s.operand, s.separators());
        takeStep();
        s.specialSnapshotLatch = false;
        if (s.percentRunning || !selectorAtSpecial(s) || s.promptKeyBlocked) return s.calls->focusEntry();
        s.keySound = 0;
        if (s.blockedKeyReleased) {
            s.calls->focusEntry();
            s.rootDone = false;
            s.specialSnapshotLatch = true;
            return;
        }
        s.blockedKeyReleased = true;
        if (!s.txtop.is(u"=")) s.undoCounter -= 1;
        if (s.eingabe.text() == s.zwischen.text() && s.rootDone) s.skipSnapshot = true;
        s.calls->focusEntry();
        if (s.txtop.is(u"%") || s.txtop.is(u"W")) return roundEntry();
        if (s.txtop.is(u"=")) roundTotal();
    }

  private:
    // The undo step of this press, as at a key release.
    void takeStep() {
        if (s.undoStepPending) s.undoCounter += 1;
        s.undoStepPending = false;
        if (s.tapeEmptied || s.specialSnapshotLatch || !s.undoActive) return;
        s.undoCounter += 1;
        s.calls->writeSnapshotFile();
    }

    // An entry that is no number stays in the operand as its text.
    void readAndRound() {
        s.operand = s.eingabe.text();
        roundEntryIntoOperand(s);
    }

    void roundEntry() {
        if (s.eingabe.empty()) return;
        s.roundingDoneSpecial = s.rootDone = false;
        readAndRound();
        correct(takeLastTwoDigits());
        s.eingabe.setText(format(s.operand, s.tapeFormat, s.separators()));
        s.eingabe.caretToEnd();
        s.calls->copyEntryToClipboard();
    }

    void roundTotal() {
        if (s.roundingDoneSpecial) return;
        s.roundingDoneSpecial = true;
        if (s.rootDone) return;
        s.rootDone = true;
        readAndRound();
        s.undoCounter += 1;
        if (!(number() < 0 ? correctNegativeTotal() : correctTotal())) return;
        const Text rounded = format(s.operand, s.tapeFormat, s.separators());
        s.zwischen.setText(rounded);
        s.eingabe.setText(rounded);
        s.eingabe.caretToEnd();
        tape::addRounded(s);
        s.txtop.setText(u"=");
    }

    // The correction comes before the tests here, and after them on the other side of zero.
    bool correctNegativeTotal() {
        const Text entry = s.eingabe.text();
        const Text digits = takeLastTwoDigits();
        correct(digits);
        entryDecimals -= 1;
        const bool entryIsShort = countDecimalsOrNone(CalcValue(entry), s.separators()) <= 2;
        if (entryDecimals <= 2 && onMultiple(digits) && entryIsShort) return nothingToDo();
        if (number() < -largestValue) return tooLarge();
        return true;
    }

    bool correctTotal() {
        const Text digits = takeLastTwoDigits();
        if (entryDecimals <= 2 && onMultiple(digits)) return nothingToDo();
        if (number() > largestValue) return tooLarge();
        correct(digits);
        return true;
    }

    bool nothingToDo() {
        s.undoCounter -= 1;
        return false;
    }

    bool tooLarge() {
        showRoundingError(s);
        return false;
    }

    // Leaves `operand` as its text for the tape; the digits are read off that text.
    Text takeLastTwoDigits() {
        negative = number() < 0;
        const Text shown = format(s.operand, s.tapeFormat, s.separators());
        s.operand = shown;
        return shown.substr(shown.size() < 2 ? 0 : shown.size() - 2);
    }

    static bool twoDigits(TextView digits) {
        const auto isDigit = [](char16_t unit) { return unit >= u'0' && unit <= u'9'; };
        return digits.size() == 2 && isDigit(digits[0]) && isDigit(digits[1]);
    }

    static bool onMultiple(TextView digits) {
        return twoDigits(digits) && (digits[1] == u'0' || digits[1] == u'5');
    }

    // In double precision; the tape format hides what the sum adds behind the fifteenth digit.
    void correct(TextView digits) {
        if (!twoDigits(digits)) return;
        static constexpr double corrections[] = {0, -0.01, -0.02, 0.02, 0.01};
        const double correction = corrections[(digits[1] - u'0') % 5];
        if (correction != 0) s.operand = number() + (negative ? -correction : correction);
    }

    double number() const { return s.operand.toDouble(s.separators()); }

    CalculatorState& s;
    int entryDecimals = 0;
    bool negative = false;
};

}  // namespace

void spezrnd_Click(CalculatorState& state) { SpecialRounding(state).press(); }

}  // namespace zifferon
