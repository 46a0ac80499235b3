// The machine without a screen: queued answers for boxes, a clock that moves only when told, and a log of all
// that would be seen and heard, one line for each event.
#pragma once

#include <chrono>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/headless/headless_printer.h"
#include "platform/headless/quoted.h"
#include "platform/key_road.h"
#include "platform/machine.h"
#include "platform/window.h"

namespace zifferon {

// Thrown through the handlers when the program ends itself.
class ProcessEnded : public std::exception {};

class HeadlessMachine : public Boxes,
                        public Clipboard,
                        public Sound,
                        public Windows,
                        public Process,
                        public Desktop {
  public:
    explicit HeadlessMachine(std::ostream& log) : log_(log) {}

    // The machine that this makes together with files and a system, which must outlive it.
    Machine with(Files& files, System& system) {
        return {.boxes = *this,
                .clipboard = *this,
                .sound = *this,
                .files = files,
                .windows = *this,
                .process = *this,
                .system = system,
                .desktop = *this,
                .printer = printer};
    }

    HeadlessPrinter printer{[this](std::string line) { tell(std::move(line)); }};

    // One of yes, no, ok, cancel, or a language; the next box without an answer of its own takes it.
    void queueAnswer(BoxAnswer answer) { answers_.push_back(answer); }

    // Runs where a question finds no answer; a notice needs none.
    std::function<void()> onUnansweredQuestion;

    // The lines of the log that nobody has taken yet, oldest first. Of very many only the newest are kept.
    std::deque<std::string>& events() { return events_; }

    // How many boxes have been shown so far.
    unsigned long boxesShown() const { return boxesShown_; }

    // A new program on the same machine: no timer of the former one is due, and the clipboard is empty.
    void beginAnew();

    // Lets virtual time pass; the timers of all windows in use tick in order, each through the key road of
    // its window.
    void wait(std::int64_t milliseconds);

    // The clock begins at that moment, and wait moves it.
    void setClock(std::chrono::system_clock::time_point now) {
        clock_ = now - std::chrono::milliseconds(now_);
    }
    std::chrono::system_clock::time_point now() const { return clock_ + std::chrono::milliseconds(now_); }

    // The window that is in use where no other one is, and its key road.
    void setMainWindow(Window& window, KeyRoad& keys) { mainWindow_ = {&window, &keys}; }

    // A modal window that no answer closes stays open until this returns; it returns when the window is no
    // longer visible.
    std::function<void(const Window& window)> whileModal;

    struct InUse {
        Window* window = nullptr;
        KeyRoad* keys = nullptr;
    };

    // The window that takes keys and the mouse: the modal one on top, else the one that was shown last.
    InUse inUse() const;
    bool modalOpen() const { return !modals_.empty(); }

    // Tells the window below one that has closed, if any, that it is in use now. The handler that closed the
    // one above has come to its end before.
    void settleActivation();

    BoxAnswer show(const Box& box) override;
    void clear() override;
    void setText(TextView text) override;
    Text text() const override { return clipboard_; }
    void beep() override;
    void play(const std::string& fileName) override;
    void show(Window& window) override;
    void hide(Window& window) override;
    void hideAll() override;
    void showModal(Window& window) override;
    void showBefore(Window& window) override { showModal(window); }
    void pause(int) override {}  // time passes by wait alone
    bool hasTray() override { return true; }
    void addTrayIcon() override;
    void removeTrayIcon() override;
    void tellFromTray(TextView) override {}
    void registerHotKey() override {}
    void unregisterHotKey() override {}
    void endSummons() override {}
    void openDocument(const std::string& fileName) override;
    [[noreturn]] void end() override;

  private:
    struct Due {
        unsigned long arming = 0;
        std::int64_t at = 0;
    };

    static bool before(const Due& a, const Due& b);
    void followTimers(const Window& window);
    bool tickNext(std::int64_t until);
    void open(Window& window);
    void closed(const Window& window);
    void tell(std::string event);
    void tellOf(const Window& window, const char* what);
    BoxAnswer takeAnswer(BoxAnswer unasked);

    std::ostream& log_;
    std::deque<std::string> events_;
    std::deque<BoxAnswer> answers_;
    Text clipboard_;
    unsigned long boxesShown_ = 0;
    bool trayIcon_ = false;
    std::int64_t now_ = 0;                         // milliseconds
    std::chrono::system_clock::time_point clock_;  // when they began
    std::unordered_map<const Timer*, Due> due_;
    InUse mainWindow_;
    std::vector<Window*> shown_;
    std::vector<InUse> modals_;                                           // each above those before it
    std::unordered_map<const Window*, std::unique_ptr<KeyRoad>> beside_;  // of windows beside the main one
    bool activationDue_ = false;
};

}  // namespace zifferon
