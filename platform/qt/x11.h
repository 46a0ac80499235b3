// The X server behind the windows, for what the toolkit does not offer. Only where the build has XCB.
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace zifferon {

struct X11Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Answer>
using X11Reply = std::unique_ptr<Answer, X11Free>;

// Null where the screen is no X server's.
xcb_connection_t* x11Connection();

xcb_window_t x11Root(xcb_connection_t* x);

}  // namespace zifferon
