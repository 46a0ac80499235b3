#include "platform/qt/qt_windows.h"

#include <QApplication>
#include <QScreen>
#include <algorithm>

#include "platform/qt/form_view.h"

namespace zifferon {

struct QtWindows::Shown {
    Shown(Window& window, Sound& sound, QWidget* owner)
        : keys(window, [&sound] { sound.beep(); }), view(window, keys, owner) {
        view.move(startOf(window.place, owner));
    }

    // Where the program wants it; without a wish in the middle of its owner or of the screen.
    static QPoint startOf(const Place& place, const QWidget* owner) {
        if (place.left != 0 || place.top != 0) return pixels(place).topLeft();
        const QRect around =
            owner != nullptr ? owner->frameGeometry() : QGuiApplication::primaryScreen()->availableGeometry();
        return around.center() - pixels(place).center();
    }

    KeyRoad keys;
    FormView view;
};

namespace {

FormView* viewOf(const Window& window) {
    const std::vector<FormView*> forms = FormView::all();
    const auto view =
        std::find_if(forms.begin(), forms.end(), [&](FormView* form) { return &form->window() == &window; });
    return view != forms.end() ? *view : nullptr;
}

}  // namespace

QtWindows::QtWindows(Sound& sound) : sound_(sound) {}
QtWindows::~QtWindows() = default;

void QtWindows::show(Window& window) {
    if (viewOf(window) == nullptr) shown_.push_back(std::make_unique<Shown>(window, sound_, nullptr));
    window.visible = true;
    FormView::refreshAll();
    FormView* const view = viewOf(window);
    view->raise();
    view->activateWindow();
}

void QtWindows::hide(Window& window) {
    window.visible = false;
    FormView::refreshAll();
}

void QtWindows::showModal(Window& window) {
    Shown shown(window, sound_, QApplication::activeWindow());
    shown.view.setWindowModality(Qt::ApplicationModal);
    window.visible = true;
    shown.view.refresh();
    shown.view.activateWindow();
    QCoreApplication::processEvents();
    // While the screen puts the window up, those that come later get ready.
    for (FormView* form : FormView::all()) form->prepare();
    while (window.visible) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace zifferon
