// Text as the log and a script write it.
#pragma once

#include <string>

#include "platform/text.h"

namespace zifferon {

// In double quotes, with the escapes \" \\ \r \n \t.
std::string quoted(TextView text);

}  // namespace zifferon
