// The windows around the calculator, as a person meets them: loading window, Print/Edit page, help window.
#include <QMessageBox>
#include <QPushButton>

#include "platform/qt/application.h"
#include "shell/required_files.h"
#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

constexpr int letterE = 26, letterH = 43;

// The whole start, from an empty calculator; the first run is behind it.
class StartTest : public WindowTest {
  protected:
    void SetUp() override {
        for (const char* name : requiredFiles) folder.put(name, "");
        for (const char* name : {"ntcheck.zfr", "decpoint.dat"}) folder.put(name, fromHex("00 00 80 3F"));
        QDir().mkdir(QStringLiteral("Temp"));
        machine.desktop.attachTo(view);
        hands.setNumLock(true);
    }

    // Types so many times, ten milliseconds apart, from the moment on at which the loading window has the
    // keyboard.
    void additionsFromTheBeginningAllCome() {
        constexpr int additions = 250;
        typeFromTheBeginning([&] { hands.stroke({keys::keypad7, keys::keypadAdd}); }, additions);
        program.start();
        EXPECT_GT(typed, 0);
        const Text& tape = state().anzeige.text();
        EXPECT_TRUE(comesTrue([&] { return std::count(tape.begin(), tape.end(), u'\n') == additions; }))
            << std::count(tape.begin(), tape.end(), u'\n');
        EXPECT_TRUE(comesTrue([&] { return view.isActiveWindow(); }));
    }

    void typeFromTheBeginning(const std::function<void()>& type, int times) {
        typist.callOnTimeout([this, type, times] {
            if (typed == 0 && QApplication::activeWindow() == nullptr) return;
            type();
            if (++typed == times) typist.stop();
        });
        typist.start(10);
    }

    QTimer typist;
    int typed = 0;
};

TEST_F(StartTest, NoKeyIsLostBetweenTheWindows) { additionsFromTheBeginningAllCome(); }

// As on a busy desktop, which is slow to give the main window the keyboard.
TEST_F(StartTest, NoKeyIsLostWhileTheMainWindowWaitsForTheKeyboard) {
    view.setAttribute(Qt::WA_ShowWithoutActivating);
    additionsFromTheBeginningAllCome();
}

TEST_F(StartTest, StandsWhereTheLoadingWindowStood) {
    program.start();
    ASSERT_TRUE(comesTrue([&] { return view.isActiveWindow(); }));
    letPass(100);
    const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
    EXPECT_LT((view.frameGeometry().center() - middle).manhattanLength(), 40);
}

TEST_F(StartTest, ADesktopThatKeepsTheKeyboardIsNotWaitedFor) {
    view.setAttribute(Qt::WA_ShowWithoutActivating);
    program.start();
    const auto alone = [&] { return FormView::all().size() == 1 && !program.pultform.caption.empty(); };
    EXPECT_TRUE(comesTrue(alone, 1500));
    EXPECT_TRUE(view.isVisible());
}

TEST_F(StartTest, AMessageBeforeTheFirstShowingCloses) {
    TrayHost tray;
    if (!tray.start()) GTEST_SKIP() << "missing: trayer";
    folder.put("winstate.dat", fromHex("04 00 00 00 00 00 04 00 00 00 00 00 02 00 00 00 02 00 01 00"));
    typeFromTheBeginning([&] { hands.stroke({keys::right}); }, 1);
    bool answered = false;
    whenAWindowOpens([&](QWidget& message) {
        EXPECT_EQ(message.objectName(), QStringLiteral("message"));
        hands.stroke({keys::enter});
        answered = true;
    });
    program.start();
    ASSERT_TRUE(comesTrue([&] { return answered && FormView::all().size() == 1; }));
    EXPECT_FALSE(view.isVisible());
    machine.desktop.onTrayDoubleClick();
    FormView::refreshAll();
    ASSERT_TRUE(comesTrue([&] { return view.isActiveWindow(); }));
    hands.stroke({keys::keypad7});
    EXPECT_TRUE(comesTrue([&] { return entry() == "7"; }));
}

