// What the mouse does, and what is seen of the tape.
#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QScrollBar>

#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

TEST_F(WindowTest, MousePlacesTheCaretAndSelects) {
    const TextField& field = state().eingabe;
    hands.stroke({keys::keypad1, keys::keypad2, keys::keypad3});
    ASSERT_TRUE(comesTrue([&] { return entry() == "123"; }));
    const QSize size = pixels(field.place).size();
    const QPoint start(10, size.height() / 2);
    const QPoint end(size.width() - 3, size.height() / 2);
    click(field, start);
    EXPECT_TRUE(comesTrue([&] { return field.caret() == 0; }));
    hands.stroke({keys::keypad5});
    EXPECT_TRUE(comesTrue([&] { return entry() == "5123"; }));

    hands.moveMouse(onScreen(field, end));
    hands.mouseDown();
    hands.moveMouse(onScreen(field, start));
    hands.mouseUp();
    EXPECT_TRUE(comesTrue([&] { return field.selectionLength() == 4; }));
    hands.stroke({keys::keypad7});
    EXPECT_TRUE(comesTrue([&] { return entry() == "7"; }));
}

TEST_F(WindowTest, DoubleClickIsAClickAndThenADoubleClick) {
    std::string events;
    Control& field = state().memo[1];
    field.onGotFocus = [&] { events += "focus "; };
    field.onMouseDown = [&] { events += "down "; };
    field.onMouseUp = [&] { events += "up "; };
    field.onClick = [&] { events += "click "; };
    field.onDoubleClick = [&] { events += "double "; };
    click(field, {20, 5});
    // No hand is so fast that its second click comes while the window manager is still handing on the first.
    ASSERT_TRUE(comesTrue([&] { return events.ends_with("click "); }));
    hands.click();
    EXPECT_TRUE(comesTrue([&] { return events.ends_with("double up "); }));
    EXPECT_EQ(events, "down focus up click double up ");
}

TEST_F(WindowTest, MouseWorksButtonsWithoutTakingTheKeys) {
    const Control& focus = *program.pultform.focus();
    click(state().rndright, {5, 5});
    EXPECT_TRUE(comesTrue([&] { return state().checkrnd.caption == u"&RND 3"; }));
    click(state().checkrnd, {5, 10});
    EXPECT_TRUE(comesTrue([&] { return state().checkrnd.ticked(); }));
    click(state().anzeige, {50, 50});
    click(state().zwischen, {50, 10});
    hands.stroke({keys::keypad5});
    EXPECT_TRUE(comesTrue([&] { return entry() == "5"; }));
    EXPECT_EQ(program.pultform.focus(), &focus);
}

TEST_F(WindowTest, TheTapeFollowsItsEnd) {
    Text lines;
    for (int i = 0; i < 100000; ++i) lines += u"\r\n1,00 +   ";
    state().anzeige.setText(lines);
    view.refresh();
    const auto* const area = view.findChild<QAbstractScrollArea*>(QStringLiteral("anzeige"));
    const QScrollBar& bar = *area->verticalScrollBar();
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_EQ(bar.maximum() + bar.pageStep(), 100001);

    hands.moveMouse(onScreen(state().anzeige, {50, 50}));
    const int wheelUp = 4;
    hands.click(wheelUp);
    EXPECT_TRUE(comesTrue([&] { return bar.value() < bar.maximum(); }));
    hands.stroke({keys::keypad7, keys::keypadAdd});
    EXPECT_TRUE(comesTrue([&] { return bar.maximum() + bar.pageStep() == 100002; }));
    EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(WindowTest, PageUpMovesTheTapeUntilAnotherKeyComes) {
    Text lines;
    for (int i = 0; i < 100; ++i) lines += u"\r\n1,00 +   ";
    state().anzeige.setText(lines);
    state().anzeige.caretToEnd();
    view.refresh();
    const auto* const area = view.findChild<QAbstractScrollArea*>(QStringLiteral("anzeige"));
    const QScrollBar& bar = *area->verticalScrollBar();
    const int end = bar.value();
    const int pageUp = 112;
    hands.stroke({pageUp, pageUp, pageUp});
    EXPECT_TRUE(comesTrue([&] { return bar.value() < end; }));
    EXPECT_EQ(program.pultform.focus(), &state().anzeige);
    hands.stroke({keys::keypad5, keys::keypad7});
    EXPECT_TRUE(comesTrue([&] { return entry() == "7"; }));
}

TEST_F(WindowTest, TheRightButtonOpensAMenu) {
    hands.stroke({keys::keypad1, keys::keypadAdd, keys::keypad2, keys::keypad3});
    ASSERT_TRUE(comesTrue([&] { return entry() == "23"; }));
    QGuiApplication::clipboard()->setText(QStringLiteral("7 EUR"));
    state().eingabe.select(1, 1);
    hands.down(keys::keypad5);
    ASSERT_TRUE(comesTrue([&] { return entry() == "25"; }));
    state().eingabe.select(0, 1);
    const int rightButton = 3, down = 116;
    click(state().eingabe, {100, 8}, rightButton);
    ASSERT_TRUE(comesTrue([] { return QApplication::activePopupWidget() != nullptr; }));
    hands.up(keys::keypad5);
    letPass(100);
    hands.stroke({down, keys::enter});
    EXPECT_TRUE(comesTrue([] { return QGuiApplication::clipboard()->text() == QStringLiteral("2"); }));

    QGuiApplication::clipboard()->setText(QStringLiteral("7 EUR"));
    click(state().memo[0], {50, 8}, rightButton);
    ASSERT_TRUE(comesTrue([] { return QApplication::activePopupWidget() != nullptr; }));
    letPass(100);
    hands.stroke({down, keys::enter});
    EXPECT_TRUE(comesTrue([&] { return state().memo[0].is(u"7"); }));
    hands.stroke({keys::enter, keys::keypad3});
    EXPECT_TRUE(comesTrue([&] { return entry() == "35"; })) << entry();
}

TEST_F(WindowTest, MemoryCellTakesTheKeyboard) {
    click(state().memo[0], {50, 8});
    EXPECT_TRUE(comesTrue([&] { return program.pultform.focus() == &state().memo[0]; }));
    hands.stroke({keys::keypad1, keys::keypad5});
    EXPECT_TRUE(comesTrue([&] { return state().memo[0].is(u"15"); }));
    hands.stroke({keys::enter});
    EXPECT_TRUE(comesTrue([&] { return program.pultform.focus() == &state().eingabe; }));
}

}  // namespace

}  // namespace zifferon::test
