// The whole program without a window, driven by a key script (a file, or standard input), or as a filter for
// plain keys and tables. With --answered a question of a script that finds no queued answer is a failed
// expectation.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string_view>

#include "programs/script/script_runner.h"
#include "programs/tape/tape_command.h"

namespace {

constexpr std::string_view help =
    R"(zifferon-keys [FILE]              runs a key script and exits with 1 where an expectation failed
zifferon-keys --tape [OPTION]... [FILE]
                                  takes plain keys, such as 12,50+3*4, each line end for Enter, and prints the tape
zifferon-keys --csv COLUMN [OPTION]... [FILE]
                                  adds up a column, told by its number from 1 or its name in the first line, of a
                                  table, and names the lines that hold no number
Without FILE standard input is read.

  --english                       words on the tape in English instead of German
  --point                         decimal point instead of decimal comma
  --round N                       each total is rounded to N decimals, 0 to 4
  --help, --version

Exit code: 0; 1 where an expectation failed, a calculation has no result or a line no number; 2 where the call or the
script is wrong.
)";

int runScript(std::istream& script, bool answered) {
    zifferon::ScriptRunner runner(std::cout, std::cerr);
    if (answered) runner.expectAnswers();
    return runner.run(script);
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto has = [&](std::string_view word) {
        return std::find(arguments.begin(), arguments.end(), word) != arguments.end();
    };
    if (has("--help")) return std::cout << help, 0;
    if (has("--version")) return std::cout << "zifferon-keys " ZIFFERON_VERSION "\n", 0;
    if (has("--tape") || has("--csv")) {
        return zifferon::runTapeCommand(arguments, std::cin, std::cout, std::cerr);
    }
    const bool answered = !arguments.empty() && arguments.front() == "--answered";
    const std::size_t script = answered ? 1 : 0;
    if (arguments.size() <= script) return runScript(std::cin, answered);
    std::ifstream file(arguments[script]);
    if (!file) {
        std::cerr << "cannot read " << arguments[script] << '\n';
        return zifferon::badCall;
    }
    return runScript(file, answered);
}
