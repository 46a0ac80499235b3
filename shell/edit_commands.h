// Copy, paste and undo of the main window, by key and by the menu of the right mouse button.
#pragma once

#include "platform/machine.h"
#include "shell/pasting.h"

namespace zifferon {

class EditCommands {
  public:
    // All of them must outlive it.
    EditCommands(Pultform& pultform, KeyRoad& keys, Machine& machine)
        : pultform_(pultform), s(pultform.state), keys_(keys), machine_(machine), pasting_(pultform, keys) {}

    // Hangs the commands on the window and the menus on entry, cells, tape and print copy.
    void wire();

  private:
    std::vector<TextField*> fieldsWithMenu() const;
    const TextField* fieldInUse() const;
    Text copied() const;
    void copy(TextView text);
    void cut();
    void undo();
    std::vector<MenuEntry> menuOf(const TextField& field);

    Pultform& pultform_;
    CalculatorState& s;
    KeyRoad& keys_;
    Machine& machine_;
    Pasting pasting_;
};

}  // namespace zifferon
