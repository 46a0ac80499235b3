// What the desktop does beside keys and mouse: the front, the tray, the hot key, and the end of the session.
#include <QApplication>
#include <QScreen>
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
        ASSERT_TRUE(comesTrue([&] { return other->hasKeyboard() && !view.isActiveWindow(); }));
    }

    void pressHotKey() { pressWith(keys::control, keys::keypadAdd); }

    bool hotKeysCome(int count) {
        return comesTrue([&] { return hotKeys == count; }, 2000);
    }

    QtDesktop& desktop = machine.desktop;
    std::optional<OtherProgram> other;
    int hotKeys = 0;
};

TEST_F(DesktopTest, HotKeyComesFromAnyProgramWhateverTheLocksSay) {
    const int capsLock = 66;
    desktop.registerHotKey();
    openAnotherProgram();
    for (const bool numLock : {true, false}) {
        hands.setNumLock(numLock);
        for (int caps = 0; caps < 2; ++caps) {
            hotKeys = 0;
            pressHotKey();
            EXPECT_TRUE(hotKeysCome(1)) << numLock << caps;
            hands.stroke({capsLock});
        }
    }
    EXPECT_FALSE(other->wasGiven(keys::keypadAdd));

    desktop.unregisterHotKey();
    pressHotKey();
    EXPECT_TRUE(comesTrue([&] { return other->wasGiven(keys::keypadAdd); }));
    EXPECT_EQ(hotKeys, 1);
}

TEST_F(DesktopTest, HeldHotKeyCountsOnceAndTypesNothing) {
    desktop.registerHotKey();
    hands.down(keys::control);
    hands.down(keys::keypadAdd);
    letPass(1000);
    hands.up(keys::keypadAdd);
    hands.up(keys::control);
    letPass(50);
    EXPECT_EQ(hotKeys, 1);
    pressHotKey();
    EXPECT_TRUE(hotKeysCome(2));
    EXPECT_EQ(tape(), "");
}

TEST_F(DesktopTest, HotKeyFollowsTheKeyboard) {
    constexpr xcb_keysym_t keypadAdd = 0xFFAB, nothing = 0;
    const int unusedKey = 248;
    desktop.registerHotKey();
    openAnotherProgram();
    other->setMeaning(keys::keypadAdd, nothing);
    other->setMeaning(unusedKey, keypadAdd);
    letPass(100);
    pressWith(keys::control, unusedKey);
    EXPECT_TRUE(hotKeysCome(1));
    other->setMeaning(keys::keypadAdd, keypadAdd);
    other->setMeaning(unusedKey, nothing);
    letPass(100);
    pressHotKey();
    EXPECT_TRUE(hotKeysCome(2));
}

TEST_F(DesktopTest, HotKeyOfAnotherProgramStaysThere) {
    openAnotherProgram();
    other->grabWithControl(keys::keypadAdd);
    desktop.registerHotKey();
    pressHotKey();
    EXPECT_TRUE(comesTrue([&] { return other->wasGiven(keys::keypadAdd); }));
    EXPECT_EQ(hotKeys, 0);
}

TEST_F(DesktopTest, HotKeyDoesNothingBehindABox) {
    desktop.registerHotKey();
    whenAWindowOpens([this](QWidget& shown) {
        pressHotKey();
        letPass(100);
        shown.close();
    });
    view.run([this] { machine.machine.boxes.show({}); });
    EXPECT_EQ(hotKeys, 0);
    pressHotKey();
    EXPECT_TRUE(hotKeysCome(1));
}

TEST_F(DesktopTest, HandlersQueueKeysForTheMainWindow) {
    desktop.registerHotKey();
    desktop.onHotKey = [this] { program.keys.queue(keyOfCharacter(u'7')); };
    pressHotKey();
    EXPECT_TRUE(comesTrue([&] { return entry() == "7"; }));
}

