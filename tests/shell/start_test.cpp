// The start in a damaged, incomplete or forbidding program folder.

#include <gtest/gtest.h>

#include <array>
#include <tuple>

#include "shell/required_files.h"
#include "shell/start_windows.h"
#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

// What a hand without a mouse chooses in the window of the first run.
TEST(LanguageWindow, isUsedByTheKeyboard) {
    using enum Language;
    constexpr Key tab{keyCode::tab}, left{keyCode::left}, enter{keyCode::enter, 13};
    const auto chosen = [](Language ofTheDesktop, const std::vector<Key>& typed) {
        Form3 window(ofTheDesktop);
        KeyRoad keys(window, [] {});
        window.visible = true;
        window.onActivate();
        for (const Key key : typed) keys.stroke(key);
        return window.choice();
    };
    EXPECT_EQ(chosen(german, {enter}), german);
    EXPECT_EQ(chosen(english, {keyOfCharacter(u' ')}), english);
    EXPECT_EQ(chosen(german, {tab, enter}), english);
    EXPECT_EQ(chosen(english, {left, keyOfCharacter(u' ')}), german);
    EXPECT_EQ(chosen(german, {tab, left, enter}), german);
    EXPECT_EQ(chosen(german, {Key{keyCode::f3}, enter}), german);
    EXPECT_EQ(chosen(german, {keyOfCharacter(u'e')}), english);
    EXPECT_EQ(chosen(english, {keyOfCharacter(u'D')}), german);
    EXPECT_EQ(chosen(german, {keyOfCharacter(u'x'), tab}), std::nullopt);
}

class Start : public HeadlessTest {
  protected:
    Start() {
        for (const char* name : requiredFiles) folder_.put(name, "");
    }

    // Starts and types a sum; false where the program has ended itself.
    bool startAndAdd() {
        log_.str("");
        headless_.beginAnew();
        Program program(machine_);
        try {
            program.keys.run([&] { program.start(); });
            type(program, u"5+3\r");
        } catch (const ProcessEnded&) {
            return false;
        }
        EXPECT_EQ(program.pultform.state.zwischen.text(), u"8,00");
        return true;
    }
};

TEST_F(Start, stopsWhereAnyComponentIsMissingAndWritesNothing) {
    for (const char* name : requiredFiles) {
        std::filesystem::remove(folder_ / name);
        EXPECT_FALSE(startAndAdd()) << name;
        EXPECT_TRUE(logHas("ERROR 001:")) << name;
        EXPECT_FALSE(folder_.has("language.dat")) << name;
        folder_.put(name, "");
    }
    EXPECT_TRUE(startAndAdd());
}

TEST_F(Start, stopsInAWriteProtectedFolder) {
    files_.writable(false);
    EXPECT_FALSE(startAndAdd());
    EXPECT_TRUE(logHas("schreibgeschützten Datenträger"));
    files_.writable(true);
    EXPECT_TRUE(startAndAdd());
    EXPECT_TRUE(logHas("window Form3 shown"));
}

// Whatever a settings file holds, the calculator comes up and computes.
TEST_F(Start, bearsRubbishInEverySettingsFile) {
    ASSERT_TRUE(startAndAdd());
    const std::array contents = {std::string(),
                                 std::string(1, '\1'),
                                 std::string(3, '\xFF'),
                                 std::string(4, '\xFF'),
                                 std::string(5000, '\xFF'),
                                 std::string("\x08\0\xFF\xFF\xFF\xFF\xFF\xFF", 8),
                                 std::string("\0\0\xC0\x7F", 4),
                                 std::string("\0\0\x80\x3F", 4),
                                 std::string("\0\0\x80\x3F\x02\0\0\x80\x02\0\xFF\x7F", 12)};
    for (const char* name :
         {"language.dat", "decpoint.dat", "format.dat", "winstate.dat", "gui1.dat", "gui2.dat", "style.dat",
          "ntcheck.zfr", "wpcheck.zfr", "quicksave.zfr", "font.zfr", "temp.dat"}) {
        for (const std::string& content : contents) {
            folder_.put(name, content);
            // Unformatted numbers and a stored window mode are settings too.
            headless_.queueAnswer(BoxAnswer::german);
            log_.str("");
            headless_.beginAnew();
            Program program(machine_);
            ASSERT_NO_THROW(program.keys.run([&] { program.start(); })) << name;
            type(program, u"5+3\r");
            EXPECT_TRUE(program.pultform.state.operand.equals(8, commaStyle)) << name;
            EXPECT_GT(program.pultform.place.width, 5000) << name;
            EXPECT_GT(program.pultform.place.height, 1500) << name;
        }
        std::filesystem::remove(folder_ / name);
        folder_.put(name, "");
    }
}

