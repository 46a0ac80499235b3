#include "platform/qt/modal_windows.h"

#include <QApplication>

#include "platform/qt/form_view.h"

namespace zifferon {

void QtModalWindows::showModal(Window& window) {
    QWidget* const owner = QApplication::activeWindow();
    KeyRoad keys(window, [this] { sound_.beep(); });
    FormView view(window, keys, owner);
    view.setWindowModality(Qt::ApplicationModal);
    if (owner != nullptr) view.move(owner->frameGeometry().center() - view.rect().center());
    window.visible = true;
    view.refresh();
    view.activateWindow();
    while (window.visible) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace zifferon
