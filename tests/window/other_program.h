// Another program on the screen, with a window that can be in front.
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <map>

namespace zifferon::test {

class OtherProgram {
  public:
    // Its window is shown, and gets the keyboard as soon as the window manager is done.
    OtherProgram() {
        const std::uint32_t events[] = {XCB_EVENT_MASK_KEY_PRESS};
        xcb_create_window(x_, XCB_COPY_FROM_PARENT, window_, root_, 0, 0, 300, 200, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, events);
        xcb_map_window(x_, window_);
        settle();
    }
    ~OtherProgram() { xcb_disconnect(x_); }

    bool hasKeyboard() {
        auto* const reply = xcb_get_input_focus_reply(x_, xcb_get_input_focus(x_), nullptr);
        const bool has = reply->focus == window_;
        std::free(reply);
        return has;
    }

    // How many presses of that key have come to it.
    int timesGiven(int keyCode) {
        settle();
        while (xcb_generic_event_t* const event = xcb_poll_for_event(x_)) {
            if ((event->response_type & 0x7F) == XCB_KEY_PRESS) {
                ++given_[reinterpret_cast<xcb_key_press_event_t*>(event)->detail];
            }
            std::free(event);
        }
        return given_[keyCode];
    }

    // Takes that key from all programs, whatever is held down with it.
    void grab(int keyCode) {
        xcb_grab_key(x_, 0, root_, XCB_MOD_MASK_ANY, static_cast<xcb_keycode_t>(keyCode), XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC);
        settle();
    }

    // Gives a key of the keyboard another meaning, for all programs.
    void setMeaning(int keyCode, xcb_keysym_t symbol) {
        xcb_change_keyboard_mapping(x_, 1, static_cast<xcb_keycode_t>(keyCode), 1, &symbol);
        settle();
    }

  private:
    // Returns once the screen has taken all that was asked of it.
    void settle() { hasKeyboard(); }

    xcb_connection_t* x_ = xcb_connect(nullptr, nullptr);
    xcb_window_t root_ = xcb_setup_roots_iterator(xcb_get_setup(x_)).data->root;
    xcb_window_t window_ = xcb_generate_id(x_);
    std::map<int, int> given_;
};

}  // namespace zifferon::test
