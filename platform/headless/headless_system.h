// A system whose answers are told to it.
#pragma once

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
    int captionHeight() const override { return caption; }
};

}  // namespace zifferon
