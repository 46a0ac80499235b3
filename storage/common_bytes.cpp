#include "storage/common_bytes.h"

#include <algorithm>
#include <cstring>

namespace zifferon {

namespace {

// Compares in long strides, the last bytes one by one. `from(text, done, stride)` is where the next stride of
// a text begins.
template <class From>
std::size_t commonBytes(std::string_view a, std::string_view b, From from) {
    const std::size_t size = std::min(a.size(), b.size());
    std::size_t same = 0;
    for (const std::size_t stride : {std::size_t{4096}, std::size_t{64}, std::size_t{1}}) {
        while (same + stride <= size &&
               std::memcmp(from(a, same, stride), from(b, same, stride), stride) == 0) {
            same += stride;
        }
    }
    return same;
}

}  // namespace

std::size_t commonPrefix(std::string_view a, std::string_view b) {
    return commonBytes(
        a, b, [](std::string_view text, std::size_t done, std::size_t) { return text.data() + done; });
}

std::size_t commonSuffix(std::string_view a, std::string_view b) {
    return commonBytes(a, b, [](std::string_view text, std::size_t done, std::size_t stride) {
        return text.data() + text.size() - done - stride;
    });
}

}  // namespace zifferon
