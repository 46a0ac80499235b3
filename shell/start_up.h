// From the start of the process to the window that is ready to be shown: checks, first run, the last state.
#pragma once

#include <optional>
#include <vector>

#include "core/calculator_state.h"
#include "page/quick_file.h"
#include "platform/key.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "print/kopf.h"
#include "shell/locale.h"
#include "shell/start_windows.h"
#include "shell/window_modes.h"

namespace zifferon {

class StartUp {
  public:
    StartUp(CalculatorState& state, SeparatorState& separator, Kopf& kopf, QuickFile& quickFile,
            WindowModes& modes, Machine& machine, const Messages& messages);

    // All steps in their order. A condition that cannot be mended ends the process after its box.
    void run();

    // The frame of the window, as the machine and the stored sizes tell.
    void readFrame();

    // The windows of the start that there are by now.
    std::vector<Window*> windows();

    // What has been typed into the loading window, from its opening until the next one is in use.
    std::vector<Key> typedAhead() const { return form1_ ? form1_->typedAhead() : std::vector<Key>(); }

  private:
    void checkComponents();
    void probeWriting();
    void openUndoSwitch();
    void readLocale();
    void firstRun();
    void settleUnknownSeparator();
    void showLoadingWindow();
    void fillLoadingWindow();
    void restoreLetterhead();
    void stopDamagedLetterhead();

    Kopf& kopf_;
    QuickFile& quickFile_;
    WindowModes& modes_;
    Machine& machine_;
    const Messages& messages_;
    CalculatorState& s;
    SeparatorState& separator_;
    Form3 form3_;
    std::optional<Form1> form1_;
    bool loading_ = false;  // the loading window has been in use
};

}  // namespace zifferon
