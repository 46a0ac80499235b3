// Control and the keypad's plus, caught whatever window has the keyboard.
#pragma once

#include <QAbstractNativeEventFilter>
#include <cstdint>
#include <functional>
#include <vector>

namespace zifferon {

class HotKey : public QAbstractNativeEventFilter {
  public:
    // `pressed` runs once for each press, however long the key is held down. Needs the application.
    explicit HotKey(std::function<void()> pressed);
    ~HotKey() override;
    HotKey(const HotKey&) = delete;
    HotKey& operator=(const HotKey&) = delete;

    // Takes the key from all programs, whatever NumLock and CapsLock say, and follows it through changes of
    // the keyboard; gives it back. A key that another program holds, and a desktop without X11, is no
    // failure.
    void grab();
    void release();

  private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
    bool keyEvent(const void* message, bool down);
    bool keyboardChanged(const void* message) const;
    void grabKeys();

    struct Grab {
        std::uint8_t keyCode;
        std::uint16_t modifiers;
        bool operator==(const Grab&) const = default;
    };
    void changeGrabs(const std::vector<Grab>& wanted);

    std::function<void()> pressed_;
    bool grabbed_ = false;
    std::vector<Grab> grabs_;
    std::uint8_t keyboardEvent_ = 0;  // type of the keyboard extension's events; 0: none
    bool down_ = false;
    std::uint32_t releasedAt_ = 0;  // milliseconds of the X server
};

}  // namespace zifferon
