#include "core/key_release.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/prompts.h"
#include "core/rounding.h"
#include "platform/key.h"

namespace zifferon {

namespace {

class KeyRelease {
  public:
    KeyRelease(CalculatorState& state, int releasedCode) : s(state), code(releasedCode) {}

    void run() {
        refreshRounding();
        if (leavesEarly()) return;
        normaliseOperatorCodes();
        Next next = afterIdleClear();
        if (next == Next::goOn) next = beforeSnapshot();
        if (next == Next::snapshot) s.calls->takeUndoSnapshot();
    }

  private:
    enum class Next { goOn, leave, snapshot };

    void refreshRounding() {
        if (s.undoCounter < 0) s.undoCounter = 0;
        s.roundingBlock = false;
        s.decimalPlaces = selectorDigit(s).value_or(2);
        if (s.checkrnd.ticked() && (code == keyCode::enter || code == keyCode::w)) roundAutomatically();
    }

    // At a digit the Space that rounds arrives as a key of its own; at the last position the button is
    // pressed.
    void roundAutomatically() {
        const int decimals = countDecimalsOrNone(s.operand, s.separators());
        const auto digit = selectorDigit(s);
        if (digit && decimals > *digit) s.calls->SendKeysEx(u" ");
        if (!selectorAtSpecial(s)) return;
        const Text text = s.operand.toText(s.separators());
        s.operandLength = static_cast<double>(text.size());
        const bool endsOnMultiple = !text.empty() && (text.back() == u'0' || text.back() == u'5');
        if (!(endsOnMultiple && decimals == 2) && decimals > 1) s.spezrnd.click();
    }

    bool leavesEarly() {
        if (s.eingabe.is(u" ") && code == keyCode::space) {
            s.eingabe.setText(u"");
            return true;
        }
        if (s.cellEnterTransfer && code == keyCode::enter) {
            s.cellEnterTransfer = false;
            return true;
        }
        if (s.txtop.is(u"%") && code == keyCode::w) {
            s.specialSnapshotLatch = false;
            return true;
        }
        const bool prompted = promptWordStands(s);
        if (code == keyCode::w && s.eingabe.contains(u"-") && !prompted) {
            s.calls->SendKeysEx(u"{BS}");
            return true;
        }
        if (code == keyCode::right && alignAfterUndo(prompted)) return true;
        if (s.zwischen.is(u"Error") && code == keyCode::w) {
            s.undoCounter += 1;
            return true;
        }
        return s.percentRunning && code == keyCode::space;
    }

    bool alignAfterUndo(bool prompted) {
        if (prompted) {
            s.zwischen.alignment = Alignment::left;
            return true;
        }
        if (allEmpty() && s.zwischen.empty()) s.zwischen.setText(u"0");
        s.zwischen.alignment = s.zwischen.is(u"Error") ? Alignment::centre : Alignment::right;
        return false;
    }

    // The main row's operators count as the keypad's.
    void normaliseOperatorCodes() {
        s.eingabe.foreColour = s.eingabeForeColor;
        if (code == keyCode::plus) code = keyCode::add;
        if (code == keyCode::minus) code = keyCode::subtract;
        if (std::exchange(s.multiplyPressed, false)) code = keyCode::multiply;
        if (std::exchange(s.dividePressed, false)) code = keyCode::divide;
    }

    // A C that left an entirely empty calculator goes straight to the snapshot point.
    Next afterIdleClear() {
        if ((code == keyCode::c && !s.tapeDirty) || s.idleClearLatch) return Next::leave;
        const bool empty = s.anzeige.empty() && allEmpty();
        if (empty && (code == keyCode::c || code == keyCode::escape)) s.idleClearLatch = true;
        if (std::exchange(s.keyBlockedOnce, false)) return Next::leave;
        if (allEmpty() && s.zwischen.empty()) s.zwischen.setText(u"0");
        return empty && code == keyCode::c ? Next::snapshot : Next::goOn;
    }

    Next beforeSnapshot() {
        const bool altOrSpace = code == keyCode::alt || code == keyCode::space;
        if (altOrSpace && !s.txtop.is(u"=") && !s.txtop.is(u"W") && !s.txtop.is(u"%")) return Next::leave;
        if (s.promptKeyBlocked) return Next::leave;
        if (s.blockedKeyReleased && altOrSpace) s.skipSnapshot = true;
        s.enterHeld = false;
        if (std::exchange(s.skipSnapshot, false)) return Next::leave;
        if (allEmpty() && s.zwischen.is(u"0") && code == keyCode::w) s.operand = 0;
        if (promptStands(s)) {
            s.zurück.enabled = false;
            return Next::leave;
        }
        if (code == keyCode::right && !s.zurück.enabled) return Next::leave;
        s.zurück.enabled = !s.percentRunning;
        if (s.txtop.is(u"%") && code == keyCode::c && s.zurück.enabled) s.tapeClearArmed = true;
        const bool rootStands = s.txtop.is(u"W") || s.eingabe.empty();
        if ((rootStands && code == keyCode::w) || !canChangeTheCalculation()) {
            s.specialSnapshotLatch = false;
            return Next::leave;
        }
        return Next::snapshot;
    }

    bool canChangeTheCalculation() const {
        static constexpr std::array codes = {keyCode::enter,    keyCode::multiply, keyCode::add,   108,
                                             keyCode::subtract, keyCode::divide,   keyCode::space, keyCode::c,
                                             keyCode::escape,   keyCode::w};
        return std::find(codes.begin(), codes.end(), code) != codes.end();
    }

    bool allEmpty() const { return s.eingabe.empty() && s.txtop.empty(); }

    CalculatorState& s;
    int code;
};

}  // namespace

void eingabe_KeyUp(CalculatorState& state, int code) { KeyRelease(state, code).run(); }

}  // namespace zifferon
