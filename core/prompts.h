// The prompts of the two-value difference, which stand in `zwischen` and are read there as state.
#pragma once

#include "core/calculator_state.h"

namespace zifferon {

TextView firstPrompt(const CalculatorState& s);
TextView secondPrompt(const CalculatorState& s);

// One of the four prompts stands, in either language.
bool promptStands(const CalculatorState& s);
bool secondPromptStands(const CalculatorState& s);

// The weaker test by one word of the prompts, in the language in force.
bool promptWordStands(const CalculatorState& s);

}  // namespace zifferon
