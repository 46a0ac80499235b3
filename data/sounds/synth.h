// A small workshop for the noises of a machine: things that are struck, rubbed and turned.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zifferon::sounds {

constexpr int sampleRate = 22050;  // Hz

// One way in which a body rings.
struct Partial {
    double frequency;  // Hz
    double decay;      // seconds until it has sunk to a third
    double level;
};

// Something that can be struck: how it rings, and how hard its surface is.
struct Body {
    std::vector<Partial> partials;
    double contact;  // level of the noise of the contact itself
};

// A glide from one value to another.
struct Glide {
    double from;
    double to;

    double at(double part) const { return from + (to - from) * part; }  // part from 0 to 1
};

// Numbers from -1 to 1 in an order that only looks random: the same on every machine and in every build.
class Noise {
    std::uint32_t state_ = 0x5eed;

  public:
    double next();
};

// A recording under way. All moments and lengths are seconds; levels only count against one another.
class Track {
  public:
    explicit Track(double seconds);

    // A blow on a body. No two blows are quite alike.
    void strike(double at, double level, const Body& body);

    // Noise around a frequency, as of things that rub; it swells for `attack` of its length, then dies away.
    void rub(double at, double seconds, double level, Glide frequency, double attack);

    // A motor with so many turns per second.
    void turn(double at, double seconds, double level, Glide turns);

    // The finished recording: without an offset, 3 dB below full scale at its loudest, silent at both ends.
    std::vector<std::int16_t> finished() const;

  private:
    void add(std::size_t index, double value);

    std::vector<double> samples_;
    Noise noise_;
};

// Writes a wave file, 16 bit, one channel. Throws std::ios_base::failure.
void writeWave(const std::string& fileName, const std::vector<std::int16_t>& samples);

}  // namespace zifferon::sounds
