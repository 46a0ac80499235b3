// The end of the program: by F12, by the tray, or with the user's session.
#pragma once

#include <memory>

#include "memory/undo.h"
#include "platform/machine.h"
#include "shell/start_windows.h"
#include "shell/tray.h"

namespace zifferon {

class Ending {
  public:
    Ending(Pultform& window, Undo& undo, Tray& tray, Machine& machine, const Messages& messages)
        : window_(window), undo_(undo), tray_(tray), machine_(machine), messages_(messages) {}

    void wire();

    // Ends the process behind the goodbye window. The question has been answered.
    void quit() { end(pauseAfterKey); }

    // The goodbye window, once it is there; else null.
    Window* goodbye() const { return goodbye_.get(); }

  private:
    // How long the goodbye stands, in milliseconds.
    static constexpr int pauseAfterKey = 1000, pauseAfterTray = 1500;

    void askToExit();
    void end(int pause);
    void unload();
    void sayGoodbye(int pause);

    Pultform& window_;
    Undo& undo_;
    Tray& tray_;
    Machine& machine_;
    const Messages& messages_;
    bool ending_ = false;
    std::unique_ptr<Form2> goodbye_;
};

}  // namespace zifferon
