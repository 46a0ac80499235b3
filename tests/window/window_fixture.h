// A person at the real window: keys and mouse come from the screen, and what counts is what the calculator
// then holds.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QPointer>
#include <QProcess>
#include <QTimer>
#include <deque>
#include <functional>
#include <string>

#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "shell/program.h"
#include "tests/support/fresh_folder.h"
#include "tests/window/real_input.h"

namespace zifferon::test {

// Lets events pass until it holds; false when the time is over before.
bool comesTrue(const std::function<bool()>& condition, int milliseconds = 10000);

#define EXPECT_SOON(...) EXPECT_TRUE(comesTrue([&] { return __VA_ARGS__; }))
#define ASSERT_SOON(...) ASSERT_TRUE(comesTrue([&] { return __VA_ARGS__; }))
#define EXPECT_BECOMES(found, wanted) \
    EXPECT_EQ((comesTrue([&] { return (found) == (wanted); }), found), wanted)

void letPass(int milliseconds);

// Runs another program, and gives what it prints.
QByteArray outputOf(const QString& command);

// An empty program folder, and the current one.
class CurrentFolder : public FreshFolder {
  public:
    CurrentFolder() { QDir::setCurrent(QString::fromStdString(path())); }
    ~CurrentFolder() { QDir::setCurrent(QDir::rootPath()); }
};

// Starts a tray in the left lower corner of the screen, and waits until Qt knows it; false where none is
// installed. It goes with the process.
bool startTray(QProcess& host);

class WindowTest : public ::testing::Test {
  protected:
    void SetUp() override;

    CalculatorState& state() { return program.pultform.state; }
    PageControls& page() { return program.pultform.page; }
    std::string entry() { return toUtf8(state().eingabe.text()); }
    std::string tape() { return toUtf8(state().anzeige.text()); }
    const Control* focus() { return program.pultform.focus(); }
    static bool menuIsOpen() { return QApplication::activePopupWidget() != nullptr; }

    template <class Widget = QWidget>
    const Widget& widget(const char* name) {
        return *view.findChild<Widget*>(QLatin1String(name));
    }

    // Takes the window from the screen, or brings it back to the front.
    void setVisible(bool visible);

    // The point of the screen at an offset in pixels from the left and top of a control.
    QPoint onScreen(const Control& control, QPoint offset);
    void clickAt(QPoint point, int button = 1);
    void click(const Control& control, QPoint offset, int button = 1);

    // Lets `person` act once when one more window of the program has the keyboard. Those who were called
    // before act first, on a window each.
    void whenAWindowOpens(const std::function<void(QWidget&)>& person);
    bool allHaveActed() const { return persons.empty(); }

    std::function<void(QWidget&)> pressing(int key) {
        return [this, key](QWidget&) { hands.stroke({key}); };
    }

    CurrentFolder folder;
    QtMachine machine;
    Program program{machine.machine};
    FormView view{program.pultform, program.keys};
    RealInput hands;

  private:
    void watch();

    QTimer watching;
    std::deque<std::function<void(QWidget&)>> persons;
    QPointer<QWidget> lastOpened;
};

}  // namespace zifferon::test
