// The help window over the main one, and the change of the language in it.
#pragma once

#include "adventure/puzzle.h"
#include "help/help_window.h"
#include "platform/machine.h"
#include "print/kopf.h"
#include "shell/pultform.h"
#include "storage/settings.h"

namespace zifferon {

class HelpDesk {
  public:
    struct Parts {
        Pultform& window;
        Kopf& kopf;
        HelpWindow& help;
        Puzzle& puzzle;
        Machine& machine;
        const Messages& messages;
        const Settings& settings;
    };
    explicit HelpDesk(const Parts& parts) : p(parts), s(p.window.state) {}

    void wire();

    // Opens the help window and returns when it has been closed. The main window makes way meanwhile; it
    // comes back in its size, at the place to which the help window was moved.
    void open();

  private:
    void activated();
    void keepMainWindowBehind();
    void changeLanguage(Language language);
    void openPage(Words address) const;
    void askToPrint();
    void openPuzzle();

    const Parts p;
    CalculatorState& s;
};

}  // namespace zifferon
