// What is done in the letterhead window: its sample, its deletion, its lists.
#pragma once

#include "platform/language.h"
#include "platform/messages.h"
#include "platform/print_device.h"
#include "print/kopf.h"

namespace zifferon {

class LetterheadDesk {
  public:
    // All of them must outlive it.
    LetterheadDesk(Kopf& kopf, const Language& language, const Messages& messages)
        : k(kopf), language_(language), messages_(messages) {}

    void wire();

    // Fills the three lists of fonts.
    void fillFonts(const std::vector<Text>& names);

    // As it is without a file.
    void clear();

    // Reminds of the master switch where it is off.
    void remind() const;

  private:
    void fillSample();
    void tellOfLogo();
    void setTicks(bool on, std::initializer_list<CheckBox*> ticks);

    Kopf& k;
    const Language& language_;
    const Messages& messages_;
};

}  // namespace zifferon
