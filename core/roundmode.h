// core/roundmode.h: how a number becomes an integer: rounding modes as types, of 32f numbers and of integers that are divided
// by a power of two. 32f numbers are rounded under DefaultFloatControl.
#pragma once

#include "core/lanes.h"
#include "kvri/types.h"

namespace kvri {

struct TowardZero {
    Vec<int32_t> operator()(Vec<float> v) const { return towardZero(v); }
    Vec<uint32_t> toUnsigned(Vec<float> v) const { return towardZeroUnsigned(v); }
};

// Ties to even.
struct ToNearest {
    Vec<int32_t> operator()(Vec<float> v) const { return toNearest(v); }
    Vec<uint32_t> toUnsigned(Vec<float> v) const { return toNearestUnsigned(v); }
};

// To nearest, ties away from zero.
class HalfAway {
    // The number below 1/2: a tie's sum with it is rounded up to the integer, that of the number below the tie is not.
    static Vec<float> halfMore(Vec<float> v) {
        const Bytes<> half = (Bytes<>)splat<Vec<float>>(0x1.fffffep-2f), sign = (Bytes<>)splat<Vec<float>>(-0.0f);
        return v + (Vec<float>)(((Bytes<>)v & sign) | half);
    }

public:
    Vec<int32_t> operator()(Vec<float> v) const { return towardZero(halfMore(v)); }
    Vec<uint32_t> toUnsigned(Vec<float> v) const { return towardZeroUnsigned(halfMore(v)); }
};

// f(mode), for modes of which every value but 0 and 1 means 2.
template <class F>
void withRounding(KvrRoundMode mode, F f) {
    switch (mode) {
        case kvrRndZero: return f(TowardZero{});
        case kvrRndNear: return f(ToNearest{});
        default: return f(HalfAway{});
    }
}

// 2^-scaleFactor. Beyond the limits no result but 0 changes any more: it has saturated, or rounds to 0.
template <class F>
F scaleOf(int scaleFactor, int limit) {
    const int n = std::clamp(scaleFactor, -limit, limit);
    F scale = 1;
    for (int i = 0; i < n; ++i) scale /= 2;
    for (int i = 0; i > n; --i) scale *= 2;
    return scale;
}

// x / 2^n of integers, for any n from 1 on.
template <class T, class Round>
class RoundedQuotient {
    using V = Vec<T>;
    using U = Vec<std::make_unsigned_t<T>>;
    static constexpr int bits = 8 * sizeof(T);
    Shift all_, allButOne_;
    U half_, fraction_;

    U divide(U x) const {
        if constexpr (std::is_same_v<Round, TowardZero>) return x >> all_;
        const U halves = x >> allButOne_, away = halves - (halves >> 1);
        if constexpr (std::is_same_v<Round, HalfAway>) return away;
        return away & ~((U)((x & fraction_) == half_) & 1);
    }

public:
    explicit RoundedQuotient(int n)
        : all_(n), allButOne_(n - 1),
          half_(splat<U>(n <= bits ? ElementOf<U>(ElementOf<U>(1) << (n - 1)) : ElementOf<U>(0))),
          fraction_(splat<U>(n < bits ? ElementOf<U>((ElementOf<U>(1) << n) - 1) : ElementOf<U>(-1))) {}

    V operator()(V x) const {
        if constexpr (std::is_unsigned_v<T>) return divide(x);
        const U sign = (U)(x >> (bits - 1));
        return (V)((divide(((U)x ^ sign) - sign) ^ sign) - sign);
    }
};

}  // namespace kvri
