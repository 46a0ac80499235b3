// A system whose answers are told to it.
#pragma once

#include "platform/date_text.h"
#include "platform/system.h"

namespace zifferon {

struct HeadlessSystem : System {
    std::string locale = "00000407";
    std::string style;
    std::string name = "Windows XP";
    int caption = 19;

    std::string GetDecStyle() const override { return locale; }
    std::string GetWindowsStyle() const override { return style; }
    std::string GetSystemName() const override { return name; }
    Text shortDateTime(std::chrono::system_clock::time_point moment) const override {
        return dateTimeText(moment, locale);
    }
    int captionHeight() const override { return caption; }
};

}  // namespace zifferon
