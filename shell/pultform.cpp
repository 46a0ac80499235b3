#include "shell/pultform.h"

namespace zifferon {

Pultform::Pultform() {
    name = u"Pultform";
    caption = programTitle;
    place = {0, 0, 8205, 8085};
    layOutPultform(*this);
    add(Timer2, u"Timer2");
    add(page.Timer3, u"Timer3");
    add(minitimer, u"minitimer");
    add(timersecret, u"timersecret");
    add(page.stripes.timerraster, u"timerraster");
    add(state.errortimer, u"errortimer");
    add(state.messtimer, u"messtimer");
    state.eingabeForeColor = state.eingabe.foreColour;
}

}  // namespace zifferon
