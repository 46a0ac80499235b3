#include "shell/colours.h"

#include <cmath>

#include "storage/settings_files.h"

namespace zifferon {

void Colours::restore() {
    textScheme_ = stored(settingsFile::textColours, standardTextScheme);
    backScheme_ = stored(settingsFile::backColours, standardBackScheme);
    applyTextScheme(window_, textScheme_);
    applyBackScheme(window_, help_, backScheme_);
}

int Colours::stored(const std::string& file, int whenZero) const {
    constexpr float largest = 16;  // what lies outside or between two is no scheme
    const float number = readSetting(settings_.files(), file);
    if (!(number >= 0 && number <= largest) || number != std::floor(number)) return 0;
    return number == 0 ? whenZero : static_cast<int>(number);
}

void Colours::nextText() { setText(nextTextScheme(textScheme_)); }

void Colours::nextBack() { setBack(nextBackScheme(backScheme_)); }

void Colours::standard() {
    setBack(standardBackScheme);
    setText(standardTextScheme);
}

void Colours::setText(int scheme) {
    textScheme_ = scheme;
    settings_.store(settingsFile::textColours, static_cast<float>(scheme));
    applyTextScheme(window_, scheme);
}

void Colours::setBack(int scheme) {
    backScheme_ = scheme;
    settings_.store(settingsFile::backColours, static_cast<float>(scheme));
    applyBackScheme(window_, help_, scheme);
}

}  // namespace zifferon
