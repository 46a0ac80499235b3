#include "platform/qt/timer_views.h"

#include <utility>

namespace zifferon {

namespace {

// In milliseconds. What ticks on and on does so as often as a film shows a new picture: more would cost a
// good part of a processor's time, and nobody could see it.
constexpr int shortestRepetition = 40;

}  // namespace

TimerViews::TimerViews(const Window& window, const std::function<void(const std::function<void()>&)>& run) {
    for (const Timer* timer : window.timers()) {
        auto clock = std::make_unique<QTimer>();
        QObject::connect(clock.get(), &QTimer::timeout, [run, timer, ticking = clock.get()] {
            run(timer->onTick);
            if (ticking->isActive() && ticking->interval() < shortestRepetition) {
                ticking->setInterval(shortestRepetition);
            }
        });
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
