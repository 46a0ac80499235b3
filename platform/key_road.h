// The road of one key: down, press, the field's own insertion, release, for the control that has the focus,
// and the keys that handlers queue behind it.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "platform/key.h"
#include "platform/window.h"

namespace zifferon {

class KeyRoad {
  public:
    // Keys go to the focus of `window`. `refused` runs when a character is typed that the program's character
    // set does not hold (a beep); the character does not enter.
    KeyRoad(Window& window, std::function<void()> refused);

    // Down, press and insertion, after the keys that are queued. Again while the key is held: auto-repeat.
    void keyDown(Key key);

    // The release; after it the queued keys, unless another key is still down. A key that is not down does
    // nothing.
    void keyUp(Key key);

    // A whole keystroke.
    void stroke(Key key);

    // Queues a keystroke behind the present one.
    void queue(Key key) { queue_.push_back(key); }

    // Runs a handler that is no keystroke (a click, a tick), and then the keys that it queued.
    void run(const std::function<void()>& handler);

    // Lets go of every held key, as when the window loses the keyboard. Inside a handler it waits for its
    // end.
    void releaseAll();

  private:
    void inside(const std::function<void()>& handler);
    void press(Key key);
    void release(Key key);
    void deliverQueued();
    void settle();

    Window& window_;
    std::function<void()> refused_;
    std::deque<Key> queue_;
    std::vector<Key> held_;
    int depth_ = 0;  // handlers that run now; a box in a handler lets others run inside it
    bool releaseAllWaits_ = false;
};

}  // namespace zifferon
