// The window program.
#include <QApplication>
#include <QFont>
#include <QIcon>

#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "shell/program.h"

int main(int argc, char** argv) {
    // One look on every desktop: the program brings its own colours.
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);  // the program ends itself
    QFont boxFont(QStringLiteral("Arial"));
    boxFont.setPixelSize(13);
    QApplication::setFont(boxFont);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/zifferonpro.svg")));
    zifferon::QtMachine machine;
    zifferon::Program program(machine.machine);
    zifferon::FormView view(program.pultform, program.keys);
    machine.desktop.attachTo(view);
    program.start();
    return QApplication::exec();
}
