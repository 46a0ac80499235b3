// Modal windows of the program, each in a view of its own with a nested event loop.
#pragma once

#include "platform/machine.h"

namespace zifferon {

class QtModalWindows : public ModalWindows {
  public:
    explicit QtModalWindows(Sound& sound) : sound_(sound) {}

    // In the middle of the window in use.
    void showModal(Window& window) override;

  private:
    Sound& sound_;
};

}  // namespace zifferon
