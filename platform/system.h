// What the program asks about the system that it runs on.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "platform/text.h"

namespace zifferon {

class System {
  public:
    virtual ~System() = default;

    // The Windows locale identifier of the user's locale as eight hexadecimal digits, such as "00000407";
    // "" where there is none.
    virtual std::string GetDecStyle() const = 0;

    // The name of the desktop's classic style, "" where the desktop has newer window frames.
    virtual std::string GetWindowsStyle() const = 0;

    // "Windows XP" and the like; "Unbekanntes Betriebssystem" for any other.
    virtual std::string GetSystemName() const = 0;

    // A moment as short date and time of day, in the form of the user's locale and in local time.
    virtual Text shortDateTime(std::chrono::system_clock::time_point moment) const = 0;

    virtual std::chrono::system_clock::time_point now() const = 0;

    // What random numbers begin with: another at each moment.
    virtual std::uint32_t randomSeed() const = 0;

    // The name of the machine in its network, "" where it has none.
    virtual Text computerName() const = 0;

    // The height of a window's caption in pixels, of which 19 need no correction of a window's height.
    virtual int captionHeight() const = 0;
};

}  // namespace zifferon
