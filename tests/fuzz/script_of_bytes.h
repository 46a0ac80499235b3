// Key scripts out of bytes, for a fuzzer: each byte, or two, chooses a line.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "shell/program.h"

namespace zifferon {

// Where a script has these lines, the calculation is remembered, must be as remembered, or must come back
// from the quick file as it was stored there.
inline constexpr std::string_view remember = "# remember", compare = "# compare", store = "# store";

struct FuzzScript {
    std::string lines;
    bool calculates = false;  // keys of calculating alone, so that total and tapes must agree
};

// `program` names the controls that may be clicked.
FuzzScript scriptOfBytes(std::span<const unsigned char> bytes, Program& program);

}  // namespace zifferon
