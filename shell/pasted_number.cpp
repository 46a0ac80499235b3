#include "shell/pasted_number.h"

#include <algorithm>
#include <vector>

#include "shell/pasted_pieces.h"

namespace zifferon {

namespace {

constexpr TextView points = u",.";

std::vector<TextView> splitAt(char16_t sign, TextView text) {
    std::vector<TextView> parts;
    for (std::size_t end = text.find(sign); end != TextView::npos; end = text.find(sign)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

// 1,234,567 or, where that is allowed, 12,34,567.
bool groupsWell(TextView whole, char16_t sign, bool indianToo) {
    const std::vector<TextView> parts = splitAt(sign, whole);
    const TextView first = parts.front();
    if (parts.size() < 2 || first.empty() || first.size() > 3 || first.front() == u'0') return false;
    if (parts.back().size() != 3 || !std::all_of(parts.begin(), parts.end(), allDigits)) return false;
    const auto middleHas = [&](std::size_t size) {
        return std::all_of(parts.begin() + 1, parts.end() - 1,
                           [size](TextView part) { return part.size() == size; });
    };
    return middleHas(3) || (indianToo && first.size() < 3 && middleHas(2));
}

// Where the decimal sign of the number stands, or npos.
std::size_t decimalPlace(TextView number, Separators separators) {
    const std::size_t last = number.find_last_of(points);
    if (last == TextView::npos) return TextView::npos;
    const char16_t sign = number[last];
    if (number.find(sign) != last) return TextView::npos;
    const bool groups = sign == separators.group && groupsWell(number, sign, false);
    return groups ? TextView::npos : last;
}

// The whole part without its group signs, or nothing.
Text ungrouped(TextView whole, bool fractionFollows) {
    const auto sign = std::find_if_not(whole.begin(), whole.end(), isDigit);
    if (sign == whole.end()) {
        const bool code = whole.size() > 1 && whole.front() == u'0';
        return code ? Text() : Text(whole);
    }
    if (!groupsWell(whole, *sign, fractionFollows)) return {};
    Text digits(whole);
    std::erase(digits, *sign);
    return digits;
}

}  // namespace

Text typedDigits(TextView number, Separators separators) {
    const bool noCents = !number.empty() && !isDigit(number.back());
    if (noCents) number = number.substr(0, number.find_last_of(points));
    const std::size_t place = noCents ? TextView::npos : decimalPlace(number, separators);
    const bool hasFraction = place != TextView::npos;
    const TextView fraction = hasFraction ? number.substr(place + 1) : TextView();
    if (hasFraction && (fraction.empty() || !allDigits(fraction))) return {};
    Text typed = place == 0 ? Text(u"0") : ungrouped(number.substr(0, place), hasFraction || noCents);
    if (typed.empty() || !hasFraction) return typed;
    typed += separators.decimal;
    typed += fraction;
    return typed;
}

}  // namespace zifferon
