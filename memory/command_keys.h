// The key down in the entry line: one ordered list of rules that takes the commands which have no character,
// guards the value prompts and the states that must not be disturbed, and prepares flags for press and
// release.
#pragma once

#include <functional>

#include "core/calculator_state.h"
#include "platform/messages.h"
#include "platform/window.h"

namespace zifferon {

// What the command keys start in the rooms above.
struct CommandCalls {
    std::function<void()> applyUndo;
    std::function<void()> quit;       // after the question has been answered Yes
    std::function<void()> printTape;  // after the question has been answered Yes
    std::function<void()> nextWindowMode;
    std::function<void()> nextTextColours, nextBackColours, standardColours;
    std::function<bool()> writeFormatMode;  // stores formatMode; whether it is stored
    std::function<void()> askSeparator;     // the question for comma or point, and what follows from it
    std::function<bool(bool minimised)> writeStartOptions;  // whether they are stored
};

struct CommandDesk {
    CalculatorState& state;
    Window& window;
    const Messages& messages;
    CommandCalls calls;
};

// `code` is the virtual key code; a rule may set it to 0, which stops the field's own handling of the key.
// Does not look at Shift, Control or Alt; Alt alone is a key of its own. Never fails.
void handleCommandKey(CommandDesk& desk, int& code);

}  // namespace zifferon
