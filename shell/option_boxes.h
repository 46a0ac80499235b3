// The three option boxes of the desk: clipboard, sound, always on top. Whoever clicks one goes on typing in
// the entry.
#pragma once

#include "memory/result_clipboard.h"
#include "shell/pultform.h"

namespace zifferon {

class OptionBoxes {
  public:
    OptionBoxes(Pultform& window, ResultClipboard& clipboard) : window_(window), clipboard_(clipboard) {}

    void wire();

    // A box could not give the entry the focus before the window was shown; it has it when it is.
    bool focusDeferred() const { return focusDeferred_; }
    void focusGiven() { focusDeferred_ = false; }

  private:
    void focusOrDefer();

    Pultform& window_;
    ResultClipboard& clipboard_;
    bool focusDeferred_ = false;
};

}  // namespace zifferon
