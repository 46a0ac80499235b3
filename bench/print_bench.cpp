// A tape handed to the print service, beside the toolkit's own way of drawing the same text in one piece.
// Runs under tools/with-print-service.

#include <benchmark/benchmark.h>

#include <QPainter>
#include <QPrinter>

#include "platform/qt/application.h"
#include "platform/qt/control_view.h"
#include "platform/qt/qt_printer.h"
#include "print/print_job.h"

namespace {

using namespace zifferon;

constexpr TextView printer = u"Zettel";

Text tapeOf(std::int64_t lines) {
    Text tape;
    for (std::int64_t i = 0; i < lines; ++i) {
        tape += u"                                                    1.234,56 +\r\n";
    }
    return tape;
}

void ourTape(benchmark::State& state) {
    const Text tape = tapeOf(state.range(0));
    const Language language = Language::german;
    const Kopf kopf(language);
    QtPrinter device;
    device.setPrinter(printer);
    for (auto _ : state) printDocument(device, kopf, tape, u"courier new (11, normal)");
}
BENCHMARK(ourTape)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond)->UseRealTime();

void inOnePiece(benchmark::State& state) {
    const QString tape = toQString(tapeOf(state.range(0)));
    for (auto _ : state) {
        QPrinter device(QPrinter::HighResolution);
        device.setPrinterName(toQString(printer));
        QPainter painter(&device);
        painter.setFont(QFont(QStringLiteral("courier new"), 11));
        const QRectF page = device.pageRect(QPrinter::DevicePixel);
        painter.drawText(QRectF({}, page.size()), Qt::TextDontClip, tape);
    }
}
BENCHMARK(inOnePiece)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
