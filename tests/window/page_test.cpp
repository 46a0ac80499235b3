// The Print/Edit page as a person uses it, and the clipboard as another program sees it.
#include <QApplication>
#include <QListView>
#include <QPointer>
#include <QProcess>
#include <QScrollBar>

#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

class PageTest : public WindowTest {
  protected:
    PageControls& page() { return program.pultform.page; }
    TextField& copy() { return state().superdruck; }

    void open() {
        pressWith(keys::alt, letterD);
        ASSERT_TRUE(comesTrue([&] { return program.pultform.focus() == &page().savefiles; }));
    }

    // Where the middle of a row of the list stands on the screen.
    QPoint onRow(int row) {
        const auto& list = *view.findChild<QListView*>(QStringLiteral("Files"));
        const QRect place = list.visualRect(list.model()->index(row - 1, 0));
        return list.viewport()->mapToGlobal(place.center());
    }

    static constexpr int letterD = 40, letterZ = 52, letterC = 54, letterO = 32, insert = 118, tab = 23;
};

TEST_F(PageTest, ThePrintCopyIsEdited) {
    copy().setText(u"\r\nabcdef\r\nghi");
    open();
    const QPoint start(7, 24), behindThree(7 + 3 * 8, 24);  // pixels; a character is about eight wide
    click(copy(), start);
    ASSERT_TRUE(comesTrue([&] { return copy().caret() == 2; }));
    hands.stroke({keys::keypad1});
    EXPECT_TRUE(comesTrue([&] { return copy().text() == u"\r\n1abcdef\r\nghi"; }));
    hands.stroke({insert, keys::keypad2, keys::keypad3});
    EXPECT_TRUE(comesTrue([&] { return copy().text() == u"\r\n123cdef\r\nghi"; }));
    EXPECT_TRUE(page().Check33.ticked());
    hands.stroke({insert});
    pressWith(keys::control, letterZ);
    EXPECT_TRUE(comesTrue([&] { return copy().text() == u"\r\nabcdef\r\nghi"; }));

    hands.moveMouse(onScreen(copy(), start));
    hands.mouseDown();
    hands.moveMouse(onScreen(copy(), behindThree));
    hands.mouseUp();
    EXPECT_TRUE(comesTrue([&] { return copy().selectionLength() == 3; }));
    hands.stroke({keys::keypad7});
    EXPECT_TRUE(comesTrue([&] { return copy().text() == u"\r\n7def\r\nghi"; }));
    EXPECT_EQ(tape(), "");
}

TEST_F(PageTest, ACalculationIsStoredShownAndLoaded) {
    hands.stroke({keys::keypad5, keys::keypadAdd});
    ASSERT_TRUE(comesTrue([&] { return state().undoCounter == 1; }));
    open();
    whenAWindowOpens(pressing(keys::enter));
    hands.stroke({keys::keypad1, keys::keypad2, keys::enter});
    ASSERT_TRUE(comesTrue([&] { return folder.has("12.sav") && view.isActiveWindow(); }));
    ASSERT_TRUE(comesTrue([&] { return page().Files.rows().size() == 1 && page().savefiles.empty(); }));
    hands.moveMouse(onRow(1));
    hands.click();
    EXPECT_TRUE(comesTrue([&] { return page().txtvorschau.visible; }));
    EXPECT_TRUE(page().txtvorschau.text().ends_with(u"5,00"));
    EXPECT_EQ(program.pultform.focus(), &page().Files);
    pressWith(keys::alt, letterZ);
    ASSERT_TRUE(comesTrue([&] { return program.pultform.focus() == &state().eingabe; }));
    hands.stroke({keys::keypad7, keys::keypadAdd});
    ASSERT_TRUE(comesTrue([&] { return state().zwischen.is(u"12,00"); }));

    open();
    letPass(QApplication::doubleClickInterval());  // the former click is none of this double one
    whenAWindowOpens(pressing(keys::enter));
    hands.moveMouse(onRow(1));
    hands.click();
    ASSERT_TRUE(comesTrue([&] { return page().txtvorschau.visible; }));
    hands.click();
    EXPECT_TRUE(comesTrue([&] { return state().zwischen.is(u"5,00") && view.isActiveWindow(); }));
    EXPECT_EQ(state().undoCounter, 0);
    EXPECT_EQ(program.pultform.focus(), &page().savefiles);

    // by the keys alone: along to the list, down to the row, deleted, and asked before
    hands.stroke({tab, tab});
    ASSERT_TRUE(comesTrue([&] { return program.pultform.focus() == &page().Files; }));
    hands.stroke({116});
    ASSERT_TRUE(comesTrue([&] { return page().txtvorschau.visible; }));
    QPointer<QWidget> answered;  // Yes to the question, OK to the notice
    QTimer answerer;
    answerer.callOnTimeout([&] {
        QWidget* const box = QApplication::activeModalWidget();
        if (box == nullptr || !box->isActiveWindow() || box == answered) return;
        answered = box;
        hands.stroke({keys::enter});
    });
    answerer.start(10);
    hands.stroke({tab, tab, tab});
    pressWith(keys::shift, tab);
    ASSERT_TRUE(comesTrue([&] { return program.pultform.focus() == &page().killfile; }));
    hands.stroke({keys::enter});
    EXPECT_TRUE(comesTrue([&] { return !folder.has("12.sav") && view.isActiveWindow(); }));
}

