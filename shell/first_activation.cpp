#include "shell/first_activation.h"

#include <utility>

#include "core/number_format.h"

namespace zifferon {

void FirstActivation::wire() {
    p.window.onActivate = [this] { activated(); };
}

void FirstActivation::activated() {
    s.messageTicks = 0;
    if (s.checkrnd.caption.empty()) s.checkrnd.caption = u"&RND 2";
    p.window.caption = programTitle;
    p.window.page.stripes.hide();
    if (!std::exchange(done_, true)) begin();
}

void FirstActivation::begin() {
    p.window.setFocus(s.eingabe);
    p.options.focusGiven();
    p.tray.queueLayoutCycle();
    p.undo.emptyFolder();
    StartOptions options;
    try {
        options = readStartOptions(p.files);
    } catch (const FileFailure&) {
        // The window stays where the system puts it.
    }
    if (options.position) {
        p.window.place.left = options.position->left;
        p.window.place.top = options.position->top;
        p.tray.setRestorePlace(options.position->left, options.position->top);
    }
    applySettings();
    if (options.windowMode == 2) p.modes.restoreStrip();
    if (s.undoActive) beginSnapshots(options);
    // Behind the round trip through the layouts, as they were typed.
    for (const Key key : p.startUp.typedAhead()) p.keys.queue(key);
}

void FirstActivation::applySettings() {
    p.colours.restore();
    const float mode = readSetting(p.files, settingsFile::format);
    s.formatMode = mode == 0 ? 1 : mode;
    applyFormatMode(s);
    s.language = readLanguage(p.files);
    if (s.language == Language::german) return;  // as designed
    p.window.speak(s.language, false);
    p.kopf.speak(s.language, false);
}

void FirstActivation::beginSnapshots(const StartOptions& options) {
    if (options.windowMode == 1) p.modes.restoreNarrow();
    if (options.minimised) p.tray.hideAtStart();
    p.undo.begin();
    p.window.placeTexterror();
    s.skipSnapshot = false;
}

}  // namespace zifferon
