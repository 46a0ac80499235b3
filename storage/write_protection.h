// What is said where the program folder cannot be written.
#pragma once

#include <string>

#include "platform/machine.h"
#include "platform/messages.h"

namespace zifferon {

// Says so in one box, and ends the process.
void stopWriteProtected(Machine& machine, Language language);

// Names the settings file that could not be written; the program goes on.
void tellUnsaved(const Messages& messages, const std::string& file);

}  // namespace zifferon
