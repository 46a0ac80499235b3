#include "shell/hot_spot.h"

#include <utility>

#include "platform/key.h"

namespace zifferon {

void HotSpot::wire() {
    constexpr TextView morse =
        u"o--o o-o o ooo ooo   \r\n"
        u"oo-o --- o-o   \r\n"
        u"ooooo \r\n"
        u"ooo o -o-o --- -o -oo ooo   ";
    window_.Image1.onDoubleClick = [this, morse] { messages_.tell({morse, morse}); };
    window_.Image1.onMouseDown = [this] { pressed(); };
    window_.Image1.onMouseUp = [this] { released(); };
    window_.timersecret.onTick = [this] { ++holdSeconds_; };
    window_.Image1.accessKey = u'b';
    window_.Image1.onKeyDown = [this](int& code) { keyDown(code); };
    window_.Image1.onLostFocus = [this] { window_.timersecret.stop(); };
    window_.Image1.onKeyUp = [this](int code) {
        if (code != keyCode::space) return;
        window_.state.calls->focusEntry();
        released();
    };
}

// Without a mouse the blank is its button, and Enter the double click. Any other key leads back.
void HotSpot::keyDown(int code) {
    if (code == keyCode::alt) return;
    if (code == keyCode::enter) return window_.Image1.onDoubleClick();
    if (code != keyCode::space) {
        window_.state.calls->beep();  // the key itself is lost
        return window_.state.calls->focusEntry();
    }
    if (window_.timersecret.interval() == 0) pressed();  // and not held already
}

void HotSpot::pressed() {
    constexpr int second = 1000;  // milliseconds
    holdSeconds_ = 0;
    window_.timersecret.start(second);
}

void HotSpot::released() {
    constexpr int rightHold = 5;
    window_.timersecret.stop();
    if (std::exchange(holdSeconds_, 0) == rightHold) riddle_.open();
}

}  // namespace zifferon
