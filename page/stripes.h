// The ruled lines over the print copy, like those of a form. They stand and go all together.
#pragma once

#include <array>

#include "platform/control.h"
#include "platform/timer.h"

namespace zifferon {

class Stripes {
  public:
    Stripes();

    // A line of one colour. Disabled, so that the mouse reaches the text below it.
    struct Stripe : Control {
        Stripe() : Control(ControlKind::label) { enabled = false; }
    };
    std::array<Stripe, 19> raster;  // raster0 to raster18
    Timer timerraster;              // while it runs, each tick brings back stripes that have gone

    void show() { setVisible(true); }
    void hide() { setVisible(false); }

    // The user takes the stripes away, or brings them back.
    void toggle();

    // The user has taken them away: opening the page leaves it so.
    bool stripesOff() const { return stripesOff_; }

  private:
    bool shown() const { return raster.front().visible; }
    void setVisible(bool visible);

    bool stripesOff_ = false;
};

}  // namespace zifferon
