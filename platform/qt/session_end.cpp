#include "platform/qt/session_end.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QGuiApplication>
#include <cerrno>
#include <utility>

namespace zifferon {

namespace {

constexpr int signalsToEnd[] = {SIGTERM, SIGINT, SIGHUP};

// Hardly anything may be called while a signal is handled: its number goes through a pipe to the event loop.
int signalPipe[2] = {-1, -1};

extern "C" void passSignalOn(int signal) {
    const int saved = errno;
    const auto number = static_cast<unsigned char>(signal);
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &number, 1);
    errno = saved;
}

// Lets a signal act by `handler`, unless whoever started the program has had it ignored.
void setHandler(int signal, void (*handler)(int)) {
    struct sigaction action {};
    ::sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN) return;
    action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

}  // namespace

SessionEnd::SessionEnd(std::function<bool()> ended) : ended_(std::move(ended)) {
    QObject::connect(
        qApp, &QGuiApplication::commitDataRequest, this, [this] { tell(); }, Qt::DirectConnection);
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
        unsigned char number = 0;
        if (::read(signalPipe[0], &number, 1) == 1) signalCame(number);
    });
    for (const int signal : signalsToEnd) setHandler(signal, passSignalOn);
}

SessionEnd::~SessionEnd() {
    if (!notifier_) return;
    for (const int signal : signalsToEnd) setHandler(signal, SIG_DFL);
    notifier_.reset();
    for (int& end : signalPipe) ::close(std::exchange(end, -1));
}

void SessionEnd::signalCame(int signal) {
    if (tell()) return;
    setHandler(signal, SIG_DFL);
    ::raise(signal);
}

bool SessionEnd::tell() {
    if (std::exchange(running_, true)) return true;
    const bool done = ended_();
    running_ = false;
    return done;
}

}  // namespace zifferon
