// Message boxes and modal windows, answered by the keyboard.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

class BoxesTest : public WindowTest {
  protected:
    // Opens the box from a handler and gives the person's answer.
    BoxAnswer answer(const Box& box, const std::function<void(QWidget&)>& person) {
        whenAWindowOpens(person);
        BoxAnswer result = BoxAnswer::ok;
        view.run([&] {
            state().zwischen.setText(u"before the box");
            result = machine.machine.boxes.show(box);
        });
        return result;
    }
};

TEST_F(BoxesTest, AnswersComeFromTheKeyboardAndWhatWasDoneIsSeenBehind) {
    answer({BoxIcon::none, BoxButtons::yesNo, u"Titel", u"<b>a</b>   ", Language::english},
           [&](QWidget& shown) {
               EXPECT_TRUE(std::ranges::any_of(shown.findChildren<QLabel*>(), [](const QLabel* label) {
                   return label->text() == u"<b>a</b>   " && label->textFormat() == Qt::PlainText;
               }));
               QStringList buttons;
               for (const QPushButton* button : shown.findChildren<QPushButton*>()) buttons += button->text();
               EXPECT_EQ(buttons.join(' '), QStringLiteral("&Yes &No"));
               EXPECT_EQ(widget<QLineEdit>("zwischen").text(), QStringLiteral("before the box"));
               hands.stroke({keys::enter});
           });

    Box box{BoxIcon::question, BoxButtons::yesNo, u"Zifferon PRO 5.0", u"Frage?"};
    EXPECT_EQ(answer(box, pressing(keys::enter)), BoxAnswer::yes);
    const auto onlyByItsButtons = [this](QWidget& shown) {
        hands.stroke({keys::escape});
        letPass(100);
        shown.close();
        letPass(100);
        EXPECT_TRUE(shown.isVisible());
        hands.stroke({keys::enter});
    };
    EXPECT_EQ(answer(box, onlyByItsButtons), BoxAnswer::yes);
    box.noIsDefault = true;
    EXPECT_EQ(answer(box, pressing(keys::enter)), BoxAnswer::no);
    box.buttons = BoxButtons::yesNoCancel;
    EXPECT_EQ(answer(box, pressing(keys::escape)), BoxAnswer::cancel);
    EXPECT_EQ(answer(box, [](QWidget& shown) { shown.close(); }), BoxAnswer::cancel);
    box.buttons = BoxButtons::ok;
    EXPECT_EQ(answer(box, pressing(keys::escape)), BoxAnswer::ok);
}

TEST_F(BoxesTest, KeyThatClosesAModalWindowDoesNotActBehindIt) {
    state().memo[0].setText(u"19");
    whenAWindowOpens(pressing(keys::enter));
    click(state().zurück, {20, 10});
    EXPECT_SOON(allHaveActed() && view.isActiveWindow());
    EXPECT_EQ(state().memo[0].text(), u"");
    hands.stroke({keys::keypad5, keys::keypadAdd});
    EXPECT_BECOMES(tape(), "\r\n5,00      ");
}

TEST_F(BoxesTest, AnEndedSessionLeavesNothingOnTheScreen) {
    whenAWindowOpens([&](QWidget&) {
        machine.machine.windows.hideAll();
        for (const QWidget* widget : QApplication::topLevelWidgets()) EXPECT_FALSE(widget->isVisible());
    });
    hands.stroke({keys::right});  // nothing to undo
    EXPECT_SOON(allHaveActed() && QApplication::activeModalWidget() == nullptr);
}

}  // namespace

}  // namespace zifferon::test
