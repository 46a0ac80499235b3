// Everything that the logic asks of a machine beside its windows and timers.
#pragma once

#include "platform/boxes.h"
#include "platform/text.h"

namespace zifferon {

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void clear() = 0;
    virtual void setText(TextView text) = 0;
};

class Sound {
  public:
    virtual ~Sound() = default;
    virtual void beep() = 0;
};

struct Machine {
    Boxes& boxes;
    Clipboard& clipboard;
    Sound& sound;
};

}  // namespace zifferon
