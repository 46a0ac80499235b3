#include "core/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/failure.h"
#include "core/wide_integer.h"

namespace zifferon {

namespace {

constexpr UInt128 limit96 = UInt128{1} << 96;

// What stands behind the last kept digit, in units of that digit.
enum class Rest { none, belowHalf, half, aboveHalf };

Rest restOf(std::uint64_t remainder, std::uint64_t divisor, bool more) {
    const std::uint64_t half = divisor / 2;  // the divisors are even
    if (remainder == 0 && !more) return Rest::none;
    if (remainder < half) return Rest::belowHalf;
    return remainder > half || more ? Rest::aboveHalf : Rest::half;
}

// Drops the last `digits` of the number; `more` says that something not 0 stands behind it already.
Rest dropDigits(WideInteger& number, int digits, bool more) {
    for (; digits > 19; digits -= 19) more |= number.divide(powersOfTen[19]) != 0;
    const std::uint64_t divisor = powersOfTen[static_cast<std::size_t>(digits)];
    return restOf(number.divide(divisor), divisor, more);
}

bool roundsUp(Rest rest, bool lastDigitIsOdd) {
    return rest == Rest::aboveHalf || (rest == Rest::half && lastDigitIsOdd);
}

// How many digits must go at least so that the number has a chance to fit.
int excessDigits(const WideInteger& number) {
    const int bits = number.bitLength() - 96;
    return bits <= 0 ? 0 : std::max(1, bits * 30103 / 100000);
}

// Rounds number x 10^-scale once, half to even. `rest` is what stands behind its last digit.
Decimal fit(const WideInteger& number, int scale, bool negative, Rest rest) {
    for (int drop = std::max(excessDigits(number), scale - Decimal::maxScale);; ++drop) {
        if (drop > scale) throw CalculationFailure(FailureKind::overflow);
        WideInteger kept = number;
        const Rest behind = drop == 0 ? rest : dropDigits(kept, drop, rest != Rest::none);
        if (roundsUp(behind, kept.isOdd())) kept.increment();
        if (kept.fits96Bits()) return Decimal::fromMagnitude(kept.low128(), scale - drop, negative);
    }
}

// Takes trailing zeros off while the scale allows it.
Decimal stripped(const Decimal& value) {
    UInt128 magnitude = value.magnitude();
    int scale = magnitude == 0 ? 0 : value.scale();
    for (const int digits : {16, 8, 4, 2, 1}) {
        while (scale >= digits) {
            const std::uint64_t power = powersOfTen[static_cast<std::size_t>(digits)];
            const UInt128 quotient = magnitude / power;
            if (quotient * power != magnitude) break;
            magnitude = quotient;
            scale -= digits;
        }
    }
    return Decimal::fromMagnitude(magnitude, scale, value.isNegative());
}

// The magnitude with `digits` more zeros, where it surely stays below 2^127; else 0 for a number that is not
// 0.
UInt128 scaledUp(UInt128 magnitude, int digits) {
    if (digits == 0) return magnitude;
    if (digits > 19 || magnitude >> 64 != 0) return 0;
    const UInt128 product = magnitude * powersOfTen[static_cast<std::size_t>(digits)];
    return product >> 127 == 0 ? product : 0;
}

Decimal addWide(const Decimal& a, const Decimal& b) {
    const int scale = std::max(a.scale(), b.scale());
    WideInteger left(a.magnitude());
    WideInteger right(b.magnitude());
    left.multiplyByPowerOfTen(scale - a.scale());
    right.multiplyByPowerOfTen(scale - b.scale());
    if (a.isNegative() == b.isNegative()) {
        left.add(right);
        return fit(left, scale, a.isNegative(), Rest::none);
    }
    if (left >= right) {
        left.subtract(right);
        return fit(left, scale, a.isNegative(), Rest::none);
    }
    right.subtract(left);
    return fit(right, scale, b.isNegative(), Rest::none);
}

}  // namespace

Decimal Decimal::fromParts(std::uint32_t low, std::uint32_t mid, std::uint32_t high, int scale,
                           bool negative) {
    if (scale < 0 || scale > maxScale) throw CalculationFailure(FailureKind::notANumber);
    return fromMagnitude(UInt128{high} << 64 | std::uint64_t{mid} << 32 | low, scale, negative);
}

Decimal fitDecimal(UInt128 magnitude, int scale, bool negative, bool rest) {
    return fit(WideInteger(magnitude), scale, negative, rest ? Rest::belowHalf : Rest::none);
}

Decimal operator+(const Decimal& a, const Decimal& b) {
    const int scale = std::max(a.scale(), b.scale());
    const UInt128 left = scaledUp(a.magnitude(), scale - a.scale());
    const UInt128 right = scaledUp(b.magnitude(), scale - b.scale());
    if ((left == 0 && !a.isZero()) || (right == 0 && !b.isZero())) return addWide(a, b);
    const bool same = a.isNegative() == b.isNegative();
    const UInt128 sum = same ? left + right : left >= right ? left - right : right - left;
    const bool negative = same || left >= right ? a.isNegative() : b.isNegative();
    if (sum < limit96) return Decimal::fromMagnitude(sum, scale, negative);
    return fit(WideInteger(sum), scale, negative, Rest::none);
}

Decimal operator*(const Decimal& a, const Decimal& b) {
    const bool negative = a.isNegative() != b.isNegative();
    const int scale = a.scale() + b.scale();
    if (a.high_ == 0 && b.high_ == 0) {
        const UInt128 product = UInt128{a.low_} * b.low_;
        if (product < limit96 && scale <= Decimal::maxScale)
            return Decimal::fromMagnitude(product, scale, negative);
    }
    return fit(WideInteger::product(a.magnitude(), b.magnitude()), scale, negative, Rest::none);
}

Decimal operator/(const Decimal& a, const Decimal& b) {
    if (b.isZero()) throw CalculationFailure(FailureKind::divisionByZero);
    const bool negative = a.isNegative() != b.isNegative();
    const UInt128 dividend = a.magnitude();
    const UInt128 divisor = b.magnitude();
    if (a.scale_ >= b.scale_) {
        const UInt128 whole = a.high_ == 0 && b.high_ == 0 ? UInt128{a.low_ / b.low_} : dividend / divisor;
        if (whole * divisor == dividend) {
            return Decimal::fromMagnitude(whole, a.scale_ - b.scale_, negative);
        }
    }
    WideInteger quotient(dividend);
    quotient.multiplyByPowerOfTen(Decimal::maxScale - a.scale_ + b.scale_);
    const UInt128 remainder = quotient.divide(divisor);
    const Rest rest = remainder == 0             ? Rest::none
                      : remainder * 2 < divisor  ? Rest::belowHalf
                      : remainder * 2 == divisor ? Rest::half
                                                 : Rest::aboveHalf;
    return stripped(fit(quotient, Decimal::maxScale, negative, rest));
}

Decimal Decimal::operator-() const {
    Decimal result = *this;
    result.negative_ = !negative_;
    return result;
}

std::weak_ordering operator<=>(const Decimal& a, const Decimal& b) {
    if (a.isZero() && b.isZero()) return std::weak_ordering::equivalent;
    if (a.isZero()) return b.isNegative() ? std::weak_ordering::greater : std::weak_ordering::less;
    if (b.isZero() || a.isNegative() != b.isNegative()) {
        return a.isNegative() ? std::weak_ordering::less : std::weak_ordering::greater;
    }
    const int scale = std::max(a.scale(), b.scale());
    WideInteger left(a.magnitude());
    WideInteger right(b.magnitude());
    left.multiplyByPowerOfTen(scale - a.scale());
    right.multiplyByPowerOfTen(scale - b.scale());
    return a.isNegative() ? right <=> left : left <=> right;
}

Decimal Decimal::truncated() const {
    WideInteger number(magnitude());
    dropDigits(number, scale_, false);
    return fromMagnitude(number.low128(), 0, negative_);
}

Decimal Decimal::rounded(int decimals) const {
    if (scale_ <= decimals) return *this;
    WideInteger number(magnitude());
    const Rest rest = dropDigits(number, scale_ - decimals, false);
    if (rest == Rest::half || rest == Rest::aboveHalf) number.increment();
    return fromMagnitude(number.low128(), decimals, negative_);
}

double Decimal::toDouble() const {
    constexpr double twoTo64 = 18446744073709551616.0;
    const double magnitude = static_cast<double>(low_) + static_cast<double>(high_) * twoTo64;
    double divisor = static_cast<double>(powersOfTen[std::min<std::size_t>(scale_, 19)]);
    if (scale_ > 19) divisor *= static_cast<double>(powersOfTen[scale_ - 19u]);
    const double value = magnitude / divisor;
    return negative_ ? -value : value;
}

Decimal Decimal::fromDouble(double value) {
    constexpr double twoTo96 = 79228162514264337593543950336.0;
    if (!(std::fabs(value) < twoTo96)) throw CalculationFailure(FailureKind::overflow);
    // "d.dddddddddddddde[+-]xx": the digits are rounded correctly, half to even on the exact value.
    std::array<char, 32> buffer;
    const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                          std::chars_format::scientific, 14)
                                .ptr;
    std::uint64_t digits = 0;
    const char* next = buffer.data();
    for (; *next != 'e'; ++next) {
        if (*next != '.') digits = digits * 10 + static_cast<std::uint64_t>(*next - '0');
    }
    int exponent = 0;
    std::from_chars(next + (next[1] == '+' ? 2 : 1), end, exponent);
    const bool negative = std::signbit(value);
    int scale = 14 - exponent;
    if (scale > maxScale + 20) return {};
    WideInteger number(digits);
    if (scale < 0) {
        if (scale < -15) throw CalculationFailure(FailureKind::overflow);
        number.multiplyByPowerOfTen(-scale);
        scale = 0;
    }
    return stripped(fit(number, scale, negative, Rest::none));
}

}  // namespace zifferon
