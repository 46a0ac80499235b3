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

struct Row {
    std::string op, a, b, result;
};

std::vector<Row> rows() {
    std::ifstream file(ZIFFERON_TESTS_DIR "/core/decimals-sample.tsv");
    std::vector<Row> found;
    for (std::string line; std::getline(file, line);) {
        std::istringstream fields(line);
        Row row;
        std::getline(fields, row.op, '\t');
        std::getline(fields, row.a, '\t');
        std::getline(fields, row.b, '\t');
        std::getline(fields, row.result, '\t');
        found.push_back(row);
    }
    return found;
}

Decimal decimal(const std::string& text) { return parseDecimal(fromUtf8(text), pointStyle); }

double doubleOfBits(const std::string& hex) {
    std::uint64_t bits = 0;
    std::from_chars(hex.data(), hex.data() + hex.size(), bits, 16);
    return std::bit_cast<double>(bits);
}

std::string resultOf(const Row& row) {
    const auto text = [](const Decimal& value) { return toUtf8(scaledText(value)); };
    try {
        if (row.op == "add") return text(decimal(row.a) + decimal(row.b));
        if (row.op == "sub") return text(decimal(row.a) - decimal(row.b));
        if (row.op == "mul") return text(decimal(row.a) * decimal(row.b));
        if (row.op == "div") return text(decimal(row.a) / decimal(row.b));
        if (row.op == "neg") return text(-decimal(row.a));
        if (row.op == "trunc") return text(decimal(row.a).truncated());
        if (row.op == "round") return toUtf8(maskText(decimal(row.a), pointStyle, std::stoi(row.b)));
        if (row.op == "parse") return text(decimal(row.a));
        if (row.op == "fromdbl") return text(Decimal::fromDouble(doubleOfBits(row.b)));
        const auto order = decimal(row.a) <=> decimal(row.b);
        return std::is_lt(order) ? "-1" : std::is_gt(order) ? "1" : "0";
    } catch (const CalculationFailure& failure) {
        switch (failure.kind()) {
            case FailureKind::overflow:
                return "OVERFLOW";
            case FailureKind::divisionByZero:
                return "DIVZERO";
            case FailureKind::notANumber:
                break;
        }
        return "FORMAT";
    }
}

bool isFailure(const std::string& result) { return std::isupper(static_cast<unsigned char>(result[0])) != 0; }

TEST(Decimal, givesTheMeasuredResultsToTheLastDigit) {
    const std::vector<Row> all = rows();
    ASSERT_EQ(all.size(), 600u);
    for (const Row& row : all) {
        SCOPED_TRACE(row.op + ' ' + row.a + ' ' + row.b);
        if (row.op == "todbl") {
            const double expected = doubleOfBits(row.b);
            const double found = decimal(row.a).toDouble();
            EXPECT_LE(found, std::nextafter(expected, INFINITY));
            EXPECT_GE(found, std::nextafter(expected, -INFINITY));
            continue;
        }
        const std::string found = resultOf(row);
        if (isFailure(found) || isFailure(row.result)) {
            EXPECT_EQ(found, row.result);
        } else if (row.op == "fromdbl" || row.op == "round" || decimal(row.result).isZero()) {
            EXPECT_TRUE(decimal(found) == decimal(row.result)) << found;
        } else {
            EXPECT_EQ(found, row.result);
        }
    }
}

// The digits of a double come from its scaling in doubles, not from its exact value.
TEST(Decimal, takesTheDigitsOfADoubleByScaling) {
    const auto digits = [](double value) { return toUtf8(scaledText(Decimal::fromDouble(value))); };
    EXPECT_EQ(digits(87938.652666666661), "87938.6526666666");
    EXPECT_EQ(digits(2552.0590915662651), "2552.05909156626");
    EXPECT_EQ(digits(0.1 + 0.2), "0.3");
    EXPECT_EQ(digits(-1234567890123456.0), "-1234567890123460");
    EXPECT_EQ(digits(0x1p-94), "0.0000000000000000000000000001");
    EXPECT_TRUE(Decimal::fromDouble(std::nextafter(0x1p-94, 0)).isZero());
    EXPECT_EQ(digits(std::nextafter(0x1p96, 0)), "79228162514264300000000000000");
    EXPECT_THROW(Decimal::fromDouble(0x1p96), CalculationFailure);
}

TEST(Decimal, partsRoundTrip) {
    const Decimal value = Decimal::fromParts(1, 2, 3, 28, true);
    EXPECT_EQ(value.low(), 1u);
    EXPECT_EQ(value.mid(), 2u);
    EXPECT_EQ(value.high(), 3u);
    EXPECT_EQ(value.scale(), 28);
    EXPECT_TRUE(value.isNegative());
    EXPECT_THROW(Decimal::fromParts(1, 0, 0, 29, false), CalculationFailure);
}

// Quotients at the edges of the 96 bits, where the number of decimals hangs on the rounding.
TEST(Decimal, quotientsTakeTheMostDecimalsThatFit) {
    const auto quotient = [](const char* a, const char* b) { return resultOf({"div", a, b, ""}); };
    // With one decimal the digits would be the largest number and round up.
    EXPECT_EQ(quotient("55459713759985036315480765235", "7"), "7922816251426433759354395034");
    EXPECT_EQ(quotient("79228162514264337593543950335", "0.9999999999999999999999999999"), "OVERFLOW");
    EXPECT_EQ(quotient("79228162514264337593543950335", "0.1"), "OVERFLOW");
    EXPECT_EQ(quotient("7922816251426433759354395033", "0.1"), "79228162514264337593543950330");
    EXPECT_EQ(quotient("1", "79228162514264337593543950335"), "0");
    EXPECT_EQ(quotient("3", "-0.0000000000000000000000000004"), "-7500000000000000000000000000");
    EXPECT_EQ(quotient("20000000000000000000000000001", "2"), "10000000000000000000000000000");
    EXPECT_EQ(quotient("20000000000000000000000000003", "2"), "10000000000000000000000000002");
}

// a - b + b and a / b x b hold for amounts, whatever their scales.
TEST(Decimal, amountsComeBack) {
    std::uint64_t seed = 1;
    const auto next = [&] { return seed = seed * 6364136223846793005u + 1442695040888963407u, seed >> 20; };
    const Decimal tenthDigit = Decimal::fromParts(1, 0, 0, 10, false);
    for (int i = 0; i < 20000; ++i) {
        const Decimal a = Decimal::fromParts(static_cast<std::uint32_t>(next()), 0, 0,
                                             static_cast<int>(next() % 5), next() % 2 != 0);
        const Decimal b = Decimal::fromParts(static_cast<std::uint32_t>(next()) | 1, 0, 0,
                                             static_cast<int>(next() % 5), false);
        ASSERT_TRUE(a - b + b == a);
        ASSERT_TRUE(a * b / b == a);
        const Decimal error = a / b * b - a;
        ASSERT_TRUE(error < tenthDigit && -tenthDigit < error);
    }
}

}  // namespace
}  // namespace zifferon
