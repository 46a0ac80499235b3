// The desktop beside the windows, on Qt: tray, hot key, and the end of the session.
#pragma once

#include <QElapsedTimer>
#include <QMenu>
#include <QSocketNotifier>
#include <QSystemTrayIcon>
#include <QTimer>
#include <memory>

#include "platform/desktop.h"
#include "platform/qt/hot_key.h"
#include "platform/qt/portal_hot_key.h"
#include "platform/qt/session_end.h"
#include "platform/summons.h"

namespace zifferon {

class FormView;

// While a modal window or a box of the program is open, neither the hot key nor the tray does anything.
class QtDesktop : public Desktop {
  public:
    // Handlers run as those of the main window, and queue their keys there: from now on, as long as it lives.
    // A second start in the program folder is heard as well.
    void attachTo(FormView& mainWindow);

    bool hasTray() override { return QSystemTrayIcon::isSystemTrayAvailable(); }
    void addTrayIcon() override;
    void removeTrayIcon() override;
    void tellFromTray(TextView text) override;
    void registerHotKey() override;
    void unregisterHotKey() override;
    void endSummons() override;

    // The guide has a page in HTML beside it, for a desktop without a viewer for compressed help.
    void openDocument(const std::string& fileName) override;

  private:
    struct Tray {
        QMenu menu;
        QSystemTrayIcon icon;
        QElapsedTimer sinceRightClick;
        QTimer message;
    };

    void makeTray();
    void trayClicked(QSystemTrayIcon::ActivationReason reason);
    bool run(const std::function<void()>& handler);
    void runUnlessModal(const std::function<void()>& handler);
    void summoned();
    void comeForward();

    FormView* mainWindow_ = nullptr;
    std::unique_ptr<Tray> tray_;  // none before the first icon
    HotKey hotKey_{[this] { runUnlessModal(onHotKey); }};
    PortalHotKey portalHotKey_{[this] { runUnlessModal(onHotKey); }};
    Summons summons_;
    std::unique_ptr<QSocketNotifier> summonsNotifier_;
    SessionEnd sessionEnd_{[this] { return run(onSessionEnd); }};
};

}  // namespace zifferon
