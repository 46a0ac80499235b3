#include "shell/locale.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>

#include "platform/headless/faulty_files.h"
#include "platform/headless/headless_system.h"
#include "platform/posix_files.h"
#include "platform/posix_system.h"
#include "storage/settings_files.h"
#include "tests/support/fresh_folder.h"

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
    for (const char* code : {"00000407", "00000C07", "00001007", "00000c0c", "0000040C", "00000410",
                             "00002C0A", "00000402", "0000400A"}) {
        EXPECT_EQ(separatorOfLocale(code), comma) << code;
    }
    for (const char* code : {"00000409", "00000807", "00001407", "0000100c", "00000810", "0000080A",
                             "0000046a", "00000401", "00000411", "0000540A"}) {
        EXPECT_EQ(separatorOfLocale(code), point) << code;
    }
    for (const char* code : {"", "407", "0407", "00000007", "0x000407", " 0000407", "00000407 ", "000000407",
                             "00010407", "-0000407", "0000040G", "00007C1A"}) {
        EXPECT_EQ(separatorOfLocale(code), unknown) << code;
    }
    std::array<int, 3> count{};
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        std::array<char, 9> text;
        std::snprintf(text.data(), text.size(), "%08X", code);
        ++count[static_cast<std::size_t>(separatorOfLocale(text.data()))];
    }
    EXPECT_EQ(count[0], 103);
    EXPECT_EQ(count[1], 102);
}

TEST(Locale, framesAreModernUnlessTheSystemIsOldOrHasAStyle) {
    HeadlessSystem system;
    EXPECT_TRUE(hasModernFrame(system));
    system.name = "Windows 98 SE";
    EXPECT_FALSE(hasModernFrame(system));
    system.name = "Windows NT";
    EXPECT_TRUE(hasModernFrame(system));
    system.style = "Standard";
    EXPECT_FALSE(hasModernFrame(system));
}

// Answers one box; a second one is a failure.
class OneBox : public Boxes {
  public:
    explicit OneBox(BoxAnswer answer) : answer_(answer) {}
    BoxAnswer show(const Box& box) override {
        EXPECT_TRUE(shown.text.empty());
        shown = box;
        return answer_;
    }
    Box shown;

  private:
    BoxAnswer answer_;
};

class SeparatorTest : public testing::Test {
  protected:
    FreshFolder folder;
    PosixFiles files{folder.path()};
    CalculatorState state;
    SeparatorState separator;
};

TEST_F(SeparatorTest, isAskedForOnceOnAnUnknownLocale) {
    OneBox asked(BoxAnswer::no);
    settleSeparator(state, separator, files, Messages(asked, state.language));
    EXPECT_EQ(state.decimalPointStyle, 1);
    EXPECT_EQ(toHex(folder.bytes("decpoint.dat")), "00 00 00 40");
    EXPECT_EQ(asked.shown.title, u"Zifferon PRO 5.0 - Setup");
    EXPECT_EQ(asked.shown.buttons, BoxButtons::yesNo);
    EXPECT_TRUE(
        asked.shown.text.starts_with(u"Zifferon PRO konnte die Ländereinstellung Ihres Systems nicht  \r\n"));
    EXPECT_TRUE(contains(asked.shown.text, u"Land gültig ist.   \r\n\r\nWenn das"));
    EXPECT_TRUE(asked.shown.text.ends_with(u"Zifferon PRO-Verzeichnis löschen."));

    state.decimalPointStyle = 0;
    OneBox notAsked(BoxAnswer::yes);
    settleSeparator(state, separator, files, Messages(notAsked, state.language));
    EXPECT_EQ(state.decimalPointStyle, 1);
    EXPECT_EQ(notAsked.shown.text, u"");
}

TEST_F(SeparatorTest, isAskedForDuringTheRunInTheStoredLanguage) {
    writeSingle(files, settingsFile::language, 1);
    writeSingle(files, settingsFile::decimalSeparator, 2);
    state.decimalPointStyle = 1;
    OneBox asked(BoxAnswer::yes);
    askSeparator(state, separator, files, Messages(asked, state.language));
    EXPECT_EQ(state.decimalPointStyle, 0);
    EXPECT_EQ(toHex(folder.bytes("decpoint.dat")), "00 00 80 3F");
    EXPECT_TRUE(asked.shown.language == Language::english);
    EXPECT_TRUE(
        asked.shown.text.starts_with(u"Please choose the kind of decimal separator which is used   \r\nin "
                                     u"your country.   \r\n\r\nIf the"));
}

TEST_F(SeparatorTest, holdsForTheRunWhenItCannotBeStored) {
    FaultyFiles faulty(files);
    files.readOrCreate("language.dat");
    faulty.writable(false);
    OneBox asked(BoxAnswer::no);
    EXPECT_THROW(askSeparator(state, separator, faulty, Messages(asked, state.language)), FileFailure);
    EXPECT_EQ(state.decimalPointStyle, 1);
}

#ifdef ZIFFERON_WITH_ICU

class Environment {
  public:
    Environment() { clear(); }
    ~Environment() { clear(); }
    std::string code(const char* variable, const char* value) {
        ::setenv(variable, value, 1);
        return PosixSystem().GetDecStyle();
    }

  private:
    static void clear() {
        for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) ::unsetenv(variable);
    }
};

TEST(PosixSystem, namesTheLocaleOfNumbers) {
    Environment environment;
    EXPECT_EQ(PosixSystem().GetDecStyle(), "");
    EXPECT_EQ(environment.code("LANG", "de_DE.UTF-8"), "00000407");
    EXPECT_EQ(environment.code("LC_NUMERIC", "de_CH.UTF-8@modifier"), "00000807");
    EXPECT_EQ(environment.code("LC_ALL", "en_US"), "00000409");
    EXPECT_EQ(environment.code("LC_ALL", ""), "00000807");
    for (const char* none : {"C", "C.UTF-8", "POSIX", "xx_YY", "en_DE.UTF-8", "eo"}) {
        EXPECT_EQ(environment.code("LC_ALL", none), "") << none;
    }
    EXPECT_EQ(environment.code("LC_ALL", "de"), "00000407");
}

#endif

}  // namespace
}  // namespace zifferon
