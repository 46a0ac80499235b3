// The program without its view: the windows, the key road, and all handlers wired together in one place.
#pragma once

#include <array>

#include "help/help_window.h"
#include "memory/command_keys.h"
#include "memory/memory_panel.h"
#include "memory/tape_page.h"
#include "memory/undo.h"
#include "platform/key_road.h"
#include "platform/machine.h"
#include "print/kopf.h"
#include "shell/edit_commands.h"
#include "shell/help_desk.h"
#include "shell/life_cycle.h"
#include "shell/pultform.h"
#include "shell/settings.h"

namespace zifferon {

class Program {
  public:
    explicit Program(Machine& machine);

    Pultform pultform;
    Kopf kopf{pultform.state.language};
    HelpWindow help;
    KeyRoad keys;

    // The windows that live as long as the program.
    std::array<Window*, 3> windows() { return {&pultform, &kopf, &help}; }

    // The real start, from the check of the components to the shown window.
    void start() { life_.start(); }

    // A calculator as it stands after a start on an empty quick file, without checks and windows.
    void beginFresh();

  private:
    void wireCalls();
    void wireCommands();
    void wireEntry();
    void wireFields();
    void wireRounding();
    void wireOptions();
    void wireSounds();
    void wireWindow();
    void playTapeSound();
    void focusOrDefer();
    void stepWindowMode();
    void publishSubtotal();
    void showNothingToUndo();
    AlwaysOnTopFile alwaysOnTopFile();
    void stepTextColours(int scheme);
    void stepBackColours(int scheme);

    Machine& machine_;
    const Messages messages_;
    const Settings settings_;
    MemoryPanel cells_;
    CalculationRecord record_;
    Undo undo_;
    WindowModes modes_;
    LifeCycle life_;
    TapePage page_;
    HelpDesk helpDesk_;
    CommandDesk commands_;
    EditCommands editing_;
};

}  // namespace zifferon
