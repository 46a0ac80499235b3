#include "platform/qt/form_view.h"

#include <QApplication>
#include <QBackingStore>
#include <QCloseEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

#include "platform/mouse.h"
#include "platform/qt/control_access.h"
#include "platform/qt/to_front.h"

namespace zifferon {

namespace {

int distance(const QRect& area, QPoint point) {
    const QPoint nearest(std::clamp(point.x(), area.left(), area.right()),
                         std::clamp(point.y(), area.top(), area.bottom()));
    return (nearest - point).manhattanLength();
}

int areaOf(QSize size) { return size.width() * size.height(); }

// Where a window wanted at `frame` can be seen: there, if some screen shows half of it, and enough of its
// title to take hold of; otherwise at the nearest place of the nearest screen, with its left and top end if
// it is too large.
QPoint visiblePosition(const QRect& frame) {
    constexpr int grip = 60, titleHeight = frameHeight / twipsPerPixel;
    QRect nearest;
    int shortest = std::numeric_limits<int>::max();
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect area = screen->availableGeometry();
        const QRect title = area & QRect(frame.topLeft(), QSize(frame.width(), titleHeight));
        const bool canBeMoved =
            title.width() >= std::min(grip, frame.width()) && title.height() == titleHeight;
        if (canBeMoved && 2 * areaOf((area & frame).size()) >= areaOf(frame.size())) return frame.topLeft();
        if (const int away = distance(area, frame.center()); away < shortest) {
            shortest = away;
            nearest = area;
        }
    }
    return {std::max(nearest.left(), std::min(frame.left(), nearest.right() + 1 - frame.width())),
            std::max(nearest.top(), std::min(frame.top(), nearest.bottom() + 1 - frame.height()))};
}

constexpr int longestWait = 300;  // milliseconds

bool onWayland() { return QGuiApplication::platformName() == QStringLiteral("wayland"); }

// The window in use; null: none yet, or it was hidden.
FormView* active = nullptr;

// A size is fixed by the program: there is nothing to maximise.
Qt::WindowFlags frameOf(const Window& window, bool owned) {
    Qt::WindowFlags flags = owned ? Qt::Dialog : Qt::Window;
    if (!window.framed) return flags | Qt::FramelessWindowHint;
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (!window.closeable) return flags;
    return flags | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
}

}  // namespace

FormView::FormView(Window& window, KeyRoad& keys, QWidget* owner)
    : QWidget(owner),
      window_(window),
      keys_(keys),
      timers_(window,
              [this](const auto& tick) {
                  if (!timersHeld_) run(tick);
              }),
      keyEvents_(*this, keys) {
    offerControlsToScreenReaders();
    setObjectName(toQString(window.name));
    setWindowFlags(frameOf(window, owner != nullptr));
    setMouseTracking(true);
    activation_.setSingleShot(true);
    activation_.callOnTimeout([this] { activationDue(); });
    views_.resize(window.controls().size());
}

FormView::~FormView() {
    if (active == this) active = nullptr;
}

void FormView::prepare() {
    refreshFrame();
    refreshPlace();
    refreshOnTop();
    refreshControls();
    refreshFocus();
}

// Painted once, it has its fonts and glyphs, and the memory of what the screen will show.
void FormView::getReady() {
    if (windowHandle() != nullptr) return;
    prepare();
    create();
    QBackingStore& store = *backingStore();
    store.resize(size());
    store.beginPaint(rect());
    render(store.paintDevice());
    store.endPaint();
}

void FormView::refresh() {
    if (window_.visible) prepare();
    timers_.refresh();
    refreshShown();
}

void FormView::run(const std::function<void()>& handler) {
    if (!handler) return;
    settleActivation();
    keys_.run(handler);
    refreshAll();
}

void FormView::refreshAll() {
    for (FormView* form : all()) form->refresh();
}

std::vector<FormView*> FormView::all() {
    std::vector<FormView*> forms;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* const form = dynamic_cast<FormView*>(widget)) forms.push_back(form);
    }
    return forms;
}

