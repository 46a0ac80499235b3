#include "core/tape.h"

#include "core/number_format.h"

namespace zifferon::tape {

const TextView tapeStars = u" * * * * * * * * * * * * * * * * * * * * * * * * * * * * * * * *   ";
const TextView printStars = u" *************************************************************";

Text pad(std::size_t width, std::size_t column) { return Text(width < column ? column - width : 0, u' '); }

void addLine(TextField& tape, std::initializer_list<TextView> parts) {
    Text line = u"\r\n";
    for (const TextView part : parts) line += part;
    tape.append(line);
}

void addFirstNumber(CalculatorState& s, const Text& number) {
    addLine(s.anzeige, {format(number, s.tapeFormat, s.separators()), u"      "});
    addLine(s.superdruck, {pad(s.zwischen.text().size()), s.zwischen.text()});
}

void addTotal(CalculatorState& s) {
    const Text total = format(s.operand, s.tapeFormat, s.separators());
    addLine(s.anzeige, {u"\r\n", total, u" =   "});
    addLine(s.superdruck, {u"\r\n", pad(s.zwischen.text().size()), total, u" ="});
}

void addClose(CalculatorState& s) {
    addLine(s.anzeige, {tapeStars, u"\r\n"});
    addLine(s.superdruck, {printStars, u"\r\n"});
}

void addCancelOnTape(CalculatorState& s) {
    addLine(s.anzeige, {u"\r\n",
                        s.inLanguage({u" « « « « « « Rechnung abgebrochen » » » » » »       ",
                                      u"  « « « « « « Calculation canceled » » » » » »         "}),
                        u"\r\n"});
}

void addCancelOnPrint(CalculatorState& s) {
    addLine(s.superdruck, {u"\r\n          ",
                           s.inLanguage({u"« « « « « « Rechnung abgebrochen » » » » » » ",
                                         u"« « « « « « Calculation canceled » » » » » » "}),
                           u"\r\n"});
}

void addCancel(CalculatorState& s) {
    addCancelOnTape(s);
    addCancelOnPrint(s);
}

void addRounded(CalculatorState& s) {
    addLine(s.anzeige, {format(s.operand, s.tapeFormat, s.separators()), u" «   "});
    addLine(s.superdruck, {pad(s.zwischen.text().size()), s.zwischen.text(), u" «"});
}

}  // namespace zifferon::tape
