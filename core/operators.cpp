#include "core/operators.h"

#include <algorithm>
#include <array>

namespace zifferon {

namespace {

constexpr std::array<Operator, 4> operators = {{
    {u'+', u"+", u" +   ", u" +", [](const Decimal& a, const Decimal& b) { return a + b; }},
    {u'-', u"-", u" --   ", u" -", [](const Decimal& a, const Decimal& b) { return a - b; }},
    {u'*', u"x", u" x   ", u" x", [](const Decimal& a, const Decimal& b) { return a * b; }},
    {u'/', u"÷", u"  /   ", u" /", [](const Decimal& a, const Decimal& b) { return a / b; }},
}};

template <class Fits>
const Operator* find(Fits fits) {
    const auto* const found = std::find_if(operators.begin(), operators.end(), fits);
    return found != operators.end() ? found : nullptr;
}

}  // namespace

const Operator* operatorOfKey(char16_t key) {
    return find([key](const Operator& candidate) { return candidate.key == key; });
}

const Operator* pendingOperator(const CalculatorState& state) {
    return find([&](const Operator& candidate) {
        return state.pendingOpCode.equals(candidate.key, state.separators());
    });
}

}  // namespace zifferon
