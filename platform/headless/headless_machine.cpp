#include "platform/headless/headless_machine.h"

namespace zifferon {

namespace {

const char* wordOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::information:
            return "information";
        case BoxIcon::question:
            return "question";
        case BoxIcon::warning:
            return "warning";
        case BoxIcon::critical:
            return "critical";
        case BoxIcon::none:
            break;
    }
    return "none";
}

const char* wordOf(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::yesNo:
            return "yes-no";
        case BoxButtons::yesNoCancel:
            return "yes-no-cancel";
        case BoxButtons::ok:
            break;
    }
    return "ok";
}

const char* wordOf(BoxAnswer answer) {
    switch (answer) {
        case BoxAnswer::yes:
            return "yes";
        case BoxAnswer::no:
            return "no";
        case BoxAnswer::cancel:
            return "cancel";
        case BoxAnswer::german:
            return "german";
        case BoxAnswer::english:
            return "english";
        case BoxAnswer::ok:
            break;
    }
    return "ok";
}

BoxAnswer unasked(BoxButtons buttons) { return buttons == BoxButtons::ok ? BoxAnswer::ok : BoxAnswer::no; }

}  // namespace

std::string quoted(TextView text) {
    Text escaped = u"\"";
    for (const char16_t unit : text) {
        switch (unit) {
            case u'"':
                escaped += u"\\\"";
                break;
            case u'\\':
                escaped += u"\\\\";
                break;
            case u'\r':
                escaped += u"\\r";
                break;
            case u'\n':
                escaped += u"\\n";
                break;
            case u'\t':
                escaped += u"\\t";
                break;
            default:
                escaped += unit;
        }
    }
    escaped += u'"';
    return toUtf8(escaped);
}

void HeadlessMachine::beginAnew() {
    due_.clear();
    trayIcon_ = false;
    onHotKey = onTrayDoubleClick = onTrayShow = onTrayExit = onSessionEnd = nullptr;
    clipboard_.clear();
}

BoxAnswer HeadlessMachine::takeAnswer(BoxAnswer unasked) {
    if (answers_.empty()) return unasked;
    const BoxAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

BoxAnswer HeadlessMachine::show(const Box& box) {
    const BoxAnswer answer = takeAnswer(unasked(box.buttons));
    log_ << "box " << wordOf(box.icon) << ' ' << wordOf(box.buttons) << ' ' << quoted(box.title) << ' '
         << quoted(box.text) << " -> " << wordOf(answer) << '\n';
    return answer;
}

void HeadlessMachine::clear() {
    clipboard_.clear();
    log_ << "clipboard cleared\n";
}

void HeadlessMachine::setText(TextView text) {
    clipboard_ = text;
    log_ << "clipboard " << quoted(text) << '\n';
}

void HeadlessMachine::beep() { log_ << "beep\n"; }

void HeadlessMachine::play(const std::string& fileName) { log_ << "sound " << fileName << '\n'; }

void HeadlessMachine::showModal(Window& window) {
    show(window);
    if (window.visible) {
        const BoxAnswer answer = takeAnswer(BoxAnswer::ok);
        window.onAnswer ? window.onAnswer(answer) : window.onDismiss();
    }
    tellOf(window, "hidden");
}

void HeadlessMachine::show(Window& window) {
    if (std::exchange(window.visible, true)) return;
    tellOf(window, "shown");
    if (window.onActivate) window.onActivate();
}

void HeadlessMachine::hide(Window& window) {
    if (std::exchange(window.visible, false)) tellOf(window, "hidden");
}

void HeadlessMachine::tellOf(const Window& window, const char* what) {
    log_ << "window " << toUtf8(window.name) << ' ' << what << '\n';
}

void HeadlessMachine::openDocument(const std::string& fileName) {
    log_ << "open " << quoted(fromUtf8(fileName)) << '\n';
}

void HeadlessMachine::addTrayIcon() {
    if (!std::exchange(trayIcon_, true)) log_ << "tray icon added\n";
}

void HeadlessMachine::removeTrayIcon() {
    if (std::exchange(trayIcon_, false)) log_ << "tray icon removed\n";
}

void HeadlessMachine::end() {
    log_ << "end of process\n";
    throw ProcessEnded();
}

void HeadlessMachine::wait(std::int64_t milliseconds, const Window& window, KeyRoad& keys) {
    const std::int64_t until = now_ + milliseconds;
    followTimers(window);
    while (Timer* const timer = nextDue(window, until)) {
        Due& due = due_[timer];
        now_ = due.at;
        due.at += timer->interval();
        keys.run(timer->onTick);
        followTimers(window);
    }
    now_ = until;
}

// Time stands still between two waits, so a timer that was started since begins its interval now.
void HeadlessMachine::followTimers(const Window& window) {
    for (const Timer* timer : window.timers()) {
        Due& due = due_[timer];
        if (due.arming == timer->arming()) continue;
        due = {timer->arming(), now_ + timer->interval()};
    }
}

// Of two timers that are due at the same moment the one that was started first ticks first.
bool HeadlessMachine::before(const Due& a, const Due& b) {
    return a.at != b.at ? a.at < b.at : a.arming < b.arming;
}

Timer* HeadlessMachine::nextDue(const Window& window, std::int64_t until) {
    Timer* next = nullptr;
    for (Timer* timer : window.timers()) {
        if (timer->interval() == 0 || due_[timer].at > until) continue;
        if (next == nullptr || before(due_[timer], due_[next])) next = timer;
    }
    return next;
}

}  // namespace zifferon
