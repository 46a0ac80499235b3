// The whole program without a window, driven by a key script: a file, or standard input. With --answered a
// question that finds no queued answer is a failed expectation.

#include <fstream>
#include <iostream>
#include <string_view>

#include "programs/script/script_runner.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    zifferon::ScriptRunner runner(std::cout, std::cerr);
    const bool answered = argc > 1 && argv[1] == std::string_view("--answered");
    if (answered) runner.expectAnswers();
    const int script = answered ? 2 : 1;
    if (argc <= script) return runner.run(std::cin);
    std::ifstream file(argv[script]);
    if (!file) {
        std::cerr << "cannot read " << argv[script] << '\n';
        return 2;
    }
    return runner.run(file);
}
