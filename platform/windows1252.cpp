#include "platform/windows1252.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace zifferon {

namespace {

// Bytes 0x80 to 0x9F; everywhere else byte and character have the same number.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

using Byte = unsigned char;

Byte byteOrMark(char16_t character) { return toWindows1252(character).value_or('?'); }

// How many characters are looked at together: a few vector registers full.
constexpr std::size_t blockSize = 64;

// Whether each character of a block has the number of its byte.
bool isPlain(const std::array<char16_t, blockSize>& block) {
    unsigned bits = 0;
    for (const char16_t character : block) bits |= character;
    return bits < 0x80;
}
bool isPlain(const std::array<Byte, blockSize>& block) {
    unsigned upper = 0;
    for (const Byte byte : block) upper |= (byte & 0xE0) == 0x80;
    return upper == 0;
}

// Converts a text: plain blocks at once, in loops that the compiler makes vector operations of, and
// everything else with `convertOne`.
template <class From, class To, class ConvertOne>
void convert(const From* from, std::size_t size, To* to, ConvertOne convertOne) {
    for (; size >= blockSize; size -= blockSize, from += blockSize, to += blockSize) {
        std::array<From, blockSize> block;
        std::memcpy(block.data(), from, sizeof block);
        if (!isPlain(block)) {
            std::transform(block.begin(), block.end(), to, convertOne);
            continue;
        }
        std::array<To, blockSize> converted;
        for (std::size_t i = 0; i < blockSize; ++i) converted[i] = static_cast<To>(block[i]);
        std::memcpy(to, converted.data(), sizeof converted);
    }
    std::transform(from, from + size, to, convertOne);
}

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

void encodeWindows1252(TextView text, char* bytes) {
    convert(text.data(), text.size(), reinterpret_cast<Byte*>(bytes), byteOrMark);
}

void decodeWindows1252(std::string_view bytes, char16_t* characters) {
    convert(reinterpret_cast<const Byte*>(bytes.data()), bytes.size(), characters, fromWindows1252);
}

}  // namespace zifferon
