// core/rounding.h: division by a power of two, to nearest, ties to even: (r + 2^(n-1) - 1 + ((r >> n) & 1)) >> n.
//
// None of these overflows: the sum above is formed as an average, which keeps its carry, or in parts.
#pragma once

#include "core/lanes.h"

namespace kvri {

// x / 2^n for n from 1 to the bits of T. Where bits have been cut off from the value before, bit 0 of `cut` tells whether
// any of them was 1.
template <class T>
class RoundingShift;

template <>
class RoundingShift<uint16_t> {
    using V = Vec<uint16_t>;
    Shift all_, rest_;
    V half_;

public:
    explicit RoundingShift(int n) : all_(n), rest_(n - 1), half_(splat<V>(uint16_t((1 << (n - 1)) - 1))) {}

    V operator()(V x, V cut) const {
        const V even = ~((x >> all_) | cut) & 1;
        return average(subSat(x, even), half_) >> rest_;
    }

    // For n from 2 on half - 1 is even, and takes the quotient's last bit. Bits that have been cut off are then told by bit 0
    // of x just as well.
    V operator()(V x) const { return average(x, ((x >> all_) & 1) | (half_ - 1)) >> rest_; }
};

// x / 2 of 16u.
struct RoundingHalf {
    using V = Vec<uint16_t>;
    V operator()(V x) const {
        const V quotient = x >> 1;
        return quotient + (quotient & x & 1);
    }
};

// The upper half of a number of twice the width, rounded; it must be below the type's maximum.
template <class V>
V roundedUpperHalf(V upper, V lower) {
    constexpr int half = 1 << (8 * sizeof(ElementOf<V>) - 1);
    return oneMoreWhereGreater(upper, lower | (upper & 1), splat<V>(half));
}

// Bytes are shifted in pairs: what comes from the neighbour is masked, or shifted out.
template <>
class RoundingShift<uint8_t> {
    using V = Vec<uint8_t>;
    Shift all_, rest_;
    V half_, mask_;

public:
    explicit RoundingShift(int n)
        : all_(n < 8 ? n : 16), rest_(n - 1), half_(splat<V>(uint8_t((1 << (n - 1)) - 1))), mask_(splat<V>(uint8_t(255 >> (n - 1)))) {}

    V operator()(V x, V cut) const {
        const V even = ~((V)((Vec<uint16_t>)x >> all_) | cut) & 1;
        return (V)((Vec<uint16_t>)average(subSat(x, even), half_) >> rest_) & mask_;
    }

    V operator()(V x) const {
        const V odd = (V)((Vec<uint16_t>)x >> all_) & 1;
        return (V)((Vec<uint16_t>)average(x, odd | (half_ - 1)) >> rest_) & mask_;
    }
};

// n up to 31.
template <>
class RoundingShift<int32_t> {
    using V = Vec<int32_t>;
    using U = Vec<uint32_t>;
    Shift all_;
    U half_, fraction_;

public:
    explicit RoundingShift(int n)
        : all_(n), half_(splat<U>((1u << (n - 1)) - 1)), fraction_(splat<U>((1u << n) - 1)) {}

    V operator()(V x, V cut = V{}) const {
        const V quotient = x >> all_;
        const U odd = (U)(quotient | cut) & 1;
        return quotient + (V)((((U)x & fraction_) + half_ + odd) >> all_);
    }
};

// n up to 63.
template <>
class RoundingShift<int64_t> {
    using V = Vec<int64_t>;
    using U = Vec<uint64_t>;
    Shift all_;
    U half_, fraction_, sign_;

public:
    explicit RoundingShift(int n)
        : all_(n), half_(splat<U>((uint64_t(1) << (n - 1)) - 1)), fraction_(splat<U>((uint64_t(1) << n) - 1)),
          sign_(splat<U>(uint64_t(1) << (63 - n))) {}

    V operator()(V x) const {
        const U quotient = (((U)x >> all_) ^ sign_) - sign_;  // there is no shift that drags a 64-bit sign along
        return (V)(quotient + ((((U)x & fraction_) + half_ + (quotient & 1)) >> all_));
    }
};

// The same for 32-bit numbers up to 2^30 in magnitude and n up to 30, where the plain formula does not overflow.
class SmallRoundingShift {
    using V = Vec<int32_t>;
    Shift all_;
    V half_;

public:
    explicit SmallRoundingShift(int n) : all_(n), half_(splat<V>((1 << (n - 1)) - 1)) {}

    V operator()(V x) const { return (x + half_ + ((x >> all_) & 1)) >> all_; }
};

// x * 2^n, saturated.
template <class T>
class SaturatingShift {
    using V = Vec<T>;
    static constexpr int bits = 8 * sizeof(T);
    static constexpr bool isSigned = std::is_signed_v<T>;
    Shift left_;
    V largest_, smallest_, mask_;

public:
    // From the width of the type on every number but 0 saturates.
    explicit SaturatingShift(int n)
        : left_(std::min(n, bits)),
          largest_(splat<V>(n < bits ? T(std::numeric_limits<T>::max() >> n) : T(0))),
          smallest_(splat<V>(n < bits ? T(std::numeric_limits<T>::min() >> n) : T(0))),
          mask_(splat<V>(T(n < bits ? std::numeric_limits<T>::max() << n : 0))) {}

    V operator()(V x) const {
        const V over = (V)(x > largest_);
        if constexpr (sizeof(T) == 1) return ((V)((Vec<uint16_t>)x << left_) & mask_) | over;
        else if constexpr (!isSigned) return (x << left_) | over;
        else {
            const V under = (V)(x < smallest_);
            return ((x << left_) & ~(over | under)) | (over & std::numeric_limits<T>::max()) |
                   (under & std::numeric_limits<T>::min());
        }
    }
};

}  // namespace kvri
