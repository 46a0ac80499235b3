// The key down in the entry line: one ordered list of rules that takes the commands which have no character,
// guards the value prompts and the states that must not be disturbed, and prepares flags for press and
// release.
#pragma once

#include "core/calculator_state.h"
#include "memory/memory_state.h"
#include "platform/messages.h"
#include "platform/window.h"

namespace zifferon {

// What the command keys start in the rooms above.
class CommandCalls {
  public:
    virtual ~CommandCalls() = default;

    virtual void applyUndo() = 0;
    virtual void quit() = 0;       // after the question has been answered Yes
    virtual void printTape() = 0;  // after the question has been answered Yes
    virtual void nextWindowMode() = 0;
    virtual void nextTextColours() = 0;
    virtual void nextBackColours() = 0;
    virtual void standardColours() = 0;
    virtual bool writeFormatMode() = 0;  // stores formatMode; whether it is stored
    virtual void askSeparator() = 0;     // the question for comma or point, and what follows from it
    virtual bool writeStartOptions(bool minimised) = 0;  // whether they are stored
};

struct CommandDesk {
    CalculatorState& state;
    MemoryState& memory;
    Window& window;
    const Messages& messages;
    CommandCalls& calls;
};

// `code` is the virtual key code; a rule may set it to 0, which stops the field's own handling of the key.
// Does not look at Shift, Control or Alt; Alt alone is a key of its own. Never fails.
void handleCommandKey(CommandDesk& desk, int& code);

}  // namespace zifferon
