// The pieces of a pasted line: numbers, signs, words, and what parts them.
#pragma once

#include <vector>

#include "platform/text.h"

namespace zifferon {

enum class Kind {
    end,  // of the line or of a cell in it
    number,
    sign,
    times,  // * and /
    currency,
    open,
    close,
    word,
    blank,  // any number of them
    point,  // that ends a sentence or a part of it
    other
};

struct Piece {
    Kind kind;
    TextView text;
};

inline constexpr char16_t enDash = u'\u2013';

// The text with one sign for all that mean the same, and without marks that are not seen. Lines end in \n.
Text foldedSigns(TextView text);

// The pieces of a line of such a text, an end before and behind them. Groups of digits that plain blanks part
// are one number where they can be nothing else; where they may be several, they are no numbers but one other
// piece. Lives as long as the line.
std::vector<Piece> piecesOf(TextView line);

inline bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
bool isLetter(char16_t unit);
bool allDigits(TextView text);

// Whether the list, words in lower case with a blank around each, holds the word in whatever case.
bool listed(TextView list, TextView word);

}  // namespace zifferon
