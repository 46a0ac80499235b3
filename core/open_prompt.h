// Bringing a calculation that waits for a value to rest, as before it is stored.
#pragma once

#include "core/calculator_state.h"

namespace zifferon {

// Cancels a value prompt, with its lines on both tapes, and clears a percentage that is not finished, without
// any. Otherwise nothing happens.
void closeOpenPrompt(CalculatorState& state);

// No prompt waits any more: its flags fall, and Undo can be pressed again. Fields and chain stay.
void forgetPrompts(CalculatorState& state);

}  // namespace zifferon
