// A key in the real window, with its snapshot for Undo: until its line stands on the tape, as the screen
// itself shows it, and what processor time a key costs.

#include <benchmark/benchmark.h>
#include <xcb/xcb.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <chrono>
#include <cstdlib>
#include <string>

#include "bench/real_desk.h"
#include "platform/qt/application.h"

namespace {

using namespace zifferon;
namespace keys = test::keys;

// One whose tape holds so many lines.
class Desk : RealDesk {
  public:
    Desk(std::int64_t lines, bool snapshots) {
        Text tape, print;
        for (std::int64_t i = 0; i < lines; ++i) {
            tape += u"\r\n1.234,56 +   ";
            print += u"\r\n                                                    1.234,56 +";
        }
        program.pultform.state.anzeige.setText(tape);
        program.pultform.state.superdruck.setText(print);
        begin();
        program.pultform.state.undoActive = snapshots;
    }
    ~Desk() { xcb_disconnect(screen_); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    // Types a key and gives the program the five milliseconds that a very fast typist leaves it.
    void type(int key) {
        QElapsedTimer clock;
        clock.start();
        hands.stroke({key});
        do rest();
        while (clock.elapsed() < 5);
    }

    double secondsToPaintedLine() {
        digit_ = (digit_ + 1) % 9;  // another one each time, or the new line would look like the last
        type(keys::digit1 + digit_);
        for (int i = 0; i < 10; ++i) rest();
        const std::string before = endOfTape();
        const auto start = std::chrono::steady_clock::now();
        hands.down(keys::keypadAdd);
        do QCoreApplication::processEvents();
        while (endOfTape() == before);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        hands.up(keys::keypadAdd);
        return time.count();
    }

  private:
    // The pixels of the last lines of the tape.
    std::string endOfTape() {
        const QRect tape = pixels(program.pultform.state.anzeige.place);
        const QPoint corner = view.mapToGlobal(tape.bottomRight() - QPoint(120, 60));
        auto* const image = xcb_get_image_reply(
            screen_,
            xcb_get_image(screen_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_, static_cast<std::int16_t>(corner.x()),
                          static_cast<std::int16_t>(corner.y()), 90, 50, ~0u),
            nullptr);
        std::string bytes(reinterpret_cast<const char*>(xcb_get_image_data(image)),
                          static_cast<std::size_t>(xcb_get_image_data_length(image)));
        std::free(image);
        return bytes;
    }

    int digit_ = 0;
    xcb_connection_t* screen_ = xcb_connect(nullptr, nullptr);
    xcb_window_t root_ = xcb_setup_roots_iterator(xcb_get_setup(screen_)).data->root;
};

void keyToPaintedLine(benchmark::State& run) {
    Desk desk(run.range(0), true);
    double longest = 0;
    for ([[maybe_unused]] auto _ : run) {
        const double seconds = desk.secondsToPaintedLine();
        longest = std::max(longest, seconds);
        run.SetIterationTime(seconds);
    }
    run.counters["longest_ms"] = longest * 1000;
}
BENCHMARK(keyToPaintedLine)
    ->Arg(0)
    ->Arg(10000)
    ->Arg(100000)
    ->UseManualTime()
    ->Iterations(200)
    ->Unit(benchmark::kMillisecond);

// Digits and additions in turn; the column CPU is the cost of one key.
void processorTimeOfAKey(benchmark::State& run) {
    Desk desk(run.range(0), false);
    bool digit = false;
    for ([[maybe_unused]] auto _ : run) desk.type((digit = !digit) ? keys::keypad1 : keys::keypadAdd);
}
BENCHMARK(processorTimeOfAKey)
    ->Arg(0)
    ->Arg(100000)
    ->MeasureProcessCPUTime()
    ->Iterations(1000)
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    const Application application(argc, argv);
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
