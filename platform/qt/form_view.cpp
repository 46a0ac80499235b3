#include "platform/qt/form_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPainter>
#include <algorithm>

#include "platform/qt/tape_access.h"

namespace zifferon {

FormView::FormView(Window& window, KeyRoad& keys, QWidget* owner)
    : QWidget(owner),
      window_(window),
      keys_(keys),
      timers_(window, [this](const auto& tick) { run(tick); }),
      keyEvents_(
          *this, window, keys, [this](Control& control) { press(control); }, refreshAll),
      place_{window.place.left, window.place.top, 0, 0} {
    offerTapesToScreenReaders();
    setObjectName(toQString(window.name));
    setWindowFlag(Qt::Dialog, owner != nullptr);
    setWindowFlag(Qt::FramelessWindowHint, !window.framed);
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
    refreshAll();
}

void FormView::refreshAll() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* const form = dynamic_cast<FormView*>(widget)) form->refresh();
    }
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
    if (event->type() == QEvent::WindowActivate) run(window_.onActivate);
    return QWidget::event(event);
}

void FormView::moveEvent(QMoveEvent*) {
    window_.place.left = place_.left = pos().x() * twipsPerPixel;
    window_.place.top = place_.top = pos().y() * twipsPerPixel;
}

void FormView::closeEvent(QCloseEvent* event) {
    if (!window_.onDismiss) return QWidget::closeEvent(event);
    event->ignore();
    run(window_.onDismiss);
}

// A window without the system's frame has a thin line of its own around it.
void FormView::paintEvent(QPaintEvent*) {
    if (window_.framed) return;
    QPainter painter(this);
    painter.setPen(colourOf(window_.backColour).darker(200));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
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
        const int frameTwips[] = {window_.framed ? frameWidth : 0, window_.framed ? frameHeight : 0};
        setFixedSize(pixels({0, 0, place.width - frameTwips[0], place.height - frameTwips[1]}).size());
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
