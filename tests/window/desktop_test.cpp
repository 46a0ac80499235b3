// What the desktop does beside keys and mouse: the front, the tray, the hot key, and the end of the session.
#include <QScreen>
#include <QWindow>
#include <csignal>
#include <optional>

#include "tests/window/other_program.h"
#include "tests/window/window_fixture.h"

namespace zifferon::test {

namespace {

class DesktopTest : public WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        desktop.attachTo(view);
        desktop.onHotKey = [this] { ++hotKeys; };
    }

    Pultform& window() { return program.pultform; }

    void openAnotherProgram() {
        other.emplace();
        ASSERT_SOON(other->hasKeyboard() && !view.isActiveWindow());
    }

    void pressHotKey() { hands.strokeWith(keys::control, {keys::keypadAdd}); }

    QByteArray outputWithId(const char* command) {
        return outputOf(QString::fromLatin1(command).arg(view.windowHandle()->winId()));
    }

    // What the window manager says of the window: ABOVE, HIDDEN.
    bool stands(const char* state) { return outputWithId("xprop -id %1 _NET_WM_STATE").contains(state); }

    // The frame of the window that was told to stand there, in pixels.
    QRect placedAt(QPoint position) {
        window().place.left = position.x() * twipsPerPixel;
        window().place.top = position.y() * twipsPerPixel;
        view.refresh();
        letPass(100);
        EXPECT_EQ(window().place.left, view.pos().x() * twipsPerPixel);
        return view.frameGeometry();
    }

    QtDesktop& desktop = machine.desktop;
    std::optional<OtherProgram> other;
    int hotKeys = 0;
};

TEST_F(DesktopTest, HotKeyComesOnceFromAnyProgramWhateverTheKeyboardIsLike) {
    desktop.registerHotKey();
    hands.down(keys::control);
    hands.down(keys::keypadAdd);
    letPass(1000);  // the keyboard repeats it
    hands.up(keys::keypadAdd);
    hands.up(keys::control);
    letPass(50);
    EXPECT_EQ(std::exchange(hotKeys, 0), 1);
    EXPECT_EQ(tape(), "");

    openAnotherProgram();
    for (const bool numLock : {true, false}) {
        hands.setNumLock(numLock);
        for (int caps = 0; caps < 2; ++caps) {
            pressHotKey();
            EXPECT_BECOMES(hotKeys, 1) << numLock << caps;
            hotKeys = 0;
            hands.stroke({keys::capsLock});
        }
    }
    EXPECT_EQ(other->timesGiven(keys::keypadAdd), 0);

    constexpr xcb_keysym_t keypadAdd = 0xFFAB, nothing = 0;
    const int unusedKey = 248;
    other->setMeaning(keys::keypadAdd, nothing);
    other->setMeaning(unusedKey, keypadAdd);
    letPass(100);
    hands.strokeWith(keys::control, {unusedKey});
    EXPECT_BECOMES(hotKeys, 1);
    other->setMeaning(keys::keypadAdd, keypadAdd);
    other->setMeaning(unusedKey, nothing);
    letPass(100);
    pressHotKey();
    EXPECT_BECOMES(hotKeys, 2);

    desktop.unregisterHotKey();
    pressHotKey();
    EXPECT_BECOMES(other->timesGiven(keys::keypadAdd), 1);
    other->grab(keys::keypadAdd);
    desktop.registerHotKey();
    pressHotKey();
    EXPECT_BECOMES(other->timesGiven(keys::keypadAdd), 2);
    EXPECT_EQ(hotKeys, 2);
}

TEST_F(DesktopTest, HotKeyDoesNothingBehindABoxAndMayTypeIntoTheWindow) {
    desktop.registerHotKey();
    desktop.onHotKey = [this] { program.keys.queue(keyOfCharacter(u'7')); };
    whenAWindowOpens([this](QWidget& shown) {
        pressHotKey();
        letPass(100);
        shown.close();
    });
    view.run([this] { machine.machine.boxes.show({}); });
    EXPECT_EQ(entry(), "");
    pressHotKey();
    EXPECT_BECOMES(entry(), "7");
}

TEST_F(DesktopTest, StaysOnTopAsTheSameWindow) {
    openAnotherProgram();
    const WId id = view.internalWinId();
    for (const bool on : {true, false, true}) {
        window().alwaysOnTop = on;
        view.refresh();
        EXPECT_SOON(stands("ABOVE") == on);
        EXPECT_EQ(view.internalWinId(), id);
        EXPECT_TRUE(view.isVisible());
    }
    setVisible(false);
    setVisible(true);
    EXPECT_SOON(stands("ABOVE"));
}

TEST_F(DesktopTest, HiddenWindowComesBackToTheFrontWhereItWas) {
    const QPoint before = view.pos();  // where the window manager has placed it
    outputWithId("wmctrl -i -r %1 -e 0,117,130,-1,-1");
    ASSERT_SOON(view.pos() != before);
    letPass(100);
    const QPoint moved = view.pos();
    for (int i = 0; i < 5; ++i) {
        setVisible(false);
        setVisible(true);
        EXPECT_EQ(view.pos(), moved);
    }
    placedAt({300, 200});
    openAnotherProgram();
    setVisible(false);
    setVisible(true);
    EXPECT_EQ(view.pos(), QPoint(300, 200));
    hands.stroke({keys::keypad5});
    EXPECT_BECOMES(entry(), "5");
}

