#include "shell/pasted_text.h"

#include <gtest/gtest.h>

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

struct Row {
    TextView pasted;
    const char* figures;
};

template <std::size_t size>
void check(const Row (&rows)[size]) {
    for (const Row& row : rows) EXPECT_EQ(found(row.pasted), row.figures) << toUtf8(row.pasted);
}

TEST(PastedText, aNumberKeepsItsValue) {
    check({{u"1.234,50", "1234,50"},
           {u"1,234.50", "1234,50"},
           {u"1.234.567", "1234567"},
           {u"1,234,567.891", "1234567,891"},
           {u"1.234", "1234"},
           {u"1,234", "1,234"},
           {u"0.500", "0,500"},
           {u"12.5", "12,5"},
           {u",50", "0,50"},
           {u"12,34,567.00", "1234567,00"},
           {u"1'234.50", "1234,50"},
           {u"1’234’567", "1234567"},
           {u"1\u00A0234,50", "1234,50"},
           {u"1\u202F234\u202F567,89", "1234567,89"},
           {u"1\u2009234", "1234"},
           {u"1 234,50", "1234,50"},
           {u"12 345 678 €", "12345678"},
           {u"\u0661\u0662,\u0665", "12,5"},
           {u" 62,00 \r\n", "62,00"},
           {u"\"12,50\"", "12,50"},
           {u"12,50.", "12,50"}});
    EXPECT_EQ(found(u"1,234.50", pointStyle), "1234.50");
    EXPECT_EQ(found(u"1.234,50", pointStyle), "1234.50");
    EXPECT_EQ(found(u"1,234", pointStyle), "1234");
    EXPECT_EQ(found(u"1.234", pointStyle), "1.234");
    EXPECT_EQ(found(u"12,50", pointStyle), "12.50");
}

TEST(PastedText, signsStandInFrontBehindAndAsBrackets) {
    check({{u"-12,50", "-12,50"},
           {u"- 12,50", "-12,50"},
           {u"\u22125", "-5"},
           {u"\u20135", "-5"},
           {u"+5", "5"},
           {u"1.234,50-", "-1234,50"},
           {u"12,50+", "12,50"},
           {u"-1.234,50 €", "-1234,50"},
           {u"1.234,50- EUR", "-1234,50"},
           {u"(12,50)", "-12,50"},
           {u"(€ 12,50)", "-12,50"},
           {u"$(12.50)", "-12,50"},
           {u"-$12.50", "-12,50"},
           {u"$-12.50", "-12,50"},
           {u"100,00- 50,00-", "-100,00 -50,00"},
           {u"12,50 -", "!"},
           {u"1,00 --   ", "!"}});
}

TEST(PastedText, wordsAndCurrenciesAreLeftOut) {
    check({{u"12,50 EUR", "12,50"},
           {u"12,50EUR", "12,50"},
           {u"EUR 12,50 EUR 13,50", "12,50 13,50"},
           {u"12,50 € 13,50 €", "12,50 13,50"},
           {u"€12", "12"},
           {u"US$12.50", "12,50"},
           {u"CHF 12.50", "12,50"},
           {u"Fr.12.50", "12,50"},
           {u"12,- €", "12"},
           {u"1.200,\u2014", "1200"},
           {u"Rechnung: Total cost 12,50", "12,50"},
           {u"Total:12,50", "12,50"},
           {u"Datum", ""},
           {u"Miete 500\nStrom 100", "500 100"},
           {u"März 500,00", "500,00"},
           {u"12,50 € / Monat", "12,50"},
           {u"Total", ""}});
}

TEST(PastedText, severalFiguresAreAColumnHoweverTheyAreParted) {
    check({{u"10\n20,5\r\n-3\n", "10 20,5 -3"},
           {u"1.000,00\t2.000,00", "1000,00 2000,00"},
           {u"12,50 13,50", "12,50 13,50"},
           {u"12,50;13,50", "12,50 13,50"},
           {u"12,50; 13,50 |14", "12,50 13,50 14"},
           {u"12,50, 13,50", "12,50 13,50"},
           {u"12,50\u00A013,50", "12,50 13,50"},
           {u"5 6 7", "5 6 7"},
           {u"12,50 und 13,50", "12,50 13,50"},
           {u"5 -3", "5 -3"},
           {u"\"Schraube\";3;\"12,50\"", "12,50 !"},
           {u"3\t4,50\t13,50", "3 4,50 13,50"}});
}

TEST(PastedText, operatorsBetweenFiguresCount) {
    check({{u"12,50+3*4", "12,50 +3 *4"},
           {u"10 - 2 / 4", "10 -2 /4"},
           {u"10\u22122×3÷4", "10 -2 *3 /4"},
           {u"5*-3", "5 *-3"},
           {u"5 € * 3", "5 *3"},
           {u"3 * 4,50 Schrauben", "3 *4,50"},
           {u"12+3=15", "12 +3 !"},
           {u"12+3=", "12 +3"},
           {u"*5", "!"},
           {u"4 *\n5", "5 !"},
           {u"(5+3)*2", "!"},
           {u"5*(3)", "5 !"}});
}

TEST(PastedText, whatIsNotCertainlyAFigureIsLeftOut) {
    for (const TextView text : {u"12.03.2026",
                                u"12.03.26",
                                u"12.03.",
                                u"2026-03-12",
                                u"2026-11-12",
                                u"12/03/2026",
                                u"12/11/2026",
                                u"11/2026",
                                u"2025-2026",
                                u"12. März 2026",
                                u"März 2026",
                                u"14:30",
                                u"14:30:15",
                                u"14.30 Uhr",
                                u"1e3",
                                u"3x4",
                                u"3 x 4",
                                u"1.2.3",
                                u"192.168.1.10",
                                u"19 %",
                                u"19%",
                                u"007",
                                u"0711 / 123456",
                                u"DE89 3704 0044 0532 0130 00",
                                u"Pos. 3",
                                u"Nr.5",
                                u"Version 5.0",
                                u"H2O",
                                u"#5",
                                u"= 15",
                                u"62,00 =",
                                u"4,00 x   ",
                                u"5\u20137 kg",
                                u"1,2,3",
                                u"12,34,567",
                                u"100 200 300",
                                u"5 Mio",
                                u"1)",
                                u"5²",
                                u"½5",
                                u"1,5.2",
                                u"12345678901234567890123456"}) {
        EXPECT_EQ(found(text), "!") << toUtf8(text);
    }
    check({{u"12.03.2026 12,50", "12,50 !"},
           {u"14:30 25", "25 !"},
           {u"Rechnung 4711 12,50", "12,50 !"},
           {u"1. Miete 500", "500 !"},
           {u"2 Stück 19 % MwSt 12,50", "12,50 !"},
           {u"14:30 - 5", "!"}});
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
