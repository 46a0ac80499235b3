// The clipboard mode: with clipcheck ticked each result goes to the clipboard as it stands.
#pragma once

#include "core/calculator_state.h"
#include "platform/machine.h"

namespace zifferon {

class ResultClipboard {
  public:
    ResultClipboard(const CalculatorState& state, Clipboard& clipboard) : s(state), clipboard_(clipboard) {}

    void copyEntry();

    // Not what a start has restored: the first key that reaches the calculation begins it.
    void publishSubtotal();

    // The tick has been set or taken away; without it nothing stays behind, whoever put it there.
    void tickChanged();

    // What was last put there.
    const Text& text() const { return text_; }

  private:
    void put(const Text& text);

    const CalculatorState& s;
    Clipboard& clipboard_;
    Text text_;
};

}  // namespace zifferon
