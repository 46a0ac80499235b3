// What is said where the program folder cannot be written.
#pragma once

#include <string>

#include "platform/machine.h"

namespace zifferon {

// Says so in one box, and ends the process.
void stopWriteProtected(Machine& machine, bool english);

// Names the settings file that could not be written; the program goes on.
void tellUnsaved(Boxes& boxes, const std::string& file, bool english);

}  // namespace zifferon
