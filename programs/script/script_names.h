// The names by which a script looks at the calculator, and their values as text.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/headless/headless_machine.h"
#include "shell/program.h"

namespace zifferon {

// What a name shows: a text in quotes, true or false, a bare word, a number, or a tagged value. Nothing for a
// name that is not known.
std::optional<std::string> valueOf(std::string_view name, Program& program, const HeadlessMachine& machine);

// The names of a dump, in their order.
std::span<const std::string_view> dumpNames();

// The control of a name: of the main window, or of another one with the window's name and a point before it.
// Null where there is none.
Control* controlOf(std::string_view name, Program& program);

// The window of a name, and the one that holds the control; null where it is none of the program's lasting
// ones.
Window* windowCalled(std::string_view name, Program& program);
Window* windowOf(const Control& control, Program& program);

}  // namespace zifferon
