// The help window over the main one, and the change of the language in it.
#pragma once

#include "help/help_window.h"
#include "platform/machine.h"
#include "print/kopf.h"
#include "shell/pultform.h"
#include "storage/settings.h"

namespace zifferon {

class HelpDesk {
  public:
    HelpDesk(Pultform& window, Kopf& kopf, HelpWindow& help, Machine& machine, const Messages& messages,
             const Settings& settings);

    void wire();

    // Opens the help window and returns when it has been closed. The main window makes way meanwhile; it
    // comes back in its size, at the place to which the help window was moved.
    void open();

  private:
    void activated();
    void keepMainWindowBehind();
    void changeLanguage(Language language);

    Pultform& window_;
    Kopf& kopf_;
    HelpWindow& help_;
    Machine& machine_;
    CalculatorState& s;
    const Messages& messages_;
    const Settings& settings_;
};

}  // namespace zifferon
