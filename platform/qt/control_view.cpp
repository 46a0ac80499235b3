#include "platform/qt/control_view.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <utility>

#include "platform/mouse.h"
#include "platform/qt/form_view.h"

namespace zifferon {

QRect pixels(const Place& place) {
    const auto pixel = [](int twips) { return qRound(double(twips) / twipsPerPixel); };
    const QPoint corner(pixel(place.left), pixel(place.top));
    return {corner, QSize(pixel(place.left + place.width), pixel(place.top + place.height)) -
                        QSize(corner.x(), corner.y())};
}

// Sized in pixels like all places, so that no setting of the desktop makes the text outgrow them. Without
// kerning all digits are of one width: figures stand under each other. Latin letters that stand side by side
// need no shaping either, whose tables are a fortieth of all memory.
QFont fontOf(const Font& font) {
    QFont result(toQString(font.family));
    result.setPixelSize(qRound(font.points * 20 / twipsPerPixel));
    result.setBold(font.bold);
    result.setKerning(false);
    result.setStyleStrategy(QFont::PreferNoShaping);
    return result;
}

QColor colourOf(Colour colour) { return {colour.red, colour.green, colour.blue}; }

Qt::Alignment qtAlignment(Alignment alignment) {
    switch (alignment) {
        case Alignment::left:
            return Qt::AlignLeft | Qt::AlignVCenter;
        case Alignment::right:
            return Qt::AlignRight | Qt::AlignVCenter;
        case Alignment::centre:
            break;
    }
    return Qt::AlignCenter;
}

ControlView::ControlView(Control& control, QWidget& widget, QWidget& surface, FormView& form)
    : control_(control), widget_(widget), form_(form) {
    widget_.setObjectName(toQString(control.name));
    widget_.setAutoFillBackground(true);
    surface.setMouseTracking(true);
    surface.installEventFilter(this);
}

void ControlView::refresh(bool seen) {
    refreshPlace();
    if (differs(font_, control_.font)) widget_.setFont(fontOf(control_.font));
    const bool newForeColour = differs(foreColour_, control_.foreColour);
    if (differs(backColour_, control_.backColour) || newForeColour) refreshColours();
    if (differs(toolTip_, control_.toolTip)) widget_.setToolTip(toQString(control_.toolTip));
    if (differs(accessibleName_, control_.accessibleName)) {
        widget_.setAccessibleName(toQString(control_.accessibleName));
    }
    refreshContent();
    if (differs(enabled_, control_.enabled)) {
        widget_.setEnabled(control_.enabled);
        // A label that does nothing itself leaves the mouse to what it lies on.
        widget_.setAttribute(Qt::WA_TransparentForMouseEvents,
                             control_.kind == ControlKind::label && !control_.enabled);
    }
    if (differs(visible_, seen)) widget_.setVisible(seen);
}

// While it is dragged the mouse alone moves it.
void ControlView::refreshPlace() {
    if (grip_) return;
    Place place = control_.place;
    place.top += form_.window().menuHeight();
    if (differs(place_, place)) widget_.setGeometry(pixels(place));
}

void ControlView::refreshColours() {
    const QColor fore = colourOf(control_.foreColour);
    const QColor back = colourOf(control_.backColour);
    QPalette palette = widget_.palette();
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::HighlightedText}) {
        palette.setColor(role, back);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::Highlight,
                            QPalette::PlaceholderText}) {
        palette.setColor(role, fore);
    }
    if (control_.kind == ControlKind::checkBox) palette.setColor(QPalette::Base, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, back.darker(150));
    }
    widget_.setPalette(palette);
}

bool ControlView::eventFilter(QObject* surface, QEvent* event) {
    // Buttons, check boxes and combo boxes need the mouse for their own look, and tell of their clicks
    // themselves, whether these come by mouse or by a screen reader. Nothing else does: an event ends here.
    const bool button = control_.kind == ControlKind::button || control_.kind == ControlKind::menu ||
                        control_.kind == ControlKind::checkBox || control_.kind == ControlKind::comboBox;
    const auto position = [event] { return static_cast<QMouseEvent*>(event)->position().toPoint(); };
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            // A right button opens the menu of what is selected.
            if (control_.menu && static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) return true;
            clickPending_ = !button && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
            form_.act([&] {
                mousePressing(position());
                mousePress(form_.window(), form_.keys(), control_);
                mousePressed(position());
            });
            if (control_.draggable && clickPending_) {
                grip_ = position();
                widget_.raise();
            }
            return !button;
        case QEvent::MouseMove:
            if (grip_) widget_.move(widget_.pos() + position() - *grip_);
            if (static_cast<QMouseEvent*>(event)->buttons() & Qt::LeftButton) {
                mouseDragged(position());
            } else if (grip_.has_value()) {
                grip_.reset();  // let go where nobody told it, as behind a box
                place_.reset();
            }
            form_.act([&] { mouseMove(form_.keys(), control_); });
            return !button;
        case QEvent::MouseButtonRelease: {
            const bool inside = static_cast<QWidget*>(surface)->rect().contains(position());
            const bool clicks = std::exchange(clickPending_, false) && inside;
            if (grip_) drop();
            if (clicks) {
                form_.act([&] { mouseRelease(form_.keys(), control_); });
            } else {
                form_.run(control_.onMouseUp);
            }
            return !button;
        }
        case QEvent::ContextMenu:
            if (!control_.menu) return false;
            form_.openMenu(control_, static_cast<QContextMenuEvent*>(event)->globalPos());
            return true;
        case QEvent::MouseButtonDblClick:
            form_.act([&] { mouseDoubleClick(form_.keys(), control_); });
            return !button;
        default:
            return false;
    }
}

// What takes it lies under the mouse; in any case it goes home.
void ControlView::drop() {
    const QPoint mouse = (widget_.pos() + *std::exchange(grip_, {})) * twipsPerPixel;
    place_.reset();
    form_.act([&] {
        const Window& window = form_.window();
        Control* const field = dropField(window, control_, mouse.x(), mouse.y() - window.menuHeight());
        if (field != nullptr) mouseDrop(form_.keys(), control_, *field);
    });
}

}  // namespace zifferon
