// The Print/Edit page as a person uses it, and the clipboard as another program sees it.
#include <QListView>
#include <QScrollBar>

#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

using namespace keys;

class PageTest : public WindowTest {
  protected:
    TextField& copy() { return state().superdruck; }
    const QListView& list() { return widget<QListView>("Files"); }

    void open() {
        hands.strokeWith(alt, {letterD});
        ASSERT_SOON(focus() == &page().savefiles);
    }

    // The middle of a row of the list.
    QPoint onRow(int row) {
        const QRect place = list().visualRect(list().model()->index(row - 1, 0));
        return list().viewport()->mapToGlobal(place.center());
    }
};

TEST_F(PageTest, ThePrintCopyIsEdited) {
    copy().setText(u"\r\nabcdef\r\nghi");
    open();
    const Control& ruledLine = page().stripes.raster[2];
    ASSERT_SOON(ruledLine.visible);
    click(ruledLine, {300, 0});  // and so the copy below it
    EXPECT_SOON(copy().caret() > 2);
    const QPoint start(7, 24), behindThree(7 + 3 * 8, 24);  // pixels; a character is about eight wide
    click(copy(), start);
    ASSERT_SOON(copy().caret() == 2);
    const auto text = [this] { return toUtf8(copy().text()); };
    hands.stroke({keypad1, insert, keypad2, keypad3});
    EXPECT_BECOMES(text(), "\r\n123cdef\r\nghi");
    EXPECT_TRUE(page().Check33.ticked());
    hands.stroke({insert});
    hands.strokeWith(control, {letterZ});
    EXPECT_BECOMES(text(), "\r\nabcdef\r\nghi");
    hands.drag(onScreen(copy(), start), onScreen(copy(), behindThree));
    EXPECT_BECOMES(copy().selectionLength(), 3);
    hands.stroke({keypad7});
    EXPECT_BECOMES(text(), "\r\n7def\r\nghi");
    EXPECT_EQ(tape(), "");
}

// Its box and the window itself close in one moment, which confuses a window manager one time in twenty.
TEST_F(PageTest, TheKeyboardComesBackFromTheLetterhead) {
    open();
    for (int turn = 0; turn < 100; ++turn) {
        whenAWindowOpens([this](QWidget& letterhead) {
            whenAWindowOpens(pressing(enter));
            const QWidget& button = *letterhead.findChild<QWidget*>(QStringLiteral("kopfok"));
            clickAt(button.mapToGlobal(button.rect().center()));
        });
        view.run(page().cmdkopf.onClick);
        ASSERT_SOON(allHaveActed() && view.isActiveWindow()) << turn;
    }
}

TEST_F(PageTest, ACalculationIsStoredShownAndLoaded) {
    hands.stroke({keypad5, keypadAdd});
    open();
    whenAWindowOpens(pressing(enter));
    hands.stroke({keypad1, keypad2, enter});
    ASSERT_SOON(folder.has("12.sav") && view.isActiveWindow());
    ASSERT_SOON(page().Files.rows().size() == 1 && page().savefiles.empty());
    clickAt(onRow(1));
    EXPECT_SOON(page().txtvorschau.visible && focus() == &page().Files);
    hands.strokeWith(alt, {letterZ});
    ASSERT_SOON(focus() == &state().eingabe);
    hands.stroke({keypad7, keypadAdd});
    ASSERT_SOON(state().zwischen.is(u"12,00"));

    open();
    letPass(QApplication::doubleClickInterval());  // the former click is none of this double one
    whenAWindowOpens(pressing(enter));
    clickAt(onRow(1));
    ASSERT_SOON(page().txtvorschau.visible);
    hands.click();
    EXPECT_SOON(state().zwischen.is(u"5,00") && view.isActiveWindow());

    // By the keys alone: along to the list, down to the row, deleted, and asked before.
    hands.stroke({tab, tab});
    ASSERT_SOON(focus() == &page().Files);
    hands.stroke({down});
    ASSERT_SOON(page().txtvorschau.visible);
    hands.stroke({tab, tab, tab});
    hands.strokeWith(shift, {tab});
    ASSERT_SOON(focus() == &page().killfile);
    whenAWindowOpens(pressing(enter));  // Yes to the question
    whenAWindowOpens(pressing(enter));  // OK to the notice
    hands.stroke({enter});
    EXPECT_SOON(!folder.has("12.sav") && view.isActiveWindow());
}

TEST_F(PageTest, TheListScrollsAlongItsRows) {
    for (int i = 100; i < 140; ++i) folder.put(std::to_string(i) + ".sav", "");
    open();
    clickAt(onRow(2));
    ASSERT_SOON(page().Files.row() == 2);
    hands.stroke({end});
    EXPECT_BECOMES(page().Files.row(), 40);
    EXPECT_TRUE(list().viewport()->rect().contains(list().visualRect(list().currentIndex())));
    EXPECT_SOON(page().txtvorschaulabel.is(u"Vorschau '139.sav'"));
    clickAt(onRow(40), wheelUp);
    EXPECT_SOON(list().verticalScrollBar()->value() < list().verticalScrollBar()->maximum());
    EXPECT_EQ(page().Files.row(), 40);
}

TEST_F(PageTest, TheTapeIsPrintedIntoAFile) {
    ASSERT_SOON(!page().allprint.rows.empty());
    hands.stroke({keypad5, keypadAdd});
    open();
    hands.strokeWith(alt, {letterO});
    ASSERT_SOON(page().Frame8.visible);
    program.keys.run([&] { page().allprint.choose(int(page().allprint.rows.size())); });
    EXPECT_TRUE(page().allprint.is(u"Print to File (PDF)"));
    hands.strokeWith(alt, {letterZ});
    const auto answering = [&](int key) {
        whenAWindowOpens([this, key](QWidget&) { hands.stroke({keypad7, key}); });
        hands.strokeWith(alt, {letterR});
    };
    answering(escape);
    EXPECT_SOON(view.isActiveWindow() && focus() != &state().eingabe);
    EXPECT_TRUE(page().blende.visible);
    letPass(50);
    answering(enter);
    ASSERT_SOON(!page().blende.visible);
    EXPECT_TRUE(folder.bytes("7.pdf").starts_with("%PDF") || folder.bytes("7").starts_with("%PDF"));
}

TEST_F(PageTest, AnotherProgramFindsEachResult) {
    const auto found = [] { return outputOf(QStringLiteral("xclip -o -selection clipboard")); };
    hands.strokeWith(alt, {letterC});
    ASSERT_SOON(state().clipcheck.ticked());
    for (int i = 0; i < 30; ++i) hands.stroke({keypad5, keypadAdd});
    EXPECT_SOON(state().zwischen.is(u"150,00"));
    EXPECT_EQ(found(), "150,00");
    setVisible(false);
    EXPECT_EQ(found(), "150,00");
    setVisible(true);
    hands.strokeWith(alt, {letterC});
    EXPECT_SOON(!state().clipcheck.ticked());
    EXPECT_EQ(found(), "");
}

}  // namespace

}  // namespace zifferon::test
