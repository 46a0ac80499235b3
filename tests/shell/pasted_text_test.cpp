#include "shell/pasted_text.h"

#include <gtest/gtest.h>

namespace zifferon {
namespace {

std::string typed(TextView pasted, Separators separators = commaStyle) {
    return toUtf8(keysOfPastedText(pasted, separators));
}

TEST(PastedText, aNumberKeepsItsValue) {
    EXPECT_EQ(typed(u"1.234,50"), "1234,50");
    EXPECT_EQ(typed(u"1,234.50"), "1234,50");
    EXPECT_EQ(typed(u"1,234.50", pointStyle), "1234.50");
    EXPECT_EQ(typed(u"1.234.567"), "1234567");
    EXPECT_EQ(typed(u"1.234"), "1234");
    EXPECT_EQ(typed(u"1,234"), "1,234");
    EXPECT_EQ(typed(u"12.5"), "12,5");
    EXPECT_EQ(typed(u"12.5", pointStyle), "12.5");
    EXPECT_EQ(typed(u" 62,00 \r\n"), "62,00");
    EXPECT_EQ(typed(u"-12,50"), "12,50v");
    EXPECT_EQ(typed(u"\u22127"), "7v");
    EXPECT_EQ(typed(u"7-"), "7v");
}

TEST(PastedText, aColumnIsAddedUp) {
    EXPECT_EQ(typed(u"10\n20,5\r\n-3\n"), "10+20,5+3v");
    EXPECT_EQ(typed(u"1.000,00\t2.000,00"), "1000,00+2000,00");
}

TEST(PastedText, whatIsNoNumberIsTypedAsItStands) {
    EXPECT_EQ(typed(u"5+3*2"), "5+3*2");
    EXPECT_EQ(typed(u"5+3\n7"), "5+3\r7");
    EXPECT_EQ(typed(u"1.2.3"), "1.2.3");
    EXPECT_EQ(typed(u"-"), "-");
    EXPECT_EQ(typed(u"EUR 5"), "EUR 5");
    EXPECT_EQ(typed(u" \n\t "), "");
}

}  // namespace
}  // namespace zifferon
