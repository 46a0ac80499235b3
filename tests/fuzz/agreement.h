// What must hold of the calculator at any moment of any story. Each throws Disagreement, whose text tells
// what does not.
#pragma once

#include <stdexcept>
#include <string>

#include "core/calculator_state.h"

namespace zifferon {

struct Disagreement : std::runtime_error {
    using runtime_error::runtime_error;
};

// The relations between the variables of a running chain and its fields.
void requireChainHolds(const CalculatorState& state);

// The print copy has every number that the tape shows, in the same order; more only where the tape was
// cleared, or a division by zero came to no result. Holds as long as nobody edits the print copy.
void requireTapesAgree(const CalculatorState& state);

// Where a total stands, it is the exact result of its lines on the print copy, back to the number, or the
// result, that its chain began with. Lines of a percentage or of rounding end the chain that is looked at.
void requireTotalOfItsLines(const CalculatorState& state);

}  // namespace zifferon
