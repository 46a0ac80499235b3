// The window program.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>

#include "platform/folder_lock.h"
#include "platform/qt/application.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "platform/summons.h"
#include "shell/program.h"
#include "shell/required_files.h"
#include "shell/second_start.h"

namespace {

// The current folder is the program folder. A file manager may start the program with another one: then it is
// the folder where the program lies, if that is complete.
void enterProgramFolder() {
    using namespace std::filesystem;
    const auto isComplete = [](const path& folder) {
        std::error_code ignored;
        return std::all_of(zifferon::requiredFiles.begin(), zifferon::requiredFiles.end(),
                           [&](const char* name) { return exists(folder / name, ignored); });
    };
    std::error_code ignored;
    const path own = read_symlink("/proc/self/exe", ignored).parent_path();
    if (!isComplete(".") && isComplete(own)) current_path(own, ignored);
}

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
    enterProgramFolder();
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
