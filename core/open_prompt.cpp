#include "core/open_prompt.h"

#include "core/prompts.h"

namespace zifferon {

namespace {

void forgetChain(CalculatorState& s) {
    s.pendingOpCode = s.chainActive = s.operand = s.accumulator = 0;
    s.chainTotalled = false;
    forgetPrompts(s);
}

// The lines have blanks of their own, unlike those of a calculation that a key has cancelled.
void cancelPrompt(CalculatorState& s) {
    s.zwischen.setText(u"0");
    s.eingabe.setText(u"");
    s.anzeige.append(u"\r\n");
    s.superdruck.append(u"\r\n");
    forgetChain(s);
    s.tapeClearArmed = true;
    s.anzeige.append(s.inLanguage({u"\r\n « « « « « « Rechnung abgebrochen » » » » » »                \r\n",
                                   u"\r\n  « « « « « « Calculation canceled » » » » » »         \r\n"}));
    s.superdruck.append(
        s.inLanguage({u"\r\n             « « « « « « Rechnung abgebrochen » » » » » »               \r\n",
                      u"\r\n             « « « « « « Calculation canceled » » » » » »                \r\n"}));
}

}  // namespace

void closeOpenPrompt(CalculatorState& s) {
    if (promptWordStands(s)) cancelPrompt(s);
    if (s.zwischen.is(u"0") || !s.txtop.is(u"%")) return;
    s.zwischen.setText(u"0");
    forgetChain(s);
    s.tapeClearArmed = false;
    s.eingabe.setText(u"");
    s.txtop.setText(u"");
}

void forgetPrompts(CalculatorState& s) {
    s.percentPrompt = s.percentRunning = s.percentDone = false;
    s.differenceStart = s.differenceActive = s.secondValuePrompt = false;
    s.zwischen.alignment = Alignment::right;
    s.zurück.enabled = true;
}

}  // namespace zifferon