TEST_F(StartTest, AMinimisedWindowComesBackWhereItWas) {
    program.start();
    ASSERT_TRUE(comesTrue([&] { return view.isActiveWindow(); }));
    program.pultform.place.left = program.pultform.place.top = 1500;
    FormView::refreshAll();
    letPass(100);
    const QPoint before = view.pos();
    view.showMinimized();
    ASSERT_TRUE(comesTrue([&] { return program.pultform.minimised; }));
    view.run(machine.desktop.onHotKey);
    ASSERT_TRUE(comesTrue([&] { return view.isActiveWindow() && !view.isMinimized(); }));
    EXPECT_EQ(view.pos(), before);
}

TEST_F(WindowTest, AnEndedSessionLeavesNothingOnTheScreen) {
    whenAWindowOpens([&](QWidget&) {
        machine.machine.windows.hideAll();
        for (const QWidget* widget : QApplication::topLevelWidgets()) EXPECT_FALSE(widget->isVisible());
    });
    hands.stroke({keys::right});  // nothing to undo
    EXPECT_TRUE(comesTrue([&] { return !watch.isActive() && QApplication::activeModalWidget() == nullptr; }));
}

TEST_F(StartTest, AKeyTypedAheadOpensItsBoxOverTheMainWindow) {
    typeFromTheBeginning([&] { hands.stroke({keys::f10}); }, 1);
    bool answered = false;
    whenAWindowOpens([&](QWidget& box) {
        EXPECT_EQ(box.parentWidget()->objectName(), QStringLiteral("Pultform"));
        EXPECT_TRUE(comesTrue([] { return FormView::all().size() == 1; }));  // the loading window is gone
        hands.stroke({keys::escape});
        answered = true;
    });
    program.start();
    ASSERT_TRUE(comesTrue([&] { return answered && view.isActiveWindow(); }));
    hands.stroke({keys::keypad7});
    EXPECT_TRUE(comesTrue([&] { return entry() == "7"; }));
}

TEST_F(WindowTest, TheRuledLinesLeaveTheMouseToThePrintCopy) {
    state().superdruck.setText(u"\r\none\r\ntwo\r\nthree");
    click(program.pultform.page.edit, {10, 10});
    ASSERT_TRUE(comesTrue([&] { return state().superdruck.visible; }));
    const Control& line = program.pultform.page.stripes.raster[2];
    ASSERT_TRUE(line.visible);
    click(line, {300, 0});
    EXPECT_TRUE(comesTrue([&] { return state().superdruck.caret() > 0; }));
}

TEST_F(WindowTest, LanguageChangesInTheHelpWindow) {
    QTimer answerer;
    answerer.callOnTimeout([&] {
        const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr || !box->isActiveWindow()) return;
        answerer.stop();
        hands.stroke({keys::enter});
    });
    answerer.start(10);
    whenAWindowOpens([&](QWidget& help) {
        EXPECT_EQ(help.windowTitle(), QStringLiteral("Zifferon PRO 5.0 - Hilfe"));
        EXPECT_TRUE(comesTrue([&] { return view.width() == 1; }));
        const QWidget& english = *help.findChild<QWidget*>(QStringLiteral("Command2"));
        hands.moveMouse(english.mapToGlobal(english.rect().center()));
        hands.click();
        EXPECT_TRUE(comesTrue([&] { return !answerer.isActive() && help.isActiveWindow(); }));
        pressWith(keys::alt, letterE);
    });
    const QSize size = view.size();
    const auto* const edit = view.findChild<QPushButton*>(QStringLiteral("edit"));
    EXPECT_EQ(edit->text(), QStringLiteral("&Druck/Edit"));
    pressWith(keys::alt, letterH);
    ASSERT_TRUE(comesTrue([&] { return state().language == Language::english; }));
    EXPECT_TRUE(comesTrue([&] { return view.isActiveWindow() && view.size() == size; }));
    EXPECT_EQ(edit->text(), QStringLiteral("Print / &Edit"));
    hands.stroke({keys::keypad5});
    EXPECT_TRUE(comesTrue([&] { return entry() == "5"; }));
}

}  // namespace

}  // namespace zifferon::test
