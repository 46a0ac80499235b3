// What a paste does in the main window: the figures of the text are typed, whatever state the calculator is
// in. They are never glued to what stands, and no letter of the text commands.
#pragma once

#include "platform/key_road.h"
#include "shell/pasted_text.h"
#include "shell/pultform.h"

namespace zifferon {

class Pasting {
  public:
    // Both must outlive it.
    Pasting(Pultform& pultform, KeyRoad& keys) : pultform_(pultform), s(pultform.state), keys_(keys) {}

    // Types into the field that has the focus. The print copy takes the text as it stands, a name the
    // first line of it. A memory cell and
    // a percent prompt take one figure, the value prompts one each; an entry is replaced; a standing total is
    // closed first, so that a new calculation begins. Several figures are added up as a column, unless
    // operators stand between them; the last one waits for the user's key, and what went before is one step
    // to be undone. What is not taken is told by one beep. Must not run inside a handler of the key road.
    void paste(TextView text);

  private:
    void typeLines(TextView text);
    bool typeIntoCell(TextField& cell, const PastedFigures& found);
    bool typeIntoEntry(const std::vector<PastedFigure>& figures);
    bool typeIntoPrompts(const std::vector<PastedFigure>& figures);
    bool typeChain(const std::vector<PastedFigure>& figures);
    bool typeFigure(TextField& field, const PastedFigure& figure);
    void type(char16_t character) { keys_.stroke(keyOfCharacter(character)); }

    Pultform& pultform_;
    CalculatorState& s;
    KeyRoad& keys_;
};

}  // namespace zifferon
