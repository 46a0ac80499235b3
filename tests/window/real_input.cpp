#include "tests/window/real_input.h"

#include <xcb/xtest.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <thread>

namespace zifferon::test {

RealInput::RealInput()
    : connection_(xcb_connect(nullptr, nullptr)),
      root_(xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root) {}

RealInput::~RealInput() { xcb_disconnect(connection_); }

void RealInput::down(int keyCode) { send(XCB_KEY_PRESS, keyCode); }

void RealInput::up(int keyCode) { send(XCB_KEY_RELEASE, keyCode); }

void RealInput::stroke(std::initializer_list<int> keyCodes) {
    for (const int keyCode : keyCodes) {
        down(keyCode);
        up(keyCode);
        // A release and a press of one key at the same millisecond would count as auto-repeat.
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

void RealInput::moveMouse(QPoint point) { send(XCB_MOTION_NOTIFY, 0, point); }

void RealInput::mouseDown(int button) { send(XCB_BUTTON_PRESS, button); }

void RealInput::mouseUp(int button) { send(XCB_BUTTON_RELEASE, button); }

void RealInput::click(int button) {
    mouseDown(button);
    mouseUp(button);
}

void RealInput::setNumLock(bool on) {
    auto* const pointer =
        xcb_query_pointer_reply(connection_, xcb_query_pointer(connection_, root_), nullptr);
    const bool isOn = pointer->mask & XCB_MOD_MASK_2;
    std::free(pointer);
    if (isOn != on) stroke({keys::numLock});
}

void RealInput::send(int type, int detail, QPoint point) {
    xcb_test_fake_input(connection_, static_cast<std::uint8_t>(type), static_cast<std::uint8_t>(detail),
                        XCB_CURRENT_TIME, root_, static_cast<std::int16_t>(point.x()),
                        static_cast<std::int16_t>(point.y()), 0);
    // Its answer comes after the events have been taken.
    std::free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}

}  // namespace zifferon::test
