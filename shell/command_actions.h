// What the command keys start.
#pragma once

#include "memory/command_keys.h"
#include "memory/undo.h"
#include "page/printing.h"
#include "shell/colours.h"
#include "shell/ending.h"
#include "shell/locale.h"
#include "shell/sounds.h"
#include "shell/window_modes.h"
#include "storage/settings.h"

namespace zifferon {

class CommandActions : public CommandCalls {
  public:
    struct Parts {
        Pultform& window;
        SeparatorState& separator;
        Undo& undo;
        WindowModes& modes;
        Colours& colours;
        Sounds& sounds;
        Ending& ending;
        Printing& printing;
        const Settings& settings;
        const Messages& messages;
    };
    explicit CommandActions(const Parts& parts) : p(parts) {}

    void applyUndo() override { p.undo.applyUndo(); }
    void quit() override { p.ending.quit(); }
    void printTape() override { p.printing.printTape(); }
    void nextWindowMode() override;
    void nextTextColours() override { p.colours.nextText(); }
    void nextBackColours() override { p.colours.nextBack(); }
    void standardColours() override { p.colours.standard(); }
    bool writeFormatMode() override;
    void askSeparator() override;
    bool writeStartOptions(bool minimised) override;

  private:
    const Parts p;
};

}  // namespace zifferon
