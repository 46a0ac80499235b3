// How a value becomes the text that a field or a tape line shows.
#pragma once

#include "core/calculator_state.h"

namespace zifferon {

// `pattern` is numberFormat or tapeFormat: grouped with two forced decimals, or "" for the general text. A
// text that reads as a number is formatted as that number; any other text comes back unchanged. Never fails.
Text format(const CalcValue& value, TextView pattern, Separators separators);
Text format(const Text& value, TextView pattern, Separators separators);

// Sets both patterns from formatMode: 1 formatted, 2 unformatted; any other mode leaves them.
void applyFormatMode(CalculatorState& state);

// The pattern of the formatted mode, 30 decimals at most; it shows the example of the format question too.
extern const TextView formattedNumberPattern;

}  // namespace zifferon
