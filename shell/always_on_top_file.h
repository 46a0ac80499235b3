// Where the Print/Edit page keeps whether the window stood always on top.
#pragma once

#include "memory/tape_page.h"
#include "shell/settings.h"

namespace zifferon {

// `settings` must outlive it.
AlwaysOnTopFile alwaysOnTopFile(const Settings& settings);

}  // namespace zifferon
