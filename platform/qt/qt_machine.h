// What the program asks of a machine, on Qt.
#pragma once

#include "platform/machine.h"

namespace zifferon {

class QtBoxes : public Boxes {
  public:
    BoxAnswer show(const Box& box) override;
};

class QtClipboard : public Clipboard {
  public:
    void clear() override;
    void setText(TextView text) override;
};

class QtSound : public Sound {
  public:
    void beep() override;
};

class QtMachine {
    QtBoxes boxes_;
    QtClipboard clipboard_;
    QtSound sound_;

  public:
    Machine machine{boxes_, clipboard_, sound_};
};

}  // namespace zifferon
