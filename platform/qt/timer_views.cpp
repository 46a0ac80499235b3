#include "platform/qt/timer_views.h"

#include <utility>

namespace zifferon {

TimerViews::TimerViews(const Window& window, const std::function<void(const std::function<void()>&)>& run) {
    for (const Timer* timer : window.timers()) {
        auto clock = std::make_unique<QTimer>();
        QObject::connect(clock.get(), &QTimer::timeout, [run, timer] { run(timer->onTick); });
        views_.push_back({*timer, std::move(clock), 0});
    }
}

void TimerViews::refresh() {
    for (View& view : views_) {
        if (std::exchange(view.arming, view.timer.arming()) == view.timer.arming()) continue;
        if (view.timer.interval() > 0) {
            view.clock->start(view.timer.interval());
        } else {
            view.clock->stop();
        }
    }
}

}  // namespace zifferon
