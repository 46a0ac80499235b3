// Pasting, whatever state the calculator is in. Copying, undoing and the menus are seen by the walks.

#include <algorithm>

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

class Editing : public FreshProgramTest {
  protected:
    void undo() { program_.pultform.onUndo(); }
    void paste(TextView text) { program_.pultform.onPaste(text); }
    long beeps() {
        const std::string log = log_.str();
        log_.str("");
        return std::count(log.begin(), log.end(), 'b');  // no other event holds that letter
    }
};

struct Pasted {
    TextView before, pasted, after;
    const char* value;
    int beeps = 0;
};

TEST_F(Editing, aPasteIsTypedFigureByFigure) {
    for (const Pasted& row : {Pasted{u"100+", u"12,50 EUR", u"\r", "112,50"},
                              {u"5+", u"Datum Total cost", u"3\r", "8,00", 1},
                              {u"", u"1.000,00\r\n20,50\r\n(3,00)\r\n", u"\r", "1.017,50"},
                              // A standing total is closed, and an entry gives way.
                              {u"100+1\r", u"5\n6\n7", u"\r", "18,00"},
                              {u"200P10\r", u"5+6", u"\r", "11,00"},
                              {u"12", u"5\n6\n7", u"\r", "18,00"},
                              {u"100*7", u"5", u"\r", "500,00"},
                              {u"10+16W", u"5", u"\r", "15,00"},
                              // A prefix does not take the digit, and a prompt takes what it asks for.
                              {u"10+m", u"3", u"\r", "13,00"},
                              {u"10+r", u"3", u"\r", "13,00"},
                              {u"d", u"200\n250", u"\r", "Differenz: 25,00 %"},
                              {u"d200\r", u"300\n400", u"\r", "Differenz: 50,00 %", 1},
                              {u"200P", u"10-\n20", u"\r", "-20,00", 1},
                              // A failure ends it, and only it.
                              {u"", u"5/0+3", u"", "Error", 1},
                              {u"5/0\r", u"5+3", u"\r", "8,00"}}) {
        type(u"\x1B");
        type(row.before);
        beeps();
        paste(row.pasted);
        EXPECT_EQ(beeps(), row.beeps) << toUtf8(row.pasted);
        type(row.after);
        EXPECT_EQ(toUtf8(state().zwischen.text()), row.value) << toUtf8(row.before) << toUtf8(row.pasted);
    }
}

TEST_F(Editing, aPastedColumnIsOneStepHoweverLong) {
    type(u"1+2+");
    paste(u"5\n6\n7");
    undo();  // the waiting figure
    EXPECT_EQ(state().zwischen.text(), u"14,00");
    undo();
    EXPECT_EQ(state().zwischen.text(), u"3,00");
    paste(u"5/0+7");
    undo();
    EXPECT_EQ(state().zwischen.text(), u"3,00");
    Text column;
    for (int i = 0; i < 10000; ++i) column += u"0,01\n";
    paste(column);
    type(u"\r");
    EXPECT_EQ(state().zwischen.text(), u"103,00");
}

TEST_F(Editing, aCellTakesOneFigureANameOneLineAndAButtonNothing) {
    TextField& cell = state().memo[1];
    program_.pultform.setFocus(cell);
    for (const auto& [text, figure] :
         {std::pair(u"12,50 EUR", u"12,50"), {u"(7)\n8", u"-7"}, {u"5*3", u"-7"}}) {
        paste(text);
        EXPECT_EQ(cell.text(), figure);
    }
    EXPECT_EQ(beeps(), 2);
    PageControls& page = program_.pultform.page;
    page.edit.click();
    paste(u"Miete\tMai\r\nJuni");
    EXPECT_EQ(page.savefiles.text(), u"Miete Mai");
    program_.pultform.setFocus(state().superdruck);
    paste(u"Total: 5\tEUR\r\n3 x\n");
    EXPECT_EQ(state().superdruck.text(), u"Total: 5 EUR\r\n3 x\r\n");
    EXPECT_EQ(beeps(), 0);
    program_.pultform.setFocus(page.laden);
    paste(u"5+6");
    EXPECT_EQ(beeps(), 1);
    EXPECT_TRUE(state().eingabe.empty());
}

}  // namespace
}  // namespace zifferon
