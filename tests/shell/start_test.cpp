// The start in a damaged or incomplete program folder; what it makes of settings is seen by the walks.

#include <gtest/gtest.h>

#include <tuple>

#include "shell/required_files.h"
#include "shell/send_keys.h"
#include "shell/start_windows.h"
#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

// What a hand without a mouse chooses in the window of the first run.
TEST(LanguageWindow, isUsedByTheKeyboard) {
    using enum Language;
    const std::tuple<Language, TextView, std::optional<Language>> rows[] = {
        {german, u"{ENTER}", german},
        {english, u" ", english},
        {german, u"{TAB}{ENTER}", english},
        {english, u"{LEFT} ", german},
        {german, u"{TAB}{DOWN}{ENTER}", german},
        {german, u"{F3}{ENTER}", german},
        {german, u"e", english},
        {english, u"D", german},
        {german, u"x{TAB}", std::nullopt}};
    for (const auto& [ofTheDesktop, typed, choice] : rows) {
        Form3 window(ofTheDesktop);
        KeyRoad keys(window, [] {});
        window.visible = true;
        window.onActivate();
        for (const Key key : keysOfNotation(typed)) keys.stroke(key);
        window.onDismiss();
        EXPECT_FALSE(window.visible);
        EXPECT_EQ(window.choice(), choice) << toUtf8(typed);
    }
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

// The sound of the start comes from a window that is seen; in the tray it neither sounds nor is made up for.
TEST_F(Start, isHeardOnlyWhereItIsSeen) {
    CalculatorState heard;
    CalculationRecord record(heard);
    record.recordSound = 1;
    writeRecord(files_, "quicksave.zfr", record);
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
