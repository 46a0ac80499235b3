// The notation of queued keys: names in braces, bare modifiers, and characters.
#pragma once

#include <optional>
#include <vector>

#include "platform/key.h"
#include "platform/text.h"

namespace zifferon {

// The keystrokes of a text such as "r1p{ENTER}", in order. A name in braces is matched without regard to
// letter case as a prefix of what follows the brace; a name that is not known is left out. "+", "%" and "^"
// are the bare Shift, Alt and Control keys.
std::vector<Key> keysOfNotation(TextView notation);

// The key of a name of the notation ("ENTER", "f2"), the whole text, letter case free; or nothing.
std::optional<Key> keyOfName(TextView name);

}  // namespace zifferon
