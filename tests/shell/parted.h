// A list in one text, as its parts.
#pragma once

#include <vector>

#include "platform/text.h"

namespace zifferon {

inline std::vector<TextView> parted(TextView text, TextView separator) {
    std::vector<TextView> parts;
    for (std::size_t end = 0; (end = text.find(separator)) != text.npos;) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    parts.push_back(text);
    return parts;
}

}  // namespace zifferon
