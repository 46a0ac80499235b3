// The captions of the main window in both languages. The designed ones are German.
#pragma once

#include "shell/pultform.h"

namespace zifferon {

// Sets every caption that has two forms; access keys change with them.
void applyLanguage(Pultform& window, bool english);

}  // namespace zifferon
