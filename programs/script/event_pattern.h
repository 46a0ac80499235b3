// How a script names an event that it expects.
#pragma once

#include <string_view>

namespace zifferon {

// Whether the event is the line, in which a * stands for any text. What stands between two of them is taken
// where it comes first.
bool matches(std::string_view event, std::string_view line);

}  // namespace zifferon
