// The preview of a stored calculation: three boxes over the print copy with its name, its own print copy and
// its date. It changes nothing in the calculation.
#pragma once

#include "core/calculator_state.h"
#include "page/file_list.h"
#include "page/page_controls.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "platform/window.h"

namespace zifferon {

class Preview {
  public:
    // All of them must outlive it.
    Preview(CalculatorState& state, PageControls& controls, FileList& list, Window& window, Machine& machine,
            const Messages& messages)
        : s(state), c(controls), list_(list), window_(window), machine_(machine), messages_(messages) {}

    void wire();

    // Takes the boxes away; the print copy is seen again.
    void hide();

    bool shown() const { return c.txtvorschau.visible; }

    // The text of the print copy goes, so that it does not show around what lies over it, and comes back.
    void hidePrintCopy();
    void showPrintCopy();

    // The date of the file shown last.
    const Text& selectedFileDate() const { return date_; }

  private:
    void pressed();
    void released(int code);
    void listFocused();
    void close(const Control& box);
    void show();
    void warnOfNoRow();
    Text readPicked();
    void setNameAndDate();

    CalculatorState& s;
    PageControls& c;
    FileList& list_;
    Window& window_;
    Machine& machine_;
    const Messages& messages_;
    Text date_;
};

}  // namespace zifferon
