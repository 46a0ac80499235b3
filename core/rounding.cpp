#include "core/rounding.h"

#include <algorithm>
#include <array>

#include "core/failure.h"
#include "core/key_press.h"
#include "core/number_format.h"
#include "core/tape.h"

namespace zifferon {

namespace {

constexpr std::array<TextView, 6> selectorCaptions = {u"&RND 0", u"&RND 1", u"&RND 2",
                                                      u"&RND 3", u"&RND 4", u"&RND R"};

// Above its limit the double that carries a rounded total would lose its last digits.
constexpr std::array<std::int64_t, 5> largestRoundable = {999999999999999, 99999999999999, 9999999999999,
                                                          999999999999, 99999999999};

std::size_t selectorIndex(const CalculatorState& s) {
    const auto found = std::find(selectorCaptions.begin(), selectorCaptions.end(), s.checkrnd.caption);
    return static_cast<std::size_t>(found - selectorCaptions.begin());
}

bool beyondLimit(const CalculatorState& s) {
    const auto digit = selectorDigit(s);
    if (!digit) return false;
    const std::int64_t limit = largestRoundable[static_cast<std::size_t>(*digit)];
    const Separators separators = s.separators();
    if (std::is_lt(s.operand.compare(0, separators)))
        return std::is_lt(s.operand.compare(-limit, separators));
    return std::is_gt(s.operand.compare(limit, separators));
}

}  // namespace

int CountDecimals(const CalcValue& value, Separators separators) {
    const Decimal number = value.toDecimal(separators);
    const Text fraction = generalText(number - number.truncated(), separators);
    return static_cast<int>(fraction.size()) - (number < Decimal(0) ? 3 : 2);
}

int countDecimalsOrNone(const CalcValue& value, Separators separators) {
    try {
        return CountDecimals(value, separators);
    } catch (const CalculationFailure&) {
        return -1;
    }
}

std::optional<int> selectorDigit(const CalculatorState& state) {
    const std::size_t index = selectorIndex(state);
    if (index >= largestRoundable.size()) return std::nullopt;
    return static_cast<int>(index);
}

bool selectorAtSpecial(const CalculatorState& state) {
    return state.checkrnd.caption == selectorCaptions.back();
}

void stepSelectorLeft(CalculatorState& state) {
    state.calls->focusEntry();
    const std::size_t index = selectorIndex(state);
    if (index > 0 && index < selectorCaptions.size()) state.checkrnd.caption = selectorCaptions[index - 1];
}

void stepSelectorRight(CalculatorState& state) {
    state.calls->focusEntry();
    const std::size_t index = selectorIndex(state);
    if (index + 1 < selectorCaptions.size()) state.checkrnd.caption = selectorCaptions[index + 1];
}

void roundEntryIntoOperand(CalculatorState& s) {
    const Separators separators = s.separators();
    s.operand = parseDecimal(s.eingabe.text(), separators);
    const double number = parseDouble(format(s.operand, s.numberFormat, separators), separators);
    s.operand = Round(number, static_cast<std::int16_t>(s.decimalPlaces));
}

void showRoundingError(CalculatorState& s) {
    s.Texterror.visible = true;
    s.errortimer.start(500);
}

void errortimerTick(CalculatorState& s) {
    s.Texterror.setText(u"RND Error");
    s.calls->placeTexterror();
    if (!s.eingabe.empty()) s.Texterror.visible = true;
    s.messageTicks += 1;
    if (s.messageTicks < 2) return;
    s.Texterror.visible = false;
    s.messageTicks = 0;
    s.errortimer.stop();
}

void KeyPress::roundKey() {
    const Separators separators = s.separators();
    if (beyondLimit(s)) {
        s.undoCounter -= 1;
        showRoundingError(s);
        s.enterHeld = true;
    }
    if (s.enterHeld) return eat();
    const auto digit = selectorDigit(s);
    if (!s.roundingDone && digit && countDecimalsOrNone(s.operand, separators) <= *digit) {
        s.undoCounter -= 1;
        s.roundingBlock = true;
        return eat();
    }
    if (!s.txtop.is(u"=")) {
        s.undoCounter -= 1;
        s.enterHeld = true;
    }
    if (s.txtop.is(u"%") || s.txtop.is(u"W")) {  // a number being worked on, no result yet: no line
        s.roundingDone = false;
        eat();
        roundEntryIntoOperand(s);
        setEntry(format(s.operand, s.tapeFormat, separators));
        return s.calls->copyEntryToClipboard();
    }
    if (!s.txtop.is(u"=")) return eat();
    if (s.roundingDone || s.roundingDoneSpecial) return eat();
    if (selectorAtSpecial(s)) return eat(), s.spezrnd.click();
    s.roundingDone = true;
    roundEntryIntoOperand(s);
    const Text rounded = format(s.operand, s.tapeFormat, separators);
    s.zwischen.setText(rounded);
    setEntry(rounded);
    eat();
    tape::addRounded(s);
    s.txtop.setText(u"=");
}

}  // namespace zifferon
