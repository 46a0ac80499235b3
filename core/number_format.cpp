#include "core/number_format.h"

#include "core/failure.h"

namespace zifferon {

const TextView formattedNumberPattern = u"########################,###0.00############################";

namespace {

constexpr TextView formattedTapePattern = u"########################,###0.00##########################";

int decimalsOf(TextView pattern) { return static_cast<int>(pattern.size() - pattern.find(u'.') - 1); }

}  // namespace

Text format(const Text& value, TextView pattern, Separators separators) {
    if (pattern.empty() || !readsAsNumber(value, separators)) return value;
    if (const auto number = tryParseDecimal(value, separators)) {
        return maskText(*number, separators, decimalsOf(pattern));
    }
    try {
        return maskText(parseDouble(value, separators), separators, decimalsOf(pattern));
    } catch (const CalculationFailure&) {  // beyond the range of a double too
        return value;
    }
}

Text format(const CalcValue& value, TextView pattern, Separators separators) {
    if (const Text* text = value.text()) return format(*text, pattern, separators);
    if (pattern.empty() || value.isNothing()) return value.toText(separators);
    if (const double* number = std::get_if<double>(&value.value())) {
        return maskText(*number, separators, decimalsOf(pattern));
    }
    return maskText(value.toDecimal(separators), separators, decimalsOf(pattern));
}

void applyFormatMode(CalculatorState& state) {
    if (state.formatMode == 1) {
        state.numberFormat = formattedNumberPattern;
        state.tapeFormat = formattedTapePattern;
    } else if (state.formatMode == 2) {
        state.numberFormat.clear();
        state.tapeFormat.clear();
    }
}

}  // namespace zifferon
