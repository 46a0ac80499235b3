#include "platform/qt/hot_key.h"

#include <utility>

#ifdef ZIFFERON_WITH_XCB

#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <string_view>

#include "platform/qt/x11.h"

namespace zifferon {

namespace {

constexpr xcb_keysym_t keypadAdd = 0xFFAB, numLock = 0xFF7F;

// What the keys of the keyboard mean, and which of them are modifiers.
class Keyboard {
  public:
    explicit Keyboard(xcb_connection_t* x) : first_(xcb_get_setup(x)->min_keycode) {
        const auto count = static_cast<std::uint8_t>(xcb_get_setup(x)->max_keycode - first_ + 1);
        const auto mapping = xcb_get_keyboard_mapping(x, first_, count);
        const auto modifiers = xcb_get_modifier_mapping(x);
        mapping_.reset(xcb_get_keyboard_mapping_reply(x, mapping, nullptr));
        modifiers_.reset(xcb_get_modifier_mapping_reply(x, modifiers, nullptr));
    }

    // The key codes that have the symbol without Shift.
    std::vector<xcb_keycode_t> codesOf(xcb_keysym_t symbol) const {
        std::vector<xcb_keycode_t> codes;
        if (!mapping_) return codes;
        const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(mapping_.get());
        const int length = xcb_get_keyboard_mapping_keysyms_length(mapping_.get());
        for (int i = 0; i < length; i += mapping_->keysyms_per_keycode) {
            if (symbols[i] != symbol) continue;
            codes.push_back(static_cast<xcb_keycode_t>(first_ + i / mapping_->keysyms_per_keycode));
        }
        return codes;
    }

    // The modifier bit of the key with that symbol, or 0.
    std::uint16_t modifierOf(xcb_keysym_t symbol) const {
        if (!modifiers_) return 0;
        const auto codes = codesOf(symbol);
        const xcb_keycode_t* const keys = xcb_get_modifier_mapping_keycodes(modifiers_.get());
        const int length = xcb_get_modifier_mapping_keycodes_length(modifiers_.get());
        for (int i = 0; i < length; ++i) {
            if (std::find(codes.begin(), codes.end(), keys[i]) == codes.end()) continue;
            return static_cast<std::uint16_t>(1 << (i / modifiers_->keycodes_per_modifier));
        }
        return 0;
    }

  private:
    xcb_keycode_t first_;
    X11Reply<xcb_get_keyboard_mapping_reply_t> mapping_;
    X11Reply<xcb_get_modifier_mapping_reply_t> modifiers_;
};

std::uint8_t keyboardExtensionEvent(xcb_connection_t* x) {
    constexpr std::string_view name = "XKEYBOARD";
    const auto asked = xcb_query_extension(x, name.size(), name.data());
    const X11Reply<xcb_query_extension_reply_t> extension(xcb_query_extension_reply(x, asked, nullptr));
    return extension && extension->present ? extension->first_event : 0;
}

}  // namespace

HotKey::HotKey(std::function<void()> pressed) : pressed_(std::move(pressed)) {}

HotKey::~HotKey() { release(); }

void HotKey::grab() {
    xcb_connection_t* const x = x11Connection();
    if (x == nullptr || std::exchange(grabbed_, true)) return;
    keyboardEvent_ = keyboardExtensionEvent(x);
    qApp->installNativeEventFilter(this);
    grabKeys();
}

void HotKey::release() {
    if (!std::exchange(grabbed_, false)) return;
    qApp->removeNativeEventFilter(this);
    changeGrabs({});
}

// The keypad's plus with Control, whatever locks are on.
void HotKey::grabKeys() {
    const Keyboard keyboard(x11Connection());
    const std::uint16_t capsMask = XCB_MOD_MASK_LOCK;
    const std::uint16_t numMask = keyboard.modifierOf(numLock);
    std::vector<Grab> wanted;
    for (const std::uint8_t keyCode : keyboard.codesOf(keypadAdd)) {
        for (const int locks : {0, +capsMask, +numMask, capsMask | numMask}) {
            wanted.push_back({keyCode, static_cast<std::uint16_t>(XCB_MOD_MASK_CONTROL | locks)});
        }
    }
    changeGrabs(wanted);
    down_ = false;
}

// What stays is not let go in between: a press that comes meanwhile is not lost.
void HotKey::changeGrabs(const std::vector<Grab>& wanted) {
    xcb_connection_t* const x = x11Connection();
    for (const Grab& grab : wanted) {
        // Owner events are off: with them the repeats of the key would be typed into the own window.
        const auto asked = xcb_grab_key_checked(x, 0, x11Root(x), grab.modifiers, grab.keyCode,
                                                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        xcb_discard_reply(x, asked.sequence);  // and the error where another program has the key
    }
    for (const Grab& grab : grabs_) {
        const bool stays = std::find(wanted.begin(), wanted.end(), grab) != wanted.end();
        if (!stays) xcb_ungrab_key(x, grab.keyCode, x11Root(x), grab.modifiers);
    }
    xcb_flush(x);
    grabs_ = wanted;
}

bool HotKey::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
    if (eventType != "xcb_generic_event_t") return false;
    constexpr int sentByClient = 0x80;
    const int type = static_cast<const xcb_generic_event_t*>(message)->response_type & ~sentByClient;
    if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) return keyEvent(message, type == XCB_KEY_PRESS);
    if (keyboardChanged(message)) grabKeys();
    return false;
}

bool HotKey::keyEvent(const void* message, bool down) {
    const auto& event = *static_cast<const xcb_key_press_event_t*>(message);
    const bool own = std::any_of(grabs_.begin(), grabs_.end(),
                                 [&](const Grab& grab) { return grab.keyCode == event.detail; });
    if (event.event != x11Root(x11Connection()) || !own) return false;
    // A held key repeats as a release and a press of the same millisecond.
    const bool repeated = down_ || event.time == releasedAt_;
    down_ = down;
    if (!down) {
        releasedAt_ = event.time;
    } else if (!repeated) {
        pressed_();
    }
    return true;
}

// A client that knows the keyboard extension, as the toolkit does, is told by its events, any other by the
// core's.
bool HotKey::keyboardChanged(const void* message) const {
    struct ExtensionEvent {
        std::uint8_t type, subtype;
    };
    constexpr int newKeyboard = 0, newMap = 1;
    const auto& event = *static_cast<const ExtensionEvent*>(message);
    if (event.type == XCB_MAPPING_NOTIFY) return true;
    return keyboardEvent_ != 0 && event.type == keyboardEvent_ &&
           (event.subtype == newKeyboard || event.subtype == newMap);
}

}  // namespace zifferon

#else

namespace zifferon {

HotKey::HotKey(std::function<void()> pressed) : pressed_(std::move(pressed)) {}
HotKey::~HotKey() = default;
void HotKey::grab() {}
void HotKey::release() {}
bool HotKey::nativeEventFilter(const QByteArray&, void*, qintptr*) { return false; }

}  // namespace zifferon

#endif
