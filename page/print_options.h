// The options of printing, a panel over the foot of the page: type setting, printer, letterhead.
#pragma once

#include "core/calculator_state.h"
#include "page/page_controls.h"
#include "page/preview.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "platform/window.h"
#include "print/kopf.h"
#include "print/letterhead_desk.h"
#include "storage/settings.h"

namespace zifferon {

class PrintOptions {
  public:
    struct Parts {
        CalculatorState& state;
        PageControls& controls;
        Preview& preview;
        Kopf& kopf;
        LetterheadDesk& letterhead;
        Window& window;
        Machine& machine;
        const Settings& settings;
        const Messages& messages;
    };
    explicit PrintOptions(const Parts& parts);

    void wire();

    // The printers and fonts of the machine have been found; again where more have been.
    void fillLists();

    // Shows the type setting that is stored.
    void restore();

    // Takes the panel away.
    void close();

    // 1 to 8, one of the rows of druckcomb; any other number is none of them.
    float printFontCode() const { return printFontCode_; }

    // The printer that was stored, as it was read last.
    const Text& standardPrinterName() const { return standardPrinterName_; }

  private:
    void wireFonts();
    void chosen();
    void typed();
    void showFont();
    void storePrinter();
    void readPrinter();
    void openLetterhead();
    void acceptLetterhead();

    const Parts p;
    PageControls& c;
    float printFontCode_ = 0;
    Text standardPrinterName_;
    Text offered_;  // what allprint shows where nobody has chosen
};

}  // namespace zifferon
