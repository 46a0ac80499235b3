#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string>
#include <utility>

#include "core/failure.h"
#include "core/wide_integer.h"

namespace zifferon {

namespace {

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

TextView trimmed(TextView text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == TextView::npos) return {};
    return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

// A text cut into what it says: sign, and the digits with their signs between.
struct Reading {
    bool negative = false;
    TextView body;
};

// Takes the sign off; nothing where no body is left.
std::optional<Reading> readSign(TextView text) {
    Reading reading{false, trimmed(text)};
    if (reading.body.empty()) return std::nullopt;
    if (reading.body.front() == u'-' || reading.body.front() == u'+') {
        reading.negative = reading.body.front() == u'-';
        reading.body = trimmed(reading.body.substr(1));
    } else if (reading.body.back() == u'-') {
        reading.negative = true;
        reading.body = trimmed(reading.body.substr(0, reading.body.size() - 1));
    }
    if (reading.body.empty()) return std::nullopt;
    return reading;
}

// Hands each digit to `take` and returns whether the body is a number; `take(digit, isDecimal)`.
template <class Take>
bool readDigits(TextView body, Separators separators, Take take) {
    if (body.front() == separators.group) return false;
    bool behindDecimal = false;
    bool anyDigit = false;
    for (const char16_t unit : body) {
        if (isDigit(unit)) {
            anyDigit = true;
            take(static_cast<unsigned>(unit - u'0'), behindDecimal);
        } else if (unit == separators.decimal) {
            if (behindDecimal) return false;
            behindDecimal = true;
        } else if (unit != separators.group || behindDecimal) {
            return false;
        }
    }
    return anyDigit;
}

// Collects digits as far as they go into 128 bits; what follows only counts.
class DigitCollector {
  public:
    void operator()(unsigned digit, bool isDecimal) {
        if (magnitude_ < limit) {
            magnitude_ = magnitude_ * 10 + digit;
            if (isDecimal) ++scale_;
            return;
        }
        rest_ |= digit != 0;
        if (!isDecimal) ++lostBeforePoint_;
    }

    Decimal value(bool negative) const {
        if (lostBeforePoint_ > 0) throw CalculationFailure(FailureKind::overflow);
        if (magnitude_ >> 96 == 0 && scale_ <= Decimal::maxScale && !rest_) {
            return Decimal::fromMagnitude(magnitude_, scale_, negative);
        }
        return fitDecimal(magnitude_, scale_, negative, rest_);
    }

  private:
    // Far above 96 bits, so that the digits kept decide the rounding but for a rest that is not 0.
    static constexpr UInt128 limit = UInt128{1} << 124;

    UInt128 magnitude_ = 0;
    int scale_ = 0;
    int lostBeforePoint_ = 0;
    bool rest_ = false;
};

// The decimal digits of a number: `count` of them in `digits`, the first `whole` of them before the point.
// `whole` may lie outside 0..count.
struct Digits {
    std::array<char, 48> digits;
    int count = 0;
    int whole = 0;
    bool negative = false;

    char at(int position) const {
        return position >= 0 && position < count ? digits[static_cast<std::size_t>(position)] : '0';
    }

    void strip() {
        while (count > 0 && digits[static_cast<std::size_t>(count - 1)] == '0') --count;
        if (count == 0) {
            whole = 0;
            negative = false;
        }
    }

    // Half away from zero, to so many decimals.
    void round(int decimals) {
        const int kept = whole + decimals;
        if (kept >= count) return;
        const bool up = at(kept) >= '5';
        count = std::max(kept, 0);
        int position = count - 1;
        while (up && position >= 0 && digits[static_cast<std::size_t>(position)] == '9') {
            digits[static_cast<std::size_t>(position--)] = '0';
        }
        if (up && position >= 0) ++digits[static_cast<std::size_t>(position)];
        if (up && position < 0 && kept >= 0) {
            digits[0] = '1';
            count = 1;
            ++whole;
        }
        strip();
    }
};

int writeMagnitude(UInt128 magnitude, char* buffer) {
    constexpr UInt128 chunk = powersOfTen[19];
    const auto low = static_cast<std::uint64_t>(magnitude % chunk);
    const auto high = static_cast<std::uint64_t>(magnitude / chunk);
    if (high == 0) return static_cast<int>(std::to_chars(buffer, buffer + 20, low).ptr - buffer);
    char* const end = std::to_chars(buffer, buffer + 20, high).ptr;
    std::array<char, 20> tail;
    const auto length = std::to_chars(tail.data(), tail.data() + tail.size(), low).ptr - tail.data();
    std::memset(end, '0', 19);
    std::memcpy(end + 19 - length, tail.data(), static_cast<std::size_t>(length));
    return static_cast<int>(end - buffer) + 19;
}

Digits digitsOf(const Decimal& value) {
    Digits result;
    result.negative = value.isNegative();
    if (!value.isZero()) result.count = writeMagnitude(value.magnitude(), result.digits.data());
    result.whole = result.count - value.scale();
    result.strip();
    return result;
}

// The 15 significant digits of a double.
Digits digitsOf(double value) {
    Digits result;
    if (!std::isfinite(value)) throw CalculationFailure(FailureKind::overflow);
    std::array<char, 32> buffer;
    const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                          std::chars_format::scientific, 14)
                                .ptr;
    result.digits[0] = buffer[0];
    std::copy_n(buffer.begin() + 2, 14, result.digits.begin() + 1);
    result.count = 15;
    int exponent = 0;
    std::from_chars(buffer.data() + (buffer[17] == '+' ? 18 : 17), end, exponent);
    result.whole = exponent + 1;
    result.negative = std::signbit(value);
    result.strip();
    return result;
}

Text textOf(const Digits& digits, Separators separators, int minDecimals, bool grouped) {
    const int whole = std::max(digits.whole, 1);
    const int decimals = std::max(minDecimals, digits.count - digits.whole);
    Text text;
    const auto length = static_cast<std::size_t>(whole) + static_cast<std::size_t>(decimals);
    text.reserve(2 + length + length / 3);
    if (digits.negative) text += u'-';
    // With fewer than one digit before the point the digits begin behind it.
    int position = std::min(digits.whole, 1) - 1;
    for (int left = whole; left > 0; --left, ++position) {
        text += static_cast<char16_t>(digits.at(position));
        if (grouped && left > 1 && left % 3 == 1) text += separators.group;
    }
    if (decimals > 0) text += separators.decimal;
    for (int i = 0; i < decimals; ++i, ++position) text += static_cast<char16_t>(digits.at(position));
    return text;
}

Text maskOf(Digits digits, Separators separators, int maxDecimals) {
    digits.round(maxDecimals);
    return textOf(digits, separators, 2, true);
}

}  // namespace

