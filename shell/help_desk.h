// The help window over the main one, and the change of the language in it.
#pragma once

#include <functional>
#include <string>

#include "help/help_window.h"
#include "platform/machine.h"
#include "print/kopf.h"
#include "shell/pultform.h"

namespace zifferon {

class HelpDesk {
  public:
    // `store` writes a setting and returns whether it is written; if not, it has told so.
    HelpDesk(Pultform& window, Kopf& kopf, HelpWindow& help, Machine& machine,
             std::function<bool(const std::string& file, float value)> store);

    void wire();

    // Opens the help window and returns when it has been closed. The main window makes way meanwhile; it
    // comes back in its size, at the place to which the help window was moved.
    void open();

  private:
    void activated();
    void keepMainWindowBehind();
    void changeLanguage(bool english);

    Pultform& window_;
    Kopf& kopf_;
    HelpWindow& help_;
    Machine& machine_;
    CalculatorState& s;
    std::function<bool(const std::string& file, float value)> store_;
};

}  // namespace zifferon
