#include "tests/window/window_fixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <QSystemTrayIcon>
#include <chrono>
#include <thread>

namespace zifferon::test {

bool comesTrue(const std::function<bool()>& condition, int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    while (!condition() && clock.elapsed() < milliseconds) {
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return condition();
}

void letPass(int milliseconds) {
    comesTrue([] { return false; }, milliseconds);
}

bool TrayHost::start() {
    const QString host = QStandardPaths::findExecutable(QStringLiteral("trayer"));
    if (host.isEmpty()) return false;
    process_.start(host,
                   QStringLiteral("--edge bottom --align left --widthtype request --height 24").split(u' '));
    return comesTrue([] { return QSystemTrayIcon::isSystemTrayAvailable(); });
}

void TrayHost::stop() {
    process_.terminate();
    process_.waitForFinished();
}

void WindowTest::SetUp() {
    program.beginFresh();
    view.refresh();
    ASSERT_TRUE(comesTrue([&] { return view.isActiveWindow(); }));
    hands.setNumLock(true);
}

void WindowTest::pressWith(int modifier, int key) {
    hands.down(modifier);
    hands.stroke({key});
    hands.up(modifier);
}

QPoint WindowTest::onScreen(const Control& control, QPoint offset) {
    return view.mapToGlobal(pixels(control.place).topLeft() + offset);
}

void WindowTest::click(const Control& control, QPoint offset, int button) {
    hands.moveMouse(onScreen(control, offset));
    hands.click(button);
}

void WindowTest::whenAWindowOpens(const std::function<void(QWidget&)>& person) {
    watch.disconnect();
    watch.callOnTimeout([this, person] {
        QWidget* const shown = QApplication::activeModalWidget();
        if (shown == nullptr || !shown->isActiveWindow()) return;
        watch.stop();
        person(*shown);
    });
    watch.start(10);
}

}  // namespace zifferon::test
