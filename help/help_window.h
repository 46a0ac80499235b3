// The help window: the quick reference as a picture, the way to the user's guide, and the two languages.
// While it is open it takes the place of the main window.
#pragma once

#include "platform/language.h"
#include "platform/window.h"

namespace zifferon {

class HelpWindow : public Window {
  public:
    HelpWindow();

    // The captions that the window has from its loading on.
    void setCaptions(Language language);

    // Title and tips, which it gets each time it becomes active, and with a change of the language.
    void setTitle(Language language);
    void showReference(Language language);

    // What covers the window in one colour with it.
    Control hintergrund{ControlKind::label};
    Control Frame2{ControlKind::frame};

    Control referenzd{ControlKind::picture}, referenze{ControlKind::picture};  // one of the two is visible
    TextField Text6, Text1, Text3, Text8;    // what the program is; they cannot keep the focus
    Control Command5{ControlKind::button};   // opens the user's guide
    Control printhelp{ControlKind::button};  // prints the quick reference
    Control Command4{ControlKind::button}, Picture2{ControlKind::picture};  // the maker's pages
    Control puzzle1{ControlKind::button};                                   // opens the puzzle
    Control Command3{ControlKind::button}, Command2{ControlKind::button};   // German, English
    Control Command1{ControlKind::button};                                  // closes the window
    Control Picture1{ControlKind::picture};  // has the focus where nothing else is to have it
    Timer Timer2;                            // keeps the main window out of sight

    // Who asks the program line twice, or with Enter, finds the way to the puzzle.
    void showPuzzleButton() { puzzle1.visible = true; }

  private:
    void addTexts();
    void addButtons();
};

}  // namespace zifferon
