// The end of the user's session: the desktop's log-off, or a signal that asks the program to end.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace zifferon {

class SessionEnd : public QObject {
  public:
    // `ended` runs from the event loop, and not again while it runs. It returns false where nothing is to be
    // done; a signal then ends the process as it does by default. One of these lives at a time, beside the
    // application.
    explicit SessionEnd(std::function<bool()> ended);
    ~SessionEnd() override;

  private:
    void signalCame(int signal);
    bool tell();

    std::function<bool()> ended_;
    bool running_ = false;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace zifferon
