// Whole stories: keys, clicks, boxes, windows, files and faults of any kind and order. Behind each line all
// that must hold of a calculator holds. Works in the current folder. ZIFFERON_TELL prints the script and what
// happens, which zifferon-keys repeats.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

#include "programs/script/script_runner.h"
#include "shell/required_files.h"
#include "tests/fuzz/agreement.h"
#include "tests/fuzz/script_of_bytes.h"
#include "tests/support/record_bytes.h"

namespace zifferon {
namespace {

class Story {
  public:
    explicit Story(const FuzzScript& script) : script_(script), runner_(out_, out_) {
        runner_.onLine = [this](std::string_view line, Program& program) { look(line, program); };
    }

    void run() {
        std::istringstream lines(script_.lines);
        const bool malformed = runner_.run(lines) == 2;
        if (malformed && told().find("no file can be written") == std::string::npos) {
            throw Disagreement("a line is malformed");
        }
    }

    std::string told() const { return out_.str(); }

  private:
    void look(std::string_view line, Program& program) {
        out_ << line << '\n';
        CalculatorState& state = program.pultform.state;
        requireChainHolds(state);
        if (program.pultform.focus() == nullptr) throw Disagreement("a control has the keyboard");
        if (line == store) storedIsLoaded(program);
        if (script_.calculates) lookAtCalculation(line, state);
    }

    void lookAtCalculation(std::string_view line, CalculatorState& state) {
        requireTapesAgree(state);
        // Behind a step back into a percentage, or behind the first one, the next chain begins without a
        // line.
        if (line == "press RIGHT" && (state.txtop.is(u"%") || state.txtop.empty())) chainsAreTold_ = false;
        if (chainsAreTold_) requireTotalOfItsLines(state);
        if (line == remember) remembered_ = stepsRun(state) ? recordBytes(state) : "";
        if (line == compare && !remembered_.empty() && recordBytes(state) != remembered_ && stepsRun(state)) {
            throw Disagreement("steps that are undone leave no trace");
        }
    }

    static bool stepsRun(const CalculatorState& state) {
        const TextView sign = state.txtop.text();
        return (sign == u"+" || sign == u"-" || sign == u"x" || sign == u"÷") && state.eingabe.empty() &&
               !state.percentPrompt && !state.differenceStart;
    }

    void storedIsLoaded(Program& program) {
        if (runner_.machine().modalOpen()) return;
        program.keys.run(program.pultform.quick.Save.onClick);
        const std::string before = recordBytes(program.pultform.state);
        runner_.machine().queueAnswer(BoxAnswer::yes);
        program.keys.run(program.pultform.quick.load.onClick);
        if (recordBytes(program.pultform.state) != before) throw Disagreement("what is stored is loaded");
    }

    const FuzzScript& script_;
    std::ostringstream out_;
    ScriptRunner runner_;
    bool chainsAreTold_ = true;
    std::string remembered_;
};

// Each story begins in a folder that holds what the start asks for, and nothing else.
void layOutFolder() {
    for (const auto& entry : std::filesystem::directory_iterator(".")) std::filesystem::remove_all(entry);
    for (const char* const name : requiredFiles) std::ofstream(name).flush();
}

}  // namespace
}  // namespace zifferon

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zifferon;
    static const bool tell = std::getenv("ZIFFERON_TELL") != nullptr;
    const FuzzScript script = scriptOfBytes({data, size});
    layOutFolder();
    Story story(script);
    if (tell) std::cout << script.lines << std::flush;
    try {
        story.run();
        if (tell) std::cout << story.told() << std::flush;
    } catch (const Disagreement& reason) {
        std::cerr << script.lines << "----\n" << story.told() << "----\n" << reason.what() << '\n';
        std::abort();
    }
    return 0;
}
