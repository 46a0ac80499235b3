#include "shell/pasted_text.h"

#include <algorithm>
#include <vector>

namespace zifferon {

namespace {

constexpr TextView lineEnds = u"\r\n\t";
constexpr TextView blanks = u" \u00A0";

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

TextView trimmed(TextView text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == TextView::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::vector<TextView> cellsOf(TextView text) {
    std::vector<TextView> cells;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(lineEnds), text.size());
        if (const TextView cell = trimmed(text.substr(0, end)); !cell.empty()) cells.push_back(cell);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return cells;
}

// Whether the signs of that kind stand where group signs do: behind one to three digits, and before three
// each.
bool groups(TextView number, char16_t sign) {
    std::size_t digits = number.find(sign);
    if (digits == 0 || digits > 3) return false;
    while (!number.empty()) {
        number.remove_prefix(digits + 1);
        digits = std::min(number.find(sign), number.size());
        if (digits != 3) return false;
        if (digits == number.size()) break;
    }
    return true;
}

// The decimal sign of digits with commas and points among them, or 0 for none.
char16_t decimalSignOf(TextView number, Separators separators) {
    const std::size_t last = number.find_last_of(u",.");
    if (last == TextView::npos) return 0;
    const char16_t sign = number[last];
    const TextView before = number.substr(0, last);
    const bool alone = before.find_first_of(u",.") == TextView::npos;
    if (alone && sign == separators.group && groups(number, sign)) return 0;
    if (!alone && before.find(sign) != TextView::npos) return groups(number, sign) ? 0 : sign;
    return sign;
}

// The digits and the one separator of a number, its minus as the letter v; empty for what is no number.
Text typedNumber(TextView cell, Separators separators) {
    const bool minusInFront = cell.starts_with(u'-') || cell.starts_with(u'\u2212');
    const bool minusBehind = !minusInFront && cell.ends_with(u'-');
    if (minusInFront) cell = trimmed(cell.substr(1));
    if (minusBehind) cell = trimmed(cell.substr(0, cell.size() - 1));
    const auto belongs = [](char16_t unit) { return isDigit(unit) || unit == u',' || unit == u'.'; };
    if (!std::all_of(cell.begin(), cell.end(), belongs) || !std::any_of(cell.begin(), cell.end(), isDigit)) {
        return {};
    }
    const char16_t decimalSign = decimalSignOf(cell, separators);
    const char16_t groupSign = decimalSign == u',' ? u'.' : decimalSign == u'.' ? u',' : separators.group;
    const TextView whole = cell.substr(0, decimalSign != 0 ? cell.rfind(decimalSign) : cell.size());
    if (whole.find(groupSign) != TextView::npos && !groups(whole, groupSign)) return {};
    if (decimalSign != 0 && whole.find(decimalSign) != TextView::npos) return {};
    Text typed;
    for (const char16_t unit : cell) {
        if (isDigit(unit)) typed += unit;
        if (decimalSign != 0 && unit == decimalSign) typed += separators.decimal;
    }
    if (minusInFront || minusBehind) typed += u'v';
    return typed;
}

}  // namespace

Text keysOfPastedText(TextView pasted, Separators separators) {
    const std::vector<TextView> cells = cellsOf(pasted);
    Text keys;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const bool last = i + 1 == cells.size();
        const Text number = typedNumber(cells[i], separators);
        keys += number.empty() ? Text(cells[i]) : number;
        if (!last) keys += number.empty() ? u'\r' : u'+';
    }
    return keys;
}

}  // namespace zifferon
