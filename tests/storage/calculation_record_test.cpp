#include "storage/calculation_record.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/fresh_folder.h"

namespace zifferon {
namespace {

// A calculator with its record.
struct Desk {
    CalculatorState state;
    CalculationRecord record{state};

    // In the middle of a chain, every field filled.
    void fill() {
        for (std::size_t i = 0; i < state.memo.size(); ++i) state.memo[i].setText(Text(i, u'4'));
        state.anzeige.setText(u"\r\n12,50      ");
        state.zwischen.setText(u"12,50");
        state.txtop.setText(u"÷");
        state.eingabe.setText(u"3");
        state.superdruck.setText(u"\r\n12,50 ");
        state.operand = Decimal::fromParts(1250, 0, 0, 2, false);
        state.chainActive = 1;
        state.pendingOpCode = 47;
        state.tapeClearArmed = true;
        state.Checkob.setTicked(true);
        state.clipcheck.setTicked(true);
        record.recordRoundingTick = 1;
        record.recordRoundingCaption = u"&RND 3";
    }

    std::string gathered() {
        gatherRecord(record);
        gatherSwitches(record);
        std::string bytes;
        const EncodedRecord encoded(record);
        for (const std::string_view piece : encoded.pieces()) bytes += piece;
        return bytes;
    }

    void apply() {
        applyCells(record);
        applyFields(record);
        applyVariables(record);
    }
};

std::string filledBytes() {
    Desk desk;
    desk.fill();
    return desk.gathered();
}

TEST(CalculationRecord, hasItsFieldsInTheirOrder) {
    EXPECT_EQ(toHex(filledBytes()),
              "08 00 00 00 08 00 01 00 34 08 00 02 00 34 34 08 00 03 00 34 34 34 08 00 04 00 34 34 34 34 "
              "08 00 0D 00 0D 0A 31 32 2C 35 30 20 20 20 20 20 20 "
              "08 00 05 00 31 32 2C 35 30 08 00 01 00 F7 08 00 01 00 33 "
              "08 00 08 00 0D 0A 31 32 2C 35 30 20 "
              "00 00 00 00 00 00 F0 3F 00 00 00 00 "
              "0E 00 02 00 00 00 00 00 E2 04 00 00 00 00 00 00 02 00 01 00 02 00 2F 00 "
              "00 00 80 3F 00 00 00 00 00 00 80 3F 00 00 80 3F 08 00 06 00 26 52 4E 44 20 33");
}

TEST(CalculationRecord, bringsACalculationBackWithItsTypes) {
    for (const CalcValue& operand : {CalcValue(), CalcValue(43), CalcValue(70000), CalcValue(0.1),
                                     CalcValue(u"12,5"), CalcValue(Decimal::fromParts(1, 2, 3, 28, true))}) {
        Desk one, other;
        one.fill();
        one.state.anzeige.setText(Text(300000, u'÷'));
        one.state.operand = operand;
        one.state.pendingOpCode = u"61";
        one.state.chainTotalled = true;
        const std::string bytes = one.gathered();
        decodeRecord(bytes, other.record);
        other.apply();
        EXPECT_EQ(other.state.eingabe.caret(), 1U);
        EXPECT_EQ(describe(other.state.operand), describe(operand));
        EXPECT_FALSE(other.state.Checkob.ticked());  // the switches are applied by who asks for them
        other.state.Checkob.setTicked(true);
        other.state.clipcheck.setTicked(true);
        EXPECT_TRUE(other.gathered() == bytes);
    }
}

TEST(CalculationRecord, ofAnEmptyFileIsEmpty) {
    Desk desk;
    desk.fill();
    desk.gathered();
    decodeRecord("", desk.record);
    desk.apply();
    EXPECT_EQ(desk.state.memo[4].text() + desk.state.anzeige.text() + desk.state.zwischen.text(), u"");
    EXPECT_TRUE(desk.state.operand.isNothing());
    EXPECT_TRUE(desk.state.tapeClearArmed);
    EXPECT_EQ(desk.record.recordAlwaysOnTop, 1);
    EXPECT_TRUE(desk.record.recordRoundingCaption.isNothing());
}

TEST(CalculationRecord, takesANumberInThePlaceOfATextAsItsText) {
    Desk desk;
    std::string file;
    for (int i = 0; i < 10; ++i) file += fromHex("05 00 00 00 00 00 00 00 04 40");
    decodeRecord(file, desk.record);
    desk.apply();
    for (const TextField* field : {&desk.state.memo[0], &desk.state.anzeige, &desk.state.zwischen,
                                   &desk.state.txtop, &desk.state.eingabe, &desk.state.superdruck}) {
        EXPECT_EQ(field->text(), u"2,5");
    }
}

// Whether bytes of any kind can be decoded; where not, the record must be as it was.
bool decodesOrStays(std::string_view bytes) {
    Desk desk;
    desk.state.anzeige.setText(u"before");
    desk.state.operand = 1;
    const std::string before = desk.gathered();
    try {
        decodeRecord(bytes, desk.record);
    } catch (const RecordFailure&) {
        EXPECT_EQ(desk.gathered(), before);
        return false;
    }
    desk.apply();
    return true;
}

TEST(CalculationRecord, cutOrDamagedAnywhereIsAFailureThatChangesNothing) {
    const std::string whole = filledBytes();
    int decodable = 0;
    for (std::size_t size = 0; size <= whole.size(); ++size)
        decodable += decodesOrStays(whole.substr(0, size));
    EXPECT_EQ(decodable, 21);  // cut behind any of its 20 fields, or before all
    std::mt19937 random(1);
    for (int turn = 0; turn < 20000; ++turn) {
        std::string bytes = whole;
        for (unsigned hits = random() % 8 + 1; hits > 0; --hits) {
            // Small numbers are type words and lengths, and lead further than any others.
            bytes[random() % bytes.size()] = static_cast<char>(random() % 2 == 0 ? random() : random() % 16);
        }
        decodesOrStays(bytes);
    }
}

TEST(CalculationRecord, restoresTheCellsAlone) {
    Desk desk;
    desk.fill();
    const std::string cells = desk.gathered().substr(0, 30);
    desk.state.memo[0].setText(u"99");
    EXPECT_THROW(restoreCells(cells.substr(0, 29), desk.state), RecordFailure);
    EXPECT_EQ(desk.state.memo[0].text(), u"99");
    restoreCells(cells + "damaged behind the cells", desk.state);
    EXPECT_EQ(desk.state.memo[0].text(), u"");
    EXPECT_EQ(desk.state.memo[4].text(), u"4444");
    EXPECT_EQ(desk.state.zwischen.text(), u"12,50");
}

}  // namespace
}  // namespace zifferon
