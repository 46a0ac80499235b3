// Bringing a window to the front, with the keyboard.
#pragma once

#include <QWidget>

namespace zifferon {

// For what the user has asked for by a way that the window manager does not see as one: hot key, tray, a
// second start. A shown window; where no window manager is, as the toolkit does it.
void bringToFront(QWidget& window);

}  // namespace zifferon
