// A timer of a window. Whoever runs the event loop watches `arming` and ticks it.
#pragma once

#include <functional>

#include "platform/text.h"

namespace zifferon {

class Timer {
  public:
    Timer() = default;
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    // Interval in milliseconds; a timer that runs already starts its interval anew. 0 stops it.
    void start(int milliseconds) {
        interval_ = milliseconds;
        arming_ = ++lastArming_;
    }
    void stop() { start(0); }

    int interval() const { return interval_; }

    // Grows with every start of any timer: tells a new start, and which of two timers was started first.
    unsigned long arming() const { return arming_; }

    Text name;
    std::function<void()> onTick;

  private:
    int interval_ = 0;
    unsigned long arming_ = 0;
    inline static unsigned long lastArming_ = 0;
};

}  // namespace zifferon
