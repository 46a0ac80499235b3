// make_sounds FOLDER: makes the sounds of the machine, each a wave file in that folder.
#include <cstdio>
#include <exception>
#include <string>

#include "data/sounds/synth.h"

using namespace zifferon::sounds;

namespace {

// What the machine is built of.
const Body typeBar{{{2150, 0.006, 1.0}, {3480, 0.004, 0.7}, {5200, 0.002, 0.4}}, 0.9};
const Body platen{{{185, 0.030, 1.0}, {410, 0.016, 0.6}, {960, 0.008, 0.3}}, 0.5};
const Body frame{{{96, 0.045, 1.0}, {240, 0.028, 0.7}, {620, 0.012, 0.4}}, 0.35};
const Body ratchet{{{2900, 0.004, 0.8}, {4300, 0.003, 0.6}}, 0.5};
const Body lever{{{720, 0.014, 0.8}, {1650, 0.009, 0.8}, {3900, 0.004, 0.5}}, 0.8};
const Body wood{{{520, 0.020, 1.0}, {1130, 0.011, 0.6}, {2370, 0.005, 0.3}}, 0.4};

// The type bars go up one after another and hit the platen through ribbon and paper.
void printLine(Track& track, double at, int bars, double level) {
    for (int bar = 0; bar < bars; ++bar) {
        const double moment = at + 0.017 * bar + (bar % 3 == 1 ? 0.004 : 0);
        track.strike(moment, level, typeBar);
        track.strike(moment + 0.003, 0.6 * level, platen);
    }
}

// The paper moves up; a pawl clicks over the teeth of the platen's wheel.
void feedPaper(Track& track, double at, int teeth, double level) {
    constexpr double toothTime = 0.021;
    track.rub(at, toothTime * teeth, 0.5 * level, {2600, 3300}, 0.3);
    for (int tooth = 0; tooth < teeth; ++tooth) track.strike(at + toothTime * tooth, level, ratchet);
}

Track line() {
    Track track(0.27);
    track.strike(0, 0.35, lever);
    printLine(track, 0.02, 5, 0.7);
    track.strike(0.118, 1.0, platen);
    track.strike(0.121, 0.6, frame);
    feedPaper(track, 0.150, 3, 0.25);
    return track;
}

Track total() {
    Track track(0.85);
    track.turn(0, 0.75, 0.10, {55, 45});
    track.strike(0, 0.6, lever);
    track.strike(0.012, 0.9, frame);
    printLine(track, 0.05, 8, 0.8);
    track.strike(0.195, 1.0, platen);
    track.strike(0.199, 1.0, frame);
    printLine(track, 0.30, 6, 0.9);
    track.strike(0.415, 1.2, platen);
    track.strike(0.419, 1.2, frame);
    feedPaper(track, 0.475, 11, 0.35);
    track.strike(0.720, 0.7, frame);
    track.strike(0.724, 0.4, lever);
    return track;
}

Track motorStart() {
    Track track(1.25);
    track.strike(0, 1.0, lever);
    track.strike(0.02, 0.5, frame);
    track.turn(0.03, 1.15, 0.45, {12, 62});
    track.rub(0.05, 1.0, 0.10, {900, 2600}, 0.7);
    track.strike(0.97, 0.8, lever);
    track.strike(0.98, 0.8, frame);
    track.strike(1.01, 0.3, ratchet);
    return track;
}

Track leverMoved() {
    Track track(0.24);
    track.strike(0, 0.3, ratchet);
    track.rub(0.005, 0.06, 0.4, {1200, 2600}, 0.8);
    track.strike(0.068, 1.0, lever);
    track.strike(0.071, 0.7, frame);
    track.strike(0.105, 0.2, lever);
    return track;
}

Track pieceSnapped() {
    Track track(0.24);
    track.rub(0, 0.045, 0.2, {700, 1500}, 0.8);
    track.strike(0.045, 1.0, wood);
    track.strike(0.062, 0.45, wood);
    track.strike(0.063, 0.3, lever);
    return track;
}

// Fibre after fibre gives way along the edge of the printer, faster and faster.
Track paperTorn() {
    Track track(0.62);
    track.rub(0, 0.08, 0.25, {1500, 2200}, 0.5);
    Noise fibres;
    double moment = 0.07;
    for (double gap = 0.011; moment < 0.43; gap *= 0.985) {
        const double part = (moment - 0.07) / 0.36;
        track.rub(moment, 0.020, 0.5 + 0.4 * part + 0.25 * fibres.next(), {2100 + 900 * part, 1500}, 0.08);
        moment += gap * (1 + 0.5 * fibres.next());
    }
    track.rub(0.06, 0.42, 0.35, {1900, 3200}, 0.85);
    track.rub(0.44, 0.12, 0.6, {3000, 1200}, 0.03);
    track.strike(0.445, 0.12, wood);
    return track;
}

// The carriage gathers speed over its rack, and hits the stop.
Track carriageBack() {
    Track track(0.72);
    track.strike(0, 0.5, lever);
    track.rub(0.02, 0.47, 0.30, {700, 2400}, 0.85);
    double moment = 0.03;
    for (double gap = 0.034; moment < 0.48; gap = gap * 0.94 + 0.0006) {
        track.strike(moment, 0.45 + 0.5 * moment, ratchet);
        moment += gap;
    }
    track.strike(0.49, 0.8, frame);
    track.strike(0.492, 0.5, lever);
    track.strike(0.545, 0.3, frame);
    track.strike(0.585, 0.1, lever);
    return track;
}

void write(const std::string& folder, const char* name, const Track& track) {
    writeWave(folder + '/' + name, track.finished());
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fputs("make_sounds FOLDER\n", stderr);
        return 2;
    }
    try {
        const std::string folder = arguments[1];
        write(folder, "rattle1.wav", line());
        write(folder, "rattle2.wav", total());
        write(folder, "start.wav", motorStart());
        write(folder, "switch.wav", leverMoved());
        write(folder, "switch2.wav", pieceSnapped());
        write(folder, "trash.wav", paperTorn());
        write(folder, "undo.wav", carriageBack());
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "make_sounds: %s\n", failure.what());
        return 1;
    }
    return 0;
}
