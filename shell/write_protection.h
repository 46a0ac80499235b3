// The end of the process where its folder cannot be written.
#pragma once

#include "platform/machine.h"

namespace zifferon {

// Says so in one box, and ends the process.
void stopWriteProtected(Machine& machine, bool english);

}  // namespace zifferon
