// What becomes of the main window when it comes into use, and when it does for the first time.
#pragma once

#include "memory/undo.h"
#include "platform/key_road.h"
#include "print/kopf.h"
#include "shell/colours.h"
#include "shell/option_boxes.h"
#include "shell/start_up.h"
#include "shell/tray.h"
#include "shell/window_modes.h"
#include "storage/settings_files.h"

namespace zifferon {

class FirstActivation {
  public:
    // What the start has left to it.
    struct Parts {
        Pultform& window;
        Kopf& kopf;
        KeyRoad& keys;
        Undo& undo;
        WindowModes& modes;
        Colours& colours;
        OptionBoxes& options;
        StartUp& startUp;
        Tray& tray;
        Files& files;
    };
    explicit FirstActivation(const Parts& parts) : p(parts), s(parts.window.state) {}

    void wire();

    // Of a calculator that stands without a start: what comes the first time only is done.
    void skip() { done_ = true; }
    bool done() const { return done_; }

  private:
    void activated();
    void begin();
    void applySettings();
    void beginSnapshots(const StartOptions& options);

    const Parts p;
    CalculatorState& s;
    bool done_ = false;
};

}  // namespace zifferon
