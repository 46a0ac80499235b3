#include "programs/script/script_keys.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

#include "platform/text.h"
#include "programs/script/script_line.h"
#include "shell/send_keys.h"

namespace zifferon {

namespace {

struct NamedKey {
    std::string_view name;
    Key key;
};

constexpr std::array extraKeys = {
    NamedKey{"SPACE", {keyCode::space, u' '}},       NamedKey{"ALT", {keyCode::alt, 0}},
    NamedKey{"ADD", {keyCode::add, u'+'}},           NamedKey{"SUBTRACT", {keyCode::subtract, u'-'}},
    NamedKey{"MULTIPLY", {keyCode::multiply, u'*'}}, NamedKey{"DIVIDE", {keyCode::divide, u'/'}},
    NamedKey{"DECIMAL", {keyCode::decimal, u','}},   NamedKey{"CTRL+R", {82, 18}}};

std::string upperCase(std::string_view name) {
    std::string upper(name);
    std::transform(upper.begin(), upper.end(), upper.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return upper;
}

}  // namespace

Key scriptKey(std::string_view name) {
    const Text text = fromUtf8(name);
    if (text.size() == 1) return keyOfCharacter(text.front());
    const std::string upper = upperCase(name);
    const auto found = std::find_if(extraKeys.begin(), extraKeys.end(),
                                    [&](const NamedKey& key) { return key.name == upper; });
    if (found != extraKeys.end()) return found->key;
    if (const auto key = keyOfName(text)) return *key;
    throw MalformedScript("unknown key " + std::string(name));
}

bool isAccessKeyOfBlank(std::string_view name) { return upperCase(name) == "ALT+SPACE"; }

}  // namespace zifferon
