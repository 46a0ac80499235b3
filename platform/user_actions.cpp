#include "platform/user_actions.h"

namespace zifferon {

namespace {

bool reachable(const Control& control) { return control.shown() && control.enabled; }

}  // namespace

void userClick(Window& window, KeyRoad& keys, Control& control) {
    if (!reachable(control)) return;
    userMouseDown(keys, control);
    if (control.takesFocus) keys.run([&] { window.setFocus(control); });
    userMouseUp(keys, control);
    if (auto* const box = dynamic_cast<CheckBox*>(&control)) {
        return keys.run([&] { box->setTicked(!box->ticked()); });
    }
    keys.run(control.onClick);
}

void userDoubleClick(Window& window, KeyRoad& keys, Control& control) {
    if (!reachable(control)) return;
    userClick(window, keys, control);
    keys.run(control.onDoubleClick);
}

void userMouseDown(KeyRoad& keys, Control& control) {
    if (reachable(control)) keys.run(control.onMouseDown);
}

void userMouseUp(KeyRoad& keys, Control& control) {
    if (reachable(control)) keys.run(control.onMouseUp);
}

void userHover(KeyRoad& keys, Control& control) {
    if (reachable(control)) keys.run(control.onMouseMove);
}

}  // namespace zifferon
