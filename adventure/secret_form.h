// The riddle at the end of the adventure: a small window that asks for a name, and a picture for the right
// one.
#pragma once

#include "platform/language.h"
#include "platform/machine.h"
#include "platform/messages.h"
#include "platform/window.h"

namespace zifferon {

class SecretForm : public Window {
  public:
    // While it is seen it stands alone: `mainWindow` is hidden. All must outlive it.
    SecretForm(Window& mainWindow, const Language& language, const Messages& messages, Machine& machine);

    // Shows it beside the main window.
    void open();

    // Closes it, if it is seen, and brings the main window back that it has hidden.
    void unload();

    bool mainWasVisible() const { return mainWasVisible_; }

    TextField Text1;
    TextField check;  // holds the name that is asked for
    Control Image1{ControlKind::picture};
    Control Picture1{ControlKind::picture}, Picture2{ControlKind::picture};  // the reward, and a smaller one
    Control Image2{ControlKind::picture}, Image3{ControlKind::picture};      // icons: solved, and not yet
    Timer Timer1;
    Control Help{ControlKind::menu};

  private:
    void addControls();
    void reset();
    void activated();
    void offerHelp();
    void withdrawHelp();
    void keyPressed(char16_t& character);
    void reward();
    void askToPrint();
    void printLarge();
    void printSmall();

    Window& mainWindow_;
    const Language& language_;
    const Messages& messages_;
    Machine& machine_;
    bool mainWasVisible_ = false;
};

}  // namespace zifferon
