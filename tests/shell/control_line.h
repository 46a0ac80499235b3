// All that is seen of a control, as one line.
#pragma once

#include <iomanip>
#include <sstream>
#include <string>

#include "platform/text_field.h"

namespace zifferon {

inline void print(std::ostream& out, Colour colour) {
    out << ' ' << std::hex << std::setfill('0');
    for (const int part : {colour.red, colour.green, colour.blue}) out << std::setw(2) << part;
    out << std::dec;
}

inline std::string lineOf(const Control& control) {
    std::ostringstream line;
    const Place& place = control.place;
    line << toUtf8(control.name) << ' ' << place.left << ' ' << place.top << ' ' << place.width << ' '
         << place.height;
    print(line, control.foreColour);
    print(line, control.backColour);
    line << ' ' << control.font.points << (control.font.bold ? " bold" : "")
         << (control.font.family == u"Arial" ? "" : " typewriter") << (control.visible ? "" : " hidden")
         << (control.enabled ? "" : " disabled") << (control.flat ? " flat" : "")
         << (control.takesFocus ? " focus" : "");
    if (control.alignment != Alignment::left) {
        line << (control.alignment == Alignment::right ? " right" : " centre");
    }
    const auto* const field = dynamic_cast<const TextField*>(&control);
    if (field != nullptr) line << (field->locked ? " locked" : "") << (field->multiLine ? " lines" : "");
    if (control.frame != nullptr) line << " in " << toUtf8(control.frame->name);
    if (!control.picture.empty()) line << " picture " << toUtf8(control.picture);
    return line.str();
}

}  // namespace zifferon
