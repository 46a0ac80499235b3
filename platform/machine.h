// Everything that the logic asks of a machine beside its windows and timers.
#pragma once

#include "platform/boxes.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/print_device.h"
#include "platform/system.h"
#include "platform/text.h"
#include "platform/window.h"

namespace zifferon {

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void clear() = 0;
    virtual void setText(TextView text) = 0;

    // Empty where it holds no text.
    virtual Text text() const = 0;
};

class Sound {
  public:
    virtual ~Sound() = default;
    virtual void beep() = 0;

    // Plays a file of the program folder; returns at once, and cuts off the one that plays. A failure is
    // silent.
    virtual void play(const std::string& fileName) = 0;
};

class Windows {
  public:
    virtual ~Windows() = default;

    // Makes the window visible and brings it to the front, or hides it. It must live until the process ends.
    virtual void show(Window& window) = 0;
    virtual void hide(Window& window) = 0;

    // Hides all windows and boxes: nothing that they asked or showed matters any more.
    virtual void hideAll() = 0;

    // Shows the window, tells it by onActivate, and returns when it is no longer visible. No other window
    // takes keys or the mouse meanwhile.
    virtual void showModal(Window& window) = 0;

    // The same for a window that comes before the main one. It stays on the screen, and takes keys, until the
    // next one is in use, and must live until then: keys must not fall between the two.
    virtual void showBefore(Window& window) = 0;
};

class Process {
  public:
    virtual ~Process() = default;

    // Ends the process at once, from within whatever handler runs.
    [[noreturn]] virtual void end() = 0;

    // Lets so many milliseconds pass; windows are painted meanwhile.
    virtual void pause(int milliseconds) = 0;
};

struct Machine {
    Boxes& boxes;
    Clipboard& clipboard;
    Sound& sound;
    Files& files;
    Windows& windows;
    Process& process;
    System& system;
    Desktop& desktop;
    PrintDevice& printer;

    // The same machine but for its process.
    Machine with(Process& another) const {
        return {boxes, clipboard, sound, files, windows, another, system, desktop, printer};
    }
};

}  // namespace zifferon
