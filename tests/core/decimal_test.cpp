#include "core/decimal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "core/failure.h"
#include "core/number_text.h"

namespace zifferon {
namespace {

Decimal decimal(const std::string& text) { return parseDecimal(fromUtf8(text), pointStyle); }

// The rows of the measured table that no command of a script reaches.
TEST(Decimal, roundsAsMeasured) {
    std::ifstream file(ZIFFERON_TESTS_DIR "/core/decimals-sample.tsv");
    int rows = 0;
    for (std::string line; std::getline(file, line);) {
        std::istringstream fields(line);
        std::string op, a, digits, expected;
        for (std::string* field : {&op, &a, &digits, &expected}) std::getline(fields, *field, '\t');
        if (op != "round") continue;
        ++rows;
        const Text rounded = maskText(decimal(a), pointStyle, std::stoi(digits));
        EXPECT_EQ(parseDecimal(rounded, pointStyle), decimal(expected)) << line;
    }
    EXPECT_EQ(rows, 93);
}

TEST(Decimal, takesDigitsAtTheEdges) {
    // Those of a double come from its scaling in doubles, not from its exact value.
    const auto digits = [](double value) { return toUtf8(scaledText(Decimal::fromDouble(value))); };
    EXPECT_EQ(digits(87938.652666666661), "87938.6526666666");
    EXPECT_EQ(digits(2552.0590915662651), "2552.05909156626");
    EXPECT_EQ(digits(0x1p-94), "0.0000000000000000000000000001");
    EXPECT_EQ(digits(std::nextafter(0x1p-94, 0)), "0");
    EXPECT_EQ(digits(std::nextafter(0x1p96, 0)), "79228162514264300000000000000");

    const auto quotient = [](const char* a, const char* b) {
        return toUtf8(scaledText(decimal(a) / decimal(b)));
    };
    // Of a quotient near the 96 bits the number of decimals hangs on the rounding.
    EXPECT_EQ(quotient("55459713759985036315480765235", "7"), "7922816251426433759354395034");
    EXPECT_EQ(quotient("7922816251426433759354395033", "0.1"), "79228162514264337593543950330");
    EXPECT_EQ(quotient("3", "-0.0000000000000000000000000004"), "-7500000000000000000000000000");
    EXPECT_EQ(quotient("20000000000000000000000000001", "2"), "10000000000000000000000000000");
    EXPECT_EQ(quotient("20000000000000000000000000003", "2"), "10000000000000000000000000002");
    // Not below 2^127 when both have nineteen decimals.
    const Decimal sum = decimal("18000000000000000000") + decimal("0.0000000000000000001");
    EXPECT_EQ(toUtf8(scaledText(sum)), "18000000000000000000.000000000");

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
