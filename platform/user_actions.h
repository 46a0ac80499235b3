// What a person does with the mouse, the same for the window and for the program without one. All of it does
// nothing on a control that is hidden or disabled.
#pragma once

#include "platform/key_road.h"
#include "platform/window.h"

namespace zifferon {

// Press, release and click. A text field that takes the focus gets it first; a check box changes its tick
// first.
void userClick(Window& window, KeyRoad& keys, Control& control);

// A click with all that it does, then the double click.
void userDoubleClick(Window& window, KeyRoad& keys, Control& control);

void userMouseDown(KeyRoad& keys, Control& control);
void userMouseUp(KeyRoad& keys, Control& control);
void userHover(KeyRoad& keys, Control& control);

}  // namespace zifferon
