// The colours of the windows: eight text schemes for the panels and the entry line, sixteen backgrounds.
#pragma once

#include "help/help_window.h"
#include "shell/pultform.h"

namespace zifferon {

constexpr int standardTextScheme = 5;
constexpr int standardBackScheme = 1;

// Schemes 1 to 8 and 1 to 16; any other number changes nothing.
void applyTextScheme(Pultform& window, int scheme);
void applyBackScheme(Pultform& window, HelpWindow& help, int scheme);

// The scheme behind it in the order of the steps, which begins anew at the end. A number outside the order
// steps to the standard scheme.
int nextTextScheme(int scheme);
int nextBackScheme(int scheme);

}  // namespace zifferon
