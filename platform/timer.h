// A timer of a window. Whoever runs the event loop watches `armings` and ticks it.
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
        ++armings_;
    }
    void stop() { start(0); }

    int interval() const { return interval_; }
    unsigned armings() const { return armings_; }

    Text name;
    std::function<void()> onTick;

  private:
    int interval_ = 0;
    unsigned armings_ = 0;
};

}  // namespace zifferon
