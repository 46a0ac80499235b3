// The questions and notices of the command keys, in the language in force.
#pragma once

#include "memory/command_keys.h"

namespace zifferon {

void askNumberFormat(CommandDesk& desk);
void switchStoreConfirmation(CommandDesk& desk);
void askToQuit(CommandDesk& desk);
void showNoTaxRate(CommandDesk& desk);
void askToPrint(CommandDesk& desk);
void askStartOptions(CommandDesk& desk);
void askStandardColours(CommandDesk& desk);

}  // namespace zifferon
