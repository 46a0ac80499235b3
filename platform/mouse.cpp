#include "platform/mouse.h"

#include <algorithm>

namespace zifferon {

namespace {

struct Point {
    int x, y;
};

Point middleOf(const Place& place) { return {place.left + place.width / 2, place.top + place.height / 2}; }

bool contains(const Place& place, Point point) {
    return point.x >= place.left && point.x < place.left + place.width && point.y >= place.top &&
           point.y < place.top + place.height;
}

bool takesMouse(const Control& control) {
    return control.shown() && (control.enabled || control.kind != ControlKind::label);
}

// With the menu bar, which lies above the origin.
Place clientArea(const Window& window) {
    return {0, -window.menuHeight(), window.place.width - (window.framed ? frameWidth : 0),
            window.place.height - (window.framed ? frameHeight : 0)};
}

}  // namespace

bool isReachable(const Window& window, const Control& control) {
    const Point middle = middleOf(control.place);
    if (!control.shown() || !control.enabled || !contains(clientArea(window), middle)) return false;
    const auto& controls = window.controls();
    const auto itself = std::find(controls.begin(), controls.end(), &control);
    return std::none_of(itself + 1, controls.end(), [&](const Control* above) {
        return takesMouse(*above) && contains(above->place, middle);
    });
}

std::size_t coverOf(const Window& window) {
    const Place client = clientArea(window);
    const Point last{client.left + client.width - 1, client.top + client.height - 1};
    const auto& controls = window.controls();
    const auto cover = std::find_if(controls.rbegin(), controls.rend(), [&](const Control* control) {
        return control->shown() && contains(control->place, {client.left, client.top}) &&
               contains(control->place, last);
    });
    return cover != controls.rend() ? std::size_t(controls.rend() - cover) - 1 : 0;
}

void mousePress(Window& window, KeyRoad& keys, Control& control) {
    const unsigned long wishes = window.focusWishes();
    keys.run(control.onMouseDown);
    const bool givenElsewhere = window.focusWishes() != wishes;
    if (control.takesFocus && !givenElsewhere) keys.run([&] { window.setFocus(control); });
}

void mouseRelease(KeyRoad& keys, Control& control) {
    keys.run(control.onMouseUp);
    keys.run([&] { control.press(); });
}

void mouseDoubleClick(KeyRoad& keys, Control& control) { keys.run(control.onDoubleClick); }

void mouseMove(KeyRoad& keys, Control& control) { keys.run(control.onMouseMove); }

Control* dropField(const Window& window, const Control& piece, int left, int top) {
    const auto& controls = window.controls();
    const auto field = std::find_if(controls.rbegin(), controls.rend(), [&](const Control* control) {
        return control != &piece && takesMouse(*control) && contains(control->place, {left, top});
    });
    return field != controls.rend() && (*field)->onDrop ? *field : nullptr;
}

void mouseDrop(KeyRoad& keys, Control& piece, Control& field) {
    keys.run([&] {
        if (field.onDrop) field.onDrop(piece);
    });
}

}  // namespace zifferon
