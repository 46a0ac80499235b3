// Copy, paste and undo, whatever state the calculator is in.

#include <algorithm>

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

class Editing : public FreshProgramTest {
  protected:
    void undo() { program_.pultform.onUndo(); }
    void paste(TextView text) { program_.pultform.onPaste(text); }

    // The last line of the tape that holds something, without the blanks behind it.
    std::string tapeEnd() {
        const TextView tape = state().anzeige.text();
        const std::size_t end = tape.find_last_not_of(u" \r\n") + 1;
        const std::size_t start = tape.substr(0, end).rfind(u'\n') + 1;
        return toUtf8(tape.substr(start, end - start));
    }
    std::string entry() { return toUtf8(state().eingabe.text()); }
    std::string clipboard() { return toUtf8(headless_.text()); }
    long beeps() {
        const std::string log = log_.str();
        log_.str("");
        return std::count(log.begin(), log.end(), 'b');  // no other event holds that letter
    }
};

TEST_F(Editing, pastedLettersDoNotCommand) {
    type(u"100+");
    paste(u"12,50 EUR");
    EXPECT_EQ(entry(), "12,50");
    EXPECT_EQ(beeps(), 0);
    type(u"+3\r");
    EXPECT_EQ(tapeEnd(), "115,50 =");
    type(u"\r5+");
    paste(u"Datum Total cost");
    EXPECT_EQ(beeps(), 1);
    EXPECT_EQ(state().txtop.text(), u"+");
    EXPECT_EQ(entry(), "");
}

TEST_F(Editing, aColumnIsAddedUpAndItsLastFigureWaits) {
    paste(u"1.000,00\r\n20,50\r\n(3,00)\r\n");
    EXPECT_EQ(state().anzeige.text(), u"\r\n1.000,00      \r\n20,50 +   ");
    EXPECT_EQ(entry(), "-3");
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "1.017,50 =");
}

TEST_F(Editing, aPastedColumnIsUndoneAsOneStep) {
    type(u"1+2+");
    paste(u"5\n6\n7");
    undo();  // the waiting figure
    EXPECT_EQ(state().zwischen.text(), u"14,00");
    undo();
    EXPECT_EQ(state().zwischen.text(), u"3,00");
    EXPECT_EQ(tapeEnd(), "2,00 +");
    paste(u"5/0+7");
    undo();
    EXPECT_EQ(state().zwischen.text(), u"3,00");
}

TEST_F(Editing, aStandingTotalIsClosedFirst) {
    type(u"100+1\r");
    paste(u"5\n6\n7");
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "18,00 =");
    type(u"\r200P10\r");
    paste(u"5+6");
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "11,00 =");
}

TEST_F(Editing, pastedFiguresTakeThePlaceOfTheEntry) {
    type(u"12");
    paste(u"5\n6\n7");
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "18,00 =");
    type(u"\r100*7");
    paste(u"5");
    EXPECT_EQ(state().txtop.text(), u"x");
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "500,00 =");
    type(u"\r10+16W");
    paste(u"5");
    EXPECT_EQ(state().txtop.text(), u"+");
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "15,00 =");
}

TEST_F(Editing, aPrefixDoesNotTakeThePastedDigit) {
    type(u"10+m");
    paste(u"3");
    EXPECT_TRUE(state().memo[2].empty());
    type(u"+r");
    paste(u"3");
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "16,00 =");
}

TEST_F(Editing, promptsTakeAsManyFiguresAsTheyAskFor) {
    type(u"d");
    paste(u"200\n250");
    EXPECT_EQ(beeps(), 0);
    EXPECT_TRUE(state().secondValuePrompt);
    EXPECT_EQ(entry(), "250");
    paste(u"300\n400");
    EXPECT_EQ(beeps(), 1);
    type(u"\r");
    EXPECT_EQ(state().zwischen.text(), u"Differenz: 50,00 %");
    type(u"d");
    paste(u"0\n5");
    EXPECT_FALSE(state().secondValuePrompt);
    EXPECT_EQ(entry(), "");
    type(u"c200P");
    beeps();
    paste(u"10-\n20");
    EXPECT_EQ(beeps(), 1);
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "-20,00 =");
}

TEST_F(Editing, aCellTakesOneFigure) {
    TextField& cell = state().memo[1];
    program_.pultform.setFocus(cell);
    paste(u"12,50 EUR");
    EXPECT_EQ(cell.text(), u"12,50");
    cell.caretToEnd();
    paste(u"(7)\n8");
    EXPECT_EQ(cell.text(), u"-7");
    EXPECT_EQ(beeps(), 1);
    paste(u"5*3");
    EXPECT_EQ(cell.text(), u"-7");
    EXPECT_EQ(beeps(), 1);
    type(u"\r");
    EXPECT_EQ(program_.pultform.focus(), &state().eingabe);
}

TEST_F(Editing, afterAFailureNothingMoreIsTaken) {
    paste(u"5/0+3");
    EXPECT_EQ(state().zwischen.text(), u"Error");
    EXPECT_EQ(entry(), "");
    EXPECT_EQ(beeps(), 1);
    paste(u"5+3");
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "8,00 =");
}

