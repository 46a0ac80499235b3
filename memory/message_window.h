// The small modal window that says that there is nothing to undo. Its opening wipes the tape, and the memory
// cells go back to what they held at the start or the last load.
#pragma once

#include <functional>

#include "core/calculator_state.h"
#include "platform/window.h"

namespace zifferon {

class MessageWindow : public Window {
  public:
    // `restoreCells` brings the cells back when the window becomes active.
    MessageWindow(CalculatorState& state, std::function<void()> restoreCells);

    // What happens before the window is seen.
    void load();

    Control Shape1{ControlKind::frame};
    Control Picture1{ControlKind::picture};
    Control Label1{ControlKind::label}, Label2{ControlKind::label};
    Control Command1{ControlKind::button};
    TextField Text1;

  private:
    void layOut();
    void activate();
    void close();

    CalculatorState& s;
    std::function<void()> restoreCells_;
    float keptAlwaysOnTop_ = 0;
};

}  // namespace zifferon
