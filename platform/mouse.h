// What the mouse does to a window, in a person's hand or a script's.
#pragma once

#include "platform/key_road.h"
#include "platform/window.h"

namespace zifferon {

// Whether the mouse, or an access key, can get at a control: it is shown and enabled, its middle lies in the
// window, and no later control lies over it. A disabled label leaves the mouse to what it lies on.
bool isReachable(const Window& window, const Control& control);

// The index of the last shown control that covers the whole window: of what comes before it nothing is seen.
// 0 where there is none.
std::size_t coverOf(const Window& window);

// Pressed: the control's own handler, and then the focus goes to one that takes it, unless the handler has
// given it away.
void mousePress(Window& window, KeyRoad& keys, Control& control);

// Released over the control: its handler, and then the click.
void mouseRelease(KeyRoad& keys, Control& control);

// The second release of a double click; the first was a click of its own.
void mouseDoubleClick(KeyRoad& keys, Control& control);

void mouseMove(KeyRoad& keys, Control& control);

// The control that takes `piece` when it is let go at a point of the window's client area, in twips: the
// topmost other one that the mouse can get at there. Null where that takes nothing.
Control* dropField(const Window& window, const Control& piece, int left, int top);

void mouseDrop(KeyRoad& keys, Control& piece, Control& field);

}  // namespace zifferon
