// Control and the keypad's plus in a Wayland session, where only the desktop's portal hands out such keys.
#pragma once

#include <QPointer>
#include <functional>

namespace zifferon {

class PortalSession;

class PortalHotKey {
  public:
    // `pressed` runs once for each press that the portal tells. Needs the application.
    explicit PortalHotKey(std::function<void()> pressed);
    ~PortalHotKey();
    PortalHotKey(const PortalHotKey&) = delete;
    PortalHotKey& operator=(const PortalHotKey&) = delete;

    // Asks for the key; gives it back. Neither waits for an answer: the key comes when the portal grants it,
    // which may be after a question to the user. Where there is no portal, or it refuses or takes the key
    // back, the key does not come; that is no failure. The session bus is not used before the first grab.
    void grab();
    void release();

  private:
    std::function<void()> pressed_;
    QPointer<PortalSession> session_;  // null where none is asked for, or the portal has ended it
};

}  // namespace zifferon
