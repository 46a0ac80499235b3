#include "shell/pasting.h"

#include <algorithm>

#include "core/prompts.h"

namespace zifferon {

namespace {

bool joinedByOperators(const std::vector<PastedFigure>& figures) {
    return std::any_of(figures.begin(), figures.end(),
                       [](const PastedFigure& figure) { return figure.operation != 0; });
}

}  // namespace

void Pasting::paste(TextView text) {
    const Control* const target = pultform_.focus();
    if (target == nullptr || text.empty()) return;
    if (target == &s.superdruck) return typeLines(text);
    if (target == &pultform_.page.savefiles) return typeLines(text.substr(0, text.find_first_of(u"\r\n")));
    if (pultform_.page.blende.visible) return s.calls->beep();
    const PastedFigures found = figuresOf(text, s.separators());
    const auto cell =
        std::find_if(s.memo.begin(), s.memo.end(), [&](const TextField& memo) { return &memo == target; });
    bool taken = !found.figures.empty();
    if (taken && cell != s.memo.end()) {
        taken = typeIntoCell(*cell, found);
    } else if (taken) {
        s.calls->focusEntry();
        taken = typeIntoEntry(found.figures);
    }
    if (!taken || found.leftOut) s.calls->beep();
}

// With one Enter for each line end, and a blank for a tab, which the print copy does not hold.
void Pasting::typeLines(TextView text) {
    char16_t previous = 0;
    for (const char16_t unit : text) {
        const bool secondHalf = unit == u'\n' && previous == u'\r';
        previous = unit;
        if (!secondHalf) type(unit == u'\n' ? u'\r' : unit == u'\t' ? u' ' : unit);
    }
}

bool Pasting::typeIntoCell(TextField& cell, const PastedFigures& found) {
    if (joinedByOperators(found.figures)) return false;
    keys_.run([&] { cell.select(0, cell.text().size()); });
    return typeFigure(cell, found.figures.front()) && found.figures.size() == 1;
}

bool Pasting::typeIntoEntry(const std::vector<PastedFigure>& figures) {
    // A prefix waits for a digit, and a root or percentage belongs to the entry that goes.
    const bool leaves = s.txtop.is(u"M") || s.txtop.is(u"R") || s.txtop.is(u"W") || s.txtop.is(u"%");
    if (leaves) keys_.run([this] { s.calls->restorePendingOperator(); });
    if (s.txtop.is(u"=")) type(u'\r');
    if (s.txtop.is(u"=")) return false;
    keys_.run([&] { s.eingabe.setText(u""); });
    if (s.percentPrompt || s.differenceStart) return typeIntoPrompts(figures);
    return typeChain(figures);
}

bool Pasting::typeIntoPrompts(const std::vector<PastedFigure>& figures) {
    if (joinedByOperators(figures) || !typeFigure(s.eingabe, figures.front())) return false;
    if (figures.size() == 1 || s.percentPrompt || s.secondValuePrompt) return figures.size() == 1;
    type(u'\r');
    return s.secondValuePrompt && typeFigure(s.eingabe, figures[1]) && figures.size() == 2;
}

// A chain is one step to be undone, behind its last operator: a snapshot holds the whole tape, and one of
// each figure would make a long column cost the square of its length.
bool Pasting::typeChain(const std::vector<PastedFigure>& figures) {
    if (!typeFigure(s.eingabe, figures.front())) return false;
    const bool undoActive = s.undoActive;
    const std::size_t last = figures.size() - 1;
    for (std::size_t i = 1; i <= last; ++i) {
        s.undoActive = undoActive && i == last;
        type(figures[i].operation != 0 ? figures[i].operation : u'+');
        if (!s.zwischen.is(u"Error") && typeFigure(s.eingabe, figures[i])) continue;
        s.undoActive = undoActive;
        if (i < last) s.calls->takeUndoSnapshot();
        return false;
    }
    return true;
}

// Whether the field holds the figure; one that it does not take is not left there in part.
bool Pasting::typeFigure(TextField& field, const PastedFigure& figure) {
    for (const char16_t digit : figure.digits) type(digit);
    if (!field.is(figure.digits)) {
        keys_.run([&] { field.setText(u""); });
        return false;
    }
    if (figure.negative) type(u'v');
    return true;
}

}  // namespace zifferon