TEST_F(DesktopTest, StaysOnTopAsTheSameWindow) {
    openAnotherProgram();
    const WId id = view.internalWinId();
    for (const bool on : {true, false, true}) {
        window().alwaysOnTop = on;
        view.refresh();
        EXPECT_TRUE(comesTrue([&] { return other->isOnTop(view) == on; }));
        EXPECT_EQ(view.internalWinId(), id);
        EXPECT_TRUE(view.isVisible());
    }
    window().visible = false;
    view.refresh();
    letPass(100);
    window().visible = true;
    view.refresh();
    EXPECT_TRUE(comesTrue([&] { return other->isOnTop(view); }));
}

// One that the window manager has placed and a hand has moved.
TEST_F(DesktopTest, HiddenWindowComesBackWhereAHandHasMovedIt) {
    const QString id = QString::number(view.winId());
    const QPoint before = view.pos();
    QProcess::execute(QStringLiteral("wmctrl"), {QStringLiteral("-i"), QStringLiteral("-r"), id,
                                                 QStringLiteral("-e"), QStringLiteral("0,117,130,-1,-1")});
    ASSERT_TRUE(comesTrue([&] { return view.pos() != before; }));
    letPass(100);
    const QPoint moved = view.pos();
    for (int i = 0; i < 5; ++i) {
        window().visible = false;
        view.refresh();
        letPass(100);
        window().visible = true;
        view.refresh();
        ASSERT_TRUE(comesTrue([&] { return view.isActiveWindow(); }));
        letPass(100);
        EXPECT_EQ(view.pos(), moved);
    }
}

TEST_F(DesktopTest, HiddenWindowComesBackToTheFrontWhereItWas) {
    window().place.left = 300 * twipsPerPixel;
    window().place.top = 200 * twipsPerPixel;
    view.refresh();
    letPass(100);
    const QPoint position = view.pos();
    EXPECT_EQ(position, QPoint(300, 200));
    openAnotherProgram();
    window().visible = false;
    view.refresh();
    letPass(100);
    window().visible = true;
    view.refresh();
    EXPECT_TRUE(comesTrue([&] { return view.isActiveWindow(); }));
    letPass(100);
    EXPECT_EQ(view.pos(), position);
    hands.stroke({keys::keypad5});
    EXPECT_TRUE(comesTrue([&] { return entry() == "5"; }));
}

TEST_F(DesktopTest, MinimisedByTheProgramOrTheUser) {
    openAnotherProgram();
    const auto minimisedEverywhere = [&](bool minimised) {
        const bool everywhere = comesTrue([&] {
            return window().minimised == minimised && other->isMinimised(view) == minimised &&
                   view.isActiveWindow() != minimised;
        });
        letPass(100);  // a change back at once would escape the toolkit
        return everywhere;
    };
    window().minimised = true;
    view.refresh();
    EXPECT_TRUE(minimisedEverywhere(true));
    other->bringToFront(view);
    EXPECT_TRUE(minimisedEverywhere(false));
    other->minimise(view);
    EXPECT_TRUE(minimisedEverywhere(true));
    window().minimised = false;
    view.refresh();
    EXPECT_TRUE(minimisedEverywhere(false));
}

TEST_F(DesktopTest, WindowIsPlacedWhereItCanBeSeen) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const auto placedAt = [&](QPoint position) {
        window().place.left = position.x() * twipsPerPixel;
        window().place.top = position.y() * twipsPerPixel;
        view.refresh();
        letPass(100);
        EXPECT_EQ(window().place.left, view.pos().x() * twipsPerPixel);
        return view.frameGeometry();
    };
    EXPECT_TRUE(screen.contains(placedAt({5000, 4000})));
    EXPECT_TRUE(screen.contains(placedAt({-3000, -3000})));
    const QPoint mostlySeen(screen.right() - view.width() * 2 / 3, 10);
    EXPECT_EQ(placedAt(mostlySeen).topLeft(), mostlySeen);
    EXPECT_TRUE(screen.contains(placedAt({screen.right() - 200, screen.bottom() - 100})));
    window().place.width = 3000 * twipsPerPixel;
    EXPECT_EQ(placedAt({5000, 10}).topLeft(), QPoint(screen.left(), 10));
}

