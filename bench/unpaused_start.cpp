// The real start in the current program folder, without the pauses of the loading window.

#include "bench/first_window.h"
#include "platform/qt/application.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "shell/program.h"

namespace {

using namespace zifferon;

class HastyProcess : public QtProcess {
  public:
    void pause(int) override { FormView::refreshAll(); }
};

}  // namespace

int main(int argc, char** argv) {
    const Application application(argc, argv);
    FirstWindow first(argv[1], QStringLiteral("Zifferon PRO 5.0"));
    QtMachine qt;
    HastyProcess process;
    Machine machine = qt.machine.with(process);
    Program program(machine);
    FormView view(program.pultform, program.keys);
    qt.desktop.attachTo(view);
    program.start();
    return Application::exec();
}
