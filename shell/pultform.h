// The main window: the calculator's fields and everything around them, laid out in twips.
#pragma once

#include <array>

#include "core/calculator_state.h"
#include "page/page_controls.h"
#include "page/quick_file.h"
#include "platform/window.h"

namespace zifferon {

class Pultform : public Window {
  public:
    Pultform();

    CalculatorState state;

    // Texterror stands over the entry line, by the height of the window.
    void placeTexterror() { state.Texterror.place.top = place.height < 5000 ? 340 : 6450; }

    Control Frame1{ControlKind::frame};    // the entry block
    Control Frame2{ControlKind::frame};    // the memory panel
    Control Frame3{ControlKind::frame};    // the options
    Control Frame4{ControlKind::picture};  // the memory labels; it has no line around it
    std::array<Control, 5> memoLabels{Control{ControlKind::label}, Control{ControlKind::label},
                                      Control{ControlKind::label}, Control{ControlKind::label},
                                      Control{ControlKind::label}};        // Label3 to Label7: "M1" to "M5"
    Control Picture1{ControlKind::picture}, Image1{ControlKind::picture};  // the picture, and birds on it
    Control Command3{ControlKind::button}, Hilfe{ControlKind::button}, cmdexit{ControlKind::button};
    Timer Timer2, minitimer, timersecret;
    Control nixspez{ControlKind::button};  // the blind button beside spezrnd
    QuickButtons quick;
    PageControls page;
};

// Adds every control with its name, place, colours, and texts in both languages.
void layOutPultform(Pultform& window);

}  // namespace zifferon
