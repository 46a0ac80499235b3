// The states that long walks through the calculator go through: a digest of each walk, in walks.out. It says
// nothing of what is right, which the stories tell, but no behaviour changes without a word. Where a change
// is meant, look at the walk that the failure tells, and take over the file that the test leaves behind.

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>

#include "core/number_format.h"
#include "platform/mouse.h"
#include "programs/script/script_names.h"
#include "shell/send_keys.h"
#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

// Everything that is done depends on the seed alone: no distribution of the library, which may differ.
class Walk {
  public:
    Walk(unsigned seed, Machine& machine, HeadlessMachine& headless, std::ostringstream& log)
        : random_(seed), headless_(headless), log_(log) {
        log_.str("");
        headless_.beginAnew();
        program_ = std::make_unique<Program>(machine);
        headless_.setMainWindow(program_->pultform, program_->keys);
        CalculatorState& s = program_->pultform.state;
        if (seed % 3 == 1) s.language = Language::english;
        if (seed % 4 == 1) s.decimalPointStyle = 1;
        if (seed % 5 == 1) s.formatMode = 2;
        applyFormatMode(s);
        headless_.whileModal = [this](const Window& window) {
            if (window.name == u"Help") program_->keys.run(program_->help.onDismiss);
        };
        program_->beginFresh();
    }

    // The digest of all states behind all its steps; what was done is told in `story`.
    std::uint64_t go(std::string& story) {
        constexpr int steps = 120;
        try {
            for (int i = 0; i < steps; ++i) {
                step(story);
                headless_.settleActivation();
                digestState();
            }
        } catch (const ProcessEnded&) {
            digest("end");
        }
        return digest_;
    }

  private:
    unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

    template <class List>
    const auto& anyOf(const List& list) {
        return *(std::begin(list) + below(static_cast<unsigned>(std::size(list))));
    }

    void digest(std::string_view text) {
        for (const char c : text)
            digest_ = (digest_ ^ static_cast<unsigned char>(c)) * 0x100000001B3;  // FNV-1a
    }

    void digestState() {
        for (const std::string_view name : dumpNames()) digest(*valueOf(name, *program_, headless_));
        for (const char* const name :
             {"percentBase", "percentRate", "differenceValue1", "operandLength", "clipboardText", "savefiles",
              "Files.row", "txtvorschau", "superdruck.caret", "messageTicks", "Check33.ticked",
              "insertmode.ticked", "raster0.visible"}) {
            digest(*valueOf(name, *program_, headless_));
        }
        const Colour colour = program_->pultform.state.superdruck.foreColour;
        digest(std::to_string(colour.red));
        digest(log_.str());
        log_.str("");
    }

    void type(TextView keys) {
        for (const Key key : keysOfNotation(Text(keys))) program_->keys.stroke(key);
    }

    void step(std::string& story) {
        static const TextView sentences[] = {u"1",
                                             u"2,5",
                                             u"100",
                                             u"0,05",
                                             u"12345,678",
                                             u"999999",
                                             u"{+}",
                                             u"-",
                                             u"*",
                                             u"/",
                                             u"{ENTER}",
                                             u"{ENTER}",
                                             u"{ENTER}{ENTER}",
                                             u"c",
                                             u"p",
                                             u"{%}",
                                             u"d",
                                             u"w",
                                             u" ",
                                             u"v",
                                             u"t",
                                             u"m1",
                                             u"m2",
                                             u"r1",
                                             u"r2",
                                             u"{RIGHT}",
                                             u"{BS}",
                                             u"{ESC}",
                                             u"<",
                                             u"5{+}3{ENTER}",
                                             u"200p10{ENTER}",
                                             u"d100{ENTER}110{ENTER}",
                                             u"16w",
                                             u"8/0{ENTER}",
                                             u"7*6{ENTER}{ENTER}c",
                                             u"19p",
                                             u"m3{ENTER}",
                                             u"mm",
                                             u"r9",
                                             u"{DEL}",
                                             u"{LEFT}{HOME}{END}",
                                             u"{PGUP}7"};
        static const TextView commands[] = {u"{F2}",  u"{F6}", u"{F7}",  u"{F8}", u"{F10}", u"m{F3}",
                                            u"m{F4}", u"{F9}", u"{TAB}", u"{F5}", u"{UP}",  u"{DOWN}"};
        static const TextView pasted[] = {u"12,50 EUR",  u"5\n6\n-7", u"8/0*3",         u"1.234,50\t3",
                                          u"(3)",        u"1 234,5",  u"Summe 5 + 6 =", u"3-\n4+",
                                          u"12.03.2026", u"1,5 2,5",  u"1'000.50"};
        static const BoxAnswer answers[] = {BoxAnswer::yes, BoxAnswer::no, BoxAnswer::cancel};
        const unsigned kind = below(24);
        if (kind < 17) return tell(story, anyOf(sentences), [this](TextView keys) { type(keys); });
        if (kind == 17)
            return tell(story, anyOf(commands), [this](TextView keys) {
                headless_.queueAnswer(anyOf(answers));
                type(keys);
            });
        if (kind == 18) return tell(story, anyOf(pasted), program_->pultform.onPaste);
        if (kind == 19) return headless_.wait(below(1500));
        const auto& controls = program_->pultform.controls();
        clickOn(*anyOf(controls), story);
    }

    static void tell(std::string& story, TextView what, const std::function<void(TextView)>& act) {
        story += toUtf8(what) + ' ';
        act(what);
    }

    void clickOn(Control& control, std::string& story) {
        if (!isReachable(program_->pultform, control) || &control == &program_->pultform.cmdexit) return;
        story += '[' + toUtf8(control.name) + "] ";
        headless_.queueAnswer(below(2) == 0 ? BoxAnswer::yes : BoxAnswer::no);
        mousePress(program_->pultform, program_->keys, control);
        mouseRelease(program_->keys, control);
        if (below(4) == 0) mouseDoubleClick(program_->keys, control);
    }

    std::mt19937 random_;
    HeadlessMachine& headless_;
    std::ostringstream& log_;
    std::unique_ptr<Program> program_;
    std::uint64_t digest_ = 0xCBF29CE484222325;
};

class Walks : public HeadlessTest {};

TEST_F(Walks, goThroughTheSameStates) {
    constexpr unsigned walks = 300;
    std::ifstream file(ZIFFERON_TESTS_DIR "/shell/walks.out");
    std::ostringstream found;
    bool same = true;
    for (unsigned seed = 0; seed < walks; ++seed) {
        std::string story, expected;
        const std::uint64_t digest = Walk(seed, machine_, headless_, log_).go(story);
        std::ostringstream line;
        line << std::hex << digest;
        found << line.str() << '\n';
        std::getline(file, expected);
        if (same && line.str() != expected) {
            same = false;
            ADD_FAILURE() << "walk " << seed << ": " << story;
        }
    }
    if (!same) std::ofstream("walks.out") << found.str();
}

}  // namespace
}  // namespace zifferon
