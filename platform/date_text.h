// Date and time of day as a text.
#pragma once

#include <chrono>
#include <string_view>

#include "platform/text.h"

namespace zifferon {

// In local time, in the form of a Windows locale identifier's language: "11/22/2026 8:30:00 AM" in English,
// "22.11.2026 08:30:00" in any other.
Text dateTimeText(std::chrono::system_clock::time_point moment, std::string_view localeIdentifier);

}  // namespace zifferon
