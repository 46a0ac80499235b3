// What the desktop offers beside windows: the tray, a system-wide hot key, and the end of the session.
#pragma once

#include <functional>
#include <string>

#include "platform/text.h"

namespace zifferon {

class Desktop {
  public:
    virtual ~Desktop() = default;

    // Set by the program before it shows its first window. Each runs like the handler of a control.
    std::function<void()> onHotKey;           // Control and the keypad's plus, whatever window is in use
    std::function<void()> onTrayDoubleClick;  // double click on the icon
    std::function<void()> onTrayShow;         // an entry of its menu, and a second start in the folder
    std::function<void()> onTrayExit;         // the other one
    std::function<void()> onSessionEnd;       // log-off, shutdown, or a request to terminate

    // Whether there is a tray now. Without one a window is minimised instead of hidden.
    virtual bool hasTray() = 0;

    // Adding an icon that is there, and removing one that is not, does nothing.
    virtual void addTrayIcon() = 0;
    virtual void removeTrayIcon() = 0;

    // Tells something beside the icon, where the desktop shows such messages.
    virtual void tellFromTray(TextView text) = 0;

    // A key that another program holds, or a desktop that gives none, is no failure.
    virtual void registerHotKey() = 0;
    virtual void unregisterHotKey() = 0;

    // A second start waits from now on for the end of this one.
    virtual void endSummons() = 0;

    // Opens a file of the program folder, or a web page, with the program that the desktop has for it. A
    // failure is silent.
    virtual void openDocument(const std::string& target) = 0;
};

}  // namespace zifferon