QWidget* FormView::topmost() {
    if (QWidget* const modal = QApplication::activeModalWidget()) return modal;
    return active != nullptr && !active->isMinimized() ? active : nullptr;
}

void FormView::press(Control& control) {
    run([&] {
        if (control.takesFocus) window_.setFocus(control);
        control.press();
    });
}

void FormView::act(const std::function<void()>& deed) {
    settleActivation();
    deed();
    refreshAll();
}

void FormView::openMenu(Control& control, QPoint position) {
    keyEvents_.letGoOfAll();
    if (control.takesFocus) run([&] { window_.setFocus(control); });
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (MenuEntry& entry : control.menu()) {
        const auto chosen = [this, choose = std::move(entry.onChoose)] { act(choose); };
        menu->addAction(toQString(entry.caption), this, chosen)->setEnabled(entry.enabled);
    }
    menu->popup(position);
}

Control* FormView::controlOf(const QWidget& widget) const {
    const auto view = std::find_if(views_.begin(), views_.end(),
                                   [&](const auto& v) { return v && &v->widget() == &widget; });
    return view != views_.end() ? &(*view)->control() : nullptr;
}

void FormView::followFocus(const QWidget& widget) {
    Control* const control = controlOf(widget);
    if (control == nullptr || control == window_.focus()) return;
    if (control->takesFocus || window_.isTabStop(*control)) run([&] { window_.setFocus(*control); });
    refreshFocus();
}

bool FormView::event(QEvent* event) {
    // A box is about to open in the midst of a handler: what the handler has done so far is seen behind it.
    if (event->type() == QEvent::WindowBlocked) refresh();
    if (event->type() == QEvent::WindowActivate) activation_.start(0);
    if (event->type() == QEvent::Show) activation_.start(longestWait);
    if (event->type() == QEvent::Hide) {
        activation_.stop();
        if (active == this) active = nullptr;
    }
    return QWidget::event(event);
}

// A window becomes the one in use when another of the program's windows was, or when it comes back from being
// hidden. Neither a box nor another program in between counts. A desktop that keeps the keyboard from a new
// window does not keep the program from going on. The toolkit is not in the midst of it any more: a handler
// may open a box and take other windows away.
void FormView::becomeActive() {
    activation_.stop();
    if (std::exchange(active, this) != this) run(window_.onActivate);
}

// While a window that came before has the keyboard, what is typed there comes first.
void FormView::activationDue() {
    const std::vector<FormView*> forms = all();
    const bool waits = std::any_of(forms.begin(), forms.end(), [this](const FormView* form) {
        return form != this && form->stays_ && form->isActiveWindow() && form->keyEvents_.keysCame();
    });
    if (waits) return activation_.start(longestWait);
    for (FormView* form : forms) {
        if (form != this) form->leave();
    }
    // Hidden and shown again while no other program was there, a window may have got the keyboard unnoticed.
    if (QGuiApplication::focusWindow() == windowHandle()) QApplication::setActiveWindow(this);
    becomeActive();
}

void FormView::leave() {
    if (std::exchange(stays_, false)) refreshShown();
}

void FormView::settleActivation() {
    if (activation_.isActive() && isActiveWindow()) becomeActive();
}

// The user minimises and restores it too. Wayland tells nobody of it, but a window in use is not minimised.
void FormView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange && !onWayland()) {
        window_.minimised = minimised_ = isMinimized();
    }
    if (event->type() == QEvent::ActivationChange && onWayland() && isActiveWindow()) {
        window_.minimised = minimised_ = false;
    }
    QWidget::changeEvent(event);
}

// What a button does not want of the mouse comes here as well.
void FormView::mouseMoveEvent(QMouseEvent* event) {
    if (childAt(event->position().toPoint()) == nullptr) run(window_.onMouseMove);
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
    if (differs(icon_, window_.icon) && !icon_->empty()) setWindowIcon(QIcon(drawingOf(*icon_)));
    if (differs(backColour_, window_.backColour)) {
        QPalette colours = palette();
        colours.setColor(QPalette::Window, colourOf(window_.backColour));
        setPalette(colours);
    }
}

