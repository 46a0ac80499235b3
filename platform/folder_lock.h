// One program a folder: two of them would write the same snapshots and settings over each other's.
#pragma once

#include "platform/posix_calls.h"

namespace zifferon {

// The lock is the system's own. It ends with the process, however that ends, and leaves nothing behind.
class FolderLock {
  public:
    // Names the folder; takes nothing yet.
    explicit FolderLock(const std::string& folder = ".");

    // Whether the folder is this program's, now or within so many milliseconds. Also true where the file
    // system knows no locks, and in a folder that cannot be read.
    bool take(int milliseconds = 0);

  private:
    Descriptor folder_;
};

}  // namespace zifferon
