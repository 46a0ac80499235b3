// The editing of the print copy on the Print/Edit page, by inserting or by overwriting. The visible tape and
// the calculation stay as they are.
#pragma once

#include <optional>

#include "core/calculator_state.h"
#include "page/page_controls.h"
#include "platform/messages.h"
#include "platform/window.h"

namespace zifferon {

class PrintCopyEditor {
  public:
    // All of them must outlive it.
    PrintCopyEditor(CalculatorState& state, PageControls& controls, Window& window, const Messages& messages)
        : s(state), c(controls), window_(window), messages_(messages) {}

    // Hangs the handlers on the print copy and on the two boxes that switch.
    void wire();

    bool overwriteSuspended() const { return overwriteSuspended_; }
    bool insertNoticeGiven() const { return insertNoticeGiven_; }

    // Where the caret stood at the last key, in lines and columns from 1; 0 before any.
    int caretLine() const;
    int caretColumn() const;

  private:
    void superdruckKeyDown(int& code);
    void leaveOverwritingAtStart();
    void resumeOverwriting();
    void leaveOverwritingByEnter();
    void suspendOverwriting(int& code);
    void switchOverwriting();
    void selectNextCharacter();
    void tellInserting();

    bool overwrites() const { return c.insertmode.ticked(); }
    TextView textToLastKey() const;

    CalculatorState& s;
    PageControls& c;
    Window& window_;
    const Messages& messages_;
    bool overwriteSuspended_ = false;  // a Backspace has made way for itself; the next key overwrites again
    bool insertNoticeGiven_ = false;   // an Enter has ended overwriting, and said so
    std::optional<std::size_t> caretAtKey_;
};

}  // namespace zifferon
