// What Undo costs: a snapshot beside a bare open, write and close of the same bytes, and the way back, at
// tapes of so many lines. Each turn brings a line or takes it away, as the steps of a calculation and their
// undoing do.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/posix_files.h"
#include "storage/calculation_record.h"
#include "tests/support/fresh_folder.h"

namespace {

using namespace zifferon;

class Bench {
  public:
    explicit Bench(std::int64_t lines) : files_(folder_.path()), record_(state_) {
        Text tape, print;
        for (std::int64_t i = 0; i < lines; ++i) {
            tape += tapeLine;
            print += printLine;
        }
        state_.anzeige.setText(tape);
        state_.superdruck.setText(print);
        state_.memo[0].setText(u"19");
        state_.memo[1].setText(u"1.234,56");
        state_.eingabe.setText(u"12,50");
        state_.txtop.setText(u"+");
        state_.operand = Decimal::fromParts(1250, 0, 0, 2, false);
        state_.chainActive = 1;
        state_.pendingOpCode = 43;
        snapshot("temp0.tmp");
    }

    // Brings a line in an odd turn and takes it away in an even one.
    void step(int turn) {
        change(state_.anzeige, turn, u"\r\n1.234,56 +   ");
        change(state_.superdruck, turn,
               u"\r\n                                                    1.234,56 +");
    }

    void snapshot(const std::string& name) {
        gatherRecord(record_);
        gatherSwitches(record_);
        writeRecord(files_, name, record_);
    }

    void back(const std::string& name) {
        readRecord(files_, name, record_);
        applyCells(record_);
        applyFields(record_);
        applyVariables(record_);
    }

    void removeSnapshots() { files_.removeAll(".", "temp*.tmp"); }

    std::string bytes() {
        const EncodedRecord encoded(record_);
        std::string all;
        for (const std::string_view piece : encoded.pieces()) all += piece;
        return all;
    }

    std::string path() const { return folder_.path(); }

  private:
    static constexpr TextView tapeLine = u"\r\n1.234,56 +   ";
    static constexpr TextView printLine =
        u"\r\n                                                    1.234,56 +";

    static void change(TextField& field, int turn, TextView line) {
        if (turn % 2 == 1) return field.append(line);
        field.setTextFrom(field.text().size() - line.size(), u"");
    }

    FreshFolder folder_;
    PosixFiles files_;
    CalculatorState state_;
    CalculationRecord record_;
};

std::string snapshotName(int turn) { return "temp" + std::to_string(turn % 8) + ".tmp"; }

// Each turn writes a snapshot of its own, over the file of an earlier one as after undoing, or as a new file
// as in a running calculation; what stood there is then removed outside of the measured time.
template <class Write>
void writeInTurns(benchmark::State& run, Bench& bench, Write write) {
    const bool newFiles = run.range(1) != 0;
    int turn = 0;
    for ([[maybe_unused]] auto _ : run) {
        bench.step(++turn);
        write(snapshotName(turn));
        if (!newFiles || turn % 8 != 0) continue;
        run.PauseTiming();
        bench.removeSnapshots();
        run.ResumeTiming();
    }
}

void bareWrite(benchmark::State& run) {
    Bench bench(run.range(0));
    const std::string bytes = bench.bytes();
    const std::string folder = bench.path() + '/';
    writeInTurns(run, bench, [&](const std::string& name) {
        const int file = ::open((folder + name).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
        if (::write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
        ::close(file);
    });
    run.SetBytesProcessed(run.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void snapshot(benchmark::State& run) {
    Bench bench(run.range(0));
    writeInTurns(run, bench, [&](const std::string& name) { bench.snapshot(name); });
}

// Reading a snapshot and bringing it to the calculator, in turn one that has the last line and one that lacks
// it.
void back(benchmark::State& run) {
    Bench bench(run.range(0));
    bench.step(1);
    bench.snapshot("temp1.tmp");
    int turn = 0;
    for ([[maybe_unused]] auto _ : run) bench.back(snapshotName(++turn % 2));
}

}  // namespace

BENCHMARK(bareWrite)->ArgNames({"lines", "new"})->ArgsProduct({{100, 10000, 100000}, {0, 1}});
BENCHMARK(snapshot)->ArgNames({"lines", "new"})->ArgsProduct({{100, 10000, 100000}, {0, 1}});
BENCHMARK(back)->ArgName("lines")->Arg(100)->Arg(10000)->Arg(100000);
