#include "platform/qt/qt_windows.h"

#include <QApplication>
#include <QPointer>
#include <algorithm>

#include "platform/qt/form_view.h"
#include "platform/qt/to_front.h"

namespace zifferon {

struct QtWindows::Shown {
    Shown(Window& window, Sound& sound, QWidget* owner)
        : keys(window, [&sound] { sound.beep(); }), view(window, keys, owner) {}

    KeyRoad keys;
    FormView view;
};

namespace {

constexpr int longestLeave = 3000;  // milliseconds

FormView* viewOf(const Window& window) {
    const std::vector<FormView*> forms = FormView::all();
    const auto view =
        std::find_if(forms.begin(), forms.end(), [&](FormView* form) { return &form->window() == &window; });
    return view != forms.end() ? *view : nullptr;
}

}  // namespace

QtWindows::QtWindows(Sound& sound) : sound_(sound) {
    leave_.setSingleShot(true);
    leave_.callOnTimeout([this] { leaving_.reset(); });
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, &leave_,
                     [this](const QWindow* inUse) { endLeaving(inUse); });
}

QtWindows::~QtWindows() = default;

void QtWindows::show(Window& window) {
    if (viewOf(window) == nullptr) shown_.push_back(std::make_unique<Shown>(window, sound_, nullptr));
    FormView* const view = viewOf(window);
    const bool wasSeen = view->isVisible();
    window.visible = true;
    FormView::refreshAll();
    leave_.start(longestLeave);
    if (wasSeen) bringToFront(*view);
}

void QtWindows::hide(Window& window) {
    window.visible = false;
    FormView::refreshAll();
}

void QtWindows::hideAll() {
    for (FormView* form : FormView::all()) form->window().visible = false;
    FormView::refreshAll();
    for (QWidget* widget : QApplication::topLevelWidgets()) widget->hide();
}

// Where a box over the window closes in the same moment, a window manager may hand the keyboard to nobody:
// the owner, where it is still there, asks for it.
void QtWindows::showModal(Window& window) {
    const QPointer<QWidget> owner = FormView::topmost();
    {
        Shown shown(window, sound_, owner);
        shown.view.setWindowModality(Qt::ApplicationModal);
        runUntilHidden(shown.view);
    }
    const bool inUse = QGuiApplication::applicationState() == Qt::ApplicationActive;
    if (inUse && owner && owner->isVisible()) bringToFront(*owner);
}

void QtWindows::showBefore(Window& window) {
    auto shown = std::make_unique<Shown>(window, sound_, nullptr);
    shown->view.stay();
    leave_.start(longestLeave);
    runUntilHidden(shown->view);
    QObject::connect(shown->view.windowHandle(), &QWindow::visibleChanged, &leave_, [this](bool seen) {
        if (!seen) leave_.start(0);
    });
    leaving_ = std::move(shown);
}

void QtWindows::runUntilHidden(FormView& view) {
    Window& window = view.window();
    window.visible = true;
    view.refresh();
    QCoreApplication::processEvents();
    while (window.visible) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtWindows::endLeaving(const QWindow* inUse) {
    if (!leaving_ || inUse == nullptr) return;
    const std::vector<FormView*> forms = FormView::all();
    const bool next = std::any_of(forms.begin(), forms.end(), [&](const FormView* form) {
        return form->windowHandle() == inUse && form != &leaving_->view;
    });
    if (next) leave_.start(0);  // the toolkit still tells both windows of the change
}

}  // namespace zifferon
