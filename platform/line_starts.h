// Where the lines of a long text start.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/text_field.h"

namespace zifferon {

// Brings the starts of the lines, in ascending order from 0 on, up to a text of which both ends have stayed.
// `lengthBefore` is the length of the text that they were those of. Costs what has changed, and the moving of
// the lines behind it.
void followLines(std::vector<std::size_t>& starts, TextView text, TextFollower::Ends unchanged,
                 std::size_t lengthBefore);

}  // namespace zifferon
