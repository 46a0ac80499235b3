#include "core/prompts.h"

namespace zifferon {

namespace {

constexpr TextView firstGerman = u"     Wert 1 eingeben und ENTER betätigen";
constexpr TextView firstEnglish = u"      Enter the 1st value and press ENTER";
constexpr TextView secondGerman = u"     Wert 2 eingeben und ENTER betätigen";
constexpr TextView secondEnglish = u"     Enter the 2nd value and press ENTER";

}  // namespace

TextView firstPrompt(const CalculatorState& s) { return s.inLanguage({firstGerman, firstEnglish}); }
TextView secondPrompt(const CalculatorState& s) { return s.inLanguage({secondGerman, secondEnglish}); }

bool secondPromptStands(const CalculatorState& s) {
    return s.zwischen.is(secondGerman) || s.zwischen.is(secondEnglish);
}

bool promptStands(const CalculatorState& s) {
    return s.zwischen.is(firstGerman) || s.zwischen.is(firstEnglish) || secondPromptStands(s);
}

bool promptWordStands(const CalculatorState& s) {
    return s.zwischen.contains(s.inLanguage({u"Wert", u"valu"}));
}

}  // namespace zifferon
