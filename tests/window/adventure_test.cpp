// The hidden adventure with a hand on the mouse.
#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

class AdventureTest : public WindowTest {
  protected:
    static QPoint middle(const QWidget& form, const char* control) {
        const QWidget& widget = *form.findChild<QWidget*>(QLatin1String(control));
        return widget.mapToGlobal(widget.rect().center());
    }

    void doubleClickOn(const QWidget& form, const char* control) {
        clickAt(middle(form, control));
        letPass(50);
        hands.click();
        letPass(50);
    }

    // Takes hold of the piece, which keeps to the mouse, and lets it go over the field, or over nothing.
    void drag(const QWidget& form, const char* piece, const char* field) {
        const QPoint to = middle(form, field);
        hands.moveMouse(middle(form, piece));
        hands.mouseDown();
        letPass(30);
        hands.moveMouse(to);
        letPass(30);
        EXPECT_LT((middle(form, piece) - to).manhattanLength(), 3);
        hands.mouseUp();
        letPass(30);
    }

    void solve(QWidget& puzzle) {
        letPass(100);  // until the pieces are dealt
        const QWidget& first = *puzzle.findChild<QWidget*>(QStringLiteral("Picture1"));
        const QPoint home = first.pos();
        for (const char* const refused : {"Picture04", "Line5"}) {
            drag(puzzle, "Picture1", refused);
            EXPECT_EQ(first.pos(), home);
            EXPECT_TRUE(first.isVisible());
        }
        hands.stroke({keys::escape});
        hands.strokeWith(keys::alt, {keys::f4});
        drag(puzzle, "Picture1", "Picture01");
        drag(puzzle, "Picture2", "Picture02");
        drag(puzzle, "Picture3", "Picture03");
        ASSERT_FALSE(first.isVisible());
        whenAWindowOpens([this](QWidget& box) {
            EXPECT_EQ(box.windowTitle(), QStringLiteral("The Secret of Zifferon PRO"));
            hands.stroke({keys::enter});
        });
        drag(puzzle, "Picture4", "Picture04");
        ASSERT_SOON(program.puzzle.nextStepAuthor() && puzzle.isActiveWindow());
        doubleClickOn(puzzle, "Picture5");
        EXPECT_TRUE(program.puzzle.Picture8.visible);
        solved = true;
        hands.stroke({keys::enter});
    }

    bool solved = false;
};

TEST_F(AdventureTest, APieceFollowsTheMouseAndGoesHomeWhereItIsRefused) {
    whenAWindowOpens([&](QWidget& help) {
        doubleClickOn(help, "Text6");
        const QPoint helpAt = help.pos();
        whenAWindowOpens([&](QWidget& puzzle) { solve(puzzle); });
        clickAt(middle(help, "puzzle1"));
        ASSERT_SOON(solved && help.isActiveWindow());
        letPass(200);
        EXPECT_LT((help.pos() - helpAt).manhattanLength(), 3);
        hands.stroke({keys::escape});
    });
    view.run([&] { program.pultform.find(u"Hilfe")->click(); });
    EXPECT_TRUE(solved);
    EXPECT_SOON(view.isActiveWindow());
}

TEST_F(AdventureTest, FiveSecondsOnTheBirdsOpenTheRiddle) {
    hands.moveMouse(onScreen(program.pultform.Image1, {6, 4}));
    hands.mouseDown();
    letPass(5500);
    hands.mouseUp();
    const auto inFront = [] { return QApplication::activeWindow(); };
    ASSERT_SOON(inFront() != nullptr && inFront()->objectName() == u"secretform");
    QWidget& riddle = *inFront();
    EXPECT_SOON(!view.isVisible());
    program.secretform.Text1.setText(machine.machine.system.computerName());
    hands.stroke({keys::enter});
    EXPECT_SOON(riddle.width() > 1000);
    riddle.close();
    EXPECT_SOON(view.isActiveWindow() && !riddle.isVisible());
    hands.stroke({keys::keypad7});
    EXPECT_BECOMES(entry(), "7");
}

}  // namespace

}  // namespace zifferon::test