TEST_F(DesktopTest, MinimisedByTheProgramOrTheUser) {
    openAnotherProgram();
    placedAt({100, 120});
    const auto minimisedEverywhere = [&](bool minimised) {
        EXPECT_SOON(window().minimised == minimised && view.isActiveWindow() != minimised &&
                    stands("HIDDEN") == minimised);
        letPass(100);  // a change back at once would escape the toolkit
        EXPECT_TRUE(minimised || view.pos() == QPoint(100, 120));
    };
    window().minimised = true;
    view.refresh();
    minimisedEverywhere(true);
    outputWithId("xdotool windowactivate %1");
    minimisedEverywhere(false);
    outputWithId("xdotool windowminimize %1");
    minimisedEverywhere(true);
    window().minimised = false;
    view.refresh();
    minimisedEverywhere(false);
}

TEST_F(DesktopTest, WindowIsPlacedWhereItCanBeSeen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_TRUE(screen.contains(placedAt({5000, 4000})));
    EXPECT_TRUE(screen.contains(placedAt({-3000, -3000})));
    const QPoint mostlySeen(screen.right() - view.width() * 2 / 3, 10);
    EXPECT_EQ(placedAt(mostlySeen).topLeft(), mostlySeen);
    EXPECT_TRUE(screen.contains(placedAt({screen.right() - 200, screen.bottom() - 100})));
    window().place.width = 3000 * twipsPerPixel;
    EXPECT_EQ(placedAt({5000, 10}).topLeft(), QPoint(screen.left(), 10));
}

TEST_F(DesktopTest, SignalEndsTheSessionOnce) {
    int ends = 0;
    desktop.onSessionEnd = [&] {
        ++ends;
        std::raise(SIGHUP);
        letPass(50);
    };
    std::raise(SIGTERM);
    EXPECT_BECOMES(ends, 1);
    letPass(50);
    EXPECT_EQ(ends, 1);
}

TEST_F(DesktopTest, TrayIconAndItsMenu) {
    EXPECT_FALSE(desktop.hasTray());
    QProcess tray;
    if (!startTray(tray)) GTEST_SKIP() << "missing: trayer";

    std::string seen;
    desktop.onTrayDoubleClick = [&] { seen += "double "; };
    desktop.onTrayShow = [&] { seen += "show "; };
    desktop.onTrayExit = [&] { seen += "exit "; };
    desktop.addTrayIcon();
    desktop.addTrayIcon();
    letPass(500);
    clickAt({12, QGuiApplication::primaryScreen()->geometry().height() - 12});
    letPass(500);
    EXPECT_EQ(seen, "");
    hands.click();
    hands.click();
    EXPECT_BECOMES(seen, "double ");
    const int forHands = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(100);  // each opening of the menu is a click of its own
    for (const int entry : {1, 2}) {
        hands.click(rightButton);
        ASSERT_SOON(menuIsOpen()) << seen;
        letPass(100);
        for (int i = 0; i < entry; ++i) hands.stroke({keys::down});
        hands.stroke({keys::enter});
        ASSERT_SOON(!menuIsOpen());
        hands.click();  // the toolkit keeps the first press after a menu to itself
        letPass(500);
    }
    EXPECT_EQ(seen, "double show exit ");
    QApplication::setDoubleClickInterval(forHands);
    hands.click(rightButton);
    hands.click(rightButton);
    EXPECT_BECOMES(seen, "double show exit show ");
    EXPECT_FALSE(menuIsOpen());

    desktop.tellFromTray(u"here");
    const auto isBalloon = [](const QWidget* widget) {
        return widget->inherits("QBalloonTip") && widget->isVisible();
    };
    EXPECT_SOON(std::ranges::any_of(QApplication::topLevelWidgets(), isBalloon));
    desktop.removeTrayIcon();
    desktop.removeTrayIcon();
    letPass(200);
    hands.click();
    hands.click();
    letPass(200);
    EXPECT_EQ(seen, "double show exit show ");
    tray.terminate();
    EXPECT_SOON(!desktop.hasTray());
}

// Where nothing shows compressed help the same pages are shown as HTML; a page of the web has no second form,
// and where nothing opens anything, nothing is told.
TEST_F(DesktopTest, TheGuideIsShownByWhateverThereIs) {
    folder.put("xdg-open",
               "#!/bin/sh\necho \"$1\" >>\"$0.opened\"\ncase $1 in *.chm | http*) exit 3 ;; esac\n");
    QFile::setPermissions(QStringLiteral("xdg-open"), QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(folder.path()) + ':' + path);
    const auto opened = [this] { return folder.bytes("xdg-open.opened"); };
    view.run([this] { state().calls->openHelp(); });
    EXPECT_BECOMES(opened(), "zifferonpro-help_de.chm\nzifferonpro-help_de.html\n");
    desktop.openDocument("https://www.zifferon-pro.example/");
    letPass(300);
    EXPECT_TRUE(opened().ends_with("html\nhttps://www.zifferon-pro.example/\n"));
    qputenv("PATH", "");
    desktop.openDocument("zifferonpro-help_de.chm");
    letPass(100);
    qputenv("PATH", path);
}

}  // namespace

}  // namespace zifferon::test
