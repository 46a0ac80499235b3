// The size of a printed font, as text.
#pragma once

#include <algorithm>
#include <optional>

#include "platform/text.h"

namespace zifferon {

// A whole number from 1 to 999; nothing for any other text.
inline std::optional<int> fontSizeOf(TextView text) {
    const bool digits =
        std::all_of(text.begin(), text.end(), [](char16_t c) { return c >= u'0' && c <= u'9'; });
    if (text.empty() || text.size() > 3 || !digits) return std::nullopt;
    int size = 0;
    for (const char16_t digit : text) size = 10 * size + (digit - u'0');
    return size == 0 ? std::nullopt : std::optional(size);
}

}  // namespace zifferon
