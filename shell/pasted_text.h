// The figures in a pasted text, whatever program or person wrote it: a column, a table, a calculation, a
// letter. What is not certainly a figure is left out: no figure is better than a wrong one.
#pragma once

#include <vector>

#include "core/number_text.h"
#include "platform/text.h"

namespace zifferon {

struct PastedFigure {
    char16_t operation = 0;  // + - * / between the figure before and this one; 0: none, they are a column
    Text digits;             // and the one separator in use, as they are typed
    bool negative = false;
};

struct PastedFigures {
    std::vector<PastedFigure> figures;
    bool leftOut = false;  // the text has digits that are not certainly a figure: a date, a time, a code
};

// Takes time in proportion to the text.
PastedFigures figuresOf(TextView pasted, Separators separators);

}  // namespace zifferon
