// The program without its view: who exists, in the order of who knows whom.
#pragma once

#include <vector>

#include "help/help_window.h"
#include "page/print_copy_editor.h"
#include "page/printing.h"
#include "page/stored_calculations.h"
#include "page/tape_page.h"
#include "shell/command_actions.h"
#include "shell/desk.h"
#include "shell/edit_commands.h"
#include "shell/first_activation.h"
#include "shell/help_desk.h"
#include "shell/hot_spot.h"
#include "shell/option_boxes.h"
#include "shell/rule_calls.h"

namespace zifferon {

class Program {
  public:
    explicit Program(Machine& machine);

    // The real start, from the check of the components to the shown window.
    void start();

    // A calculator as it stands after a start on an empty quick file, without checks and windows.
    void beginFresh();

    // The windows that there are by now; the main one is the first.
    std::vector<Window*> windows();

    Pultform pultform;
    Kopf kopf{pultform.state.language};
    HelpWindow help;
    KeyRoad keys;

    Machine& machine;
    const Messages messages;
    const Settings settings;
    SeparatorState separator;
    MemoryState memory;
    CalculationRecord record;
    ResultClipboard clipboard;
    MemoryPanel cells;
    Undo undo;
    QuickFile quickFile;
    WindowModes modes;
    Colours colours;
    Sounds sounds;
    OptionBoxes options;
    StartUp startUp;
    SecretForm secretform;
    HotSpot hotSpot;
    Tray tray;
    Ending ending;
    FirstActivation firstActivation;
    FileList files;
    Preview preview;
    PrintCopyEditor editor;
    StoredCalculations stored;
    LetterheadDesk letterhead;
    PrintOptions printOptions;
    TapePage page;
    Printing printing;
    Puzzle puzzle;
    HelpDesk helpDesk;
    CommandActions actions;
    CommandDesk commands;
    Desk desk;
    EditCommands editing;
    RuleCalls ruleCalls;

  private:
    void wireDesktop();
};

}  // namespace zifferon
