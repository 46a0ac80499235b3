// The exact decimal: a 96-bit integer with a sign and a scale of 0 to 28, its number of decimals.
//
// Sum, difference, product and quotient round the exact result once, half to even, at the most decimals at
// which it still fits 96 bits. What does not fit with 0 decimals throws CalculationFailure (overflow); what
// is too small becomes 0.
#pragma once

#include <compare>
#include <cstdint>

namespace zifferon {

__extension__ using UInt128 = unsigned __int128;

class Decimal {
  public:
    constexpr Decimal() = default;
    constexpr Decimal(std::int64_t value)
        : low_(value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value)),
          negative_(value < 0) {}
    constexpr Decimal(std::int32_t value) : Decimal(std::int64_t{value}) {}

    static constexpr int maxScale = 28;

    // The 96-bit magnitude in three 32-bit parts, as it is stored. Throws CalculationFailure (notANumber) for
    // a scale beyond 28.
    static Decimal fromParts(std::uint32_t low, std::uint32_t mid, std::uint32_t high, int scale,
                             bool negative);
    std::uint32_t low() const { return static_cast<std::uint32_t>(low_); }
    std::uint32_t mid() const { return static_cast<std::uint32_t>(low_ >> 32); }
    std::uint32_t high() const { return high_; }
    int scale() const { return scale_; }

    // The same from a magnitude below 2^96.
    static constexpr Decimal fromMagnitude(UInt128 magnitude, int scale, bool negative) {
        Decimal result;
        result.low_ = static_cast<std::uint64_t>(magnitude);
        result.high_ = static_cast<std::uint32_t>(magnitude >> 64);
        result.scale_ = static_cast<std::uint8_t>(scale);
        result.negative_ = negative;
        return result;
    }
    UInt128 magnitude() const { return UInt128{high_} << 64 | low_; }

    // 15 significant digits, at most 28 decimals: 0.1 + 0.2 gives 0.3. The digits come from scaling in double
    // arithmetic, so near a half the last one can differ from that of the exact value. Throws overflow, for
    // what is no number too.
    static Decimal fromDouble(double value);

    // (low 64 bits + high 32 bits x 2^64) / 10^scale, each step in double.
    double toDouble() const;

    bool isNegative() const { return negative_; }  // the sign bit, which a zero may carry
    bool isZero() const { return low_ == 0 && high_ == 0; }

    // Without the decimals, scale 0.
    Decimal truncated() const;

    friend Decimal operator+(const Decimal& a, const Decimal& b);
    friend Decimal operator-(const Decimal& a, const Decimal& b) { return a + -b; }
    friend Decimal operator*(const Decimal& a, const Decimal& b);
    friend Decimal operator/(const Decimal& a, const Decimal& b);  // throws divisionByZero too
    Decimal operator-() const;

    // By value: 1.0 equals 1.00, and -0 equals 0.
    friend std::weak_ordering operator<=>(const Decimal& a, const Decimal& b);
    friend bool operator==(const Decimal& a, const Decimal& b) { return std::is_eq(a <=> b); }

  private:
    std::uint64_t low_ = 0;
    std::uint32_t high_ = 0;
    std::uint8_t scale_ = 0;
    bool negative_ = false;
};

static_assert(sizeof(Decimal) == 16);

// Rounds `magnitude` x 10^-scale half to even to what a decimal holds: at most `scale` and 28 decimals. For a
// number read from text; `rest` says that something not 0 follows behind the last digit. Throws overflow.
Decimal fitDecimal(UInt128 magnitude, int scale, bool negative, bool rest);

}  // namespace zifferon
