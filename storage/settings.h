// Writing the settings: each to its file at the moment it changes. One that cannot be written holds for the
// run, and a box names its file.
#pragma once

#include <functional>
#include <string>

#include "platform/files.h"
#include "platform/messages.h"

namespace zifferon {

class Settings {
  public:
    Settings(Files& files, const Messages& messages) : files_(files), messages_(messages) {}

    // Writes a file that holds one number; whether it is written.
    bool store(const std::string& file, float value) const;

    // The same for any other, which `write` writes.
    bool storing(const std::string& file, const std::function<void()>& write) const;

    Files& files() const { return files_; }

  private:
    Files& files_;
    const Messages& messages_;
};

}  // namespace zifferon
