// The window program.
#include <chrono>
#include <cstdlib>

#include "platform/folder_lock.h"
#include "platform/qt/application.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "platform/summons.h"
#include "shell/program.h"
#include "shell/second_start.h"

namespace {

enum class Start { first, shownByTheFirst, refused };

// One that is saying goodbye has its time to end.
Start startIn(zifferon::FolderLock& folder) {
    using namespace std::chrono;
    constexpr auto longestWait = seconds(5);
    constexpr int longestAnswer = 4000;  // milliseconds
    const char* const token = std::getenv("XDG_ACTIVATION_TOKEN");
    const zifferon::Summons first;
    const auto end = steady_clock::now() + longestWait;
    do {
        if (folder.take(20)) return Start::first;
        if (first.call(token != nullptr ? token : "", longestAnswer)) return Start::shownByTheFirst;
    } while (steady_clock::now() < end);
    return Start::refused;
}

}  // namespace

int main(int argc, char** argv) {
    zifferon::FolderLock folder;
    const Start start = startIn(folder);
    if (start == Start::shownByTheFirst) return EXIT_SUCCESS;
    const zifferon::Application application(argc, argv);
    zifferon::QtMachine machine;
    if (start == Start::refused) {
        zifferon::tellRunsAlready(machine.machine);
        return EXIT_FAILURE;
    }
    zifferon::Program program(machine.machine);
    zifferon::FormView view(program.pultform, program.keys);
    machine.desktop.attachTo(view);
    program.start();
    return zifferon::Application::exec();
}
