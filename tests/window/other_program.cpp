#include "tests/window/other_program.h"

#include <QWindow>
#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace zifferon::test {

OtherProgram::OtherProgram()
    : x_(xcb_connect(nullptr, nullptr)),
      root_(xcb_setup_roots_iterator(xcb_get_setup(x_)).data->root),
      window_(xcb_generate_id(x_)) {
    const std::uint32_t events[] = {XCB_EVENT_MASK_KEY_PRESS};
    xcb_create_window(x_, XCB_COPY_FROM_PARENT, window_, root_, 0, 0, 300, 200, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, events);
    xcb_map_window(x_, window_);
    settle();
}

OtherProgram::~OtherProgram() { xcb_disconnect(x_); }

bool OtherProgram::hasKeyboard() {
    auto* const reply = xcb_get_input_focus_reply(x_, xcb_get_input_focus(x_), nullptr);
    const bool has = reply->focus == window_;
    std::free(reply);
    return has;
}

bool OtherProgram::wasGiven(int keyCode) {
    settle();
    while (xcb_generic_event_t* const event = xcb_poll_for_event(x_)) {
        if ((event->response_type & 0x7F) == XCB_KEY_PRESS) {
            given_.insert(reinterpret_cast<xcb_key_press_event_t*>(event)->detail);
        }
        std::free(event);
    }
    return given_.contains(keyCode);
}

void OtherProgram::grabWithControl(int keyCode) {
    for (const int locks : {0, +XCB_MOD_MASK_LOCK, +XCB_MOD_MASK_2, XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2}) {
        xcb_grab_key(x_, 0, root_, static_cast<std::uint16_t>(XCB_MOD_MASK_CONTROL | locks),
                     static_cast<xcb_keycode_t>(keyCode), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    }
    settle();
}

void OtherProgram::minimise(const QWidget& window) {
    constexpr std::uint32_t iconic = 3;
    askManager(window, "WM_CHANGE_STATE", iconic);
}

void OtherProgram::bringToFront(const QWidget& window) {
    constexpr std::uint32_t taskBar = 2;
    askManager(window, "_NET_ACTIVE_WINDOW", taskBar);
}

bool OtherProgram::isOnTop(const QWidget& window) {
    return propertyHolds(window, "_NET_WM_STATE", atom("_NET_WM_STATE_ABOVE"));
}

bool OtherProgram::isMinimised(const QWidget& window) {
    return propertyHolds(window, "_NET_WM_STATE", atom("_NET_WM_STATE_HIDDEN"));
}

void OtherProgram::setMeaning(int keyCode, xcb_keysym_t symbol) {
    xcb_change_keyboard_mapping(x_, 1, static_cast<xcb_keycode_t>(keyCode), 1, &symbol);
    settle();
}

xcb_atom_t OtherProgram::atom(const char* name) {
    const auto asked = xcb_intern_atom(x_, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    auto* const reply = xcb_intern_atom_reply(x_, asked, nullptr);
    const xcb_atom_t result = reply->atom;
    std::free(reply);
    return result;
}

bool OtherProgram::propertyHolds(const QWidget& window, const char* property, std::uint32_t value) {
    constexpr std::uint32_t atMost = 32;
    const auto asked = xcb_get_property(x_, 0, static_cast<xcb_window_t>(window.windowHandle()->winId()),
                                        atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, atMost);
    auto* const reply = xcb_get_property_reply(x_, asked, nullptr);
    if (reply == nullptr) return false;
    const auto* const values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply));
    const auto* const end = values + reply->value_len;
    const bool holds = std::find(values, end, value) != end;
    std::free(reply);
    return holds;
}

void OtherProgram::askManager(const QWidget& window, const char* request, std::uint32_t what) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.windowHandle()->winId());
    message.type = atom(request);
    message.data.data32[0] = what;
    xcb_send_event(x_, 0, root_, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    settle();
}

// Returns once the screen has taken all that was asked of it.
void OtherProgram::settle() { hasKeyboard(); }

}  // namespace zifferon::test
