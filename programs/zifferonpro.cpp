// The window program.
#include "platform/qt/application.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "shell/program.h"

int main(int argc, char** argv) {
    const zifferon::Application application(argc, argv);
    zifferon::QtMachine machine;
    zifferon::Program program(machine.machine);
    zifferon::FormView view(program.pultform, program.keys);
    machine.desktop.attachTo(view);
    program.start();
    return zifferon::Application::exec();
}
