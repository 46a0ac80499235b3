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

namespace {

void set(Text& text, Words words, Language language) {
    const TextView said = words.english.empty() ? words.german : words.in(language);
    if (!said.empty()) text = said;
}

}  // namespace

void Window::say(Control& control, const Said& said) {
    set(control.caption, said.caption, Language::german);
    set(control.accessibleName, said.spoken, Language::german);
    set(control.toolTip, said.tip, Language::german);
    speakers_.push_back(
        {control, Pair(said.caption), Pair(said.changedCaption), Pair(said.spoken), Pair(said.tip)});
}

void Window::speak(Language language, bool changed) {
    for (const Speaker& speaker : speakers_) {
        set(speaker.control.caption, speaker.caption.words(), language);
        if (changed) set(speaker.control.caption, speaker.changedCaption.words(), language);
        set(speaker.control.accessibleName, speaker.spoken.words(), language);
        set(speaker.control.toolTip, speaker.tip.words(), language);
    }
}

Control* Window::find(TextView controlName) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [&](const Control* control) { return control->name == controlName; });
    return found == controls_.end() ? nullptr : *found;
}

bool Window::isTabStop(const Control& control) const {
    return std::find(tabOrder.begin(), tabOrder.end(), &control) != tabOrder.end();
}

bool Window::setFocus(Control& control) {
    ++focusWishes_;
    if (!visible || !control.shown() || !control.enabled) return false;
    if (focus_ == &control) return true;
    Control* const before = std::exchange(focus_, &control);
    if (before != nullptr && before->onLostFocus) before->onLostFocus();
    if (focus_ == &control && control.onGotFocus) control.onGotFocus();
    return true;
}

}  // namespace zifferon
