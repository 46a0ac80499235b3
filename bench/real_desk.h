// A running calculator in its real window, and hands at its keyboard.
#pragma once

#include <chrono>
#include <thread>

#include <QCoreApplication>

#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "shell/program.h"
#include "tests/window/real_input.h"

namespace zifferon {

class RealDesk {
  public:
    RealDesk() = default;
    RealDesk(const RealDesk&) = delete;
    RealDesk& operator=(const RealDesk&) = delete;

    // In the current folder, on an empty tape, or on the one that has been put into the fields before.
    void begin() {
        program.beginFresh();
        view.refresh();
        while (!view.isActiveWindow()) rest();
        for (int i = 0; i < 50; ++i) rest();
        hands.setNumLock(true);
    }

    static void rest() {
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }

    QtMachine machine;
    Program program{machine.machine};
    FormView view{program.pultform, program.keys};
    test::RealInput hands;
};

}  // namespace zifferon
