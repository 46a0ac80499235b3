// How every control stands in its window: one table for all, as windows.out has it. Where a change is meant,
// the table that the test has written takes its place.

#include <fstream>
#include <map>

#include "memory/message_window.h"
#include "shell/start_windows.h"
#include "tests/shell/control_line.h"
#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

class Windows : public FreshProgramTest {
  protected:
    // The controls of a window; of one that has been told before, those that have changed.
    void tell(const std::string& heading, const Window& window) {
        table_ << heading << " \"" << toUtf8(window.caption) << "\" " << window.place.width << ' '
               << window.place.height << (window.framed ? "" : " frameless")
               << (window.closeable ? "" : " stays") << '\n';
        for (const Control* const control : window.controls()) {
            const std::string line = lineOf(*control);
            if (std::exchange(told_[control], line) != line) table_ << "  " << line << '\n';
        }
    }

    // The colours of a scheme, where they differ from each other.
    void tellScheme(const char* heading, int scheme) {
        CalculatorState& s = state();
        table_ << heading << ' ' << scheme;
        for (const Control* control : {static_cast<Control*>(&s.zwischen), static_cast<Control*>(&s.eingabe),
                                       static_cast<Control*>(&s.txtop), static_cast<Control*>(&s.memo[0]),
                                       &program_.pultform.Frame1, &program_.pultform.memoLabels[0]}) {
            print(table_, control->foreColour);
            print(table_, control->backColour);
        }
        print(table_, program_.pultform.backColour);
        print(table_, program_.help.backColour);
        table_ << '\n';
    }

    std::map<const Control*, std::string> told_;
    std::ostringstream table_;
};

TEST_F(Windows, standAsTheyWereDesigned) {
    Pultform& desk = program_.pultform;
    tell("desk", desk);
    for (const char* mode : {"narrow", "strip", "desk again"}) {
        program_.keys.stroke({keyCode::f2});
        tell(mode, desk);
    }
    program_.keys.run(desk.page.edit.onClick);
    tell("page", desk);
    tell("letterhead", program_.kopf);
    tell("help", program_.help);
    for (const std::uint32_t seed : {1U, 2U, 3U, 4U, 5U}) {
        system_.seed = seed;
        program_.puzzle.onActivate();
        tell("puzzle", program_.puzzle);
    }
    tell("riddle", program_.secretform);
    const Form1 form1(Language::german);
    tell("loading", form1);
    const Form2 form2(Language::german);
    tell("goodbye", form2);
    const Form3 form3(Language::german);
    tell("language", form3);
    const MessageWindow message(state(), [] {});
    tell("message", message);
    for (int scheme = 1; scheme <= 8; ++scheme) {
        applyTextScheme(desk, scheme);
        tellScheme("text", scheme);
    }
    for (int scheme = 1; scheme <= 16; ++scheme) {
        applyBackScheme(desk, program_.help, scheme);
        tellScheme("back", scheme);
    }

    std::ifstream file(ZIFFERON_TESTS_DIR "/shell/windows.out");
    const std::string designed{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (designed == table_.str()) return;
    std::ofstream("windows.out") << table_.str();
    ADD_FAILURE() << "compare windows.out in the folder of the tests";
}

}  // namespace
}  // namespace zifferon
