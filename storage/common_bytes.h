// How far two texts of megabytes are the same, at the speed of the memory.
#pragma once

#include <string_view>

namespace zifferon {

// How many leading bytes are the same in both.
std::size_t commonPrefix(std::string_view a, std::string_view b);

// How many bytes at the end are the same in both.
std::size_t commonSuffix(std::string_view a, std::string_view b);

}  // namespace zifferon
