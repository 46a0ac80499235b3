// The program without its view: the windows, the key road, and all handlers wired together in one place.
#pragma once

#include "memory/command_keys.h"
#include "memory/memory_panel.h"
#include "memory/undo.h"
#include "platform/key_road.h"
#include "platform/machine.h"
#include "shell/pultform.h"

namespace zifferon {

class Program {
  public:
    explicit Program(Machine& machine);

    Pultform pultform;
    KeyRoad keys;

    // Comma or point, by the user's locale; where it does not tell, by an earlier answer or by asking.
    void chooseSeparator();

    // Shows the main window and gives the entry line the focus.
    void show();

    // An empty folder for the snapshots, and the first of them.
    void beginSnapshots();

  private:
    void wireCalls();
    void wireCommands();
    void wireEntry();
    void wireFields();
    void wireRounding();
    void wireOptions();
    void publishSubtotal();
    void showNothingToUndo();
    void store(const std::string& file, float value);
    void storing(const std::string& file, const std::function<void()>& write);
    void stepTextColours(int scheme);
    void stepBackColours(int scheme);

    Machine& machine_;
    MemoryPanel cells_;
    Undo undo_;
    CommandDesk commands_;
};

}  // namespace zifferon
