#include "shell/pasted_text.h"

#include <gtest/gtest.h>

#include "tests/shell/parted.h"

namespace zifferon {
namespace {

// The figures as "5 *3 -7", an operator in front where one joins them, and " !" where something was left out.
std::string found(TextView pasted, Separators separators = commaStyle) {
    const PastedFigures all = figuresOf(pasted, separators);
    Text text;
    for (const PastedFigure& figure : all.figures) {
        if (!text.empty()) text += u' ';
        if (figure.operation != 0) text += figure.operation;
        if (figure.negative) text += u'-';
        text += figure.digits;
    }
    if (all.leftOut) text += text.empty() ? u"!" : u" !";
    return toUtf8(text);
}

// Rows of what is pasted and what is found.
void check(TextView rows) {
    for (const TextView row : parted(rows, u" ¦ ")) {
        const auto pair = parted(row, u" → ");
        EXPECT_EQ(found(pair.at(0)), toUtf8(pair.at(1))) << toUtf8(row);
    }
}

TEST(PastedText, aNumberKeepsItsValue) {
    check(
        u"1.234,50 → 1234,50 ¦ 1,234.50 → 1234,50 ¦ 1.234.567 → 1234567 ¦ 1,234,567.891 → 1234567,891 ¦ "
        u"1.234 → 1234 ¦ 1,234 → 1,234 ¦ 0.500 → 0,500 ¦ 12.5 → 12,5 ¦ ,50 → 0,50 ¦ "
        u"12,34,567.00 → 1234567,00 ¦ 1'234.50 → 1234,50 ¦ 1’234’567 → 1234567 ¦ "
        u"1\u00A0234,50 → 1234,50 ¦ 1\u202F234\u202F567,89 → 1234567,89 ¦ 1\u2009234 → 1234 ¦ "
        u"1 234,50 → 1234,50 ¦ 12 345 678 € → 12345678 ¦ \u0661\u0662,\u0665 → 12,5 ¦ "
        u" 62,00 \r\n → 62,00 ¦ \"12,50\" → 12,50 ¦ 12,50. → 12,50");
    EXPECT_EQ(found(u"1,234.50", pointStyle), "1234.50");
    EXPECT_EQ(found(u"1.234,50", pointStyle), "1234.50");
    EXPECT_EQ(found(u"1,234", pointStyle), "1234");
    EXPECT_EQ(found(u"1.234", pointStyle), "1.234");
    EXPECT_EQ(found(u"12,50", pointStyle), "12.50");
}

TEST(PastedText, signsStandInFrontBehindAndAsBrackets) {
    check(
        u"-12,50 → -12,50 ¦ - 12,50 → -12,50 ¦ \u22125 → -5 ¦ \u20135 → -5 ¦ +5 → 5 ¦ "
        u"1.234,50- → -1234,50 ¦ 12,50+ → 12,50 ¦ -1.234,50 € → -1234,50 ¦ 1.234,50- EUR → -1234,50 ¦ "
        u"(12,50) → -12,50 ¦ (€ 12,50) → -12,50 ¦ $(12.50) → -12,50 ¦ -$12.50 → -12,50 ¦ "
        u"$-12.50 → -12,50 ¦ 100,00- 50,00- → -100,00 -50,00 ¦ 12,50 - → ! ¦ 1,00 --    → !");
}

TEST(PastedText, wordsAndCurrenciesAreLeftOut) {
    check(
        u"12,50 EUR → 12,50 ¦ 12,50EUR → 12,50 ¦ EUR 12,50 EUR 13,50 → 12,50 13,50 ¦ "
        u"12,50 € 13,50 € → 12,50 13,50 ¦ €12 → 12 ¦ US$12.50 → 12,50 ¦ CHF 12.50 → 12,50 ¦ "
        u"Fr.12.50 → 12,50 ¦ 12,- € → 12 ¦ 1.200,\u2014 → 1200 ¦ Rechnung: Total cost 12,50 → 12,50 ¦ "
        u"Total:12,50 → 12,50 ¦ Datum →  ¦ Miete 500\nStrom 100 → 500 100 ¦ März 500,00 → 500,00 ¦ "
        u"12,50 € / Monat → 12,50 ¦ Total → ");
}

TEST(PastedText, severalFiguresAreAColumnHoweverTheyAreParted) {
    check(
        u"10\n20,5\r\n-3\n → 10 20,5 -3 ¦ 1.000,00\t2.000,00 → 1000,00 2000,00 ¦ "
        u"12,50 13,50 → 12,50 13,50 ¦ 12,50;13,50 → 12,50 13,50 ¦ 12,50; 13,50 |14 → 12,50 13,50 14 ¦ "
        u"12,50, 13,50 → 12,50 13,50 ¦ 12,50\u00A013,50 → 12,50 13,50 ¦ 5 6 7 → 5 6 7 ¦ "
        u"12,50 und 13,50 → 12,50 13,50 ¦ 5 -3 → 5 -3 ¦ \"Schraube\";3;\"12,50\" → 12,50 ! ¦ "
        u"3\t4,50\t13,50 → 3 4,50 13,50");
}

TEST(PastedText, operatorsBetweenFiguresCount) {
    check(
        u"12,50+3*4 → 12,50 +3 *4 ¦ 10 - 2 / 4 → 10 -2 /4 ¦ 10\u22122×3÷4 → 10 -2 *3 /4 ¦ "
        u"5*-3 → 5 *-3 ¦ 5 € * 3 → 5 *3 ¦ 3 * 4,50 Schrauben → 3 *4,50 ¦ 12+3=15 → 12 +3 ! ¦ "
        u"12+3= → 12 +3 ¦ *5 → ! ¦ 4 *\n5 → 5 ! ¦ (5+3)*2 → ! ¦ 5*(3) → 5 !");
}

TEST(PastedText, whatIsNotCertainlyAFigureIsLeftOut) {
    constexpr TextView none =
        u"12.03.2026 ¦ 31.12.26 ¦ 12.03. ¦ 2026-03-12 ¦ 2026-11-12 ¦ 12/03/2026 ¦ 12/11/2026 ¦ "
        u"11/2026 ¦ 2025-2026 ¦ 12. März 2026 ¦ März 2026 ¦ 14:30 ¦ 14:30:15 ¦ 14.30 Uhr ¦ 1e3 ¦ 3x4 ¦ "
        u"3 x 4 ¦ 1.2.3 ¦ 192.168.1.10 ¦ 19 % ¦ 19% ¦ 007 ¦ 0711 / 123456 ¦ "
        u"DE89 3704 0044 0532 0130 00 ¦ Pos. 3 ¦ Nr.5 ¦ Version 5.0 ¦ H2O ¦ #5 ¦ = 15 ¦ 62,00 = ¦ "
        u"4,00 x    ¦ 5\u20137 kg ¦ 1,2,3 ¦ 12,34,567 ¦ 100 200 300 ¦ 5 Mio ¦ 1) ¦ 5² ¦ ½5 ¦ 1,5.2 ¦ "
        u"12345678901234567890123456";
    for (const TextView text : parted(none, u" ¦ ")) EXPECT_EQ(found(text), "!") << toUtf8(text);
    check(
        u"12.03.2026 12,50 → 12,50 ! ¦ 14:30 25 → 25 ! ¦ Rechnung 4711 12,50 → 12,50 ! ¦ "
        u"1. Miete 500 → 500 ! ¦ 2 Stück 19 % MwSt 12,50 → 12,50 ! ¦ 14:30 - 5 → !");
}

TEST(PastedText, anyTextOfAnyLengthIsReadOnce) {
    Text row, digits(1000000, u'7'), blanks;
    for (int i = 0; i < 100000; ++i) row += u"12,50 ", blanks += u"1 234 ";
    EXPECT_EQ(figuresOf(row, commaStyle).figures.size(), 100000U);
    EXPECT_TRUE(figuresOf(digits, commaStyle).leftOut);
    EXPECT_TRUE(figuresOf(blanks, commaStyle).leftOut);
    for (const TextView text :
         {u"", u"-", u"+", u"(", u")", u".", u",", u":", u"€", u"((5", u"5))", u"-:5", u".:.5"}) {
        EXPECT_LE(figuresOf(text, commaStyle).figures.size(), 1U);
    }
}

}  // namespace
}  // namespace zifferon
