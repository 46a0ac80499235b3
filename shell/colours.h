// The colours in force: those of the start, and their steps by F6, F7 and F8.
#pragma once

#include "help/help_window.h"
#include "shell/colour_schemes.h"
#include "shell/pultform.h"
#include "storage/settings.h"

namespace zifferon {

class Colours {
  public:
    Colours(Pultform& window, HelpWindow& help, const Settings& settings)
        : window_(window), help_(help), settings_(settings) {}

    // As the settings tell; what is no scheme leaves the designed colours.
    void restore();

    // Each is stored at once.
    void nextText();
    void nextBack();
    void standard();

    // 1 to 8 and 1 to 16; 0 where the file holds no scheme.
    int textScheme() const { return textScheme_; }
    int backScheme() const { return backScheme_; }

  private:
    int stored(const std::string& file, int whenZero) const;
    void setText(int scheme);
    void setBack(int scheme);

    Pultform& window_;
    HelpWindow& help_;
    const Settings& settings_;
    int textScheme_ = standardTextScheme, backScheme_ = standardBackScheme;
};

}  // namespace zifferon