// A calculation that was stored under a comma goes on under a point, and no figure changes.
TEST_F(Start, bringsStoredFiguresUnderTheSeparatorsInForce) {
    {
        Program program(machine_);
        program.keys.run([&] { program.start(); });
        type(program, u"1234,5+m12,5");
    }
    folder_.put("quicksave.zfr", folder_.bytes("Temp/temp1.tmp"));
    system_.locale = "00000409";
    headless_.beginAnew();
    Program program(machine_);
    program.keys.run([&] { program.start(); });
    EXPECT_EQ(program.pultform.state.zwischen.text(), u"1,234.50");
    type(program, u"1m1+");
    EXPECT_EQ(program.pultform.state.memo[0].text(), u"1,234.50");
    EXPECT_EQ(program.pultform.state.zwischen.text(), u"1,235.50");
    EXPECT_EQ(program.pultform.state.anzeige.text(), u"\r\n1.234,50      \r\n1.00 +   ");
}

TEST_F(Start, tellsScreenReadersInTheLanguageInForce) {
    Program program(machine_);
    for (const auto& [language, entry, line] : {std::tuple(Language::english, u"Entry", u"Headline 1"),
                                                std::tuple(Language::german, u"Eingabe", u"1. Kopfzeile")}) {
        program.pultform.speak(language, true);
        program.kopf.speak(language, true);
        EXPECT_EQ(program.pultform.state.eingabe.accessibleName, entry);
        EXPECT_EQ(program.kopf.zeile1.accessibleName, line);
        EXPECT_EQ(program.pultform.state.memo[4].accessibleName, u"M5");
    }
}

// The sound of the start comes from a window that is seen; in the tray it neither sounds nor is made up for.
TEST_F(Start, isHeardOnlyWhereItIsSeen) {
    {
        Program program(machine_);
        program.keys.run([&] { program.start(); });
        program.keys.run([&] { program.pultform.state.Checksound.setTicked(true); });
        type(program, u"5+");
    }
    folder_.put("quicksave.zfr", folder_.bytes("Temp/temp1.tmp"));
    const std::string seen, inTray = fromHex("04 00 00 00 00 00 04 00 00 00 00 00 02 00 00 00 02 00 01 00");
    for (const auto& [options, sounds] : {std::pair(seen, true), std::pair(inTray, false)}) {
        folder_.put("winstate.dat", options);
        log_.str("");
        headless_.beginAnew();
        Program program(machine_);
        headless_.setMainWindow(program.pultform, program.keys);
        program.keys.run([&] { program.start(); });
        headless_.wait(20);
        EXPECT_EQ(logHas("sound start.wav"), sounds);
        EXPECT_EQ(program.pultform.visible, sounds);
        program.keys.run(headless_.onTrayShow);
        headless_.wait(20);
        EXPECT_EQ(logHas("sound start.wav"), sounds);
    }
}

TEST_F(Start, bringsTheSwitchesOfTheQuickFileBack) {
    {
        CalculatorState state;
        CalculationRecord record(state);
        record.recordAlwaysOnTop = 1;
        record.recordSound = record.recordClipboard = record.recordRoundingTick = 1;
        record.recordRoundingCaption = Text(u"&RND 3");
        writeRecord(files_, "quicksave.zfr", record);
    }
    Program program(machine_);
    program.keys.run([&] { program.start(); });
    const CalculatorState& s = program.pultform.state;
    EXPECT_TRUE(s.Checkob.ticked() && s.Checksound.ticked() && s.clipcheck.ticked() && s.checkrnd.ticked());
    EXPECT_TRUE(program.pultform.alwaysOnTop);
    EXPECT_EQ(s.checkrnd.caption, u"&RND 3");
    type(program, u"1,23456+1\r");
    EXPECT_EQ(s.eingabe.text(), u"2,235");
    EXPECT_EQ(headless_.text(), u"2,235");
}

