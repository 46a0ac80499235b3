// clerk_day [ENTRIES]: the day of a clerk, 30,000 entries on one tape, with totals, Undos and memory cells,
// typed into the real window as fast as it takes them. Tells the time, the longest passes of the event loop,
// and the most that the process and its folder Temp had.

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench/real_desk.h"
#include "platform/qt/application.h"

namespace {

using namespace zifferon;
using std::chrono::steady_clock;
namespace keys = test::keys;

double milliseconds(steady_clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

// KiB of the process that are in memory.
long resident() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) return std::atol(line.c_str() + 6);
    }
    return 0;
}

long folderSize() {
    std::uintmax_t bytes = 0;
    for (const auto& file : std::filesystem::directory_iterator("Temp")) bytes += file.file_size();
    return static_cast<long>(bytes / 1024);
}

class Day {
  public:
    explicit Day(int entries) : entries_(entries) { desk_.begin(); }

    void go() {
        const auto start = steady_clock::now();
        for (int entry = 1; entry <= entries_; ++entry) {
            for (const int key : {keys::keypad1 + entry % 3, keys::keypadDecimal, keys::keypad5}) type(key);
            type(entry % 7 == 0 ? keys::keypadSubtract : keys::keypadAdd);
            if (entry % 50 == 0) correctAndTotal();
            if (entry % 1000 == 0) look();
        }
        std::printf("%d entries, %d keys: %.1f s\n", entries_, keysTyped_,
                    milliseconds(steady_clock::now() - start) / 1000);
        std::sort(passes_.begin(), passes_.end());
        std::printf(
            "longest passes of the event loop: %.1f, %.1f, %.1f ms; %zu over 50 ms\n", passes_.end()[-1],
            passes_.end()[-2], passes_.end()[-3],
            static_cast<std::size_t>(passes_.end() - std::upper_bound(passes_.begin(), passes_.end(), 50.0)));
        std::printf("memory %ld MiB, Temp %ld MiB at most; %zu characters on the print copy\n",
                    memory_ / 1024, folder_ / 1024, desk_.program.pultform.state.superdruck.text().size());
    }

  private:
    // A step back and again, the total, which a memory cell takes, and on with it.
    void correctAndTotal() {
        for (const int key :
             {keys::right, keys::keypad7, keys::keypadAdd, keys::keypadEnter, keys::keypadEnter})
            type(key);
        for (const int key : {keys::letterM, keys::digit1}) type(key);
        type(keys::keypadAdd);
    }

    // The program has taken the key when nothing is left to be done. The screen sends it soon.
    void type(int key) {
        desk_.hands.stroke({key});
        ++keysTyped_;
        for (int quiet = 0; quiet < 3;) {
            const auto start = steady_clock::now();
            QCoreApplication::processEvents();
            const double pass = milliseconds(steady_clock::now() - start);
            passes_.push_back(pass);
            constexpr double nothing = 0.05;
            quiet = pass < nothing ? quiet + 1 : 0;
        }
    }

    void look() {
        memory_ = std::max(memory_, resident());
        folder_ = std::max(folder_, folderSize());
    }

    RealDesk desk_;
    int entries_;
    int keysTyped_ = 0;
    std::vector<double> passes_;
    long memory_ = 0, folder_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    const Application application(argc, argv);
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    Day(argc > 1 ? std::atoi(argv[1]) : 30000).go();
}
