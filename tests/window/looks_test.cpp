// What is seen: figures in columns, and whole.
#include <QLineEdit>
#include <QScrollBar>

#include "platform/qt/own_style.h"
#include "platform/qt/tape_area.h"
#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

class LooksTest : public WindowTest {
  protected:
    void show(TextView tape) {
        state().anzeige.setText(tape);
        view.refresh();
    }

    const TapeArea& area() { return dynamic_cast<const TapeArea&>(widget("anzeige")); }

    QRect rectOf(char16_t character) { return area().rectAt(state().anzeige.text().find(character)); }
};

TEST_F(LooksTest, DigitsAndMarksStandUnderEachOther) {
    show(u"\r\n1.111.111,11      ");
    const QRect narrow = rectOf(u'1');
    show(u"\r\n8.888.888,88      ");
    EXPECT_EQ(rectOf(u'8'), narrow);
    show(u"\r\n1.111.111,11 +   \r\n8  /   \r\n11,11 x   ");
    EXPECT_EQ(rectOf(u'1').left(), narrow.left());
    EXPECT_NEAR(rectOf(u'/').center().x(), rectOf(u'+').center().x(), 1);
    EXPECT_NEAR(rectOf(u'x').center().x(), rectOf(u'+').center().x(), 1);
    EXPECT_LE(narrow.right(), rectOf(u'+').left());
}

TEST_F(LooksTest, TheTapeShowsWholeLinesOnly) {
    Text lines;
    for (int i = 0; i < 100; ++i) lines += u"\r\n88.888.888,88 +   ";
    show(lines);
    const int first = area().verticalScrollBar()->value();
    const int top = area().rectAt(std::size_t(first) * (lines.size() / 100)).top();
    EXPECT_GE(top, 0);
    const QImage above = area().viewport()->grab({0, 0, area().viewport()->width(), top}).toImage();
    QImage white(above.size(), above.format());
    white.fill(Qt::white);
    EXPECT_EQ(above, white);
}

TEST_F(LooksTest, StyleAndColoursAreTheProgramsOwn) {
    EXPECT_NE(dynamic_cast<OwnStyle*>(QApplication::style()), nullptr);
    const QPalette colours = QApplication::palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            if (role == QPalette::NoRole) continue;
            EXPECT_TRUE(colours.isBrushSet(group, QPalette::ColorRole(role))) << group << ' ' << role;
        }
    }
}

TEST_F(LooksTest, NoFigureIsCut) {
    const Text longest = u"-79.228.162.514.264.337.593.543.950.335,0000000000000000000000";
    for (TextField* field : {&state().eingabe, &state().zwischen, &state().memo[0]}) {
        const auto& line = *view.findChild<QLineEdit*>(toQString(field->name));
        for (const Text& figure : {longest, Text(u"8")}) {
            field->setText(figure);
            view.refresh();
            EXPECT_EQ(line.text(), toQString(figure));
            EXPECT_LE(line.fontMetrics().horizontalAdvance(line.text()), line.width() - 8);
        }
        EXPECT_EQ(line.font(), fontOf(field->font));
    }
    show(u"\r\n" + longest + longest + u" +   ");
    EXPECT_GE(rectOf(u'-').left(), 0);
    EXPECT_LT(rectOf(u'+').right(), area().viewport()->width());
}

}  // namespace

}  // namespace zifferon::test
