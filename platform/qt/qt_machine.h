// What the program asks of a machine, on Qt.
#pragma once

#include <chrono>

#include "platform/machine.h"
#include "platform/posix_files.h"
#include "platform/posix_system.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_printer.h"
#include "platform/qt/qt_windows.h"
#include "platform/qt/sound_player.h"

namespace zifferon {

class QtBoxes : public Boxes {
  public:
    BoxAnswer show(const Box& box) override;
};

class QtClipboard : public Clipboard {
  public:
    void clear() override;
    void setText(TextView text) override;
    Text text() const override;
};

class QtSound : public Sound {
  public:
    void beep() override;
    void play(const std::string& fileName) override { player_.play(fileName); }

  private:
    SoundPlayer player_;
};

// Tells dates as the desktop does.
class QtSystem : public PosixSystem {
  public:
    Text shortDateTime(std::chrono::system_clock::time_point moment) const override;
};

class QtProcess : public Process {
  public:
    [[noreturn]] void end() override;
    void pause(int milliseconds) override;

  private:
    std::chrono::steady_clock::time_point pauseEnd_;
};

// The current folder becomes the program folder.
class QtMachine {
    QtBoxes boxes_;
    QtClipboard clipboard_;
    QtSound sound_;
    PosixFiles files_;
    QtWindows windows_{sound_};
    QtProcess process_;
    QtSystem system_;
    QtPrinter printer_;

  public:
    QtDesktop desktop;
    Machine machine{boxes_, clipboard_, sound_, files_, windows_, process_, system_, desktop, printer_};
};

}  // namespace zifferon
