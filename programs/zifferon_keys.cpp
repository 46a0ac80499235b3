// The whole program without a window, driven by a key script: a file, or standard input.

#include <fstream>
#include <iostream>

#include "programs/script/script_runner.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    zifferon::ScriptRunner runner(std::cout, std::cerr);
    if (argc < 2) return runner.run(std::cin);
    std::ifstream file(argv[1]);
    if (!file) {
        std::cerr << "cannot read " << argv[1] << '\n';
        return 2;
    }
    return runner.run(file);
}
