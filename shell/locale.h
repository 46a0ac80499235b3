// The comma or the point: which one the user's locale has, and the question where that is not known.
#pragma once

#include <string_view>

#include "core/calculator_state.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/system.h"

namespace zifferon {

enum class DecimalSeparator { comma, point, unknown };

// Looks up a Windows locale identifier as eight hexadecimal digits, letter case free. Whatever else the text
// is, it is unknown.
DecimalSeparator separatorOfLocale(std::string_view code);

// German for a locale of German, in whatever country; else English.
Language languageOfLocale(std::string_view code);

// What is known of the separator beside the style in force.
struct SeparatorState {
    float separatorChoice = 0;  // 1 comma, 2 point, 0 not asked
    bool localeUnknown = false;
};

// Settles decimalPointStyle for a locale that is unknown: by decpoint.dat, or by a question whose answer is
// stored there. Throws FileFailure where the answer cannot be stored; it holds all the same.
void settleSeparator(CalculatorState& state, SeparatorState& separator, Files& files,
                     const Messages& messages);

// Asks for the separator during the run, in the language of language.dat. The answer holds at once and is
// stored in decpoint.dat. Throws FileFailure where it cannot be stored; it holds all the same.
void askSeparator(CalculatorState& state, SeparatorState& separator, Files& files, const Messages& messages);

// Whether the desktop's window frames need the taller layouts.
bool hasModernFrame(const System& system);

}  // namespace zifferon
