// Everything that the logic asks of a machine beside its windows and timers.
#pragma once

#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/system.h"
#include "platform/text.h"
#include "platform/window.h"

namespace zifferon {

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void clear() = 0;
    virtual void setText(TextView text) = 0;
};

class Sound {
  public:
    virtual ~Sound() = default;
    virtual void beep() = 0;
};

class ModalWindows {
  public:
    virtual ~ModalWindows() = default;

    // Shows the window, tells it by onActivate, and returns when it is no longer visible. No other window
    // takes keys or the mouse meanwhile.
    virtual void showModal(Window& window) = 0;
};

class Process {
  public:
    virtual ~Process() = default;

    // Ends the process at once, from within whatever handler runs.
    [[noreturn]] virtual void end() = 0;
};

struct Machine {
    Boxes& boxes;
    Clipboard& clipboard;
    Sound& sound;
    Files& files;
    ModalWindows& windows;
    Process& process;
    System& system;
};

}  // namespace zifferon
