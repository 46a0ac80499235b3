// The windows of the program beside the main one, each in a view of its own.
#pragma once

#include <memory>
#include <vector>

#include "platform/machine.h"

namespace zifferon {

class FormView;

class QtWindows : public Windows {
  public:
    explicit QtWindows(Sound& sound);
    ~QtWindows() override;

    // A window that has no view yet gets one that lives as long as this.
    void show(Window& window) override;
    void hide(Window& window) override;

    // In the middle of the window in use, with a nested event loop.
    void showModal(Window& window) override;

  private:
    // A window with keys of its own, and its view.
    struct Shown;

    Sound& sound_;
    std::vector<std::unique_ptr<Shown>> shown_;
};

}  // namespace zifferon
