// When the program sounds: at its start, at each change of the tape, at a step of the window's size.
#pragma once

#include "platform/machine.h"
#include "shell/pultform.h"

namespace zifferon {

class Sounds {
  public:
    Sounds(Pultform& window, Sound& sound) : window_(window), s(window.state), sound_(sound) {}

    void wire();

    void tapeChanged();
    void sizeChanged();

    // The entry has got the focus: the sound of the start comes once, a moment later. A run that starts
    // silent, or in the tray, never plays it.
    void entryFocused();

    // A run without it.
    void skipStart() { startDone_ = true; }
    bool startDone() const { return startDone_; }

  private:
    void playStart();

    Pultform& window_;
    const CalculatorState& s;
    Sound& sound_;
    bool startDone_ = false;
};

}  // namespace zifferon
