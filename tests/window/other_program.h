// Another program on the screen, with a window that can be in front, and with the rights of a task bar.
#pragma once

#include <xcb/xcb.h>

#include <QWidget>
#include <cstdint>
#include <set>

namespace zifferon::test {

class OtherProgram {
  public:
    // Its window is shown, and gets the keyboard as soon as the window manager is done.
    OtherProgram();
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    bool hasKeyboard();

    // Whether a press of that key has come to it.
    bool wasGiven(int keyCode);

    // Takes that key together with Control from all programs.
    void grabWithControl(int keyCode);

    // What the user does to a window by the task bar or the buttons of its frame.
    void minimise(const QWidget& window);
    void bringToFront(const QWidget& window);

    // What the window manager says of a window.
    bool isOnTop(const QWidget& window);
    bool isMinimised(const QWidget& window);

    // Gives a key of the keyboard another meaning, for all programs.
    void setMeaning(int keyCode, xcb_keysym_t symbol);

  private:
    xcb_atom_t atom(const char* name);
    bool propertyHolds(const QWidget& window, const char* property, std::uint32_t value);
    void askManager(const QWidget& window, const char* request, std::uint32_t what);
    void settle();

    xcb_connection_t* x_;
    xcb_window_t root_, window_;
    std::set<int> given_;
};

}  // namespace zifferon::test
