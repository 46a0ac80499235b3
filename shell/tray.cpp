#include "shell/tray.h"

#include <utility>

namespace zifferon {

void Tray::wire() {
    machine_.desktop.onHotKey = [this] { hotKeyPressed(); };
    machine_.desktop.onTrayDoubleClick = machine_.desktop.onTrayShow = [this] { show(); };
    window_.minitimer.onTick = [this] { minitimerTick(); };
    window_.onDismiss = [this] { closed(); };
}

void Tray::queueLayoutCycle() {
    for (int i = 0; i < 3; ++i) s.calls->SendKeysEx(u"{F2}");
}

void Tray::setRestorePlace(int left, int top) {
    restorePlace_.left = left;
    restorePlace_.top = top;
}

// Who closes the window for the first time may take the program for ended.
void Tray::closed() {
    hide();
    if (!inTray_ || std::exchange(told_, true)) return;
    machine_.desktop.tellFromTray(
        s.inLanguage({u"Zifferon PRO läuft hier weiter. Ein Doppelklick zeigt das Fenster wieder.",
                      u"Zifferon PRO goes on running here. A double click brings the window back."}));
}

void Tray::hide() {
    riddle_.unload();
    restorePlace_ = window_.place;
    if (inTray_) return;
    if (!machine_.desktop.hasTray()) {
        window_.minimised = true;
        return;
    }
    machine_.desktop.addTrayIcon();
    machine_.windows.hide(window_);
    inTray_ = true;
}

void Tray::hideAtStart() {
    hide();
    layoutCyclePending_ = inTray_;
}

// A window that is seen, that the user has minimised, or that the riddle has hidden, stays where it is.
void Tray::show() {
    const bool comesFromTray = inTray_ && !window_.visible;
    window_.minimised = false;
    machine_.windows.show(window_);
    if (comesFromTray) {
        window_.place.left = restorePlace_.left;
        window_.place.top = restorePlace_.top;
    }
    inTray_ = false;
    if (layoutCyclePending_) window_.minitimer.start(1);
}

void Tray::minitimerTick() {
    if (std::exchange(layoutCyclePending_, false)) queueLayoutCycle();
    window_.minitimer.stop();
}

void Tray::hotKeyPressed() {
    if (!hidden()) return hide();
    show();
    minitimerTick();
}

}  // namespace zifferon
