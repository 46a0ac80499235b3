// Tells when the first windows of a process are seen, and what memory the process has then.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QStringList>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

// Prints, for each of these titles in this order, the milliseconds from the start of the process at
// `startedAt` (nanoseconds of the system clock, as text) until a window of that title has been painted; then
// the proportional set size in KiB half a second later, and ends the process.
class FirstWindow : public QObject {
  public:
    FirstWindow(const char* startedAt, QStringList titles)
        : startedAt_(std::stoll(startedAt)), titles_(std::move(titles)) {
        qApp->installEventFilter(this);
    }

  private:
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* const window = qobject_cast<QWindow*>(object);
        if (event->type() != QEvent::Expose || window == nullptr || !window->isExposed()) return false;
        if (titles_.empty() || window->title() != titles_.first()) return false;
        titles_.removeFirst();
        QMetaObject::invokeMethod(this, &FirstWindow::tell, Qt::QueuedConnection);  // it is painted meanwhile
        return false;
    }

    void tell() {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        const auto passed = std::chrono::duration_cast<std::chrono::nanoseconds>(now).count() - startedAt_;
        std::cout << static_cast<double>(passed) / 1e6 << ' ' << std::flush;
        if (!titles_.empty()) return;
        QTimer::singleShot(500, this, [] {
            std::cout << proportionalSetSize() << std::endl;
            std::_Exit(0);
        });
    }

    static std::string proportionalSetSize() {
        std::ifstream rollup("/proc/self/smaps_rollup");
        for (std::string word; rollup >> word;) {
            if (word == "Pss:" && rollup >> word) return word;
        }
        return "?";
    }

    long long startedAt_;
    QStringList titles_;
};