// A number between two schemes is none, and leaves the designed colours.
TEST_F(Start, takesOnlyWholeNumbersForColourSchemes) {
    for (const auto& [bytes, scheme] :
         {std::pair("00 00 20 40", 0), std::pair("00 00 40 40", 3), std::pair("00 00 80 BF", 0),
          std::pair("00 00 88 41", 0), std::pair("00 00 C0 7F", 0), std::pair("00 00 00 00", -1)}) {
        folder_.put("gui1.dat", fromHex(bytes));
        folder_.put("gui2.dat", fromHex(bytes));
        headless_.beginAnew();
        Program program(machine_);
        program.keys.run([&] { program.start(); });
        EXPECT_EQ(program.colours.textScheme(), scheme < 0 ? standardTextScheme : scheme);
        EXPECT_EQ(program.colours.backScheme(), scheme < 0 ? standardBackScheme : scheme);
    }
}

// Neither a settings file that cannot be read nor one that cannot be written answers the question.
TEST_F(Start, asksForTheSeparatorWhereItCannotBeKept) {
    system_.locale = "";
    std::filesystem::create_directory(folder_ / "decpoint.dat");
    headless_.queueAnswer(BoxAnswer::german);
    headless_.queueAnswer(BoxAnswer::ok);
    headless_.queueAnswer(BoxAnswer::yes);
    EXPECT_TRUE(startAndAdd());
    EXPECT_TRUE(logHas("\"Zifferon PRO 5.0 - Setup\""));
    EXPECT_TRUE(logHas("\"decpoint.dat: Die Einstellung konnte nicht gespeichert werden.   \""));
}

TEST_F(Start, stopsAtADamagedLetterheadUntilItIsDeleted) {
    headless_.queueAnswer(BoxAnswer::english);
    ASSERT_TRUE(startAndAdd());
    folder_.put("setup.zfr", std::string(8, '\xFF'));
    EXPECT_FALSE(startAndAdd());
    EXPECT_TRUE(logHas("box critical ok \"Zifferon PRO 5.0\" \"Die Datei SETUP.ZFR wurde beschädigt! "));
    std::filesystem::remove(folder_ / "setup.zfr");
    EXPECT_TRUE(startAndAdd());
}

// Each operation on the folder fails once: the program ends with its box or goes on, and the next start
// works.
TEST_F(Start, survivesAFaultAtEveryOperation) {
    for (int n = 1;; ++n) {
        SCOPED_TRACE(n);
        files_.failOperation(n, FileTrouble::access);
        EXPECT_TRUE(startAndAdd() || logHas("box critical"));
        const bool met = files_.faultMet();
        files_.failOperation(0);
        EXPECT_TRUE(startAndAdd());
        if (!met) break;
        ASSERT_LT(n, 200);
    }
}

// The session ends while the goodbye window stands.
struct EndingInThePause : Process {
    [[noreturn]] void end() override { throw ProcessEnded(); }
    void pause(int) override {
        if (desktop.onSessionEnd) desktop.onSessionEnd();
    }
    explicit EndingInThePause(Desktop& of) : desktop(of) {}
    Desktop& desktop;
};

TEST_F(Start, endsOnlyOnce) {
    EndingInThePause process(headless_);
    Machine machine = machine_.with(process);
    Program program(machine);
    program.keys.run([&] { program.start(); });
    headless_.queueAnswer(BoxAnswer::yes);
    log_.str("");
    EXPECT_THROW(program.keys.stroke({keyCode::f12}), ProcessEnded);
    EXPECT_EQ(log_.str().find("window Form2 shown"), log_.str().rfind("window Form2 shown"));
}

}  // namespace
}  // namespace zifferon
