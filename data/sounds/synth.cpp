#include "data/sounds/synth.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <numbers>
#include <numeric>

namespace zifferon::sounds {

namespace {

constexpr double turnOf = 2 * std::numbers::pi;

std::size_t indexOf(double seconds) { return static_cast<std::size_t>(std::lround(seconds * sampleRate)); }

// Lets a band of frequencies pass: the state variable filter after Chamberlin.
class BandFilter {
    double low_ = 0;
    double band_ = 0;

  public:
    double pass(double input, double frequency) {
        constexpr double damping = 0.7;
        const double step = 2 * std::sin(turnOf / 2 * std::min(frequency, sampleRate / 6.5) / sampleRate);
        low_ += step * band_;
        band_ += step * (input - low_ - damping * band_);
        return band_;
    }
};

double swell(double part, double attack) {
    if (part < attack) return part / attack;
    const double left = (1 - part) / (1 - attack);
    return left * left;
}

// Takes away what lies below hearing, an offset first of all.
void removeRumble(std::vector<double>& samples) {
    constexpr double lowest = 40;  // Hz
    const double keep = std::exp(-turnOf * lowest / sampleRate);
    double input = 0;
    double output = 0;
    for (double& sample : samples) {
        output = keep * (output + sample - input);
        input = sample;
        sample = output;
    }
    const double offset =
        std::accumulate(samples.begin(), samples.end(), 0.0) / static_cast<double>(samples.size());
    for (double& sample : samples) sample -= offset;
}

void fadeEnds(std::vector<double>& samples) {
    const std::size_t in = indexOf(0.001);
    const std::size_t out = indexOf(0.03);
    for (std::size_t i = 0; i < in; ++i) samples[i] *= static_cast<double>(i) / static_cast<double>(in);
    for (std::size_t i = 0; i < out; ++i) {
        samples[samples.size() - 1 - i] *= static_cast<double>(i) / static_cast<double>(out);
    }
}

void put(std::ofstream& file, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) file.put(static_cast<char>(value >> (8 * i) & 0xff));
}

}  // namespace

double Noise::next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return static_cast<double>(state_) / 2147483648.0 - 1;
}

Track::Track(double seconds) : samples_(indexOf(seconds)) {}

void Track::add(std::size_t index, double value) {
    if (index < samples_.size()) samples_[index] += value;
}

void Track::strike(double at, double level, const Body& body) {
    const std::size_t start = indexOf(at);
    const double force = level * (1 + 0.15 * noise_.next());
    const double detuning = 1 + 0.03 * noise_.next();
    for (const Partial& partial : body.partials) {
        const std::size_t length = indexOf(partial.decay * 7);
        for (std::size_t i = 0; i < length; ++i) {
            const double time = static_cast<double>(i) / sampleRate;
            const double ringing = std::sin(turnOf * partial.frequency * detuning * time);
            add(start + i, force * partial.level * std::exp(-time / partial.decay) * ringing);
        }
    }
    constexpr double contactDecay = 0.0025;
    for (std::size_t i = 0; i < indexOf(contactDecay * 6); ++i) {
        const double time = static_cast<double>(i) / sampleRate;
        add(start + i, force * body.contact * std::exp(-time / contactDecay) * noise_.next());
    }
}

void Track::rub(double at, double seconds, double level, Glide frequency, double attack) {
    const std::size_t start = indexOf(at);
    const std::size_t length = indexOf(seconds);
    BandFilter filter;
    for (std::size_t i = 0; i < length; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(length);
        add(start + i, level * swell(part, attack) * filter.pass(noise_.next(), frequency.at(part)));
    }
}

void Track::turn(double at, double seconds, double level, Glide turns) {
    const std::size_t start = indexOf(at);
    const std::size_t length = indexOf(seconds);
    BandFilter filter;
    double angle = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(length);
        // It comes up to speed fast at first, then more and more slowly.
        const double speed = turns.at(1 - (1 - part) * (1 - part));
        angle += turnOf * speed / sampleRate;
        const double hum = 0.5 * std::sin(angle) + 0.35 * std::sin(2 * angle + 0.4) +
                           0.2 * std::sin(5 * angle) + 0.1 * std::sin(11 * angle);
        const double brushes = filter.pass(noise_.next(), 14 * speed) * (0.6 + 0.4 * std::sin(3 * angle));
        const double envelope = std::min({1.0, part * 6, (1 - part) * 4});
        add(start + i, level * envelope * (hum + 0.5 * brushes));
    }
}

std::vector<std::int16_t> Track::finished() const {
    std::vector<double> samples = samples_;
    removeRumble(samples);
    fadeEnds(samples);
    double peak = 0;
    for (const double sample : samples) peak = std::max(peak, std::abs(sample));
    const double gain = 32767 * std::pow(10, -3.0 / 20) / peak;
    std::vector<std::int16_t> result;
    result.reserve(samples.size());
    for (const double sample : samples)
        result.push_back(static_cast<std::int16_t>(std::lround(sample * gain)));
    return result;
}

void writeWave(const std::string& fileName, const std::vector<std::int16_t>& samples) {
    std::ofstream file;
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file.open(fileName, std::ios::binary);
    const auto dataBytes = static_cast<std::uint32_t>(samples.size() * 2);
    file << "RIFF";
    put(file, 36 + dataBytes, 4);
    file << "WAVEfmt ";
    put(file, 16, 4);  // bytes of the format
    put(file, 1, 2);   // PCM
    put(file, 1, 2);   // channels
    put(file, sampleRate, 4);
    put(file, sampleRate * 2, 4);  // bytes per second
    put(file, 2, 2);               // bytes per frame
    put(file, 16, 2);              // bits per sample
    file << "data";
    put(file, dataBytes, 4);
    for (const std::int16_t sample : samples) put(file, static_cast<std::uint16_t>(sample), 2);
    file.close();
}

}  // namespace zifferon::sounds
