#include "platform/posix_system.h"

#include <unistd.h>

#include <array>

namespace zifferon {

Text PosixSystem::computerName() const {
    std::array<char, 256> name{};  // as many bytes as a name can have, and its end
    return ::gethostname(name.data(), name.size() - 1) == 0 ? fromUtf8(name.data()) : Text();
}

}  // namespace zifferon

#ifdef ZIFFERON_WITH_ICU

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace zifferon {

namespace {

// The user's locale for numbers, without code set and modifier: "de_DE" of "de_DE.UTF-8@euro".
std::string numberLocale() {
    for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        const char* value = std::getenv(variable);
        if (value == nullptr || *value == '\0') continue;
        const std::string locale = value;
        return locale.substr(0, locale.find_first_of(".@"));
    }
    return "";
}

// The lower ten bits of an identifier are the language, the upper ones the country: 0 none, 1 its main one.
constexpr std::uint32_t mainCountry = 0x0400;
constexpr std::uint32_t noLanguage = 0x007F;

struct LocaleCode {
    std::string_view name;
    std::uint32_t identifier;
};

constexpr LocaleCode localeCodes[] = {
#include "locale_codes.inc"
};

// 0, which is none, for a name that the table has not.
std::uint32_t identifierOf(std::string_view name) {
    const auto found = std::ranges::lower_bound(localeCodes, name, {}, &LocaleCode::name);
    return found != std::end(localeCodes) && found->name == name ? found->identifier : 0;
}

}  // namespace

std::string PosixSystem::GetDecStyle() const {
    const std::string locale = numberLocale();
    if (locale.empty() || locale == "C" || locale == "POSIX") return "";
    std::uint32_t identifier = identifierOf(locale);
    if (identifier == 0) identifier = identifierOf(locale.substr(0, locale.find('_')));
    if (identifier == 0 || identifier == noLanguage) return "";
    if (identifier < mainCountry) {
        if (locale.find('_') != std::string::npos) return "";
        identifier |= mainCountry;
    }
    std::array<char, 9> digits;
    std::snprintf(digits.data(), digits.size(), "%08X", static_cast<unsigned>(identifier));
    return digits.data();
}

}  // namespace zifferon

#else

namespace zifferon {

std::string PosixSystem::GetDecStyle() const { return ""; }

}  // namespace zifferon

#endif
