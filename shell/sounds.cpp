#include "shell/sounds.h"

#include <utility>

namespace zifferon {

namespace {

constexpr int beforeStartSound = 10;  // milliseconds

}  // namespace

void Sounds::wire() {
    window_.Timer2.onTick = [this] { playStart(); };
}

void Sounds::tapeChanged() {
    if (!s.Checksound.ticked()) return;
    if (s.keySound == 5) return sound_.play("undo.wav");
    if (s.anzeige.empty()) return sound_.play("trash.wav");
    sound_.play(s.keySound == 0 ? "rattle1.wav" : "rattle2.wav");
}

void Sounds::sizeChanged() {
    if (s.Checksound.ticked()) sound_.play("switch.wav");
}

void Sounds::entryFocused() {
    if (!startDone_) window_.Timer2.start(beforeStartSound);
}

void Sounds::playStart() {
    window_.Timer2.stop();
    if (std::exchange(startDone_, true) || !s.Checksound.ticked() || !window_.visible) return;
    sound_.play("start.wav");
}

}  // namespace zifferon
