// One number as other programs and people write it, brought into the form in which it is typed here.
#pragma once

#include "core/number_text.h"
#include "platform/text.h"

namespace zifferon {

// The digits of the number with the one separator in use, a 0 in front of a lone separator; empty for what is
// not certainly a number. Group signs are comma, point, apostrophe and blank, before three digits each, or
// in the Indian way; the latter of comma and point is the decimal sign, and so is a single one, unless it is
// the group sign in use and stands before three digits. ",-" behind the digits is "no cents".
Text typedDigits(TextView number, Separators separators);

}  // namespace zifferon
