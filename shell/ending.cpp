#include "shell/ending.h"

#include <utility>

#include "memory/command_questions.h"
#include "storage/settings_files.h"
#include "storage/write_protection.h"

namespace zifferon {

void Ending::wire() {
    machine_.desktop.onTrayExit = [this] { askToExit(); };
    machine_.desktop.onSessionEnd = [this] { end(pauseAfterTray); };
}

void Ending::askToExit() {
    if (!confirmsQuit(messages_, window_.caption)) return;
    machine_.desktop.removeTrayIcon();
    end(pauseAfterTray);
}

// The session may end while the goodbye is said.
void Ending::end(int pause) {
    if (std::exchange(ending_, true)) return;
    machine_.desktop.endSummons();
    unload();
    machine_.clipboard.clear();
    sayGoodbye(pause);
    machine_.process.end();
}

void Ending::unload() {
    machine_.desktop.unregisterHotKey();
    machine_.desktop.removeTrayIcon();
    tray_.hide();
    machine_.windows.hideAll();
    machine_.desktop.removeTrayIcon();
    if (window_.state.undoActive) undo_.emptyFolder();
}

void Ending::sayGoodbye(int pause) {
    try {
        writeSingle(machine_.files, settingsFile::writeProbe, 0);
    } catch (const FileFailure&) {
        stopWriteProtected(machine_, readLanguage(machine_.files));
    }
    goodbye_ = std::make_unique<Form2>(readLanguage(machine_.files));
    machine_.windows.show(*goodbye_);
    machine_.process.pause(pause);
}

}  // namespace zifferon
