#include "shell/window_modes.h"

namespace zifferon {

namespace {

constexpr int fullWidth = 8205, fullHeight = 8085;
constexpr int narrowWidth = 5760;
constexpr int stripWidth = 5735, stripHeight = 1950;
constexpr int stripIsLowerBy = 6135;

void moveTo(Control& control, int left, int top) {
    control.place.left = left;
    control.place.top = top;
}

}  // namespace

void WindowModes::step() {
    CalculatorState& s = window_.state;
    switch (mode_) {
        case 0:
            layOutNarrow();
            mode_ = 1;
            break;
        case 1:
            layOutStrip();
            mode_ = 2;
            break;
        default:
            layOutFull();
            mode_ = 0;
    }
    if (s.anzeige.visible) s.anzeige.caretToEnd();
    s.eingabe.caretToEnd();
    s.calls->focusEntry();
}

void WindowModes::restoreNarrow() {
    layOutNarrow();
    mode_ = 1;
}

void WindowModes::restoreStrip() {
    layOutStrip();
    if (sizes_.active != 0) window_.place.height = sizes_.height - stripIsLowerBy;
    mode_ = 2;
}

void WindowModes::layOutFull() {
    window_.place.width = sizes_.active != 0 ? sizes_.width : fullWidth;
    window_.place.height = fullHeight + heightCorrection(false);
    window_.state.anzeige.visible = true;
    showSidePanel(true);
    window_.page.edit.enabled = true;
    placeEntryBlock(false);
    window_.Command3.visible = false;
}

void WindowModes::layOutNarrow() {
    window_.place.width = narrowWidth;
    if (sizes_.active != 0) window_.place.height = sizes_.height;
    window_.state.anzeige.visible = true;
    showSidePanel(false);
    window_.page.edit.enabled = false;
    moveTo(window_.Command3, 4995, 6995);
}

void WindowModes::layOutStrip() {
    window_.place.width = stripWidth;
    window_.place.height = stripHeight + heightCorrection(true);
    window_.state.anzeige.visible = false;
    showSidePanel(true);  // it lies outside the strip
    window_.page.edit.enabled = false;
    placeEntryBlock(true);
    window_.Command3.visible = false;
}

void WindowModes::showSidePanel(bool visible) {
    window_.Picture1.visible = window_.Frame2.visible = window_.Frame3.visible = visible;
}

void WindowModes::placeEntryBlock(bool strip) {
    CalculatorState& s = window_.state;
    moveTo(window_.Frame1, strip ? 100 : 120, strip ? 20 : 6120);
    window_.Frame4.place.top = strip ? 340 : 6340;
    moveTo(s.zwischen, strip ? 280 : 300, strip ? 295 : 6405);
    moveTo(s.eingabe, strip ? 280 : 300, strip ? 850 : 6960);
    moveTo(s.txtop, strip ? 4945 : 4970, strip ? 850 : 6960);
    moveTo(window_.Command3, strip ? 4975 : 4995, strip ? 885 : 6995);
    moveTo(s.spezrnd, strip ? 5340 : 1950, strip ? 1090 : 5812);
    window_.placeTexterror();
}

// Twips for a caption of another height than the designed 19 pixels, and for the newer frames.
int WindowModes::heightCorrection(bool toStrip) const {
    const std::string name = system_.GetSystemName();
    const bool oldFrame = !modernFrame_ || name == "Windows NT" || (toStrip && name == "Windows XP");
    return (system_.captionHeight() - 19) * 17 - (oldFrame ? 0 : 10);
}

}  // namespace zifferon
