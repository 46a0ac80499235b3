#include "shell/locale.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <tuple>

#include "platform/posix_system.h"

namespace zifferon {
namespace {

TEST(Locale, tellsGermanInWhateverCountry) {
    for (const char* code : {"00000407", "00000c07", "00000807"})
        EXPECT_EQ(languageOfLocale(code), Language::german) << code;
    for (const char* code : {"00000409", "0000040C", "", "407"})
        EXPECT_EQ(languageOfLocale(code), Language::english) << code;
}

TEST(Locale, tableSortsTheLocales) {
    using enum DecimalSeparator;
    for (const char* code : {"00000407", "00000C07", "00000c0c", "00002C0A", "00000402", "0000400A"})
        EXPECT_EQ(separatorOfLocale(code), comma) << code;
    for (const char* code : {"00000409", "00000807", "0000080A", "0000046a", "00000401", "0000540A"})
        EXPECT_EQ(separatorOfLocale(code), point) << code;
    for (const char* code :
         {"", "407", "0x000407", " 0000407", "00000407 ", "00010407", "-0000407", "0000040G"})
        EXPECT_EQ(separatorOfLocale(code), unknown) << code;
    std::array<int, 3> count{};
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        std::array<char, 9> text;
        std::snprintf(text.data(), text.size(), "%08X", code);
        ++count[static_cast<std::size_t>(separatorOfLocale(text.data()))];
    }
    EXPECT_TRUE(count[0] == 103 && count[1] == 102) << count[0] << ' ' << count[1];
}

#ifdef ZIFFERON_WITH_ICU

TEST(PosixSystem, namesTheLocaleOfNumbers) {
    const auto clear = [] {
        for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) ::unsetenv(variable);
    };
    clear();
    EXPECT_EQ(PosixSystem().GetDecStyle(), "");
    for (const auto& [variable, value, code] : {std::tuple("LANG", "de_DE.UTF-8", "00000407"),
                                                {"LC_NUMERIC", "de_CH.UTF-8@modifier", "00000807"},
                                                {"LC_ALL", "en_US", "00000409"},
                                                {"LC_ALL", "", "00000807"},
                                                {"LC_ALL", "C.UTF-8", ""},
                                                {"LC_ALL", "POSIX", ""},
                                                {"LC_ALL", "xx_YY", ""},
                                                {"LC_ALL", "en_DE.UTF-8", ""},
                                                {"LC_ALL", "eo", ""},
                                                {"LC_ALL", "de", "00000407"}}) {
        ::setenv(variable, value, 1);
        EXPECT_EQ(PosixSystem().GetDecStyle(), code) << value;
    }
    clear();
}

#endif

}  // namespace
}  // namespace zifferon
