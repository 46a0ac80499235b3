#include "shell/option_boxes.h"

namespace zifferon {

void OptionBoxes::wire() {
    CalculatorState& s = window_.state;
    s.Checksound.onClick = [this] { focusOrDefer(); };
    s.Checkob.onClick = [this, &s] {
        window_.alwaysOnTop = s.Checkob.ticked();
        focusOrDefer();
    };
    s.clipcheck.onClick = [this] {
        focusOrDefer();
        clipboard_.tickChanged();
    };
}

void OptionBoxes::focusOrDefer() {
    if (!window_.setFocus(window_.state.eingabe)) focusDeferred_ = true;
}

}  // namespace zifferon
