#include "platform/key_road.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "platform/tab_order.h"
#include "platform/windows1252.h"

namespace zifferon {

KeyRoad::KeyRoad(Window& window, std::function<void()> refused)
    : window_(window), refused_(std::move(refused)) {}

void KeyRoad::keyDown(Key key) {
    if (depth_ == 0) deliverQueued();
    if (std::find(held_.begin(), held_.end(), key) == held_.end()) held_.push_back(key);
    inside([&] { press(key); });
    settle();
}

void KeyRoad::keyUp(Key key) {
    const auto found = std::find(held_.begin(), held_.end(), key);
    if (found == held_.end()) return;
    held_.erase(found);
    release(key);
    settle();
}

void KeyRoad::stroke(Key key) {
    keyDown(key);
    keyUp(key);
}

void KeyRoad::run(const std::function<void()>& handler) {
    if (!handler) return;
    inside(handler);
    settle();
}

void KeyRoad::releaseAll() {
    releaseAllWaits_ = true;
    settle();
}

// Handlers are left by exceptions too: where the program ends, or a script goes on elsewhere.
void KeyRoad::inside(const std::function<void()>& handler) {
    struct Depth {
        explicit Depth(int& depth) : depth_(depth) { ++depth_; }
        ~Depth() { --depth_; }
        int& depth_;
    };
    const Depth depth(depth_);
    handler();
}

void KeyRoad::press(Key key) {
    Control* const target = window_.focus();
    if (target == nullptr) return;
    int code = key.code;
    if (target->onKeyDown) target->onKeyDown(code);
    if (code == keyCode::tab) return focusNext(window_);
    if (key.character == 0) return target->handleKey(code);
    char16_t character = key.character;
    if (target->onKeyPress) target->onKeyPress(character);
    if (character == 0 || !target->takesCharacters()) return;
    if (!toWindows1252(character)) return refused_();
    target->handleCharacter(character);
}

void KeyRoad::release(Key key) {
    Control* const target = window_.focus();
    if (target == nullptr || !target->onKeyUp) return;
    inside([&] { target->onKeyUp(key.code); });
}

void KeyRoad::deliverQueued() {
    assert(depth_ == 0);
    while (!queue_.empty()) {
        const Key key = queue_.front();
        queue_.pop_front();
        inside([&] { press(key); });
        release(key);
    }
}

void KeyRoad::settle() {
    if (depth_ > 0) return;
    if (std::exchange(releaseAllWaits_, false)) {
        for (const Key key : std::exchange(held_, {})) release(key);
    }
    if (held_.empty()) deliverQueued();
}

}  // namespace zifferon
