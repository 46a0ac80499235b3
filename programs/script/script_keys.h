// The names of keys in a script.
#pragma once

#include <string_view>

#include "platform/key.h"

namespace zifferon {

// The key of a name, letter case free ("ENTER", "F2", "SPACE", "ADD", "CTRL+R"), or of a single character.
// Throws MalformedScript for any other name.
Key scriptKey(std::string_view name);

// The press of the button whose access key is the blank, and nothing else.
bool isAccessKeyOfBlank(std::string_view name);

}  // namespace zifferon
