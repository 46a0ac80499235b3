#include "core/calculator_state.h"

#include "core/number_format.h"

namespace zifferon {

CalculatorState::CalculatorState() {
    eingabe.takesFocus = true;
    eingabe.maxLength = 20;
    eingabe.blankIgnoresLimit = true;
    zwischen.setText(u"0");
    zwischen.maxLength = 41;
    zwischen.locked = txtop.locked = anzeige.locked = Texterror.locked = true;
    anzeige.multiLine = superdruck.multiLine = true;
    for (TextField& cell : memo) {
        cell.alignment = Alignment::right;
        cell.maxLength = 42;
        cell.takesFocus = true;
    }
    Texterror.setText(u"RND Error");
    Texterror.visible = false;
    checkrnd.caption = u"&RND 2";
    applyFormatMode(*this);
}

}  // namespace zifferon