void FormView::refreshPlace() {
    Place& place = window_.place;
    if (place == place_) return;
    if (place.width != place_.width || place.height != place_.height) {
        const int frameTwips[] = {window_.framed ? frameWidth : 0, window_.framed ? frameHeight : 0};
        const QSize inner = pixels({0, 0, place.width - frameTwips[0], place.height - frameTwips[1]}).size();
        setFixedSize(inner.expandedTo(QSize(1, 1)));
    }
    if (place.left != place_.left || place.top != place_.top) {
        const QRect wanted = pixels(place);
        const QPoint position = visiblePosition(wanted);
        if (position != wanted.topLeft()) {
            place.left = position.x() * twipsPerPixel;
            place.top = position.y() * twipsPerPixel;
        }
        move(position);
    }
    place_ = place;
}

// Setting the widget's flag alone would make a new window of the screen; it is told without.
void FormView::refreshOnTop() {
    if (std::exchange(alwaysOnTop_, window_.alwaysOnTop) == window_.alwaysOnTop) return;
    overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, alwaysOnTop_));
    if (windowHandle() != nullptr) windowHandle()->setFlag(Qt::WindowStaysOnTopHint, alwaysOnTop_);
}

// What is covered is not there for a screen reader either.
void FormView::refreshControls() {
    const std::size_t cover = coverOf(window_);
    for (std::size_t i = 0; i < views_.size(); ++i) {
        const bool seen = i >= cover && window_.controls()[i]->shown();
        if (!views_[i] && seen) makeView(i);
        if (views_[i]) views_[i]->refresh(seen);
    }
}

// The new widget goes below those of the controls that lie above its own.
void FormView::makeView(std::size_t index) {
    views_[index] = makeControlView(*window_.controls()[index], *this);
    const auto above =
        std::find_if(views_.begin() + std::ptrdiff_t(index) + 1, views_.end(), std::identity());
    if (above != views_.end()) views_[index]->widget().stackUnder(&(*above)->widget());
}

void FormView::refreshFocus() {
    const auto view = std::find_if(views_.begin(), views_.end(),
                                   [&](const auto& v) { return v && &v->control() == window_.focus(); });
    if (view != views_.end() && focusWidget() != &(*view)->widget()) {
        (*view)->widget().setFocus(Qt::OtherFocusReason);
    }
}

// Where the program wants it; without a wish in the middle of its owner or of the screen.
QPoint FormView::startPosition() const {
    if (window_.place.left != 0 || window_.place.top != 0) return pos();
    const QRect around = parentWidget() != nullptr ? parentWidget()->frameGeometry()
                                                   : QGuiApplication::primaryScreen()->availableGeometry();
    return around.center() - QRect({}, pixels(window_.place).size()).center();
}

// A window that comes back comes to the front, and where it was: left to itself, the window manager would
// look for a new place. A new one comes to the front by itself; asked to bring it there at the same time,
// some window managers take the keyboard away from it once more, and keys are lost.
void FormView::refreshShown() {
    const bool shown = window_.visible || (stays_ && isVisible());
    if (isVisible() == shown && minimised_ == window_.minimised) return;
    const bool comesBack = wasShown_;
    if (comesBack && !isVisible()) windowHandle()->setPosition(windowHandle()->position());
    if (std::exchange(minimised_, window_.minimised) && onWayland()) hide();  // there is no other way back
    setWindowState(window_.minimised ? windowState() | Qt::WindowMinimized
                                     : windowState() & ~Qt::WindowMinimized);
    if (!comesBack && shown) move(startPosition());
    setVisible(shown);
    wasShown_ = wasShown_ || shown;
    if (!comesBack || !shown || window_.minimised) return;
    bringToFront(*this);
}

}  // namespace zifferon
