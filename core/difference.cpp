// The difference of two values in percent: two prompts, and the change from the first value to the second.

#include <cmath>

#include "core/failure.h"
#include "core/key_press.h"
#include "core/number_format.h"
#include "core/prompts.h"
#include "core/tape.h"

namespace zifferon {

void KeyPress::addDifferenceHeadingOnTape() {
    tape::addLine(s.anzeige, {u"\r\n",
                              s.inLanguage({u"« « « « « « Differenz in Prozent » » » » » »          ",
                                            u" « « « « « « Difference in percent » » » » » »         "}),
                              u"\r\n"});
}

void KeyPress::openDifference() {
    addDifferenceHeadingOnTape();
    tape::addLine(s.superdruck,
                  {u"\r\n",
                   s.inLanguage({u"          « « « « « « Differenz in Prozent » » » » » »         ",
                                 u"         « « « « « « Difference in percent » » » » » »         "}),
                   u"\r\n"});
    differenceStage();
}

void KeyPress::differenceStage() {
    TextField& entry = s.eingabe;
    s.differenceActive = true;
    s.pendingOpCode = u"";
    s.zwischen.alignment = Alignment::left;
    entry.locked = false;
    if (!s.differenceStart) entry.setText(u"");
    s.differenceStart = true;
    s.txtop.setText(u"");
    if (!s.secondValuePrompt) s.zwischen.setText(firstPrompt(s));
    if (isAny(u"rR")) return eat(), s.txtop.setText(u"R");
    mapSeparator();
    if (isSeparator() && entry.text().find(key) != Text::npos) eat();
    if (isC()) return cancelDifference();
    if (isV()) {
        if (entry.empty()) return eat();
        return negateEntry();
    }
    if (!isDigit() && !isSeparator() && !isEnter() && !isBackspace()) return eat();
    if (!isEnter()) return;
    s.firstValueCheck = entry.text();
    const bool firstAsked = s.zwischen.contains(u"Wert 1") || s.zwischen.contains(u"1st value");
    if (firstAsked && s.firstValueCheck.equals(0, s.separators())) {
        s.calls->beep();
        return entry.setText(u"");
    }
    if (entry.empty()) return;
    if (s.secondValuePrompt) return takeSecondValue();
    takeFirstValue();
}

void KeyPress::cancelDifference() {
    s.differenceStart = false;
    s.chainActive = 0;
    s.chainTotalled = false;
    s.tapeClearArmed = true;
    s.zwischen.alignment = Alignment::right;
    tape::addCancel(s);
    s.differenceActive = false;
    finishKey();
}

void KeyPress::takeFirstValue() {
    s.differenceValue1 = s.eingabe.text();
    const TextView label = s.inLanguage({u"Wert 1:   ", u"1st value:   "});
    const Text value = format(s.differenceValue1, s.tapeFormat, s.separators());
    tape::addLine(s.anzeige, {label, value, u"      "});
    tape::addLine(s.superdruck, {tape::pad(label.size() + value.size()), label, value, u"\r\n"});
    s.secondValuePrompt = true;
    s.eingabe.setText(u"");
    eat();
    s.zwischen.setText(secondPrompt(s));
}

void KeyPress::takeSecondValue() {
    s.differenceValue2 = s.eingabe.text();
    const TextView label = s.inLanguage({u"Wert 2:   ", u"2nd value:   "});
    const Text value = format(s.differenceValue2, s.tapeFormat, s.separators());
    tape::addLine(s.anzeige, {label, value, u"      \r\n"});
    Text printLine = tape::pad(label.size() + value.size());
    printLine += label;
    printLine += value;
    s.superdruck.append(printLine + u"\r\n");
    s.secondValuePrompt = false;
    s.eingabe.setText(u"");
    differenceResult();
}

void KeyPress::differenceResult() {
    const Separators separators = s.separators();
    eat();
    const double onePercent = s.differenceValue1.toDouble(separators) / 100;
    s.differenceOnePercent = onePercent;
    const double delta = s.differenceValue2.toDouble(separators) - s.differenceValue1.toDouble(separators);
    s.differenceDelta = delta;
    const double percent = delta / onePercent;
    if (!std::isfinite(percent)) throw CalculationFailure(FailureKind::overflow);
    s.differencePercent = percent;
    const Text value = format(s.differencePercent, s.tapeFormat, separators);
    s.zwischen.alignment = Alignment::right;
    Text shown(s.inLanguage({u"Differenz: ", u"Difference: "}));
    shown += value + u" %";
    s.zwischen.setText(shown);
    s.differenceShown = true;
    const TextView label = s.inLanguage({u"Differenz:   ", u"Difference:   "});
    tape::addLine(s.anzeige, {label, value, u" %      \r\n", tape::tapeStars, u"\r\n"});
    tape::addLine(s.superdruck, {tape::pad(label.size() + value.size() + 2), label, value, u" %\r\n",
                                 tape::printStars, u" \r\n"});
    s.tapeClearArmed = true;
    if (s.zwischen.text().size() > 40) s.zwischen.setText(u"Display Error" + Text(29, u' '));
    s.differenceStart = s.differenceActive = s.chainTotalled = false;
    s.chainActive = 0;
    s.operand = 0;
}

}  // namespace zifferon
