// The desk's own controls: the handlers of entry, tape, running value and buttons.
#pragma once

#include "memory/command_keys.h"
#include "memory/result_clipboard.h"
#include "memory/undo.h"
#include "shell/pultform.h"
#include "shell/sounds.h"

namespace zifferon {

class Desk {
  public:
    Desk(Pultform& window, CommandDesk& commands, Undo& undo, ResultClipboard& clipboard, Sounds& sounds)
        : window_(window),
          s(window.state),
          commands_(commands),
          undo_(undo),
          clipboard_(clipboard),
          sounds_(sounds) {}

    void wire();

  private:
    void wireEntry();
    void wireTape();
    void wireTapePaging();
    void wireRounding();
    void wireButtons();

    Pultform& window_;
    CalculatorState& s;
    CommandDesk& commands_;
    Undo& undo_;
    ResultClipboard& clipboard_;
    Sounds& sounds_;
};

}  // namespace zifferon
