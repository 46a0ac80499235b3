#include "platform/tab_order.h"

#include <algorithm>

#include "platform/mouse.h"

namespace zifferon {

void focusNext(Window& window, bool back) {
    std::vector<Control*> order = window.tabOrder;
    if (back) std::reverse(order.begin(), order.end());
    const auto from = std::find(order.begin(), order.end(), window.focus());
    if (from == order.end()) return;
    std::rotate(order.begin(), from + 1, order.end());
    const auto next = std::find_if(order.begin(), order.end(),
                                   [&](const Control* control) { return isReachable(window, *control); });
    if (next != order.end()) window.setFocus(**next);
}

}  // namespace zifferon
