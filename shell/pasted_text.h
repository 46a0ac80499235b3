// What is typed for a pasted text. Its characters take the road of typed keys, where a point would become the
// separator in use and a sign in front an operator: so figures are brought into the form in which a person
// types them.
#pragma once

#include "core/number_text.h"
#include "platform/text.h"

namespace zifferon {

// The characters to be typed, 13 for Enter. A number loses its group signs and gets its minus as the sign key
// behind it; a comma or point that stands before a last group of other than three digits is its decimal sign,
// and so is the latter of two kinds. The numbers of several lines or cells are added up, the last one waits
// for the user's key; what is no number is typed as it stands, with Enter behind its line.
Text keysOfPastedText(TextView pasted, Separators separators);

}  // namespace zifferon
