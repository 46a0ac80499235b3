// The windows around the calculator, as a person meets them: loading window and help window.
#include <QPushButton>
#include <QScreen>

#include "shell/required_files.h"
#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

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
    void typeFromTheBeginning(const std::function<void()>& type, int times = 1) {
        typist.callOnTimeout([this, type, times] {
            if (typed == 0 && QApplication::activeWindow() == nullptr) return;
            type();
            if (++typed == times) typist.stop();
        });
        typist.start(10);
    }

    void additionsFromTheBeginningAllCome() {
        constexpr int additions = 250;
        typeFromTheBeginning([&] { hands.stroke({keys::keypad7, keys::keypadAdd}); }, additions);
        program.start();
        EXPECT_GT(typed, 0);
        EXPECT_BECOMES(std::ranges::count(state().anzeige.text(), u'\n'), additions);
        EXPECT_SOON(view.isActiveWindow());
    }

    static bool mainWindowIsAlone() { return FormView::all().size() == 1; }

    QTimer typist;
    int typed = 0;
};

TEST_F(StartTest, NoKeyIsLostBetweenTheWindows) {
    additionsFromTheBeginningAllCome();
    const QPoint middle = QGuiApplication::primaryScreen()->availableGeometry().center();
    EXPECT_LT((view.frameGeometry().center() - middle).manhattanLength(), 40);
}

// As on a busy desktop, which is slow to give the main window the keyboard.
TEST_F(StartTest, NoKeyIsLostWhileTheMainWindowWaitsForTheKeyboard) {
    view.setAttribute(Qt::WA_ShowWithoutActivating);
    additionsFromTheBeginningAllCome();
}

TEST_F(StartTest, ADesktopThatKeepsTheKeyboardIsNotWaitedFor) {
    view.setAttribute(Qt::WA_ShowWithoutActivating);
    program.start();
    EXPECT_TRUE(comesTrue([&] { return mainWindowIsAlone() && !program.pultform.caption.empty(); }, 1500));
    EXPECT_TRUE(view.isVisible());
}

TEST_F(StartTest, AMessageBeforeTheFirstShowingCloses) {
    QProcess tray;
    if (!startTray(tray)) GTEST_SKIP() << "missing: trayer";
    folder.put("winstate.dat", fromHex("04 00 00 00 00 00 04 00 00 00 00 00 02 00 00 00 02 00 01 00"));
    typeFromTheBeginning([&] { hands.stroke({keys::right}); });
    whenAWindowOpens([&](QWidget& message) {
        EXPECT_EQ(message.objectName(), QStringLiteral("message"));
        hands.stroke({keys::enter});
    });
    program.start();
    ASSERT_SOON(allHaveActed() && mainWindowIsAlone());
    EXPECT_FALSE(view.isVisible());
    machine.desktop.onTrayDoubleClick();
    FormView::refreshAll();
    ASSERT_SOON(view.isActiveWindow());
    hands.stroke({keys::keypad7});
    EXPECT_BECOMES(entry(), "7");
}

TEST_F(StartTest, AKeyTypedAheadOpensItsBoxOverTheMainWindow) {
    typeFromTheBeginning([&] { hands.stroke({keys::f10}); });
    whenAWindowOpens([&](QWidget& box) {
        EXPECT_EQ(box.parentWidget()->objectName(), QStringLiteral("Pultform"));
        EXPECT_SOON(mainWindowIsAlone());
        hands.stroke({keys::escape});
    });
    program.start();
    ASSERT_SOON(allHaveActed() && view.isActiveWindow());
    hands.stroke({keys::keypad7});
    EXPECT_BECOMES(entry(), "7");
}

TEST_F(WindowTest, LanguageChangesInTheHelpWindow) {
    whenAWindowOpens([&](QWidget& help) {
        EXPECT_EQ(help.windowTitle(), QStringLiteral("Zifferon PRO 5.0 - Hilfe"));
        EXPECT_SOON(view.width() == 1);
        const QWidget& english = *help.findChild<QWidget*>(QStringLiteral("Command2"));
        clickAt(english.mapToGlobal(english.rect().center()));
        EXPECT_SOON(allHaveActed() && help.isActiveWindow());
        hands.strokeWith(keys::alt, {keys::letterE});
    });
    whenAWindowOpens(pressing(keys::enter));
    const QSize size = view.size();
    const auto& edit = widget<QPushButton>("edit");
    EXPECT_EQ(edit.text(), QStringLiteral("&Druck/Edit"));
    hands.strokeWith(keys::alt, {keys::letterH});
    ASSERT_SOON(state().language == Language::english);
    EXPECT_SOON(view.isActiveWindow() && view.size() == size);
    EXPECT_EQ(edit.text(), QStringLiteral("Print / &Edit"));
    hands.stroke({keys::keypad5});
    EXPECT_BECOMES(entry(), "5");
}

}  // namespace

}  // namespace zifferon::test
