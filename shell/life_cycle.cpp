#include "shell/life_cycle.h"

#include <cmath>
#include <utility>

#include "core/number_format.h"
#include "memory/command_questions.h"
#include "shell/colour_schemes.h"
#include "shell/language.h"
#include "shell/settings_files.h"
#include "shell/write_protection.h"

namespace zifferon {

LifeCycle::LifeCycle(Pultform& window, Kopf& kopf, HelpWindow& help, KeyRoad& keys, Undo& undo,
                     CalculationRecord& record, WindowModes& modes, Machine& machine,
                     const Messages& messages)
    : window_(window),
      kopf_(kopf),
      help_(help),
      keys_(keys),
      undo_(undo),
      modes_(modes),
      machine_(machine),
      messages_(messages),
      startUp_(window.state, kopf, record, modes, machine, messages),
      s(window.state) {}

void LifeCycle::start() {
    startUp_.run();
    machine_.desktop.registerHotKey();
    show();
}

void LifeCycle::show() {
    machine_.desktop.onHotKey = [this] { hotKeyPressed(); };
    machine_.desktop.onTrayDoubleClick = machine_.desktop.onTrayShow = [this] { showFromTray(); };
    machine_.desktop.onTrayExit = [this] { askToExit(); };
    machine_.desktop.onSessionEnd = [this] { quit(pauseAfterTray); };
    window_.minitimer.onTick = [this] { minitimerTick(); };
    window_.onDismiss = [this] { closed(); };
    window_.onActivate = [this] { activated(); };
    machine_.windows.show(window_);
}

void LifeCycle::activated() {
    s.messageTicks = 0;
    if (s.checkrnd.caption.empty()) s.checkrnd.caption = u"&RND 2";
    window_.caption = programTitle;
    window_.stripes.hide();
    if (!std::exchange(firstActivateDone_, true)) firstActivation();
}

void LifeCycle::firstActivation() {
    window_.setFocus(s.eingabe);
    s.focusDeferred = false;
    queueLayoutCycle();
    undo_.emptyFolder();
    StartOptions options;
    try {
        options = readStartOptions(machine_.files);
    } catch (const FileFailure&) {
        // The window stays where the system puts it.
    }
    if (options.position) {
        window_.place.left = trayRestore_.left = options.position->left;
        window_.place.top = trayRestore_.top = options.position->top;
    }
    applySettings();
    if (options.windowMode == 2) modes_.restoreStrip();
    if (s.undoActive) beginSnapshots(options);
    // Behind the round trip through the layouts, as they were typed.
    for (const Key key : startUp_.typedAhead()) keys_.queue(key);
}

void LifeCycle::applySettings() {
    const auto scheme = [&](const std::string& file, int standard) {
        const float stored = readSetting(machine_.files, file);
        constexpr float largest = 16;  // what lies outside or between two is no scheme and changes nothing
        if (!(stored >= 0 && stored <= largest) || stored != std::floor(stored)) return 0;
        return stored == 0 ? standard : static_cast<int>(stored);
    };
    s.textColourScheme = scheme(settingsFile::textColours, standardTextScheme);
    s.backColourScheme = scheme(settingsFile::backColours, standardBackScheme);
    applyTextScheme(window_, s.textColourScheme);
    applyBackScheme(window_, help_, s.backColourScheme);
    const float mode = readSetting(machine_.files, settingsFile::format);
    s.formatMode = mode == 0 ? 1 : mode;
    applyFormatMode(s);
    s.language = readLanguage(machine_.files);
    if (s.language == Language::english) setEnglishCaptions(window_, kopf_);
}

void LifeCycle::beginSnapshots(const StartOptions& options) {
    if (options.windowMode == 1) modes_.restoreNarrow();
    if (options.minimised) {
        hideInTray();
        layoutCyclePending_ = inTray_;
    }
    undo_.begin();
    window_.placeTexterror();
    s.skipSnapshot = false;
}

// Three steps pass through all layouts back to the present one; what stays is the height for the present
// frame.
void LifeCycle::queueLayoutCycle() {
    for (int i = 0; i < 3; ++i) s.calls.SendKeysEx(u"{F2}");
}

// Who closes the window for the first time may take the program for ended.
void LifeCycle::closed() {
    hideInTray();
    if (!inTray_ || std::exchange(toldOfTray_, true)) return;
    machine_.desktop.tellFromTray(
        s.inLanguage({u"Zifferon PRO läuft hier weiter. Ein Doppelklick zeigt das Fenster wieder.",
                      u"Zifferon PRO goes on running here. A double click brings the window back."}));
}

void LifeCycle::hideInTray() {
    trayRestore_ = window_.place;
    if (inTray_) return;
    if (!machine_.desktop.hasTray()) {
        window_.minimised = true;
        return;
    }
    machine_.desktop.addTrayIcon();
    machine_.windows.hide(window_);
    inTray_ = true;
}

// A window that is seen, or that the user has minimised, stays where it is.
void LifeCycle::showFromTray() {
    const bool wasHidden = !window_.visible;
    window_.minimised = false;
    machine_.windows.show(window_);
    if (wasHidden) {
        window_.place.left = trayRestore_.left;
        window_.place.top = trayRestore_.top;
    }
    inTray_ = false;
    if (layoutCyclePending_) window_.minitimer.start(1);
}

void LifeCycle::minitimerTick() {
    if (std::exchange(layoutCyclePending_, false)) queueLayoutCycle();
    window_.minitimer.stop();
}

void LifeCycle::hotKeyPressed() {
    if (hidden()) {
        showFromTray();
        window_.minitimer.stop();
        if (std::exchange(layoutCyclePending_, false)) queueLayoutCycle();
        return;
    }
    hideInTray();
}

void LifeCycle::askToExit() {
    if (!confirmsQuit(messages_, window_.caption)) return;
    machine_.desktop.removeTrayIcon();
    quit(pauseAfterTray);
}

// The session may end while the goodbye is said.
void LifeCycle::quit(int pause) {
    if (std::exchange(quitting_, true)) return;
    machine_.desktop.endSummons();
    unload();
    machine_.clipboard.clear();
    sayGoodbye(pause);
    machine_.process.end();
}

void LifeCycle::unload() {
    machine_.desktop.unregisterHotKey();
    machine_.desktop.removeTrayIcon();
    hideInTray();
    machine_.windows.hideAll();
    machine_.desktop.removeTrayIcon();
    if (s.undoActive) undo_.emptyFolder();
}

void LifeCycle::sayGoodbye(int pause) {
    try {
        writeSingle(machine_.files, settingsFile::writeProbe, 0);
    } catch (const FileFailure&) {
        stopWriteProtected(machine_, readLanguage(machine_.files));
    }
    goodbye_ = std::make_unique<Form2>(readLanguage(machine_.files));
    machine_.windows.show(*goodbye_);
    machine_.process.pause(pause);
}

}  // namespace zifferon
