#include "platform/date_text.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

namespace zifferon {

namespace {

// The lower ten bits of an identifier are the language.
bool isEnglish(std::string_view localeIdentifier) {
    constexpr unsigned long language = 0x3FF, english = 0x09;
    return (std::strtoul(std::string(localeIdentifier).c_str(), nullptr, 16) & language) == english;
}

}  // namespace

Text dateTimeText(std::chrono::system_clock::time_point moment, std::string_view localeIdentifier) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(moment);
    std::tm t{};
    if (::localtime_r(&seconds, &t) == nullptr) return {};
    std::array<char, 80> text;
    const int year = t.tm_year + 1900, month = t.tm_mon + 1, hour = (t.tm_hour + 11) % 12 + 1;
    const int length =
        isEnglish(localeIdentifier)
            ? std::snprintf(text.data(), text.size(), "%d/%d/%d %d:%02d:%02d %s", month, t.tm_mday, year,
                            hour, t.tm_min, t.tm_sec, t.tm_hour < 12 ? "AM" : "PM")
            : std::snprintf(text.data(), text.size(), "%02d.%02d.%d %02d:%02d:%02d", t.tm_mday, month, year,
                            t.tm_hour, t.tm_min, t.tm_sec);
    return fromUtf8({text.data(), static_cast<std::size_t>(length)});
}

}  // namespace zifferon
