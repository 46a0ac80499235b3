#include "platform/windows1252.h"

#include <algorithm>
#include <array>

namespace zifferon {

namespace {

// Bytes 0x80 to 0x9F; everywhere else byte and character have the same number.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

char16_t fromWindows1252(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80u] : byte;
}

std::optional<unsigned char> toWindows1252(char16_t character) {
    if (character < 0x80 || (character >= 0xA0 && character < 0x100)) {
        return static_cast<unsigned char>(character);
    }
    const auto found = std::find(upperControls.begin(), upperControls.end(), character);
    if (found == upperControls.end()) return std::nullopt;
    return static_cast<unsigned char>(0x80 + (found - upperControls.begin()));
}

}  // namespace zifferon
