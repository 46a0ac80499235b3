// A system whose answers are told to it.
#pragma once

#include <functional>
#include <optional>

#include "platform/date_text.h"
#include "platform/system.h"

namespace zifferon {

struct HeadlessSystem : System {
    std::string locale = "00000407";
    std::string style;
    std::string name = "Windows XP";
    std::string computer = "Zifferon";
    std::optional<std::uint32_t> seed;  // none: the clock's
    std::function<std::chrono::system_clock::time_point()> clock = [] {
        return std::chrono::system_clock::time_point();
    };
    int caption = 19;

    std::string GetDecStyle() const override { return locale; }
    std::string GetWindowsStyle() const override { return style; }
    std::string GetSystemName() const override { return name; }
    Text shortDateTime(std::chrono::system_clock::time_point moment) const override {
        return dateTimeText(moment, locale);
    }
    std::chrono::system_clock::time_point now() const override { return clock(); }
    std::uint32_t randomSeed() const override {
        return seed.value_or(static_cast<std::uint32_t>(now().time_since_epoch().count() / 1000000));
    }
    Text computerName() const override { return fromUtf8(computer); }
    int captionHeight() const override { return caption; }
};

}  // namespace zifferon
