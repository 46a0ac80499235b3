// A state variable without one fixed type: nothing, an integer, a double, an exact decimal or a text.
#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <variant>

#include "core/decimal.h"
#include "core/number_text.h"
#include "platform/text.h"

namespace zifferon {

class CalcValue {
  public:
    using Value = std::variant<std::monostate, std::int16_t, std::int32_t, double, Decimal, Text>;

    CalcValue() = default;
    CalcValue(int value);  // a 16-bit integer where it fits, else a 32-bit one
    CalcValue(double value) : value_(value) {}
    CalcValue(const Decimal& value) : value_(value) {}
    CalcValue(Text value) : value_(std::move(value)) {}
    CalcValue(const char16_t* value) : value_(Text(value)) {}
    explicit CalcValue(Value value) : value_(std::move(value)) {}

    const Value& value() const { return value_; }
    const Text* text() const { return std::get_if<Text>(&value_); }
    bool isNothing() const { return std::holds_alternative<std::monostate>(value_); }

    // Compares with a number. Nothing counts as 0. A text that reads as a number counts as that number; any
    // other text is greater than every number. Never fails.
    std::weak_ordering compare(std::int64_t number, Separators separators) const;
    bool equals(std::int64_t number, Separators separators) const {
        return compare(number, separators) == std::weak_ordering::equivalent;
    }

    // The value as an exact decimal, as the double of its digits, or as its general text. Nothing is 0, and
    // "" as a text. The first two throw CalculationFailure where the text is no number or the value out of
    // range.
    Decimal toDecimal(Separators separators) const;
    double toDouble(Separators separators) const;
    Text toText(Separators separators) const;

    // The same value; the figures of a text come under these separators.
    CalcValue underSeparators(Separators separators) const;

  private:
    Value value_;
};

// The value with its type, always with a point: "nothing", "int 43", "double 2.56" (the shortest form that
// reads back), "text "61"", "decimal 12.50" (with its scale).
std::string describe(const CalcValue& value);

}  // namespace zifferon
