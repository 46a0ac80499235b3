#include "shell/send_keys.h"

#include <algorithm>
#include <array>

namespace zifferon {

namespace {

struct NamedKey {
    TextView name;
    int code;
};

// In the order of testing: a longer name stands before the shorter one that it begins with.
constexpr std::array namedKeys = {
    NamedKey{u"BACKSPACE", 8},    NamedKey{u"BS", 8},        NamedKey{u"BKSP", 8},
    NamedKey{u"BREAK", 19},       NamedKey{u"CAPSLOCK", 20}, NamedKey{u"DELETE", 46},
    NamedKey{u"DEL", 46},         NamedKey{u"DOWN", 40},     NamedKey{u"UP", 38},
    NamedKey{u"LEFT", 37},        NamedKey{u"RIGHT", 39},    NamedKey{u"END", 35},
    NamedKey{u"ENTER", 13},       NamedKey{u"HOME", 36},     NamedKey{u"ESC", 27},
    NamedKey{u"HELP", 47},        NamedKey{u"INSERT", 45},   NamedKey{u"INS", 45},
    NamedKey{u"NUMLOCK", 144},    NamedKey{u"PGUP", 33},     NamedKey{u"PGDN", 34},
    NamedKey{u"SCROLLLOCK", 145}, NamedKey{u"TAB", 9},       NamedKey{u"F2", 113},
    NamedKey{u"F3", 114},         NamedKey{u"F4", 115},      NamedKey{u"F5", 116},
    NamedKey{u"F6", 117},         NamedKey{u"F7", 118},      NamedKey{u"F8", 119},
    NamedKey{u"F9", 120},         NamedKey{u"F10", 121},     NamedKey{u"F11", 122},
    NamedKey{u"F12", 123},        NamedKey{u"F13", 124},     NamedKey{u"F14", 125},
    NamedKey{u"F15", 126},        NamedKey{u"F16", 127},     NamedKey{u"F1", 112},
    NamedKey{u"WIN", 91},         NamedKey{u"APPS", 93},     NamedKey{u"PRINT", 44}};

Text upperCase(TextView text) {
    Text upper(text);
    for (char16_t& unit : upper) {
        if (unit >= u'a' && unit <= u'z') unit = static_cast<char16_t>(unit - u'a' + u'A');
    }
    return upper;
}

// Backspace, Enter and Esc have a press too.
Key keyOfCode(int code) {
    const bool hasCharacter = code == keyCode::back || code == keyCode::enter || code == keyCode::escape;
    return {code, static_cast<char16_t>(hasCharacter ? code : 0)};
}

constexpr int modifierCode(char16_t character) {
    switch (character) {
        case u'+':
            return 16;
        case u'%':
            return keyCode::alt;
        case u'^':
            return 17;
        default:
            return 0;
    }
}

}  // namespace

std::vector<Key> keysOfNotation(TextView notation) {
    std::vector<Key> keys;
    while (!notation.empty()) {
        const char16_t first = notation.front();
        notation.remove_prefix(1);
        if (first != u'{') {
            const int modifier = modifierCode(first);
            keys.push_back(modifier != 0 ? Key{modifier} : keyOfCharacter(first));
            continue;
        }
        const Text rest = upperCase(notation);
        const auto found = std::find_if(namedKeys.begin(), namedKeys.end(),
                                        [&](const NamedKey& key) { return rest.starts_with(key.name); });
        if (found != namedKeys.end()) keys.push_back(keyOfCode(found->code));
        const std::size_t brace = notation.find(u'}');
        notation.remove_prefix(brace == TextView::npos ? notation.size() : brace + 1);
    }
    return keys;
}

std::optional<Key> keyOfName(TextView name) {
    const Text upper = upperCase(name);
    const auto found = std::find_if(namedKeys.begin(), namedKeys.end(),
                                    [&](const NamedKey& key) { return key.name == upper; });
    if (found == namedKeys.end()) return std::nullopt;
    return keyOfCode(found->code);
}

}  // namespace zifferon
