// The two languages of the program. A text for the user stands as a pair.
#pragma once

#include "platform/text.h"

namespace zifferon {

enum class Language { german, english };

struct Words {
    TextView german{}, english{};
    TextView in(Language language) const { return language == Language::english ? english : german; }
};

}  // namespace zifferon
