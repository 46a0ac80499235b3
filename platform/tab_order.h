// The way of the Tab key through a window.
#pragma once

#include "platform/window.h"

namespace zifferon {

// Gives the focus to the next control of the window's tab order that the mouse could reach, round from the
// last to the first; `back`: to the one before.
void focusNext(Window& window, bool back = false);

}  // namespace zifferon
