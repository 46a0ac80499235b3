#include "tests/fuzz/agreement.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "core/number_text.h"

namespace zifferon {

namespace {

constexpr TextView figures = u"0123456789,.-";

void require(bool holds, const char* claim, const CalculatorState& state) {
    if (holds) return;
    throw Disagreement(std::string(claim) + "\ntxtop " + toUtf8(state.txtop.text()) + "\nzwischen " +
                       toUtf8(state.zwischen.text()) + "\neingabe " + toUtf8(state.eingabe.text()) +
                       "\ntape " + toUtf8(state.anzeige.text()) + "\nprint copy " +
                       toUtf8(state.superdruck.text()));
}

Text trimmed(TextView line) {
    const std::size_t first = std::min(line.find_first_not_of(u' '), line.size());
    return Text(line.substr(first, line.find_last_not_of(u' ') + 1 - first));
}

std::vector<Text> linesOf(TextView text) {
    std::vector<Text> lines;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(u"\r\n", begin), text.size());
        lines.push_back(trimmed(text.substr(begin, end - begin)));
        begin = end + 2;
    }
    return lines;
}

// The numbers of a tape, each as it is written.
std::vector<Text> numbersOf(TextView tape) {
    std::vector<Text> numbers;
    Text number;
    for (const char16_t c : Text(tape) + u' ') {
        if (figures.find(c) != TextView::npos) {
            number += c;
        } else {
            if (number.find_first_of(u"0123456789") != Text::npos) numbers.push_back(number);
            number.clear();
        }
    }
    return numbers;
}

// A line of the print copy: a number, and the mark behind it.
struct Line {
    std::optional<Decimal> value;
    Text mark;

    bool isStep() const { return mark == u"+" || mark == u"-" || mark == u"x" || mark == u"/"; }
    bool beginsChain() const { return mark.empty() || mark == u"=" || mark == u"«"; }
};

Line lineOf(const Text& text, Separators separators) {
    const std::size_t end = std::min(text.find(u' '), text.size());
    return {tryParseDecimal(text.substr(0, end), separators), trimmed(TextView(text).substr(end))};
}

Decimal behind(const Decimal& value, const Line& step) {
    if (step.mark == u"+") return value + *step.value;
    if (step.mark == u"-") return value - *step.value;
    if (step.mark == u"x") return value * *step.value;
    return value / *step.value;
}

}  // namespace

void requireChainHolds(const CalculatorState& state) { require(chainHolds(state), "the chain holds", state); }

void requireTapesAgree(const CalculatorState& state) {
    const std::vector<Text> tape = numbersOf(state.anzeige.text());
    const std::vector<Text> print = numbersOf(state.superdruck.text());
    auto printed = print.rbegin();
    for (auto shown = tape.rbegin(); shown != tape.rend(); ++shown) {
        printed = std::find(printed, print.rend(), *shown);
        require(printed != print.rend(), "the print copy has the numbers of the tape", state);
        ++printed;
    }
}

void requireTotalOfItsLines(const CalculatorState& state) {
    const std::vector<Text> lines = linesOf(state.superdruck.text());
    if (!state.txtop.is(u"=") || lines.size() < 3 || !lines[lines.size() - 2].empty()) return;
    const Separators separators = state.separators();
    const Line total = lineOf(lines.back(), separators);
    if (total.mark != u"=" || !total.value) return;
    std::vector<Line> steps;
    std::size_t at = lines.size() - 2;
    Line first;
    do {
        first = lineOf(lines[--at], separators);
        if (!first.value) return;
        if (first.isStep()) steps.push_back(first);
    } while (at > 0 && first.isStep());
    if (!first.beginsChain()) return;
    Decimal sum = *first.value;
    for (auto step = steps.rbegin(); step != steps.rend(); ++step) sum = behind(sum, *step);
    require(sum == *total.value, "a total is the result of its lines", state);
}

std::string recordBytes(CalculatorState& state) {
    CalculationRecord record(state);
    gatherRecord(record);
    const EncodedRecord encoded(record);
    std::string bytes;
    for (const std::string_view piece : encoded.pieces()) bytes += piece;
    return bytes;
}

}  // namespace zifferon
