// Tells when the first window of a process is seen, and what memory the process has then.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

// Prints the milliseconds from `startedAt` (nanoseconds of the system clock, as text) to the first exposed
// window whose title is `title`, then the proportional set size in KiB half a second later, and ends the
// process. Without a time, null, nothing is told, and the process runs on.
class FirstWindow : public QObject {
  public:
    FirstWindow(const char* startedAt, QString title)
        : startedAt_(startedAt == nullptr ? 0 : std::stoll(startedAt)), title_(std::move(title)) {
        if (startedAt != nullptr) qApp->installEventFilter(this);
    }

  private:
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* const window = qobject_cast<QWindow*>(object);
        if (seen_ || event->type() != QEvent::Expose || window == nullptr || !window->isExposed())
            return false;
        if (window->title() != title_) return false;
        seen_ = true;
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        const auto passed = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() - startedAt_;
        std::cout << static_cast<double>(passed) / 1e6 << ' ' << std::flush;
        QTimer::singleShot(500, this, [] {
            std::cout << proportionalSetSize() << std::endl;
            std::_Exit(0);
        });
        return false;
    }

    static std::string proportionalSetSize() {
        std::ifstream rollup("/proc/self/smaps_rollup");
        for (std::string word; rollup >> word;) {
            if (word == "Pss:" && rollup >> word) return word;
        }
        return "?";
    }

    long long startedAt_;
    QString title_;
    bool seen_ = false;
};
