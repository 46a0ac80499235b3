#include "platform/window.h"

#include <algorithm>
#include <utility>

namespace zifferon {

void Window::add(Control& control, TextView controlName) {
    control.name = controlName;
    controls_.push_back(&control);
}

void Window::add(Timer& timer, TextView timerName) {
    timer.name = timerName;
    timers_.push_back(&timer);
}

Control* Window::find(TextView controlName) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [&](const Control* control) { return control->name == controlName; });
    return found == controls_.end() ? nullptr : *found;
}

bool Window::setFocus(Control& control) {
    if (!visible || !control.shown() || !control.enabled) return false;
    if (focus_ == &control) return true;
    Control* const before = std::exchange(focus_, &control);
    if (before != nullptr && before->onLostFocus) before->onLostFocus();
    if (focus_ == &control && control.onGotFocus) control.onGotFocus();
    return true;
}

}  // namespace zifferon
