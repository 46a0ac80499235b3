#include "core/number_text.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/calc_value.h"
#include "core/failure.h"
#include "core/number_format.h"
#include "core/rounding.h"

namespace zifferon {
namespace {

std::string parsed(TextView text, Separators separators = commaStyle) {
    return toUtf8(scaledText(parseDecimal(text, separators)));
}

TEST(NumberText, readsWhatAPersonWrites) {
    EXPECT_EQ(parsed(u"1.234.567,50"), "1234567.50");
    EXPECT_EQ(parsed(u"1.2.3,4"), "123.4");
    EXPECT_EQ(parsed(u"12.34"), "1234");
    EXPECT_EQ(parsed(u"  - 5 "), "-5");
    EXPECT_EQ(parsed(u",5"), "0.5");
    EXPECT_EQ(parsed(u"5,"), "5");
    EXPECT_EQ(parsed(u"0,000000000000000000000000000051"), "0.0000000000000000000000000001");
    EXPECT_EQ(parsed(u"0," + Text(100000, u'3')), "0.3333333333333333333333333333");
    EXPECT_EQ(parsed(Text(100000, u'0') + u"1"), "1");
    EXPECT_EQ(parseDouble(u"0," + Text(1000, u'0') + u"1", commaStyle), 0);
}

TEST(NumberText, refusesWhatIsNoNumber) {
    for (const TextView text : {u"", u" ", u"-", u",", u".", u"-,", u"--5", u"-5-", u"1 000", u"5%", u"1e5",
                                u"1,2,3", u"1,2.3", u".5", u"abc", u"5+3", u"\u00A05"}) {
        EXPECT_FALSE(readsAsNumber(text, commaStyle)) << toUtf8(text);
        EXPECT_THROW(parseDecimal(text, commaStyle), CalculationFailure) << toUtf8(text);
        EXPECT_THROW(parseDouble(text, commaStyle), CalculationFailure) << toUtf8(text);
    }
    const Text absurd(100000, u'9');
    EXPECT_TRUE(readsAsNumber(absurd, commaStyle));
    EXPECT_FALSE(tryParseDecimal(absurd, commaStyle));
    EXPECT_THROW(parseDouble(absurd, commaStyle), CalculationFailure);
}

TEST(NumberText, generalTextHasNoExponentAndNoTrailingZeros) {
    EXPECT_EQ(generalText(parseDecimal(u"3.00", pointStyle), pointStyle), u"3");
    EXPECT_EQ(generalText(parseDecimal(u"1.50", pointStyle), commaStyle), u"1,5");
    EXPECT_EQ(generalText(parseDecimal(u"-0.00", pointStyle), pointStyle), u"0");
    EXPECT_EQ(generalText(1e15, pointStyle), u"1000000000000000");
    EXPECT_EQ(generalText(0.00001, pointStyle), u"0.00001");
    EXPECT_EQ(generalText(std::sqrt(2.0), commaStyle), u"1,4142135623731");
    EXPECT_EQ(generalText(5e-324, pointStyle).size(), 2u + 323 + 15);
    EXPECT_EQ(generalText(1.5e308, pointStyle), u"15" + Text(307, u'0'));
}

TEST(NumberText, masksGroupAndForceDecimals) {
    const auto mask = [](TextView number) {
        return maskText(parseDecimal(number, pointStyle), commaStyle, 28);
    };
    EXPECT_EQ(mask(u"12.345"), u"12,345");
    EXPECT_EQ(mask(u"-1234.5"), u"-1.234,50");
    EXPECT_EQ(mask(u"100"), u"100,00");
    EXPECT_EQ(mask(u"79228162514264337593543950335"), u"79.228.162.514.264.337.593.543.950.335,00");
    EXPECT_EQ(maskText(1234567890123456.0, pointStyle, 28), u"1,234,567,890,123,460.00");
    EXPECT_EQ(maskText(-1e-40, pointStyle, 28), u"0.00");
    EXPECT_EQ(maskText(0.99999, pointStyle, 2), u"1.00");
    EXPECT_EQ(maskText(-1e308, commaStyle, 28).substr(0, 9), u"-100.000.");
    EXPECT_THROW(maskText(INFINITY, commaStyle, 28), CalculationFailure);
    EXPECT_EQ(toUtf8(format(Text(40, u'1'), formattedNumberPattern, commaStyle)),
              "1.111.111.111.111.110.000.000.000.000.000.000.000.000,00");
    EXPECT_EQ(fixedText(1234567.005, 2, commaStyle), u"1.234.567,01");
    EXPECT_EQ(fixedText(-1234.5, 0, pointStyle), u"-1,235");
    EXPECT_EQ(fixedText(-0.004, 2, pointStyle), u"0.00");
    EXPECT_EQ(fixedText(999.96, 1, pointStyle), u"1,000.0");
}

TEST(NumberText, roundTakesTiesAwayFromZero) {
    EXPECT_EQ(Round(2.555, 2), 2.56);
    EXPECT_EQ(Round(1.005, 2), 1.01);
    EXPECT_EQ(Round(-2.5, 0), -3);
    EXPECT_EQ(Round(0.04, 1), 0);
    EXPECT_EQ(Round(999.995, 2), 1000);
    EXPECT_FALSE(std::signbit(Round(-0.001, 2)));
}

TEST(CalcValue, comparesAndCountsByWhatItReads) {
    EXPECT_TRUE(CalcValue().equals(0, commaStyle));
    EXPECT_TRUE(CalcValue(u"0,00").equals(0, commaStyle));
    EXPECT_FALSE(CalcValue(u"").equals(37, commaStyle));
    for (const CalcValue& more :
         {CalcValue(u"5,50"), CalcValue(u""), CalcValue(5.5), CalcValue(Text(40, u'9'))})
        EXPECT_TRUE(std::is_gt(more.compare(5, commaStyle))) << describe(more);
    EXPECT_TRUE(std::is_lt(CalcValue(Text(u"-").append(40, u'9')).compare(5, commaStyle)));
    EXPECT_EQ(CountDecimals(u"-0,125", commaStyle), 3);
    EXPECT_EQ(CountDecimals(parseDecimal(u"2.50", pointStyle), commaStyle), 1);
    EXPECT_EQ(CountDecimals(3.25, commaStyle), 2);
    EXPECT_EQ(CountDecimals(5, commaStyle), -1);
    EXPECT_EQ(countDecimalsOrNone(u"-", commaStyle), -1);
}

}  // namespace
}  // namespace zifferon