TEST_F(Editing, theTapeAndThePrintCopyTakeAPasteInTheirWay) {
    state().anzeige.locked = false;
    program_.pultform.setFocus(state().anzeige);
    paste(u"5");
    EXPECT_EQ(entry(), "5");
    program_.pultform.page.edit.click();
    program_.pultform.setFocus(state().superdruck);
    paste(u"Total: 5\tEUR\r\n3 x\n");
    EXPECT_EQ(state().superdruck.text(), u"Total: 5 EUR\r\n3 x\r\n");
    EXPECT_EQ(beeps(), 0);
}

TEST_F(Editing, aNameTakesOneLineAndAButtonNothing) {
    PageControls& page = program_.pultform.page;
    page.edit.click();
    paste(u"Miete\tMai\r\nJuni");
    EXPECT_EQ(page.savefiles.text(), u"Miete Mai");
    EXPECT_EQ(beeps(), 0);
    program_.pultform.setFocus(page.laden);
    paste(u"5+6");
    EXPECT_EQ(beeps(), 1);
    EXPECT_EQ(state().anzeige.text(), u"");
    EXPECT_EQ(entry(), "");
}

TEST_F(Editing, thePrintCopyTakesBackWhatWasTypedThere) {
    TextField& copy = state().superdruck;
    type(u"5+");
    const Text calculated = copy.text();
    program_.pultform.page.edit.click();
    program_.pultform.setFocus(copy);
    copy.setCaret(2);
    type(u"Miete\rMai");
    copy.select(2, 3);
    type(u"\b");
    EXPECT_EQ(copy.text().substr(0, 9), u"\r\nte\r\nMai");
    undo();
    EXPECT_EQ(copy.selectionLength(), 3U);
    undo();
    undo();
    EXPECT_EQ(copy.text(), calculated);
    undo();
    EXPECT_EQ(copy.text(), calculated);
    EXPECT_EQ(state().undoCounter, 1);
    // the calculator's own lines are no change of the user's
    type(u"A");
    program_.pultform.page.leave.click();
    type(u"3+");
    program_.pultform.page.edit.click();
    program_.pultform.setFocus(copy);
    const Text now = copy.text();
    undo();
    EXPECT_EQ(copy.text(), now);
}

TEST_F(Editing, tenThousandFiguresArriveAll) {
    Text column;
    for (int i = 0; i < 10000; ++i) column += u"0,01\n";
    paste(column);
    type(u"\r");
    EXPECT_EQ(tapeEnd(), "100,00 =");
}

TEST_F(Editing, copyTakesSelectionEntryOrRunningValue) {
    type(u"12,5+3456");
    program_.pultform.onCopy();
    EXPECT_EQ(clipboard(), "3456");
    state().eingabe.select(1, 2);
    program_.pultform.onCopy();
    EXPECT_EQ(clipboard(), "45");
    type(u"+");
    program_.pultform.onCopy();
    EXPECT_EQ(clipboard(), "3.468,50");
    EXPECT_TRUE(program_.clipboard.text().empty());
    type(u"d");
    beeps();
    program_.pultform.onCopy();
    EXPECT_EQ(beeps(), 1);
    EXPECT_EQ(clipboard(), "3.468,50");
}

TEST_F(Editing, theMenuOffersWhatCanBeDone) {
    const auto captions = [](const std::vector<MenuEntry>& menu) {
        std::string text;
        for (const MenuEntry& entry : menu) text += toUtf8(entry.caption) + (entry.enabled ? ". " : "- ");
        return text;
    };
    type(u"2*3\r");
    EXPECT_EQ(captions(state().anzeige.menu()), "Kopieren- Einfügen- Rechenstreifen kopieren. ");
    state().anzeige.menu()[2].onChoose();
    EXPECT_EQ(clipboard(), "2,00\n3,00 x\n\n6,00 =");
    headless_.setText(u"7 EUR");
    state().language = Language::english;
    EXPECT_EQ(captions(state().eingabe.menu()), "Copy. Paste. Copy the whole tape. ");
    state().eingabe.menu()[1].onChoose();
    EXPECT_EQ(entry(), "7");
}

TEST_F(Editing, undoIsThatOfTheButton) {
    type(u"5+3+");
    undo();
    EXPECT_EQ(state().zwischen.text(), u"5,00");
    type(u"200P");
    const Text before = state().zwischen.text();
    undo();
    EXPECT_EQ(state().zwischen.text(), before);
}

TEST_F(Editing, shiftSelectsFromWhereItBegan) {
    TextField& field = state().eingabe;
    type(u"12345");
    const auto extend = [&](int code) { field.handleKey(code, true); };
    extend(keyCode::left);
    extend(keyCode::left);
    EXPECT_EQ(field.selectionStart(), 3U);
    EXPECT_EQ(field.selectionLength(), 2U);
    extend(keyCode::right);
    EXPECT_EQ(field.selectionStart(), 4U);
    EXPECT_EQ(field.selectionLength(), 1U);
    field.setCaret(2);
    extend(keyCode::end);
    extend(keyCode::home);
    EXPECT_EQ(field.selectionStart(), 0U);
    EXPECT_EQ(field.selectionLength(), 2U);
    type(u"9");
    EXPECT_EQ(entry(), "9345");
}

}  // namespace
}  // namespace zifferon
