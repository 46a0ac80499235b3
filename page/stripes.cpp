#include "page/stripes.h"

namespace zifferon {

Stripes::Stripes() {
    timerraster.onTick = [this] {
        if (!shown()) show();
    };
}

void Stripes::toggle() {
    stripesOff_ = shown();
    setVisible(!stripesOff_);
}

void Stripes::setVisible(bool visible) {
    for (Stripe& stripe : raster) stripe.visible = visible;
}

}  // namespace zifferon
