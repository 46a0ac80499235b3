#include "core/decimal.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "core/failure.h"
#include "core/wide_integer.h"

namespace zifferon {

namespace {

constexpr UInt128 limit96 = UInt128{1} << 96;

// The processor divides 64 bits far faster than a routine divides 128.
UInt128 quotientOf(UInt128 dividend, UInt128 divisor) {
    if ((dividend | divisor) >> 64 != 0) return dividend / divisor;
    return static_cast<std::uint64_t>(dividend) / static_cast<std::uint64_t>(divisor);
}

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
Decimal stripped(UInt128 magnitude, int scale, bool negative) {
    if (magnitude == 0) return Decimal::fromMagnitude(0, 0, negative);
    for (const int digits : {16, 8, 4, 2, 1}) {
        const auto power = powersOfTen[static_cast<std::size_t>(digits)];
        // A number with n zeros at its end divides by 2^n: a test that spares most divisions.
        while (scale >= digits && (magnitude & ((1u << digits) - 1)) == 0) {
            const UInt128 quotient = quotientOf(magnitude, power);
            if (quotient * power != magnitude) break;
            magnitude = quotient;
            scale -= digits;
        }
    }
    return Decimal::fromMagnitude(magnitude, scale, negative);
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

// A division on paper, which brings down several decimals at a time.
class LongDivision {
  public:
    LongDivision(UInt128 dividend, UInt128 divisor, int scale)
        : divisor_(divisor),
          quotient_(quotientOf(dividend, divisor)),
          remainder_(dividend - quotient_ * divisor),
          scale_(scale) {}

    bool isWhole() const { return remainder_ == 0 && scale_ >= 0; }
    UInt128 quotient() const { return quotient_; }

    // All decimals that fit, rounded half to even.
    Decimal result(bool negative) {
        // The first step is short, as most quotients that end have few decimals. A remainder of 96 bits
        // leaves room for nine digits, one of 64 bits for nineteen.
        for (int step = 9; !isWhole() && extend(step);) step = divisor_ >> 64 == 0 ? 19 : 9;
        if (scale_ < 0) throw CalculationFailure(FailureKind::overflow);
        const UInt128 twice = remainder_ * 2;
        if (twice > divisor_ || (twice == divisor_ && (quotient_ & 1) != 0)) roundUp();
        return stripped(quotient_, scale_, negative);
    }

  private:
    // Brings down up to `step` decimals; false when there is no room for even one.
    bool extend(int step) {
        const int wanted = remainder_ == 0 ? -scale_ : Decimal::maxScale - scale_;
        for (int digits = std::min({step, wanted, roomFor(quotient_)}); digits > 0; --digits) {
            const UInt128 power = powersOfTen[static_cast<std::size_t>(digits)];
            const UInt128 dividend = remainder_ * power;
            const UInt128 decimals = quotientOf(dividend, divisor_);
            const UInt128 longer = quotient_ * power + decimals;
            if (longer >= limit96) continue;
            quotient_ = longer;
            remainder_ = dividend - decimals * divisor_;
            scale_ += digits;
            return true;
        }
        return false;
    }

    // How many zeros, up to nineteen, the number takes within 96 bits.
    static int roomFor(UInt128 number) {
        static constexpr auto largest = [] {
            std::array<UInt128, powersOfTen.size()> numbers{};
            for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] = (limit96 - 1) / powersOfTen[i];
            return numbers;
        }();
        const auto high = static_cast<std::uint64_t>(number >> 64);
        const int freeBits = high != 0 ? std::countl_zero(high) - 32
                                       : 32 + std::countl_zero(static_cast<std::uint64_t>(number));
        const int room = std::min(19, (freeBits + 1) * 30103 / 100000);
        return number > largest[static_cast<std::size_t>(room)] ? room - 1 : room;
    }

    void roundUp() {
        if (++quotient_ < limit96) return;
        // One decimal fewer. What stands behind it is at least 55 hundredths, so it rounds up again.
        if (scale_ == 0) throw CalculationFailure(FailureKind::overflow);
        quotient_ = limit96 / 10 + 1;
        --scale_;
    }

    UInt128 divisor_;
    UInt128 quotient_;
    UInt128 remainder_;
    int scale_;
};

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
    const int scale = a.scale() - b.scale();
    LongDivision division(a.magnitude(), b.magnitude(), scale);
    if (division.isWhole()) return Decimal::fromMagnitude(division.quotient(), scale, negative);
    return division.result(negative);
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

double Decimal::toDouble() const {
    constexpr double twoTo64 = 18446744073709551616.0;
    const double magnitude = static_cast<double>(low_) + static_cast<double>(high_) * twoTo64;
    double divisor = static_cast<double>(powersOfTen[std::min<std::size_t>(scale_, 19)]);
    if (scale_ > 19) divisor *= static_cast<double>(powersOfTen[scale_ - 19u]);
    const double value = magnitude / divisor;
    return negative_ ? -value : value;
}

namespace {

// 10^0 to 10^28, each the nearest double.
constexpr std::array<double, Decimal::maxScale + 1> doublePowersOfTen = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14,
    1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22, 1e23, 1e24, 1e25, 1e26, 1e27, 1e28};

double powerOfTen(int exponent) { return doublePowersOfTen[static_cast<std::size_t>(exponent)]; }

// The decimals that leave 14 or 15 digits of a number of that size; below 0 so many digits before the point
// are lost. 19728 / 65536 is the logarithm of 2, a little less.
int scaleOfDouble(double size) {
    int exponent = 0;
    std::frexp(size, &exponent);
    const int scale = std::min(14 - ((exponent * 19728) >> 16), Decimal::maxScale);
    return scale == -1 && size < 1e15 ? 0 : scale;
}

}  // namespace

// Each step is rounded to a double, as the type does it: near a half the last digit is not always that of the
// exact value.
Decimal Decimal::fromDouble(double value) {
    constexpr double twoTo96 = 79228162514264337593543950336.0;
    constexpr double smallest = 0x1p-94;
    const double size = std::fabs(value);
    if (!(size < twoTo96)) throw CalculationFailure(FailureKind::overflow);
    if (size < smallest) return {};
    int scale = scaleOfDouble(size);
    double scaled = scale < 0 ? size / powerOfTen(-scale) : size * powerOfTen(scale);
    if (scaled < 1e14 && scale < maxScale) {
        scaled *= 10;
        ++scale;
    }
    UInt128 digits = static_cast<std::uint64_t>(std::nearbyint(scaled));
    if (scale < 0) {
        digits *= powersOfTen[static_cast<std::size_t>(-scale)];
        scale = 0;
    }
    for (int zeros = 0; zeros < 14 && scale > 0 && digits % 10 == 0; ++zeros, --scale) digits /= 10;
    return fromMagnitude(digits, scale, std::signbit(value));
}

}  // namespace zifferon
