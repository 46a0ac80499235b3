// The window's ways out of sight and back: close box, tray, hot key, and a start that begins in the tray.
#pragma once

#include "adventure/secret_form.h"
#include "platform/machine.h"
#include "shell/pultform.h"

namespace zifferon {

class Tray {
  public:
    Tray(Pultform& window, SecretForm& riddle, Machine& machine)
        : window_(window), riddle_(riddle), s(window.state), machine_(machine) {}

    // From now on the hot key is the program's.
    void wire();

    // Where there is no tray the window is minimised.
    void hide();

    // As at a start that begins there: the first showing brings the round trip through the layouts.
    void hideAtStart();

    // Where the window comes back from the tray.
    void setRestorePlace(int left, int top);
    const Place& restorePlace() const { return restorePlace_; }

    bool inTray() const { return inTray_; }
    bool layoutCyclePending() const { return layoutCyclePending_; }

    // Three steps pass through all layouts back to the present one; what stays is the height for the present
    // frame.
    void queueLayoutCycle();

  private:
    bool hidden() const { return !window_.visible || window_.minimised; }
    void closed();
    void show();
    void hotKeyPressed();
    void minitimerTick();

    Pultform& window_;
    SecretForm& riddle_;
    const CalculatorState& s;
    Machine& machine_;
    Place restorePlace_;
    bool inTray_ = false;
    bool told_ = false;
    bool layoutCyclePending_ = false;
};

}  // namespace zifferon
