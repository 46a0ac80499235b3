#include "core/decimal.h"

#include <gtest/gtest.h>

#include <bit>
#include <cctype>
#include <charconv>
#include <cmath>
#include <fstream>
#include <sstream>

#include "core/failure.h"
#include "core/number_text.h"

namespace zifferon {
namespace {

Decimal decimal(const std::string& text) { return parseDecimal(fromUtf8(text), pointStyle); }

double doubleOfBits(const std::string& hex) {
    std::uint64_t bits = 0;
    std::from_chars(hex.data(), hex.data() + hex.size(), bits, 16);
    return std::bit_cast<double>(bits);
}

std::string resultOf(const std::string& op, const std::string& a, const std::string& b) {
    const auto text = [](const Decimal& value) { return toUtf8(scaledText(value)); };
    try {
        if (op == "add") return text(decimal(a) + decimal(b));
        if (op == "sub") return text(decimal(a) - decimal(b));
        if (op == "mul") return text(decimal(a) * decimal(b));
        if (op == "div") return text(decimal(a) / decimal(b));
        if (op == "neg") return text(-decimal(a));
        if (op == "trunc") return text(decimal(a).truncated());
        if (op == "round") return toUtf8(maskText(decimal(a), pointStyle, std::stoi(b)));
        if (op == "parse") return text(decimal(a));
        if (op == "fromdbl") return text(Decimal::fromDouble(doubleOfBits(b)));
        const auto order = decimal(a) <=> decimal(b);
        return std::is_lt(order) ? "-1" : std::is_gt(order) ? "1" : "0";
    } catch (const CalculationFailure& failure) {
        const bool overflow = failure.kind() == FailureKind::overflow;
        return overflow ? "OVERFLOW" : failure.kind() == FailureKind::divisionByZero ? "DIVZERO" : "FORMAT";
    }
}

TEST(Decimal, givesTheMeasuredResultsToTheLastDigit) {
    std::ifstream file(ZIFFERON_TESTS_DIR "/core/decimals-sample.tsv");
    int rows = 0;
    for (std::string line; std::getline(file, line); ++rows) {
        SCOPED_TRACE(line);
        std::istringstream fields(line);
        std::string op, a, b, expected;
        for (std::string* field : {&op, &a, &b, &expected}) std::getline(fields, *field, '\t');
        if (op == "todbl") {
            const double exact = doubleOfBits(b), found = decimal(a).toDouble();
            EXPECT_LE(found, std::nextafter(exact, INFINITY));
            EXPECT_GE(found, std::nextafter(exact, -INFINITY));
            continue;
        }
        const std::string found = resultOf(op, a, b);
        const bool failed = std::isalpha(found[0]) || std::isalpha(expected[0]);
        const bool byValue = !failed && (op == "fromdbl" || op == "round" || decimal(expected).isZero());
        EXPECT_TRUE(byValue ? decimal(found) == decimal(expected) : found == expected) << found;
    }
    EXPECT_EQ(rows, 600);
}

TEST(Decimal, takesDigitsAtTheEdges) {
    // Those of a double come from its scaling in doubles, not from its exact value.
    const auto digits = [](double value) { return toUtf8(scaledText(Decimal::fromDouble(value))); };
    EXPECT_EQ(digits(87938.652666666661), "87938.6526666666");
    EXPECT_EQ(digits(2552.0590915662651), "2552.05909156626");
    EXPECT_EQ(digits(0x1p-94), "0.0000000000000000000000000001");
    EXPECT_EQ(digits(std::nextafter(0x1p-94, 0)), "0");
    EXPECT_EQ(digits(std::nextafter(0x1p96, 0)), "79228162514264300000000000000");

    // Of a quotient near the 96 bits the number of decimals hangs on the rounding.
    EXPECT_EQ(resultOf("div", "55459713759985036315480765235", "7"), "7922816251426433759354395034");
    EXPECT_EQ(resultOf("div", "7922816251426433759354395033", "0.1"), "79228162514264337593543950330");
    EXPECT_EQ(resultOf("div", "3", "-0.0000000000000000000000000004"), "-7500000000000000000000000000");
    EXPECT_EQ(resultOf("div", "20000000000000000000000000001", "2"), "10000000000000000000000000000");
    EXPECT_EQ(resultOf("div", "20000000000000000000000000003", "2"), "10000000000000000000000000002");

    const Decimal parts = Decimal::fromParts(1, 2, 3, 28, true);
    EXPECT_TRUE(parts.low() == 1 && parts.mid() == 2 && parts.high() == 3);
    EXPECT_EQ(toUtf8(scaledText(parts)), "-0.0000000055340232229718589441");
    EXPECT_THROW(Decimal::fromParts(1, 0, 0, 29, false), CalculationFailure);
}

// a - b + b and a / b x b hold for amounts, whatever their scales.
TEST(Decimal, amountsComeBack) {
    std::uint64_t seed = 1;
    const auto next = [&] { return seed = seed * 6364136223846793005u + 1442695040888963407u, seed >> 20; };
    const auto amount = [&](unsigned atLeast, bool negative) {
        const auto low = static_cast<std::uint32_t>(next()) | atLeast;
        return Decimal::fromParts(low, 0, 0, static_cast<int>(next() % 5), negative);
    };
    const Decimal tenthDigit = Decimal::fromParts(1, 0, 0, 10, false);
    for (int i = 0; i < 20000; ++i) {
        const Decimal a = amount(0, next() % 2 != 0), b = amount(1, false);
        ASSERT_TRUE(a - b + b == a && a * b / b == a);
        const Decimal error = a / b * b - a;
        ASSERT_TRUE(error < tenthDigit && -tenthDigit < error);
    }
}

}  // namespace
}  // namespace zifferon
