// A whole number of 320 bits: wide enough for every exact sum, product and scaled dividend of two decimals.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

#include "core/decimal.h"

namespace zifferon {

// 10^0 to 10^19.
inline constexpr std::array<std::uint64_t, 20> powersOfTen = [] {
    std::array<std::uint64_t, 20> powers{};
    std::uint64_t power = 1;
    for (auto& entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

class WideInteger {
  public:
    explicit WideInteger(UInt128 value = 0) {
        limbs_[0] = static_cast<std::uint64_t>(value);
        limbs_[1] = static_cast<std::uint64_t>(value >> 64);
    }

    static WideInteger product(UInt128 a, UInt128 b) {
        WideInteger result(a);
        WideInteger upper(a);
        result.multiply(static_cast<std::uint64_t>(b));
        upper.multiply(static_cast<std::uint64_t>(b >> 64));
        result.addShifted(upper, 1);
        return result;
    }

    bool fits96Bits() const { return limbs_[1] <= 0xFFFFFFFF && (limbs_[2] | limbs_[3] | limbs_[4]) == 0; }
    UInt128 low128() const { return UInt128{limbs_[1]} << 64 | limbs_[0]; }
    bool isOdd() const { return (limbs_[0] & 1) != 0; }

    int bitLength() const {
        for (int i = count - 1; i >= 0; --i) {
            const std::uint64_t limb = limbs_[static_cast<std::size_t>(i)];
            if (limb != 0) return 64 * (i + 1) - std::countl_zero(limb);
        }
        return 0;
    }

    void multiply(std::uint64_t factor) {
        std::uint64_t carry = 0;
        for (auto& limb : limbs_) {
            const UInt128 product = UInt128{limb} * factor + carry;
            limb = static_cast<std::uint64_t>(product);
            carry = static_cast<std::uint64_t>(product >> 64);
        }
    }

    void multiplyByPowerOfTen(int exponent) {
        for (; exponent > 19; exponent -= 19) multiply(powersOfTen[19]);
        if (exponent > 0) multiply(powersOfTen[static_cast<std::size_t>(exponent)]);
    }

    void add(const WideInteger& other) { addShifted(other, 0); }

    // `other` must not be larger.
    void subtract(const WideInteger& other) {
        std::uint64_t borrow = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const UInt128 difference = UInt128{limbs_[i]} - other.limbs_[i] - borrow;
            limbs_[i] = static_cast<std::uint64_t>(difference);
            borrow = static_cast<std::uint64_t>(difference >> 64) & 1;
        }
    }

    void increment() {
        for (auto& limb : limbs_) {
            if (++limb != 0) return;
        }
    }

    // Divides and returns the remainder.
    std::uint64_t divide(std::uint64_t divisor) {
        std::uint64_t remainder = 0;
        for (std::size_t i = count; i-- > 0;) {
            if (remainder == 0 && limbs_[i] < divisor) {
                remainder = limbs_[i];
                limbs_[i] = 0;
                continue;
            }
            const UInt128 part = UInt128{remainder} << 64 | limbs_[i];
            const UInt128 quotient = part / divisor;
            limbs_[i] = static_cast<std::uint64_t>(quotient);
            remainder = static_cast<std::uint64_t>(part - quotient * divisor);
        }
        return remainder;
    }

    std::strong_ordering operator<=>(const WideInteger& other) const {
        for (std::size_t i = count; i-- > 0;) {
            if (limbs_[i] != other.limbs_[i]) return limbs_[i] <=> other.limbs_[i];
        }
        return std::strong_ordering::equal;
    }

  private:
    static constexpr int count = 5;

    void addShifted(const WideInteger& other, std::size_t limbs) {
        std::uint64_t carry = 0;
        for (std::size_t i = limbs; i < count; ++i) {
            const UInt128 sum = UInt128{limbs_[i]} + other.limbs_[i - limbs] + carry;
            limbs_[i] = static_cast<std::uint64_t>(sum);
            carry = static_cast<std::uint64_t>(sum >> 64);
        }
    }

    std::array<std::uint64_t, count> limbs_{};
};

}  // namespace zifferon
