// The one view of every window: it makes a widget for each control, follows what the program does to them,
// and hands on what the user does. It decides nothing itself.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "platform/key_road.h"
#include "platform/qt/control_view.h"
#include "platform/qt/key_events.h"
#include "platform/qt/timer_views.h"
#include "platform/window.h"

namespace zifferon {

class FormView : public QWidget {
  public:
    // For all controls that `window` has now; it and `keys` live as long as the view. A window with an owner
    // stays above it. Nothing is shown before the first refresh.
    FormView(Window& window, KeyRoad& keys, QWidget* owner = nullptr);
    ~FormView() override;

    // Shows what has changed in the window since the last call; without a change, and of a hidden window, it
    // costs little.
    void refresh();

    // Once, of a window that has not been shown yet: all that the screen does not see of its coming is done.
    void getReady();

    // Once it is shown it stays on the screen, also when its window is hidden, until it is destroyed or
    // another one has come: then it leaves when that one has the keyboard or, if nothing has been typed into
    // it, when the desktop has had its time to hand the keyboard over.
    void stay() { stays_ = true; }

    // No timer of any window ticks while they are held.
    static void holdTimers(bool hold) { timersHeld_ = hold; }

    // The forms of the program.
    static std::vector<FormView*> all();

    // That over which a box or another window opens: an open one that lets nothing else be used, else the
    // form in use. Null where nothing is seen.
    static QWidget* topmost();

    // Runs a handler that is no keystroke, and shows what it did. An empty one does nothing.
    void run(const std::function<void()>& handler);

    // The same for what is no handler itself, but runs some one after the other.
    void act(const std::function<void()>& deed);

    // A window that has just come into use learns it before the first key or click that it gets.
    void settleActivation();

    // As refresh, for all windows: a handler may write in any of them.
    static void refreshAll();

    // What a click on a button or check box does, by mouse or access key.
    void press(Control& control);

    // The menu of a control, at a point of the screen; a control that takes the focus gets it. Keys that are
    // down are let go: the menu takes the keyboard.
    void openMenu(Control& control, QPoint position);

    // A screen reader has given the keyboard to the widget.
    void followFocus(const QWidget& widget);

    // What the widget shows; null: it is part of another one.
    Control* controlOf(const QWidget& widget) const;

    Window& window() const { return window_; }
    KeyRoad& keys() const { return keys_; }

  private:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void activationDue();
    void becomeActive();
    void prepare();
    void refreshFrame();
    void refreshPlace();
    void refreshOnTop();
    void refreshControls();
    void makeView(std::size_t index);
    void refreshFocus();
    void refreshShown();
    void leave();
    QPoint startPosition() const;

    inline static bool timersHeld_ = false;

    Window& window_;
    KeyRoad& keys_;
    std::vector<std::unique_ptr<ControlView>> views_;  // of each control; none before it is first shown
    TimerViews timers_;
    KeyEvents keyEvents_;
    QTimer activation_;  // runs from the showing of the window until it is in use

    // What the window shows.
    Place place_;
    std::optional<Text> caption_, icon_;
    std::optional<Colour> backColour_;
    bool alwaysOnTop_ = false;
    bool minimised_ = false;
    bool stays_ = false;
    bool wasShown_ = false;
};

}  // namespace zifferon
