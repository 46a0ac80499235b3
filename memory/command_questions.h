// The questions and notices of the command keys, in the language in force.
#pragma once

#include "memory/command_keys.h"

namespace zifferon {

void askNumberFormat(CommandDesk& desk);
void switchStoreConfirmation(CommandDesk& desk);

// The question before every end that the user asks for; whether the answer was Yes. `title` is the window's.
bool confirmsQuit(const Messages& messages, TextView title);

void showNoTaxRate(CommandDesk& desk);
void askToPrint(CommandDesk& desk);
void askStartOptions(CommandDesk& desk);
void askStandardColours(CommandDesk& desk);

}  // namespace zifferon
