// Numbers as text and back, under the separators in use; never through streams or the C locale.
//
// A number reads: blanks around, a sign in front (blanks may follow it) or a minus behind, digits with group
// signs anywhere among them, one decimal separator with digits before or behind it. No exponent.
#pragma once

#include <cstdint>
#include <optional>

#include "core/decimal.h"
#include "platform/text.h"

namespace zifferon {

struct Separators {
    char16_t decimal;
    char16_t group;
};
inline constexpr Separators commaStyle{u',', u'.'};
inline constexpr Separators pointStyle{u'.', u','};

// The text with its figures under these separators, whatever they were written under. The decimal sign of a
// figure is the last of its commas and points: one that the calculator has written carries group signs only
// beside a decimal sign. One that stands there more than once is a group sign.
Text underSeparators(TextView text, Separators separators);

// Whether the text reads as a number, of any length.
bool readsAsNumber(TextView text, Separators separators);

// The number, with the scale as typed; more than 28 decimals are rounded half to even. Throws
// CalculationFailure: notANumber, or overflow beyond the decimal's range.
Decimal parseDecimal(TextView text, Separators separators);

// The same, or nothing for both failures.
std::optional<Decimal> tryParseDecimal(TextView text, Separators separators);

// The double nearest to the digits. Throws as parseDecimal, overflow beyond the double's range.
double parseDouble(TextView text, Separators separators);

// Without grouping, trailing zeros, exponent or negative zero; a double with at most 15 significant digits.
Text generalText(const Decimal& value, Separators separators);
Text generalText(double value, Separators separators);

// Grouped, at least two decimals, then as many as the value has up to `maxDecimals`; digits behind them round
// half away from zero. A double goes through its 15 significant digits first.
Text maskText(const Decimal& value, Separators separators, int maxDecimals);
Text maskText(double value, Separators separators, int maxDecimals);

// Grouped, with exactly `digits` decimals (from 0), half away from zero on the 15 significant digits: 2.545
// to 2 is 2.55. Texts of a double throw overflow for one that is infinite or no number.
Text fixedText(double value, int digits, Separators separators);

// That text read back. A negative that rounds to nothing is 0. Throws overflow where 15 digits lie beyond the
// range of a double.
double Round(double value, std::int16_t digits);

// Every digit of the scale, a point, and "-" for the sign bit: 12.50, -0.00.
Text scaledText(const Decimal& value);

}  // namespace zifferon
