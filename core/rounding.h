// Rounding by the selector: a standing result is rounded on request, once; the chain itself rounds nothing.
#pragma once

#include <optional>

#include "core/calculator_state.h"

namespace zifferon {

// How many decimals the value has, without trailing zeros, counted on the text of its fraction: 0.125 has 3.
// A value without a fraction gives -1, or -2 when it is negative. Throws CalculationFailure for a text that
// is no number.
int CountDecimals(const CalcValue& value, Separators separators);

// The same, with -1 for what is no number.
int countDecimalsOrNone(const CalcValue& value, Separators separators);

// The digit of the selector's caption, or nothing at "&RND R".
std::optional<int> selectorDigit(const CalculatorState& state);
bool selectorAtSpecial(const CalculatorState& state);

// One place towards "&RND 0" or towards "&RND R"; stays at the ends. Gives the entry line the focus.
void stepSelectorLeft(CalculatorState& state);
void stepSelectorRight(CalculatorState& state);

// Reads the number of the entry, as it is formatted, rounds it to decimalPlaces, and leaves it in `operand`
// as a double. Throws CalculationFailure where the entry is no number.
void roundEntryIntoOperand(CalculatorState& state);

// Texterror for a value beyond the limits of rounding, and the tick that takes it away after one second.
void showRoundingError(CalculatorState& state);
void errortimerTick(CalculatorState& state);

}  // namespace zifferon
