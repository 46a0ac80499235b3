#ifdef ZIFFERON_WITH_XCB

#include "platform/qt/x11.h"

#include <QGuiApplication>

namespace zifferon {

xcb_connection_t* x11Connection() {
    const auto* const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

xcb_window_t x11Root(xcb_connection_t* x) { return xcb_setup_roots_iterator(xcb_get_setup(x)).data->root; }

}  // namespace zifferon

#endif
