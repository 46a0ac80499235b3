// A start in a folder whose program runs already.
#pragma once

#include "platform/machine.h"

namespace zifferon {

// For a program that neither shows itself nor ends: another user's, or one that hangs.
void tellRunsAlready(Machine& machine);

}  // namespace zifferon
