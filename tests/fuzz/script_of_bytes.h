// Key scripts out of bytes, for a fuzzer: each byte, or two, chooses a line or a word of one.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zifferon {

// Where a script has these lines, the calculation is remembered, must be as remembered, or must come back
// from the quick file as it was stored there.
inline constexpr std::string_view remember = "# remember", compare = "# compare", store = "# store";

struct FuzzScript {
    std::string lines;
    bool calculates = false;  // keys of calculating alone, so that total and tapes must agree
};

// Needs a current folder in which a calculator may begin.
FuzzScript scriptOfBytes(std::span<const unsigned char> bytes);

}  // namespace zifferon
