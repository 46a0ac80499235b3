// The printing of the tape from the page, by its button or by F11.
#pragma once

#include "page/tape_page.h"
#include "platform/machine.h"
#include "print/kopf.h"

namespace zifferon {

class Printing {
  public:
    struct Parts {
        CalculatorState& state;
        PageControls& controls;
        Preview& preview;
        TapePage& page;
        const Kopf& kopf;
        PrintDevice& device;
        const Messages& messages;
    };
    explicit Printing(const Parts& parts) : p(parts), s(p.state), c(p.controls) {}

    void wire();

    // Opens the page and prints; the page closes where that came to its end, and the entry gets the focus.
    void printTape();

  private:
    void print();
    bool wantsEmptyTape() const;

    const Parts p;
    CalculatorState& s;
    PageControls& c;
};

}  // namespace zifferon
