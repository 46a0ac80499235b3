// The timers of a window: each is ticked by one of Qt that follows its interval.
#pragma once

#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/window.h"

namespace zifferon {

class TimerViews {
  public:
    // `run` carries out what a tick does.
    TimerViews(const Window& window, const std::function<void(const std::function<void()>&)>& run);

    // Starts and stops what the program has started and stopped since the last call.
    void refresh();

  private:
    struct View {
        const Timer& timer;
        std::unique_ptr<QTimer> clock;
        unsigned long arming;
    };
    std::vector<View> views_;
};

}  // namespace zifferon
