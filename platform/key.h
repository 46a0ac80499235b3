// A key as the handlers see it: the virtual key code of its down and up, and the character of its press.
#pragma once

namespace zifferon {

namespace keyCode {
constexpr int back = 8, tab = 9, enter = 13, alt = 18, escape = 27, space = 32;
constexpr int pageUp = 33, pageDown = 34, end = 35, home = 36, left = 37, up = 38, right = 39, down = 40;
constexpr int insert = 45, del = 46;
constexpr int c = 67, t = 84, w = 87;
constexpr int multiply = 106, add = 107, subtract = 109, decimal = 110, divide = 111;
constexpr int f1 = 112, f2 = 113, f3 = 114, f4 = 115, f5 = 116, f6 = 117, f7 = 118, f8 = 119, f9 = 120,
              f10 = 121, f11 = 122, f12 = 123;
constexpr int plus = 187, minus = 189;
}  // namespace keyCode

struct Key {
    int code = 0;
    char16_t character = 0;  // 0: the key has none, and no key press comes
    bool operator==(const Key&) const = default;
};

// The key that types `character` on the main row: digits and letters by their capital, the operators and
// separators by the codes of a German layout, anything else 0.
Key keyOfCharacter(char16_t character);

}  // namespace zifferon
