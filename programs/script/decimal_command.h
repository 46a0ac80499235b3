// The command that runs the exact decimal alone, without keys.
#pragma once

#include <string>

#include "programs/script/script_line.h"

namespace zifferon {

// Reads "OP A [B]" and returns "decimal OP A [B] = RESULT": numbers with a point, a decimal with its scale,
// "overflow" or "divzero" for a failure. A of read and read-comma is a quoted text, "refused" where it is no
// number. Throws MalformedScript for an unknown OP or what is no number.
std::string decimalCommand(ScriptLine& line);

}  // namespace zifferon
