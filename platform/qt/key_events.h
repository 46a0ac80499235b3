// The keys of a window: they all go to its key road, whatever widget has the keyboard, and so does text that
// is pasted or comes from an input method.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QTimer>
#include <map>
#include <optional>

#include "platform/key_road.h"

namespace zifferon {

class FormView;

// The key of an event, or nothing where it neither types nor commands: Shift and its like, unknown keys, and
// what is pressed together with Ctrl, Alt or Meta, but for Ctrl+R, function keys and keys that move. A key of
// the keypad types its digit or the separator whatever NumLock says.
std::optional<Key> keyOf(const QKeyEvent& event);

class KeyEvents : public QObject {
  public:
    // Watches `form` from now on; the form outlives it.
    KeyEvents(FormView& form, KeyRoad& keys);

    // Whether any key has been pressed so far.
    bool keysCame() const { return keysCame_; }

    // Of every key that is down, as when another window or a menu takes the keyboard.
    void letGoOfAll();

  private:
    bool eventFilter(QObject* receiver, QEvent* event) override;
    void keyPressed(const QKeyEvent& event);
    void keyReleased(const QKeyEvent& event);
    void settleRelease();
    void settleReleaseBefore(const QKeyEvent& press);
    void letGoOf(quint32 scanCode);
    bool edits(const QKeyEvent& event);
    void paste(const QString& text);
    void type(const QString& text);
    Control* accessControl(const QString& typed) const;

    FormView& form_;
    KeyRoad& keys_;
    bool keysCame_ = false;

    // Physical keys that are down, by scan code: the key itself may be another one at its release, when Shift
    // was let go first.
    std::map<quint32, Key> held_;

    // A release that may turn out to be half of a repetition.
    struct Release {
        quint32 scanCode;
        quint64 timestamp;
    };
    std::optional<Release> release_;
    QTimer releaseTimer_;
};

}  // namespace zifferon
