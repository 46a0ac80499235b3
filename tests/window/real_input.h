// Keyboard and mouse of the screen itself: what is done here reaches the program as a person's hands would.
#pragma once

#include <xcb/xcb.h>

#include <QPoint>
#include <initializer_list>

namespace zifferon::test {

// X key codes of a usual keyboard, whatever its layout.
namespace keys {
constexpr int escape = 9, digit1 = 10, enter = 36, control = 37, shift = 50, alt = 64, f4 = 70, f10 = 76,
              numLock = 77;
constexpr int letterM = 58, letterN = 57, letterR = 27, letterV = 55;
constexpr int keypad1 = 87, keypad2 = 88, keypad3 = 89, keypad5 = 84, keypad7 = 79;
constexpr int keypadDecimal = 91, keypadAdd = 86, keypadSubtract = 82, keypadMultiply = 63;
constexpr int keypadDivide = 106, keypadEnter = 104, right = 114;
}  // namespace keys

class RealInput {
  public:
    // Needs a screen with the XTest extension; all calls return once the screen has taken the events.
    RealInput();
    ~RealInput();
    RealInput(const RealInput&) = delete;
    RealInput& operator=(const RealInput&) = delete;

    void down(int keyCode);
    void up(int keyCode);
    void stroke(std::initializer_list<int> keyCodes);

    // The point is the screen's. Button 1 is the left one, 2 the middle one, 4 the wheel turned up.
    void moveMouse(QPoint point);
    void mouseDown(int button = 1);
    void mouseUp(int button = 1);
    void click(int button = 1);

    void setNumLock(bool on);

  private:
    void send(int type, int detail, QPoint point = {});

    xcb_connection_t* connection_;
    xcb_window_t root_;
};

}  // namespace zifferon::test
