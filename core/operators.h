// The four operators, each told once: its key, its signs, and what it computes.
#pragma once

#include "core/calculator_state.h"

namespace zifferon {

struct Operator {
    char16_t key;                    // also its code in pendingOpCode
    TextView sign, onTape, onPrint;  // in txtop; behind a number on anzeige; behind a number on superdruck
    Decimal (*compute)(const Decimal& left, const Decimal& right);  // throws CalculationFailure
};

// The operator of a key, or null for any other key.
const Operator* operatorOfKey(char16_t key);

// The one that pendingOpCode holds, or null.
const Operator* pendingOperator(const CalculatorState& state);

}  // namespace zifferon
