// The three sizes of the main window: the full desk, the desk without its side panel, and a strip of the
// entry lines.
#pragma once

#include "platform/system.h"
#include "shell/pultform.h"
#include "storage/settings_files.h"

namespace zifferon {

class WindowModes {
  public:
    WindowModes(Pultform& window, const System& system) : window_(window), system_(system) {}

    // 0 the full desk, 1 the narrow one, 2 the strip.
    int mode() const { return mode_; }

    // What the start has found out: whether the frames are of the newer kind, and sizes that take the place
    // of the layouts' own where they are active.
    void setFrame(bool modern, const StoredSizes& sizes) {
        modernFrame_ = modern;
        sizes_ = sizes;
    }

    bool modernFrame() const { return modernFrame_; }

    // The full desk for the frame that has been set.
    void layOutFull();

    // From the full desk to the narrow one, to the strip, and back. The caret goes to the end of the tape,
    // where it is seen, and of the entry, which ends up with the focus.
    void step();

    // The layout of a stored mode, 1 or 2, at the start.
    void restoreNarrow();
    void restoreStrip();

  private:
    void layOutNarrow();
    void layOutStrip();
    void showSidePanel(bool visible);
    void placeEntryBlock(bool strip);
    int heightCorrection(bool toStrip) const;

    Pultform& window_;
    const System& system_;
    int mode_ = 0;
    bool modernFrame_ = false;
    StoredSizes sizes_;
};

}  // namespace zifferon
