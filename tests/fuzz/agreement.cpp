#include "tests/fuzz/agreement.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <sstream>
#include <vector>

#include "core/number_text.h"

namespace zifferon {

namespace {

void require(bool holds, const char* claim, const CalculatorState& state) {
    if (holds) return;
    throw Disagreement(std::string(claim) + "\ntxtop " + toUtf8(state.txtop.text()) + "\nzwischen " +
                       toUtf8(state.zwischen.text()) + "\neingabe " + toUtf8(state.eingabe.text()) +
                       "\ntape " + toUtf8(state.anzeige.text()) + "\nprint copy " +
                       toUtf8(state.superdruck.text()));
}

// The numbers of a tape, each as it is written.
std::vector<std::string> numbersOf(TextView tape) {
    std::string text = toUtf8(tape);
    std::ranges::replace_if(
        text, [](char c) { return std::string_view("0123456789,.-").find(c) == std::string::npos; }, ' ');
    std::istringstream words(text);
    std::vector<std::string> numbers(std::istream_iterator<std::string>(words), {});
    std::erase_if(numbers, [](const std::string& word) {
        return word.find_first_of("0123456789") == std::string::npos;
    });
    return numbers;
}

// A line of the print copy: a number, and the mark behind it.
struct Line {
    std::optional<Decimal> value;
    std::string mark;

    bool isStep() const { return value && (mark == "+" || mark == "-" || mark == "x" || mark == "/"); }
    bool beginsChain() const { return value && (mark.empty() || mark == "=" || mark == "«"); }
};

std::vector<Line> linesOf(TextView text, Separators separators) {
    std::vector<Line> lines;
    std::istringstream all(toUtf8(text));
    for (std::string line; std::getline(all, line);) {
        std::istringstream words(line);
        std::string number, mark;
        words >> number;
        for (std::string word; words >> word;) mark += word;
        lines.push_back({tryParseDecimal(fromUtf8(number), separators), mark});
    }
    return lines;
}

Decimal behind(const Decimal& value, const Line& step) {
    if (step.mark == "+") return value + *step.value;
    if (step.mark == "-") return value - *step.value;
    if (step.mark == "x") return value * *step.value;
    return value / *step.value;
}

}  // namespace

void requireChainHolds(const CalculatorState& state) { require(chainHolds(state), "the chain holds", state); }

void requireTapesAgree(const CalculatorState& state) {
    const auto tape = numbersOf(state.anzeige.text()), print = numbersOf(state.superdruck.text());
    auto printed = print.rbegin();
    for (auto shown = tape.rbegin(); shown != tape.rend(); ++shown) {
        printed = std::find(printed, print.rend(), *shown);
        require(printed != print.rend(), "the print copy has the numbers of the tape", state);
        ++printed;
    }
}

void requireTotalOfItsLines(const CalculatorState& state) {
    const std::vector<Line> lines = linesOf(state.superdruck.text(), state.separators());
    if (!state.txtop.is(u"=") || lines.size() < 3) return;
    const auto total = lines.end() - 1, gap = total - 1;
    if (total->mark != "=" || !total->value || gap->value || !gap->mark.empty()) return;
    auto line = gap - 1;
    while (line != lines.begin() && line->isStep()) --line;
    if (!line->beginsChain()) return;
    Decimal sum = *line->value;
    while (++line != gap) sum = behind(sum, *line);
    require(sum == *total->value, "a total is the result of its lines", state);
}

}  // namespace zifferon
