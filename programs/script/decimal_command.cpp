#include "programs/script/decimal_command.h"

#include <array>
#include <charconv>
#include <cstdio>

#include "core/failure.h"
#include "core/number_format.h"
#include "platform/headless/headless_machine.h"

namespace zifferon {

namespace {

std::string text(const Decimal& value) { return toUtf8(scaledText(value)); }

std::string seventeenDigits(double value) {
    std::array<char, 40> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 17)
            .ptr;
    return {buffer.data(), end};
}

double doubleOf(const std::string& digits) {
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size()) {
        throw MalformedScript("\"" + digits + "\" is no double");
    }
    return value;
}

Decimal decimalOf(const std::string& digits) { return parseDecimal(fromUtf8(digits), pointStyle); }

std::string formatted(const Decimal& value, Separators separators) {
    return toUtf8(format(CalcValue(value), formattedNumberPattern, separators));
}

// The figure that a text reads as.
std::string reading(const Text& written, Separators separators) {
    try {
        return text(parseDecimal(written, separators));
    } catch (const CalculationFailure& failure) {
        if (failure.kind() == FailureKind::notANumber) return "refused";
        throw;
    }
}

std::string unary(const std::string& op, const std::string& a) {
    if (op == "from-double") return text(Decimal::fromDouble(doubleOf(a)));
    if (op == "text-double") return toUtf8(generalText(doubleOf(a), pointStyle));
    const Decimal value = decimalOf(a);
    if (op == "neg") return text(-value);
    if (op == "trunc") return text(value.truncated());
    if (op == "text") return toUtf8(generalText(value, pointStyle));
    if (op == "to-double") return seventeenDigits(value.toDouble());
    if (op == "format") return formatted(value, pointStyle);
    if (op == "format-comma") return formatted(value, commaStyle);
    throw MalformedScript("unknown decimal operation " + op);
}

std::string binary(const std::string& op, const std::string& a, const std::string& b) {
    const Decimal left = decimalOf(a);
    const Decimal right = decimalOf(b);
    if (op == "add") return text(left + right);
    if (op == "sub") return text(left - right);
    if (op == "mul") return text(left * right);
    if (op == "div") return text(left / right);
    const auto order = left <=> right;
    return std::is_lt(order) ? "-1" : std::is_gt(order) ? "1" : "0";
}

std::string failureWord(const CalculationFailure& failure) {
    switch (failure.kind()) {
        case FailureKind::overflow:
            return "overflow";
        case FailureKind::divisionByZero:
            return "divzero";
        case FailureKind::notANumber:
            break;
    }
    throw MalformedScript("an operand is no number");
}

bool isBinary(const std::string& op) {
    return op == "add" || op == "sub" || op == "mul" || op == "div" || op == "cmp";
}

}  // namespace

std::string decimalCommand(ScriptLine& line) {
    const std::string op = line.word();
    const bool reads = op == "read" || op == "read-comma";
    const Text written = reads ? line.quotedText() : Text();
    const std::string a = reads ? quoted(written) : line.word();
    const std::string b = isBinary(op) ? line.word() : "";
    line.expectEnd();
    const std::string head = "decimal " + op + ' ' + a + (b.empty() ? "" : ' ' + b) + " = ";
    try {
        if (reads) return head + reading(written, op == "read" ? pointStyle : commaStyle);
        return head + (b.empty() ? unary(op, a) : binary(op, a, b));
    } catch (const CalculationFailure& failure) {
        return head + failureWord(failure);
    }
}

}  // namespace zifferon
