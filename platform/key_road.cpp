#include "platform/key_road.h"

#include <algorithm>
#include <utility>

#include "platform/windows1252.h"

namespace zifferon {

KeyRoad::KeyRoad(Window& window, std::function<void()> refused)
    : window_(window), refused_(std::move(refused)) {}

void KeyRoad::keyDown(Key key) {
    if (depth_ == 0) deliverQueued();
    if (std::find(held_.begin(), held_.end(), key) == held_.end()) held_.push_back(key);
    ++depth_;
    press(key);
    --depth_;
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
    ++depth_;
    handler();
    --depth_;
    settle();
}

void KeyRoad::releaseAll() {
    releaseAllWaits_ = true;
    settle();
}

void KeyRoad::press(Key key) {
    Control* const target = window_.focus();
    if (target == nullptr) return;
    int code = key.code;
    if (target->onKeyDown) target->onKeyDown(code);
    auto* const field = dynamic_cast<TextField*>(target);
    if (key.character == 0) {
        if (field != nullptr) field->editByKey(code);
        return;
    }
    char16_t character = key.character;
    if (target->onKeyPress) target->onKeyPress(character);
    if (field == nullptr || character == 0) return;
    if (!toWindows1252(character)) return refused_();
    field->typeCharacter(character);
}

void KeyRoad::release(Key key) {
    ++depth_;
    Control* const target = window_.focus();
    if (target != nullptr && target->onKeyUp) target->onKeyUp(key.code);
    --depth_;
}

void KeyRoad::deliverQueued() {
    while (!queue_.empty()) {
        const Key key = queue_.front();
        queue_.pop_front();
        ++depth_;
        press(key);
        --depth_;
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
