#include "platform/qt/modal_windows.h"

#include <QApplication>
#include <QScreen>

#include "platform/qt/form_view.h"

namespace zifferon {

namespace {

void placeInMiddle(Window& window, const QWidget* parent) {
    const QRect around =
        parent != nullptr ? parent->frameGeometry() : QGuiApplication::primaryScreen()->geometry();
    window.place.left = around.center().x() * twipsPerPixel - window.place.width / 2;
    window.place.top = around.center().y() * twipsPerPixel - window.place.height / 2;
}

}  // namespace

void QtModalWindows::showModal(Window& window) {
    placeInMiddle(window, QApplication::activeWindow());
    KeyRoad keys(window, [this] { sound_.beep(); });
    FormView view(window, keys);
    view.setWindowModality(Qt::ApplicationModal);
    view.move(pixels(window.place).topLeft());
    window.visible = true;
    view.refresh();
    view.activateWindow();
    view.run(window.onActivate);
    while (window.visible) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace zifferon
