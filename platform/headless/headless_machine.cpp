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

void HeadlessMachine::beginAnew() {
    due_.clear();
    shown_.clear();
    mainWindow_ = {};
    beside_.clear();
    activationDue_ = false;
    trayIcon_ = false;
    events_.clear();
    onHotKey = onTrayDoubleClick = onTrayShow = onTrayExit = onSessionEnd = nullptr;
    clipboard_.clear();
    printer.beginAnew();
}

BoxAnswer HeadlessMachine::takeAnswer(BoxAnswer unasked) {
    if (answers_.empty()) return unasked;
    const BoxAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

BoxAnswer HeadlessMachine::show(const Box& box) {
    ++boxesShown_;
    const bool asks = box.buttons != BoxButtons::ok;
    if (asks && answers_.empty() && onUnansweredQuestion) onUnansweredQuestion();
    const BoxAnswer answer = takeAnswer(unasked(box.buttons));
    tell(std::string("box ") + wordOf(box.icon) + ' ' + wordOf(box.buttons) + ' ' + quoted(box.title) + ' ' +
         quoted(box.text) + " -> " + wordOf(answer));
    return answer;
}

void HeadlessMachine::clear() {
    clipboard_.clear();
    tell("clipboard cleared");
}

void HeadlessMachine::setText(TextView text) {
    clipboard_ = text;
    tell("clipboard " + quoted(text));
}

void HeadlessMachine::beep() { tell("beep"); }

void HeadlessMachine::play(const std::string& fileName) { tell("sound " + fileName); }

namespace {

// A modal window is left by exceptions, too.
class InModal {
  public:
    InModal(std::vector<HeadlessMachine::InUse>& modals, HeadlessMachine::InUse modal) : modals_(modals) {
        modals_.push_back(modal);
    }
    InModal(const InModal&) = delete;
    InModal& operator=(const InModal&) = delete;
    ~InModal() { modals_.pop_back(); }

  private:
    std::vector<HeadlessMachine::InUse>& modals_;
};

}  // namespace

void HeadlessMachine::showModal(Window& window) {
    open(window);
    if (window.visible && window.onAnswer) window.onAnswer(takeAnswer(BoxAnswer::ok));
    if (window.visible) {
        KeyRoad keys(window, [this] { beep(); });
        const InModal inModal(modals_, {&window, &keys});
        whileModal(window);
    }
    closed(window);
}

void HeadlessMachine::closed(const Window& window) {
    std::erase(shown_, &window);
    tellOf(window, "hidden");
    activationDue_ = true;
}

void HeadlessMachine::settleActivation() {
    if (!std::exchange(activationDue_, false)) return;
    const InUse below = inUse();
    if (below.window != nullptr && below.window->visible) below.keys->run(below.window->onActivate);
}

HeadlessMachine::InUse HeadlessMachine::inUse() const {
    if (!modals_.empty()) return modals_.back();
    for (auto window = shown_.rbegin(); window != shown_.rend() && *window != mainWindow_.window; ++window) {
        const auto road = beside_.find(*window);
        if (road != beside_.end()) return {*window, road->second.get()};
    }
    return mainWindow_;
}

void HeadlessMachine::show(Window& window) {
    if (&window != mainWindow_.window && !beside_.contains(&window)) {
        beside_[&window] = std::make_unique<KeyRoad>(window, [this] { beep(); });
    }
    open(window);
}

void HeadlessMachine::open(Window& window) {
    if (std::exchange(window.visible, true)) return;
    shown_.push_back(&window);
    tellOf(window, "shown");
    if (window.onActivate) window.onActivate();
    activationDue_ = false;
}

void HeadlessMachine::hide(Window& window) {
    if (std::exchange(window.visible, false)) closed(window);
}

void HeadlessMachine::hideAll() {
    for (Window* const window : std::vector(shown_)) hide(*window);
}

void HeadlessMachine::tell(std::string event) {
    constexpr std::size_t most = 100000;
    log_ << event << '\n';
    events_.push_back(std::move(event));
    if (events_.size() > most) events_.pop_front();
}

void HeadlessMachine::tellOf(const Window& window, const char* what) {
    tell("window " + toUtf8(window.name) + ' ' + what);
}

void HeadlessMachine::openDocument(const std::string& fileName) {
    tell("open " + quoted(fromUtf8(fileName)));
}

void HeadlessMachine::addTrayIcon() {
    if (!std::exchange(trayIcon_, true)) tell("tray icon added");
}

void HeadlessMachine::removeTrayIcon() {
    if (std::exchange(trayIcon_, false)) tell("tray icon removed");
}

void HeadlessMachine::end() {
    tell("end of process");
    throw ProcessEnded();
}

void HeadlessMachine::wait(std::int64_t milliseconds) {
    const std::int64_t until = now_ + milliseconds;
    while (tickNext(until)) settleActivation();
    now_ = until;
}

// Of two timers that are due at the same moment the one that was started first ticks first.
bool HeadlessMachine::before(const Due& a, const Due& b) {
    return a.at != b.at ? a.at < b.at : a.arming < b.arming;
}

bool HeadlessMachine::tickNext(std::int64_t until) {
    Timer* next = nullptr;
    KeyRoad* keys = nullptr;
    std::vector<InUse> windows = modals_;
    windows.push_back(mainWindow_);
    if (!modalOpen() && inUse().window != mainWindow_.window) windows.push_back(inUse());
    for (const InUse& inUse : windows) {
        followTimers(*inUse.window);
        for (Timer* timer : inUse.window->timers()) {
            if (timer->interval() == 0 || due_[timer].at > until) continue;
            if (next != nullptr && !before(due_[timer], due_[next])) continue;
            next = timer;
            keys = inUse.keys;
        }
    }
    if (next == nullptr) return false;
    Due& due = due_[next];
    now_ = due.at;
    due.at += next->interval();
    keys->run(next->onTick);
    return true;
}

// Time stands still between two waits, so a timer that was started since begins its interval now.
void HeadlessMachine::followTimers(const Window& window) {
    for (const Timer* timer : window.timers()) {
        Due& due = due_[timer];
        if (due.arming == timer->arming()) continue;
        due = {timer->arming(), now_ + timer->interval()};
    }
}

}  // namespace zifferon
