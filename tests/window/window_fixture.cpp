#include "tests/window/window_fixture.h"

#include <QElapsedTimer>
#include <QSystemTrayIcon>

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

QByteArray outputOf(const QString& command) {
    QProcess process;
    process.startCommand(command);
    comesTrue([&] { return process.state() == QProcess::NotRunning; });
    return process.readAllStandardOutput();
}

bool startTray(QProcess& host) {
    host.startCommand(QStringLiteral("trayer --edge bottom --align left --widthtype request --height 24"));
    return host.waitForStarted() && comesTrue([] { return QSystemTrayIcon::isSystemTrayAvailable(); });
}

void WindowTest::SetUp() {
    program.beginFresh();
    view.refresh();
    ASSERT_SOON(view.isActiveWindow());
    hands.setNumLock(true);
}

void WindowTest::setVisible(bool visible) {
    program.pultform.visible = visible;
    view.refresh();
    EXPECT_SOON(view.isActiveWindow() == visible);
    letPass(100);
}

QPoint WindowTest::onScreen(const Control& control, QPoint offset) {
    return view.mapToGlobal(pixels(control.place).topLeft() + offset);
}

void WindowTest::clickAt(QPoint point, int button) {
    hands.moveMouse(point);
    hands.click(button);
}

void WindowTest::click(const Control& control, QPoint offset, int button) {
    clickAt(onScreen(control, offset), button);
}

void WindowTest::whenAWindowOpens(const std::function<void(QWidget&)>& person) {
    persons.push_back(person);
    lastOpened = QApplication::activeModalWidget();
    watching.disconnect();
    watching.callOnTimeout([this] { watch(); });
    watching.start(10);
}

void WindowTest::watch() {
    QWidget* const shown = QApplication::activeModalWidget();
    if (shown == nullptr || shown == lastOpened || !shown->isActiveWindow()) return;
    lastOpened = shown;
    const auto person = persons.front();
    persons.pop_front();
    watching.stop();
    if (!persons.empty()) watching.start(10);  // anew, or it would be silent while this one acts
    person(*shown);
}

}  // namespace zifferon::test
