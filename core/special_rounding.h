// The last position of the selector: a total is rounded to two decimals and then moved to the nearest
// multiple of 0.05, by a look at its last two digits.
#pragma once

#include "core/calculator_state.h"

namespace zifferon {

// The press of the button `spezrnd`, which Alt+Space and the Space on a total share. Throws
// CalculationFailure where the entry or `operand` is no number; the caller treats it like a failure of a key
// press.
void spezrnd_Click(CalculatorState& state);

}  // namespace zifferon
