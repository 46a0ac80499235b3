// The running program: its start, what becomes of the window when it is first in use, the tray, the end.
#pragma once

#include <memory>

#include "core/calculator_state.h"
#include "help/help_window.h"
#include "memory/undo.h"
#include "platform/key_road.h"
#include "platform/machine.h"
#include "print/kopf.h"
#include "shell/pultform.h"
#include "shell/start_up.h"
#include "shell/start_windows.h"
#include "shell/window_modes.h"

namespace zifferon {

class LifeCycle {
  public:
    LifeCycle(Pultform& window, Kopf& kopf, HelpWindow& help, KeyRoad& keys, Undo& undo,
              CalculationRecord& record, WindowModes& modes, Machine& machine, const Messages& messages);

    // Everything between the start of the process and the shown window, in its order. A condition that cannot
    // be mended ends the process after its box.
    void start();

    // The pauses before the process ends, in milliseconds.
    static constexpr int pauseAfterKey = 1000, pauseAfterTray = 1500;

    // Ends the process behind the goodbye window. The question has been answered.
    void quit(int pause);

  private:
    void show();

    // When the main window becomes active; the rest of it the first time only.
    void activated();
    void firstActivation();
    void applySettings();
    void beginSnapshots(const StartOptions& options);
    void queueLayoutCycle();

    // Tray, hot key, end of the session.
    bool hidden() const { return !window_.visible || window_.minimised; }
    void closed();
    void hideInTray();
    void showFromTray();
    void hotKeyPressed();
    void askToExit();
    void minitimerTick();
    void unload();
    void sayGoodbye(int pause);

    Pultform& window_;
    Kopf& kopf_;
    HelpWindow& help_;
    KeyRoad& keys_;
    Undo& undo_;
    WindowModes& modes_;
    Machine& machine_;
    const Messages& messages_;
    StartUp startUp_;
    CalculatorState& s;
    bool firstActivateDone_ = false;
    bool inTray_ = false;
    bool toldOfTray_ = false;
    bool layoutCyclePending_ = false;
    bool quitting_ = false;
    Place trayRestore_;
    std::unique_ptr<Form2> goodbye_;
};

}  // namespace zifferon
