// What the memory cells, the tax key and Undo keep from one key to the next beside the calculation.
#pragma once

#include "core/calc_value.h"

namespace zifferon {

struct MemoryState {
    CalcValue taxDivisor, taxGross, taxNet, taxAmount;  // of the last tax that was taken out
    bool memoryConfirmOff = false;                      // stores are silent
    bool undoRepeatArmed = false;  // Right came down: an Undo that lands on a gap goes on by itself
};

}  // namespace zifferon
