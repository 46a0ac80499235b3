#include "platform/qt/to_front.h"

#ifdef ZIFFERON_WITH_XCB

#include <algorithm>
#include <string_view>

#include "platform/qt/x11.h"

namespace zifferon {

namespace {

xcb_atom_t atomOf(xcb_connection_t* x, std::string_view name) {
    const auto asked = xcb_intern_atom(x, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const X11Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(x, asked, nullptr));
    return atom ? atom->atom : xcb_atom_t{};
}

bool managerKnows(xcb_connection_t* x, xcb_atom_t wanted) {
    constexpr std::uint32_t longestList = 4096;
    const auto asked =
        xcb_get_property(x, 0, x11Root(x), atomOf(x, "_NET_SUPPORTED"), XCB_ATOM_ATOM, 0, longestList);
    const X11Reply<xcb_get_property_reply_t> list(xcb_get_property_reply(x, asked, nullptr));
    if (!list) return false;
    const auto* const atoms = static_cast<const xcb_atom_t*>(xcb_get_property_value(list.get()));
    const auto* const end = atoms + xcb_get_property_value_length(list.get()) / int(sizeof *atoms);
    return std::find(atoms, end, wanted) != end;
}

// The request of a pager, without a time: the toolkit asks with the time of the last key or click that it has
// seen, and the window manager keeps the keyboard where it was when another program has been used since.
bool askManager(const QWidget& window) {
    xcb_connection_t* const x = x11Connection();
    if (x == nullptr) return false;
    const xcb_atom_t activeWindow = atomOf(x, "_NET_ACTIVE_WINDOW");
    if (!managerKnows(x, activeWindow)) return false;
    constexpr std::uint32_t pager = 2;
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = static_cast<xcb_window_t>(window.winId());
    request.type = activeWindow;
    request.data.data32[0] = pager;
    xcb_send_event(x, 0, x11Root(x),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&request));
    xcb_flush(x);
    return true;
}

}  // namespace

}  // namespace zifferon

#else

namespace zifferon {

namespace {

bool askManager(const QWidget&) { return false; }

}  // namespace

}  // namespace zifferon

#endif

namespace zifferon {

void bringToFront(QWidget& window) {
    window.raise();
    if (!askManager(window)) window.activateWindow();
}

}  // namespace zifferon
