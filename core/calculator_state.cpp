#include "core/calculator_state.h"

#include "core/number_format.h"
#include "core/operators.h"
#include "core/prompts.h"

namespace zifferon {

CalculatorState::CalculatorState() {
    eingabe.takesFocus = true;
    eingabe.maxLength = 20;
    eingabe.blankIgnoresLimit = true;
    zwischen.setText(u"0");
    zwischen.maxLength = 41;
    eingabe.shrinks = zwischen.shrinks = Texterror.shrinks = true;
    zwischen.locked = txtop.locked = anzeige.locked = Texterror.locked = true;
    anzeige.multiLine = superdruck.multiLine = true;
    for (TextField& cell : memo) {
        cell.alignment = Alignment::right;
        cell.maxLength = 42;
        cell.takesFocus = true;
        cell.shrinks = true;
    }
    Texterror.setText(u"RND Error");
    Texterror.visible = false;
    checkrnd.caption = u"&RND 2";
    applyFormatMode(*this);
}

bool chainHolds(const CalculatorState& state) {
    const Separators separators = state.separators();
    if (!state.chainActive.equals(1, separators)) return true;
    if (state.txtop.is(u"=")) return false;
    if (state.percentPrompt || promptStands(state)) return true;
    return pendingOperator(state) != nullptr && readsAsNumber(state.zwischen.text(), separators);
}

namespace {

void bringUnder(Separators separators, TextField& field) {
    const std::size_t caret = field.caret();
    field.setText(underSeparators(field.text(), separators));
    field.setCaret(caret);
}

}  // namespace

void setDecimalPointStyle(CalculatorState& state, double style) {
    state.decimalPointStyle = style;
    const Separators separators = state.separators();
    bringUnder(separators, state.eingabe);
    bringUnder(separators, state.zwischen);
    for (TextField& cell : state.memo) bringUnder(separators, cell);
    for (CalcValue* value : {&state.operand, &state.accumulator, &state.percentBase, &state.percentRate,
                             &state.differenceValue1, &state.differenceValue2, &state.firstValueCheck}) {
        *value = value->underSeparators(separators);
    }
}

}  // namespace zifferon
