// What the mouse does, and what is seen of the tape.
#include <QAbstractScrollArea>
#include <QScrollBar>

#include "tests/window/window_fixture.h"

namespace zifferon::test {

TEST_F(WindowTest, MousePlacesTheCaretAndSelects) {
    const TextField& field = state().eingabe;
    const QSize size = pixels(field.place).size();
    const QPoint start(10, size.height() / 2), end(size.width() - 3, size.height() / 2);
    hands.stroke({keys::keypad1, keys::keypad2, keys::keypad3});
    ASSERT_SOON(entry() == "123");
    click(field, start);
    EXPECT_BECOMES(field.caret(), 0);
    hands.stroke({keys::keypad5});
    EXPECT_BECOMES(entry(), "5123");
    hands.drag(onScreen(field, end), onScreen(field, start));
    EXPECT_BECOMES(field.selectionLength(), 4);
    hands.stroke({keys::keypad7});
    EXPECT_BECOMES(entry(), "7");
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
    EXPECT_BECOMES(events, "down focus up click ");
    hands.click();
    EXPECT_BECOMES(events, "down focus up click double up ");
}

TEST_F(WindowTest, WhatTheMouseClicksTakesTheKeysWhereItIsAField) {
    const Control* const keeper = focus();
    click(state().rndright, {5, 5});
    EXPECT_SOON(state().checkrnd.caption == u"&RND 3");
    click(state().checkrnd, {5, 10});
    EXPECT_SOON(state().checkrnd.ticked());
    click(state().anzeige, {50, 50});
    click(state().zwischen, {50, 10});
    hands.stroke({keys::keypad5});
    EXPECT_BECOMES(entry(), "5");
    EXPECT_EQ(focus(), keeper);

    click(state().memo[0], {50, 8});
    EXPECT_BECOMES(focus(), &state().memo[0]);
    hands.stroke({keys::keypad1, keys::keypad5});
    EXPECT_SOON(state().memo[0].is(u"15"));
    hands.stroke({keys::enter});
    EXPECT_BECOMES(focus(), &state().eingabe);
}

TEST_F(WindowTest, MouseOverTheBareWindow) {
    int moves = 0;
    program.pultform.onMouseMove = [&] { ++moves; };
    QPoint bare;
    while (view.childAt(bare) != nullptr && bare.x() < view.width()) bare += QPoint(1, 1);
    ASSERT_EQ(view.childAt(bare), nullptr);
    hands.moveMouse(onScreen(state().rndright, {5, 5}));
    letPass(50);
    EXPECT_EQ(moves, 0);
    hands.moveMouse(view.mapToGlobal(bare));
    EXPECT_BECOMES(moves, 1);
}

TEST_F(WindowTest, TheTapeFollowsItsEndUntilPageUpMovesIt) {
    Text lines;
    for (int i = 0; i < 100000; ++i) lines += u"\r\n1,00 +   ";
    state().anzeige.setText(lines);
    state().anzeige.caretToEnd();
    view.refresh();
    const QScrollBar& bar = *widget<QAbstractScrollArea>("anzeige").verticalScrollBar();
    EXPECT_EQ(bar.value(), bar.maximum());
    EXPECT_EQ(bar.maximum() + bar.pageStep(), 100001);

    clickAt(onScreen(state().anzeige, {50, 50}), wheelUp);
    EXPECT_SOON(bar.value() < bar.maximum());
    hands.stroke({keys::keypad7, keys::keypadAdd});
    EXPECT_BECOMES(bar.maximum() + bar.pageStep(), 100002);
    EXPECT_EQ(bar.value(), bar.maximum());

    hands.stroke({keys::pageUp, keys::pageUp, keys::pageUp});
    EXPECT_SOON(bar.value() < bar.maximum());
    EXPECT_EQ(focus(), &state().anzeige);
    hands.stroke({keys::keypad5, keys::keypad7});
    EXPECT_BECOMES(entry(), "7");
}

TEST_F(WindowTest, TheRightButtonOpensAMenu) {
    hands.stroke({keys::keypad1, keys::keypadAdd, keys::keypad2, keys::keypad3});
    ASSERT_SOON(entry() == "23");
    state().eingabe.select(1, 1);
    hands.down(keys::keypad5);
    ASSERT_SOON(entry() == "25");
    state().eingabe.select(0, 1);
    click(state().eingabe, {100, 8}, rightButton);
    ASSERT_SOON(menuIsOpen());
    hands.up(keys::keypad5);
    letPass(100);
    hands.stroke({keys::down, keys::enter});
    EXPECT_BECOMES(QGuiApplication::clipboard()->text(), QStringLiteral("2"));

    QGuiApplication::clipboard()->setText(QStringLiteral("7 EUR"));
    click(state().memo[0], {50, 8}, rightButton);
    ASSERT_SOON(menuIsOpen());
    letPass(100);
    hands.stroke({keys::down, keys::enter});
    EXPECT_SOON(state().memo[0].is(u"7"));
    hands.stroke({keys::enter, keys::keypad3});
    EXPECT_BECOMES(entry(), "35");
}

}  // namespace zifferon::test