Text underSeparators(TextView text, Separators separators) {
    constexpr TextView signs = u",.", figure = u"0123456789,.";
    Text result(text);
    for (std::size_t begin = 0; (begin = text.find_first_of(figure, begin)) != TextView::npos;) {
        const std::size_t end = std::min(text.find_first_not_of(figure, begin), text.size());
        const TextView digits = text.substr(begin, end - begin);
        const std::size_t last = digits.find_last_of(signs);
        for (std::size_t i = 0; i < digits.size() && last != TextView::npos; ++i) {
            if (isDigit(digits[i])) continue;
            const bool isDecimal = digits[i] == digits[last] && digits.find(digits[last]) == last;
            result[begin + i] = isDecimal ? separators.decimal : separators.group;
        }
        begin = end;
    }
    return result;
}

bool readsAsNumber(TextView text, Separators separators) {
    const auto reading = readSign(text);
    return reading && readDigits(reading->body, separators, [](unsigned, bool) {});
}

Decimal parseDecimal(TextView text, Separators separators) {
    const auto reading = readSign(text);
    DigitCollector collector;
    if (!reading || !readDigits(reading->body, separators,
                                [&](unsigned digit, bool isDecimal) { collector(digit, isDecimal); })) {
        throw CalculationFailure(FailureKind::notANumber);
    }
    return collector.value(reading->negative);
}

std::optional<Decimal> tryParseDecimal(TextView text, Separators separators) {
    try {
        return parseDecimal(text, separators);
    } catch (const CalculationFailure&) {
        return std::nullopt;
    }
}

double parseDouble(TextView text, Separators separators) {
    const auto reading = readSign(text);
    std::string plain;
    bool pointWritten = false;
    const auto take = [&](unsigned digit, bool isDecimal) {
        if (isDecimal && !std::exchange(pointWritten, true)) plain += '.';
        plain += static_cast<char>('0' + digit);
    };
    if (!reading || !readDigits(reading->body, separators, take)) {
        throw CalculationFailure(FailureKind::notANumber);
    }
    double value = 0;
    const auto result =
        std::from_chars(plain.data(), plain.data() + plain.size(), value, std::chars_format::fixed);
    const bool large = plain.find_first_not_of('0') < plain.find('.');
    if (result.ec == std::errc::result_out_of_range && large) throw CalculationFailure(FailureKind::overflow);
    if (result.ec != std::errc()) value = 0;  // too small for a double
    return reading->negative ? -value : value;
}

Text generalText(const Decimal& value, Separators separators) {
    return textOf(digitsOf(value), separators, 0, false);
}

Text generalText(double value, Separators separators) {
    return textOf(digitsOf(value), separators, 0, false);
}

Text maskText(const Decimal& value, Separators separators, int maxDecimals) {
    return maskOf(digitsOf(value), separators, maxDecimals);
}

Text maskText(double value, Separators separators, int maxDecimals) {
    return maskOf(digitsOf(value), separators, maxDecimals);
}

Text fixedText(double value, int digits, Separators separators) {
    Digits rounded = digitsOf(value);
    rounded.round(digits);
    return textOf(rounded, separators, digits, true);
}

double Round(double value, std::int16_t digits) {
    return parseDouble(fixedText(value, digits, pointStyle), pointStyle);
}

Text scaledText(const Decimal& value) {
    Digits digits;
    if (!value.isZero()) digits.count = writeMagnitude(value.magnitude(), digits.digits.data());
    digits.whole = digits.count - value.scale();
    digits.negative = value.isNegative();
    return textOf(digits, pointStyle, value.scale(), false);
}

}  // namespace zifferon
