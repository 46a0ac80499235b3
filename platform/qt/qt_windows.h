// The windows of the program beside the main one, each in a view of its own.
#pragma once

#include <QTimer>
#include <QWindow>
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

    void hideAll() override;

    // With a nested event loop; in the middle of the window in use, or of the screen.
    void showModal(Window& window) override;
    void showBefore(Window& window) override;

  private:
    // A window with keys of its own, and its view.
    struct Shown;

    static void runUntilHidden(FormView& view);
    void endLeaving(const QWindow* inUse);

    Sound& sound_;
    std::vector<std::unique_ptr<Shown>> shown_;
    std::unique_ptr<Shown> leaving_;  // stays until the next window is in use
    QTimer leave_;                    // where there is no window manager, nothing comes into use by itself
};

}  // namespace zifferon
