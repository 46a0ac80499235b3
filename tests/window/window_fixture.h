// A person at the real window: keys and mouse come from the screen, and what counts is what the calculator
// then holds.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTimer>
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

void letPass(int milliseconds);

// An empty program folder, and the current one.
class CurrentFolder : public FreshFolder {
  public:
    CurrentFolder() { QDir::setCurrent(QString::fromStdString(path())); }
    ~CurrentFolder() { QDir::setCurrent(QDir::rootPath()); }
};

// A tray in the left lower corner of the screen, while it lives.
class TrayHost {
  public:
    ~TrayHost() { stop(); }

    // False where none is installed; else it is there, and Qt knows it.
    bool start();
    void stop();

  private:
    QProcess process_;
};

class WindowTest : public ::testing::Test {
  protected:
    void SetUp() override;

    CalculatorState& state() { return program.pultform.state; }
    std::string entry() { return toUtf8(state().eingabe.text()); }
    std::string tape() { return toUtf8(state().anzeige.text()); }

    // A key of the keyboard with another held down.
    void pressWith(int modifier, int key);

    // The point of the screen at an offset in pixels from the left and top of a control.
    QPoint onScreen(const Control& control, QPoint offset);
    void click(const Control& control, QPoint offset, int button = 1);

    // Lets `person` act once when another window of the program has the keyboard.
    void whenAWindowOpens(const std::function<void(QWidget&)>& person);

    std::function<void(QWidget&)> pressing(int key) {
        return [this, key](QWidget&) { hands.stroke({key}); };
    }

    CurrentFolder folder;
    QtMachine machine;
    Program program{machine.machine};
    FormView view{program.pultform, program.keys};
    RealInput hands;
    QTimer watch;
};

}  // namespace zifferon::test
