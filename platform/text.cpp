#include "platform/text.h"

#include <cstdint>

namespace zifferon {

namespace {

constexpr char32_t replacement = 0xFFFD;

// Decodes the sequence at the front of `bytes` and tells its length; a wrong one counts one byte.
char32_t decode(std::string_view bytes, std::size_t& length) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char lead = byte(0);
    length = 1;
    if (lead < 0x80) return lead;
    const std::size_t wanted = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < wanted) return replacement;
    char32_t value = lead & (0x7Fu >> wanted);
    for (std::size_t i = 1; i < wanted; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return replacement;
        value = value << 6 | (byte(i) & 0x3Fu);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < smallest[wanted] || value > 0x10FFFF || (value >= 0xD800 && value < 0xE000)) {
        return replacement;
    }
    length = wanted;
    return value;
}

void encode(char32_t value, std::string& bytes) {
    const auto put = [&](char32_t byte) { bytes += static_cast<char>(byte); };
    const auto follow = [&](int shift) { put(0x80 | (value >> shift & 0x3F)); };
    if (value < 0x80) return put(value);
    if (value < 0x800) {
        put(0xC0 | value >> 6);
        return follow(0);
    }
    if (value < 0x10000) {
        put(0xE0 | value >> 12);
        follow(6);
        return follow(0);
    }
    put(0xF0 | value >> 18);
    follow(12);
    follow(6);
    follow(0);
}

bool isHigh(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLow(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

Text fromUtf8(std::string_view bytes) {
    Text text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        std::size_t length = 0;
        const char32_t value = decode(bytes, length);
        if (value < 0x10000) {
            text += static_cast<char16_t>(value);
        } else {
            text += static_cast<char16_t>(0xD7C0 + (value >> 10));
            text += static_cast<char16_t>(0xDC00 + (value & 0x3FF));
        }
        bytes.remove_prefix(length);
    }
    return text;
}

std::string toUtf8(TextView text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (isHigh(unit) && i + 1 < text.size() && isLow(text[i + 1])) {
            encode(0x10000 + ((unit & 0x3FFu) << 10) + (text[++i] & 0x3FFu), bytes);
        } else {
            encode(isHigh(unit) || isLow(unit) ? replacement : unit, bytes);
        }
    }
    return bytes;
}

}  // namespace zifferon
