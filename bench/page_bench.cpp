// The Print/Edit page with a tape of 100,000 lines in a real window: opening, storing, loading, showing, and
// typing at the front of the text, beside the toolkit's own plain text editor; and the list of 10,000 files.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <fstream>
#include <thread>

#include "platform/qt/application.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "shell/program.h"

namespace {

using namespace zifferon;

constexpr int lines = 100000;

// Answers every question with Yes at once.
class Agreeing : public Boxes {
    BoxAnswer show(const Box& box) override {
        return box.buttons == BoxButtons::ok ? BoxAnswer::ok : BoxAnswer::yes;
    }
};

void passEvents() {
    for (int i = 0; i < 50; ++i) {
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

class Desk {
  public:
    explicit Desk(int tapeLines = lines) {
        Text tape, print;
        for (int i = 0; i < tapeLines; ++i) {
            tape += u"\r\n1.234,56 +   ";
            print += u"\r\n                                                    1.234,56 +";
        }
        program.pultform.state.anzeige.setText(tape);
        program.pultform.state.superdruck.setText(print);
        program.beginFresh();
        view.refresh();
        passEvents();
    }

    PageControls& page() { return program.pultform.page; }
    TextField& copy() { return program.pultform.state.superdruck; }

    // Until it is painted.
    void run(const std::function<void()>& handler) {
        view.run(handler);
        view.repaint();
    }
    void type(Key key) {
        program.keys.stroke(key);
        FormView::refreshAll();
        view.repaint();
    }
    void open() {
        run(page().edit.onClick);
        passEvents();
    }
    void save() {
        page().savefiles.setText(u"long");
        run(page().Speichern.onClick);
    }

  private:
    QtMachine qt_;
    Agreeing boxes_;
    Machine machine_{boxes_,
                     qt_.machine.clipboard,
                     qt_.machine.sound,
                     qt_.machine.files,
                     qt_.machine.windows,
                     qt_.machine.process,
                     qt_.machine.system,
                     qt_.machine.desktop,
                     qt_.machine.printer};

  public:
    Program program{machine_};
    FormView view{program.pultform, program.keys};
};

void openPage(benchmark::State& state) {
    Desk desk;
    for ([[maybe_unused]] auto _ : state) {
        desk.run(desk.page().edit.onClick);
        state.PauseTiming();
        desk.run(desk.page().leave.onClick);
        state.ResumeTiming();
    }
}
BENCHMARK(openPage)->Unit(benchmark::kMillisecond);

void openPageWithTenThousandFiles(benchmark::State& state) {
    for (int i = 0; i < 10000; ++i) std::ofstream("file" + std::to_string(i) + ".sav");
    Desk desk(0);
    for ([[maybe_unused]] auto _ : state) {
        desk.run(desk.page().edit.onClick);
        state.PauseTiming();
        desk.run(desk.page().leave.onClick);
        state.ResumeTiming();
    }
    for (int i = 0; i < 10000; ++i) QFile::remove(QStringLiteral("file%1.sav").arg(i));
}
BENCHMARK(openPageWithTenThousandFiles)->Unit(benchmark::kMillisecond);

void save(benchmark::State& state) {
    Desk desk;
    desk.open();
    for ([[maybe_unused]] auto _ : state) desk.save();
}
BENCHMARK(save)->Unit(benchmark::kMillisecond);

void show(benchmark::State& state) {
    Desk desk;
    desk.open();
    desk.save();
    for ([[maybe_unused]] auto _ : state) {
        desk.run([&] {
            desk.page().Files.select(1);
            desk.page().Files.onMouseDown();
        });
        state.PauseTiming();
        desk.page().txtvorschau.setText(u"");
        desk.run([&] { desk.program.pultform.setFocus(desk.page().savefiles); });
        state.ResumeTiming();
    }
}
BENCHMARK(show)->Unit(benchmark::kMillisecond);

void load(benchmark::State& state) {
    Desk desk;
    desk.open();
    desk.save();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        desk.program.pultform.state.anzeige.setText(u"");
        desk.copy().setText(u"");
        desk.run([&] { desk.page().Files.select(1); });
        state.ResumeTiming();
        desk.run(desk.page().laden.onClick);
    }
}
BENCHMARK(load)->Unit(benchmark::kMillisecond);

// The bytes of such a calculation, read and written alone.
void readTheBytes(benchmark::State& state) {
    PosixFiles files;
    for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(files.read("long.sav"));
}
BENCHMARK(readTheBytes)->Unit(benchmark::kMillisecond);

void writeTheBytes(benchmark::State& state) {
    PosixFiles files;
    const FileContent content = files.read("long.sav");
    const std::string_view piece = content.view();
    for ([[maybe_unused]] auto _ : state) files.exchange("other.sav", std::span(&piece, 1));
    files.remove("other.sav");
}
BENCHMARK(writeTheBytes)->Unit(benchmark::kMillisecond);

void typeAtTheFront(benchmark::State& state) {
    Desk desk;
    desk.open();
    desk.run([&] {
        desk.program.pultform.setFocus(desk.copy());
        desk.copy().setCaret(2);
    });
    for ([[maybe_unused]] auto _ : state) desk.type(keyOfCharacter(u'x'));
}
BENCHMARK(typeAtTheFront)->Unit(benchmark::kMillisecond);

void typeAtTheFrontOfTheToolkitsEditor(benchmark::State& state) {
    const Desk desk;
    QPlainTextEdit editor;
    editor.resize(520, 310);
    editor.setPlainText(toQString(desk.program.pultform.state.superdruck.text()));
    editor.show();
    passEvents();
    for ([[maybe_unused]] auto _ : state) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
        QCoreApplication::sendEvent(&editor, &down);
        editor.repaint();
    }
}
BENCHMARK(typeAtTheFrontOfTheToolkitsEditor)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    const Application application(argc, argv);
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
