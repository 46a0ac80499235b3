// The real start in the current program folder, as far as its loading window and then its main one.

#include "bench/first_window.h"
#include "platform/qt/application.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "shell/program.h"

int main(int argc, char** argv) {
    using namespace zifferon;
    const Application application(argc, argv);
    FirstWindow first(argv[1], {QStringLiteral("lade Programm....."), QStringLiteral("Zifferon PRO 5.0")});
    QtMachine qt;
    Program program(qt.machine);
    FormView view(program.pultform, program.keys);
    qt.desktop.attachTo(view);
    program.start();
    return Application::exec();
}
