// The two tapes, written side by side: `anzeige` is shown right-aligned, where the trailing blanks of a line
// form the column; on `superdruck`, the print copy, the last character of a number stands at column 60.
#pragma once

#include "core/calculator_state.h"

namespace zifferon::tape {

// Blanks to the number `column` minus `width`; none where the width is larger.
Text pad(std::size_t width, std::size_t column = 60);

// Adds a line, CR LF first, as every line begins.
void addLine(TextField& tape, std::initializer_list<TextView> parts);

void addFirstNumber(CalculatorState& s, const Text& number);
void addTotal(CalculatorState& s);
void addClose(CalculatorState& s);
void addCancelOnTape(CalculatorState& s);   // anzeige alone
void addCancelOnPrint(CalculatorState& s);  // superdruck alone
void addCancel(CalculatorState& s);         // both
void addRounded(CalculatorState& s);

extern const TextView tapeStars;   // the closing line of anzeige, without its line ends
extern const TextView printStars;  // and of superdruck

}  // namespace zifferon::tape
