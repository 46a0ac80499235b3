// The Print/Edit page over the desk: its opening and leaving. There the print copy of the tape is edited, and
// whole calculations are stored, shown, brought back and deleted.
#pragma once

#include "core/calculator_state.h"
#include "page/file_list.h"
#include "page/page_controls.h"
#include "page/preview.h"
#include "page/print_options.h"
#include "platform/window.h"
#include "storage/settings.h"

namespace zifferon {

class TapePage {
  public:
    struct Parts {
        CalculatorState& state;
        PageControls& controls;
        FileList& list;
        Preview& preview;
        PrintOptions& options;
        Window& window;
        const Settings& settings;
    };
    explicit TapePage(const Parts& parts) : p(parts), s(p.state), c(p.controls) {}

    void wire();

    // Puts the page over the desk, with the focus in the name to store under. Whether the print copy is
    // overwritten is as it was.
    void open();

    // Takes the page away; the entry gets the focus, and always on top comes back if it was on.
    void leave();

  private:
    // In a file: what cannot be written is told to the user, what cannot be read was not on top.
    void keepAlwaysOnTop();
    bool wasAlwaysOnTop() const;
    void setCaptions();
    void showParts(bool visible);
    void printCopyFocused();

    const Parts p;
    CalculatorState& s;
    PageControls& c;
};

}  // namespace zifferon