TEST_F(PageTest, TheListScrollsAlongItsRows) {
    for (int i = 100; i < 140; ++i) folder.put(std::to_string(i) + ".sav", "");
    open();
    const auto& list = *view.findChild<QListView*>(QStringLiteral("Files"));
    hands.moveMouse(onRow(2));
    hands.click();
    ASSERT_TRUE(comesTrue([&] { return page().Files.row() == 2; }));
    hands.stroke({115});  // End
    EXPECT_TRUE(comesTrue([&] { return page().Files.row() == 40; }));
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.currentIndex())));
    EXPECT_TRUE(comesTrue([&] { return page().txtvorschaulabel.is(u"Vorschau '139.sav'"); }));
    hands.moveMouse(onRow(40));
    hands.click(4);
    EXPECT_TRUE(
        comesTrue([&] { return list.verticalScrollBar()->value() < list.verticalScrollBar()->maximum(); }));
    EXPECT_EQ(page().Files.row(), 40);
}

TEST_F(PageTest, TheTapeIsPrintedIntoAFile) {
    ASSERT_TRUE(comesTrue([&] { return !page().allprint.rows.empty(); }));
    hands.stroke({keys::keypad5, keys::keypadAdd});
    open();
    pressWith(keys::alt, letterO);
    ASSERT_TRUE(comesTrue([&] { return page().Frame8.visible; }));
    program.keys.run([&] { page().allprint.choose(int(page().allprint.rows.size())); });
    EXPECT_TRUE(page().allprint.is(u"Print to File (PDF)"));
    pressWith(keys::alt, letterZ);
    const auto answering = [&](int key) {
        whenAWindowOpens([this, key](QWidget&) { hands.stroke({keys::keypad7, key}); });
        pressWith(keys::alt, keys::letterR);
    };
    answering(keys::escape);
    EXPECT_TRUE(
        comesTrue([&] { return view.isActiveWindow() && program.pultform.focus() != &state().eingabe; }));
    EXPECT_TRUE(page().blende.visible);
    letPass(50);
    answering(keys::enter);
    ASSERT_TRUE(comesTrue([&] { return !page().blende.visible; }));
    EXPECT_TRUE(folder.bytes("7.pdf").starts_with("%PDF") || folder.bytes("7").starts_with("%PDF"));
}

TEST_F(PageTest, AnotherProgramFindsEachResult) {
    const auto found = [] {
        QProcess reader;
        reader.start(QStringLiteral("xclip"),
                     {QStringLiteral("-o"), QStringLiteral("-selection"), QStringLiteral("clipboard")});
        comesTrue([&] { return reader.state() == QProcess::NotRunning; });
        return reader.readAllStandardOutput();
    };
    pressWith(keys::alt, letterC);
    ASSERT_TRUE(comesTrue([&] { return state().clipcheck.ticked(); }));
    for (int i = 0; i < 30; ++i) hands.stroke({keys::keypad5, keys::keypadAdd});
    EXPECT_TRUE(comesTrue([&] { return state().zwischen.is(u"150,00"); }));
    EXPECT_EQ(found(), "150,00");
    program.pultform.visible = false;
    view.refresh();
    EXPECT_EQ(found(), "150,00");
    program.pultform.visible = true;
    view.refresh();
    ASSERT_TRUE(comesTrue([&] { return view.isActiveWindow(); }));
    pressWith(keys::alt, letterC);
    EXPECT_TRUE(comesTrue([&] { return !state().clipcheck.ticked(); }));
    EXPECT_EQ(found(), "");
}

}  // namespace

}  // namespace zifferon::test
