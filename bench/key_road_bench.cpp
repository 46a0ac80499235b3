// The cost of one key through the whole road, without a window: on an empty tape and on long ones.

#include <benchmark/benchmark.h>

#include <sstream>

#include "platform/headless/headless_machine.h"
#include "platform/headless/headless_system.h"
#include "platform/posix_files.h"
#include "shell/program.h"
#include "tests/support/fresh_folder.h"

namespace {

using namespace zifferon;

// A calculator whose tapes hold so many lines, with a running chain and no snapshots.
class Bench {
  public:
    explicit Bench(std::int64_t lines)
        : headless_(log_), machine_(headless_.with(files_, system_)), program_(machine_) {
        program_.beginFresh();
        state().undoActive = false;
        Text tape, print;
        for (std::int64_t i = 0; i < lines; ++i) {
            tape += u"\r\n1.234,56 +   ";
            print += u"\r\n                                                    1.234,56 +";
        }
        state().anzeige.setText(tape);
        state().superdruck.setText(print);
        press(u'5');
        press(u'+');
    }

    void press(char16_t character) { program_.keys.stroke(keyOfCharacter(character)); }
    CalculatorState& state() { return program_.pultform.state; }

  private:
    FreshFolder folder_;
    std::ostringstream log_;
    HeadlessMachine headless_;
    HeadlessSystem system_;
    PosixFiles files_{folder_.path()};
    Machine machine_;
    Program program_;
};

void digit(benchmark::State& run) {
    Bench bench(run.range(0));
    for (auto _ : run) {
        bench.press(u'7');
        if (bench.state().eingabe.text().size() == 20) {
            run.PauseTiming();
            bench.state().eingabe.setText(u"");
            run.ResumeTiming();
        }
    }
}

// Digit and operator; the digit's share is told by the bench before.
void operatorStep(benchmark::State& run) {
    Bench bench(run.range(0));
    for (auto _ : run) {
        bench.press(u'7');
        bench.press(u'+');
    }
}

}  // namespace

BENCHMARK(digit)->Arg(0)->Arg(1000)->Arg(100000);
BENCHMARK(operatorStep)->Arg(0)->Arg(1000)->Arg(100000)->Iterations(20000);
