// The tax key: the rate stands in M1.
#pragma once

#include "core/calculator_state.h"
#include "memory/memory_state.h"

namespace zifferon {

// With "-" pending: leaves the tax share of `operand`, a gross amount, in the entry and queues the Enter that
// subtracts it. A rate or an operand that is no number leaves everything as it was.
void takeTaxOut(CalculatorState& state, MemoryState& memory);

}  // namespace zifferon
