#include "platform/qt/form_view.h"

#include <QEvent>
#include <algorithm>

namespace zifferon {

FormView::FormView(Window& window, KeyRoad& keys)
    : window_(window),
      keys_(keys),
      timers_(window, [this](const auto& tick) { run(tick); }),
      keyEvents_(
          *this, window, keys, [this](Control& control) { press(control); }, [this] { refresh(); }),
      place_{window.place.left, window.place.top, 0, 0} {
    setObjectName(toQString(window.name));
    for (Control* control : window.controls()) views_.push_back(makeControlView(*control, *this));
    refresh();
}

void FormView::refresh() {
    refreshFrame();
    for (const auto& view : views_) view->refresh();
    refreshFocus();
    timers_.refresh();
    if (isVisible() != window_.visible) setVisible(window_.visible);
}

void FormView::run(const std::function<void()>& handler) {
    if (!handler) return;
    keys_.run(handler);
    refresh();
}

void FormView::press(Control& control) {
    run([&] {
        if (control.kind == ControlKind::checkBox) {
            auto& checkBox = static_cast<CheckBox&>(control);
            checkBox.setTicked(!checkBox.ticked());
        } else {
            control.click();
        }
    });
}

bool FormView::event(QEvent* event) {
    // A box is about to open in the midst of a handler: what the handler has done so far is seen behind it.
    if (event->type() == QEvent::WindowBlocked) refresh();
    return QWidget::event(event);
}

void FormView::moveEvent(QMoveEvent*) {
    window_.place.left = place_.left = pos().x() * twipsPerPixel;
    window_.place.top = place_.top = pos().y() * twipsPerPixel;
}

void FormView::refreshFrame() {
    if (differs(caption_, window_.caption)) setWindowTitle(toQString(window_.caption));
    if (differs(backColour_, window_.backColour)) {
        QPalette colours = palette();
        colours.setColor(QPalette::Window, colourOf(window_.backColour));
        setPalette(colours);
    }
    const Place& place = window_.place;
    if (place == place_) return;
    if (place.width != place_.width || place.height != place_.height) {
        setFixedSize(pixels({0, 0, place.width - frameWidth, place.height - frameHeight}).size());
    }
    if (place.left != place_.left || place.top != place_.top) {
        move(pixels(place).topLeft());
    }
    place_ = window_.place;
}

void FormView::refreshFocus() {
    const auto view = std::find_if(views_.begin(), views_.end(),
                                   [&](const auto& v) { return &v->control() == window_.focus(); });
    if (view != views_.end() && focusWidget() != &(*view)->widget()) {
        (*view)->widget().setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace zifferon
