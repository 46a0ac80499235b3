// The hidden adventure with a hand on the mouse.
#include <QApplication>
#include <QMessageBox>

#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

class AdventureTest : public WindowTest {
  protected:
    static QWidget* window(const char* name) {
        for (FormView* const form : FormView::all()) {
            if (form->objectName() == QLatin1String(name) && form->isActiveWindow()) return form;
        }
        return nullptr;
    }
    static QWidget* waitFor(const char* name) {
        EXPECT_TRUE(comesTrue([&] { return window(name) != nullptr; })) << name;
        return window(name);
    }

    static QPoint middle(const QWidget& form, const char* control) {
        const QWidget& widget = *form.findChild<QWidget*>(QLatin1String(control));
        return widget.mapToGlobal(widget.rect().center());
    }

    void clickOn(const QWidget& form, const char* control) {
        hands.moveMouse(middle(form, control));
        hands.click();
    }

    void doubleClickOn(const QWidget& form, const char* control) {
        clickOn(form, control);
        letPass(50);
        hands.click();
        letPass(50);
    }

    // Takes hold of the piece and lets it go over the field, or over nothing.
    void drag(const QWidget& form, const char* piece, const char* field) {
        const QPoint from = middle(form, piece);
        const QPoint to = middle(form, field);
        hands.moveMouse(from);
        hands.mouseDown();
        letPass(30);
        hands.moveMouse(to);
        letPass(30);
        dragged = middle(form, piece) - to;
        hands.mouseUp();
        letPass(30);
    }

    // Answers the next box, whenever it comes.
    void answerTheBox() {
        watch.disconnect();
        watch.callOnTimeout([this] {
            const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr || !box->isActiveWindow()) return;
            watch.stop();
            EXPECT_EQ(box->windowTitle(), QStringLiteral("The Secret of Zifferon PRO"));
            hands.stroke({keys::enter});
        });
        watch.start(10);
    }

    QPoint dragged;  // how far the piece has been from the mouse
};

void press(Program& program, const char16_t* control) { program.pultform.find(control)->click(); }

}  // namespace

TEST_F(AdventureTest, APieceFollowsTheMouseAndGoesHomeWhereItIsRefused) {
    bool solved = false;
    whenAWindowOpens([&](QWidget& help) {
        doubleClickOn(help, "Text6");
        const QPoint helpAt = help.pos();
        whenAWindowOpens([&](QWidget& puzzle) {
            letPass(100);  // until the pieces are dealt
            const QWidget& first = *puzzle.findChild<QWidget*>(QStringLiteral("Picture1"));
            const QPoint home = first.pos();
            for (const char* const refused : {"Picture04", "Line5"}) {
                drag(puzzle, "Picture1", refused);
                EXPECT_LT(dragged.manhattanLength(), 3);
                EXPECT_EQ(first.pos(), home);
                EXPECT_TRUE(first.isVisible());
            }
            hands.stroke({keys::escape});
            pressWith(keys::alt, keys::f4);
            for (const char* const piece : {"Picture1", "Picture2", "Picture3"}) {
                drag(puzzle, piece, (std::string("Picture0") + piece[7]).c_str());
            }
            ASSERT_FALSE(first.isVisible());
            answerTheBox();
            drag(puzzle, "Picture4", "Picture04");
            ASSERT_TRUE(
                comesTrue([&] { return program.puzzle.nextStepAuthor() && puzzle.isActiveWindow(); }));
            doubleClickOn(puzzle, "Picture5");
            EXPECT_TRUE(program.puzzle.Picture8.visible);
            solved = true;
            hands.stroke({keys::enter});
        });
        clickOn(help, "puzzle1");
        ASSERT_TRUE(comesTrue([&] { return solved && help.isActiveWindow(); }));
        letPass(200);
        EXPECT_LT((help.pos() - helpAt).manhattanLength(), 3);
        hands.stroke({keys::escape});
    });
    view.run([&] { press(program, u"Hilfe"); });
    EXPECT_TRUE(solved);
    EXPECT_TRUE(comesTrue([&] { return view.isActiveWindow(); }));
}

TEST_F(AdventureTest, FiveSecondsOnTheBirdsOpenTheRiddle) {
    hands.moveMouse(onScreen(program.pultform.Image1, {6, 4}));
    hands.mouseDown();
    letPass(5500);
    hands.mouseUp();
    QWidget* const riddle = waitFor("secretform");
    ASSERT_NE(riddle, nullptr);
    EXPECT_TRUE(comesTrue([&] { return !view.isVisible(); }));
    hands.stroke({keys::digit1, keys::enter});
    EXPECT_TRUE(comesTrue([&] { return !program.secretform.check.text().empty(); }));
    clickOn(*riddle, "Image1");
    EXPECT_TRUE(comesTrue([&] { return program.secretform.Help.visible; }));
    EXPECT_TRUE(comesTrue([&] { return program.secretform.place.height == 1450; }));
    program.secretform.Text1.setText(machine.machine.system.computerName());
    hands.stroke({keys::enter});
    EXPECT_TRUE(comesTrue([&] { return riddle->width() > 1000; }));
    riddle->close();
    EXPECT_TRUE(comesTrue([&] { return view.isActiveWindow() && !riddle->isVisible(); }));
    hands.stroke({keys::keypad7});
    EXPECT_TRUE(comesTrue([&] { return entry() == "7"; }));
}

}  // namespace zifferon::test