TEST_F(DesktopTest, MouseOverTheBareWindow) {
    int moves = 0;
    window().onMouseMove = [&] { ++moves; };
    QPoint bare;
    while (view.childAt(bare) != nullptr && bare.x() < view.width()) bare += QPoint(1, 1);
    ASSERT_EQ(view.childAt(bare), nullptr);
    hands.moveMouse(onScreen(state().rndright, {5, 5}));
    letPass(50);
    EXPECT_EQ(moves, 0);
    hands.moveMouse(view.mapToGlobal(bare));
    EXPECT_TRUE(comesTrue([&] { return moves == 1; }));
}

TEST_F(DesktopTest, SignalEndsTheSessionOnce) {
    int ends = 0;
    desktop.onSessionEnd = [&] {
        ++ends;
        std::raise(SIGHUP);
        letPass(50);
    };
    std::raise(SIGTERM);
    EXPECT_TRUE(comesTrue([&] { return ends == 1; }));
    letPass(50);
    EXPECT_EQ(ends, 1);
}

TEST_F(DesktopTest, TrayIconAndItsMenu) {
    EXPECT_FALSE(desktop.hasTray());
    TrayHost tray;
    if (!tray.start()) GTEST_SKIP() << "missing: trayer";

    std::string seen;
    desktop.onTrayDoubleClick = [&] { seen += "double "; };
    desktop.onTrayShow = [&] { seen += "show "; };
    desktop.onTrayExit = [&] { seen += "exit "; };
    desktop.addTrayIcon();
    desktop.addTrayIcon();
    letPass(500);
    const int down = 116, right = 3;
    hands.moveMouse({12, QGuiApplication::primaryScreen()->geometry().height() - 12});
    hands.click();
    letPass(500);
    EXPECT_EQ(seen, "");
    hands.click();
    hands.click();
    EXPECT_TRUE(comesTrue([&] { return seen == "double "; }, 2000)) << seen;
    const int forHands = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(100);  // each opening of the menu is a click of its own
    for (const auto& entries : {std::initializer_list<int>{down, keys::enter}, {down, down, keys::enter}}) {
        hands.click(right);
        ASSERT_TRUE(comesTrue([] { return QApplication::activePopupWidget() != nullptr; })) << seen;
        letPass(100);
        hands.stroke(entries);
        ASSERT_TRUE(comesTrue([] { return QApplication::activePopupWidget() == nullptr; }));
        hands.click();  // the toolkit keeps the first press after a menu to itself
        letPass(500);
    }
    EXPECT_TRUE(comesTrue([&] { return seen == "double show exit "; }, 2000)) << seen;
    QApplication::setDoubleClickInterval(forHands);
    hands.click(right);
    hands.click(right);
    EXPECT_TRUE(comesTrue([&] { return seen == "double show exit show "; }, 2000)) << seen;
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);

    desktop.tellFromTray(u"here");
    EXPECT_TRUE(comesTrue([] {
        const auto widgets = QApplication::topLevelWidgets();
        return std::any_of(widgets.begin(), widgets.end(), [](const QWidget* widget) {
            return widget->inherits("QBalloonTip") && widget->isVisible();
        });
    }));
    desktop.removeTrayIcon();
    desktop.removeTrayIcon();
    letPass(200);
    hands.click();
    hands.click();
    letPass(200);
    EXPECT_EQ(seen, "double show exit show ");
    tray.stop();
    EXPECT_TRUE(comesTrue([&] { return !desktop.hasTray(); }));
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
    EXPECT_TRUE(comesTrue([&] { return opened() == "zifferonpro-help_de.chm\nzifferonpro-help_de.html\n"; }));
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
