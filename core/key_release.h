// The key release in the entry line: automatic rounding, the latches of the key press, and the snapshot point
// behind exactly the keys that can change the calculation.
#pragma once

#include "core/calculator_state.h"

namespace zifferon {

// `code` is the virtual key code of the released key. Never fails.
void eingabe_KeyUp(CalculatorState& state, int code);

}  // namespace zifferon
