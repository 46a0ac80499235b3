// What Undo costs: a snapshot beside a bare open, write and close of the same bytes, and the way back, at
// tapes of so many lines. Each turn adds a line, as each snapshot of a running calculation does.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/posix_files.h"
#include "storage/calculation_record.h"

namespace {

using namespace zifferon;

constexpr int filesInTurn = 4;

std::string snapshotName(int step) { return "temp" + std::to_string(step % filesInTurn) + ".tmp"; }

// An empty folder that goes with its owner; the program's folder meanwhile.
class Folder {
  public:
    Folder()
        : path_(std::filesystem::temp_directory_path() / ("snapshot-bench-" + std::to_string(::getpid()))) {
        std::filesystem::create_directory(path_);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { std::filesystem::remove_all(path_); }

    std::string path() const { return path_.string(); }

  private:
    std::filesystem::path path_;
};

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
        for (int step = 0; step < filesInTurn; ++step) snapshot(step);
    }

    void addLine() {
        state_.anzeige.append(tapeLine);
        state_.superdruck.append(printLine);
    }

    void dropLine() {
        drop(state_.anzeige, tapeLine.size());
        drop(state_.superdruck, printLine.size());
    }

    void snapshot(int step) {
        gatherRecord(record_);
        gatherSwitches(record_);
        writeRecord(files_, snapshotName(step), record_);
    }

    void back(int step) {
        readRecord(files_, snapshotName(step), record_);
        applyCells(record_);
        applyFields(record_);
        applyVariables(record_);
    }

    std::string bytes() {
        std::string all;
        for (const std::string_view piece : EncodedRecord(record_).pieces()) all += piece;
        return all;
    }

    std::string path(int step) const { return folder_.path() + '/' + snapshotName(step); }

  private:
    static constexpr TextView tapeLine = u"\r\n1.234,56 +   ";
    static constexpr TextView printLine =
        u"\r\n                                                    1.234,56 +";

    static void drop(TextField& field, std::size_t characters) {
        field.setTextFrom(field.text().size() - characters, u"");
    }

    Folder folder_;
    PosixFiles files_;
    CalculatorState state_;
    CalculationRecord record_;
};

// Before each turn a line comes or goes, so that the tape keeps its length and every snapshot has something
// new.
class Turns {
  public:
    explicit Turns(Bench& bench) : bench_(bench) {}

    int next() {
        if (++turn_ % 2 == 0) {
            bench_.addLine();
        } else {
            bench_.dropLine();
        }
        return turn_;
    }

  private:
    Bench& bench_;
    int turn_ = 0;
};

void bareWrite(benchmark::State& run) {
    Bench bench(run.range(0));
    Turns turns(bench);
    const std::string bytes = bench.bytes();
    for (auto _ : run) {
        const int file = ::open(bench.path(turns.next()).c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
        if (::write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
        ::close(file);
    }
    run.SetBytesProcessed(run.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void snapshot(benchmark::State& run) {
    Bench bench(run.range(0));
    Turns turns(bench);
    for (auto _ : run) bench.snapshot(turns.next());
}

// Reading a snapshot that lacks the last line of the tape, and bringing it to the calculator.
void back(benchmark::State& run) {
    Bench bench(run.range(0));
    for (auto _ : run) {
        run.PauseTiming();
        bench.addLine();
        run.ResumeTiming();
        bench.back(0);
    }
}

}  // namespace

BENCHMARK(bareWrite)->Arg(100)->Arg(10000)->Arg(100000)->UseRealTime();
BENCHMARK(snapshot)->Arg(100)->Arg(10000)->Arg(100000)->UseRealTime();
BENCHMARK(back)->Arg(100)->Arg(10000)->Arg(100000)->UseRealTime();
