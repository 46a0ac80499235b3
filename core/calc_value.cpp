#include "core/calc_value.h"

#include <array>
#include <charconv>
#include <limits>

#include "core/failure.h"

namespace zifferon {

namespace {

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

std::weak_ordering compareDoubles(double a, double b) {
    return a < b   ? std::weak_ordering::less
           : a > b ? std::weak_ordering::greater
                   : std::weak_ordering::equivalent;
}

std::weak_ordering compareText(TextView text, std::int64_t number, Separators separators) {
    if (!readsAsNumber(text, separators)) return std::weak_ordering::greater;
    try {
        return parseDecimal(text, separators) <=> Decimal(number);
    } catch (const CalculationFailure&) {  // beyond the range of a decimal
        return text.find(u'-') == TextView::npos ? std::weak_ordering::greater : std::weak_ordering::less;
    }
}

std::string shortest(double value) {
    std::array<char, 400> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

}  // namespace

CalcValue::CalcValue(int value) {
    if (value >= std::numeric_limits<std::int16_t>::min() &&
        value <= std::numeric_limits<std::int16_t>::max()) {
        value_ = static_cast<std::int16_t>(value);
    } else {
        value_ = static_cast<std::int32_t>(value);
    }
}

std::weak_ordering CalcValue::compare(std::int64_t number, Separators separators) const {
    return std::visit(
        Overloaded{
            [&](std::monostate) -> std::weak_ordering { return std::int64_t{0} <=> number; },
            [&](std::int16_t value) -> std::weak_ordering { return std::int64_t{value} <=> number; },
            [&](std::int32_t value) -> std::weak_ordering { return std::int64_t{value} <=> number; },
            [&](double value) { return compareDoubles(value, static_cast<double>(number)); },
            [&](const Decimal& value) -> std::weak_ordering { return value <=> Decimal(number); },
            [&](const Text& value) { return compareText(value, number, separators); },
        },
        value_);
}

Decimal CalcValue::toDecimal(Separators separators) const {
    return std::visit(Overloaded{
                          [](std::monostate) { return Decimal(); },
                          [](std::int16_t value) { return Decimal(std::int32_t{value}); },
                          [](std::int32_t value) { return Decimal(value); },
                          [](double value) { return Decimal::fromDouble(value); },
                          [](const Decimal& value) { return value; },
                          [&](const Text& value) { return parseDecimal(value, separators); },
                      },
                      value_);
}

double CalcValue::toDouble(Separators separators) const {
    return std::visit(Overloaded{
                          [](std::monostate) { return 0.0; },
                          [](std::int16_t value) { return static_cast<double>(value); },
                          [](std::int32_t value) { return static_cast<double>(value); },
                          [](double value) { return value; },
                          [](const Decimal& value) { return value.toDouble(); },
                          [&](const Text& value) { return parseDouble(value, separators); },
                      },
                      value_);
}

Text CalcValue::toText(Separators separators) const {
    return std::visit(Overloaded{
                          [](std::monostate) { return Text(); },
                          [](std::int16_t value) { return fromUtf8(std::to_string(value)); },
                          [](std::int32_t value) { return fromUtf8(std::to_string(value)); },
                          [&](double value) { return generalText(value, separators); },
                          [&](const Decimal& value) { return generalText(value, separators); },
                          [](const Text& value) { return value; },
                      },
                      value_);
}

CalcValue CalcValue::underSeparators(Separators separators) const {
    return text() != nullptr ? CalcValue(zifferon::underSeparators(*text(), separators)) : *this;
}

std::string describe(const CalcValue& value) {
    return std::visit(Overloaded{
                          [](std::monostate) { return std::string("nothing"); },
                          [](std::int16_t number) { return "int " + std::to_string(number); },
                          [](std::int32_t number) { return "int " + std::to_string(number); },
                          [](double number) { return "double " + shortest(number); },
                          [](const Decimal& number) { return "decimal " + toUtf8(scaledText(number)); },
                          [](const Text& text) { return "text \"" + toUtf8(text) + '"'; },
                      },
                      value.value());
}

}  // namespace zifferon
