#include "shell/hot_spot.h"

#include <utility>

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
