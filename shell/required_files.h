// The files without which the program does not start. They lie in its folder from the delivery on; what makes
// such a folder for a test reads this list.
#pragma once

#include <array>

namespace zifferon {

inline constexpr std::array requiredFiles = {
    "font.zfr",
    "rattle1.wav",
    "rattle2.wav",
    "start.wav",
    "switch.wav",
    "switch2.wav",
    "temp.dat",
    "trash.wav",
    "undo.wav",
    "zifferonpro-help_de.chm",
    "zifferonpro-help_en.chm",
    "quicksave.zfr",
};

}  // namespace zifferon
