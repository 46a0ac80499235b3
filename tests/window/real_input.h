// Keyboard and mouse of the screen itself: what is done here reaches the program as a person's hands would.
#pragma once

#include <xcb/xtest.h>

#include <QPoint>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <thread>

namespace zifferon::test {

// X key codes of a usual keyboard, whatever its layout.
namespace keys {
constexpr int escape = 9, digit1 = 10, digit2 = 11, digit3 = 12, tab = 23, enter = 36, equalAndPlus = 21;
constexpr int control = 37, shift = 50, alt = 64, capsLock = 66, numLock = 77, super = 133;
constexpr int f4 = 70, f5 = 71, f8 = 74, f10 = 76;
constexpr int letterA = 38, letterC = 54, letterD = 40, letterE = 26, letterH = 43, letterM = 58,
              letterN = 57, letterO = 32, letterR = 27, letterV = 55, letterZ = 52;
constexpr int keypad1 = 87, keypad2 = 88, keypad3 = 89, keypad5 = 84, keypad7 = 79;
constexpr int keypadDecimal = 91, keypadAdd = 86, keypadSubtract = 82, keypadMultiply = 63;
constexpr int keypadDivide = 106, keypadEnter = 104;
constexpr int home = 110, pageUp = 112, right = 114, end = 115, down = 116, insert = 118;
}  // namespace keys

constexpr int middleButton = 2, rightButton = 3, wheelUp = 4;

// Needs a screen with the XTest extension; all calls return once the screen has taken the events.
class RealInput {
  public:
    ~RealInput() { xcb_disconnect(x_); }

    void down(int keyCode) { send(XCB_KEY_PRESS, keyCode); }
    void up(int keyCode) { send(XCB_KEY_RELEASE, keyCode); }
    void stroke(std::initializer_list<int> keyCodes) {
        for (const int keyCode : keyCodes) {
            down(keyCode);
            up(keyCode);
            // A release and a press of one key at the same millisecond would count as auto-repeat.
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    }
    void strokeWith(int modifier, std::initializer_list<int> keyCodes) {
        down(modifier);
        stroke(keyCodes);
        up(modifier);
    }

    // Points are the screen's.
    void moveMouse(QPoint point) { send(XCB_MOTION_NOTIFY, 0, point); }
    void mouseDown() { send(XCB_BUTTON_PRESS, 1); }
    void mouseUp() { send(XCB_BUTTON_RELEASE, 1); }
    void click(int button = 1) {
        send(XCB_BUTTON_PRESS, button);
        send(XCB_BUTTON_RELEASE, button);
    }
    void drag(QPoint from, QPoint to) {
        moveMouse(from);
        mouseDown();
        moveMouse(to);
        mouseUp();
    }

    void setNumLock(bool on) {
        auto* const pointer = xcb_query_pointer_reply(x_, xcb_query_pointer(x_, root_), nullptr);
        const bool isOn = pointer->mask & XCB_MOD_MASK_2;
        std::free(pointer);
        if (isOn != on) stroke({keys::numLock});
    }

  private:
    void send(int type, int detail, QPoint point = {}) {
        xcb_test_fake_input(x_, static_cast<std::uint8_t>(type), static_cast<std::uint8_t>(detail),
                            XCB_CURRENT_TIME, root_, static_cast<std::int16_t>(point.x()),
                            static_cast<std::int16_t>(point.y()), 0);
        // Its answer comes after the events have been taken.
        std::free(xcb_get_input_focus_reply(x_, xcb_get_input_focus(x_), nullptr));
    }

    xcb_connection_t* x_ = xcb_connect(nullptr, nullptr);
    xcb_window_t root_ = xcb_setup_roots_iterator(xcb_get_setup(x_)).data->root;
};

}  // namespace zifferon::test
