// From the start of the process to the window that is ready to be shown: checks, first run, the last state.
#pragma once

#include <vector>

#include "platform/key.h"
#include "platform/machine.h"
#include "print/kopf.h"
#include "shell/pultform.h"
#include "shell/window_modes.h"
#include "storage/calculation_record.h"

namespace zifferon {

class StartUp {
  public:
    StartUp(Pultform& window, Kopf& kopf, CalculationRecord& record, WindowModes& modes, Machine& machine);

    // All steps in their order. A condition that cannot be mended ends the process after its box. Returns
    // what was typed while the loading window stood.
    std::vector<Key> run();

  private:
    void checkComponents();
    void probeWriting();
    void openUndoSwitch();
    void readLocale();
    void firstRun();
    void settleUnknownSeparator();
    void readFrame();
    std::vector<Key> showLoadingWindow();
    void restoreState();
    void applyRecord();
    void restoreLetterhead();
    void stopDamagedLetterhead();

    Pultform& window_;
    Kopf& kopf_;
    CalculationRecord& record_;
    WindowModes& modes_;
    Machine& machine_;
    CalculatorState& s;
};

}  // namespace zifferon
