// The birds on the main window's picture: a double click lets them speak, and who holds the mouse on them
// long enough finds the riddle. Alt and B bring the keyboard there.
#pragma once

#include "adventure/secret_form.h"
#include "shell/pultform.h"

namespace zifferon {

class HotSpot {
  public:
    HotSpot(Pultform& window, SecretForm& riddle, const Messages& messages)
        : window_(window), riddle_(riddle), messages_(messages) {}

    void wire();

    int holdSeconds() const { return holdSeconds_; }

  private:
    void keyDown(int code);
    void pressed();
    void released();

    Pultform& window_;
    SecretForm& riddle_;
    const Messages& messages_;
    int holdSeconds_ = 0;
};

}  // namespace zifferon
