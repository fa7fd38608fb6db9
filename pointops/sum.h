// pointops/sum.h: what Add and Sub share. Both form r = a + b or b - a; they differ in a few expressions.
#pragma once

#include "core/rounding.h"
#include "pointops/arithmetic.h"

namespace kvri {

// Expressions are structs with, on vectors of T:
//   saturated(a, b)  r, saturated
//   half(a, b)       r / 2 rounded down, in the type's own width, of 16s raised by 2^15 to a number without sign; what is cut
//                    off is bit 0 of cut(a, b)

template <class T, class Expression>
struct Saturated {
    using Sample = T;
    static constexpr int unrolled = 2;
    using V = Vec<T>;
    V operator()(V a, V b) const { return Expression::saturated(a, b); }
};

template <class T, class Expression>
struct ShiftedLeft {
    using Sample = T;
    static constexpr int unrolled = 1;
    using V = Vec<T>;
    SaturatingShift<T> shift;
    V operator()(V a, V b) const { return shift(Expression::saturated(a, b)); }
};

constexpr int kRaised = 0x8000;

// r / 2: a tie between half and half + 1, where a bit was cut off, goes to the even one; half + 1 may be too large.
template <class T, class Expression>
struct Halved {
    using Sample = T;
    static constexpr int unrolled = 2;
    using V = Vec<T>;
    V operator()(V a, V b) const {
        const auto half = Expression::half(a, b), up = half & (decltype(half))Expression::cut(a, b) & 1;
        if constexpr (kHolds<V, int16_t>) return (V)(addSat(half, up) ^ kRaised);
        else if constexpr (kHolds<V, int32_t>) return half + (up & (half != std::numeric_limits<T>::max()));
        else return half + up;
    }
};

// r / 2^s, s from 2 on, as the quotient of the half.
template <class T, class Expression>
struct Quotient {
    using Sample = T;
    static constexpr int unrolled = 1;
    using V = Vec<T>;
    static constexpr bool raised = std::is_same_v<T, int16_t>;
    RoundingShift<std::conditional_t<raised, uint16_t, T>> round;
    V offset;

    explicit Quotient(int s) : round(s - 1), offset(splat<V>(raised ? T(kRaised >> (s - 1)) : T(0))) {}
    V operator()(V a, V b) const {
        const auto half = Expression::half(a, b), cut = (decltype(half))Expression::cut(a, b);
        return lowered(round(half, cut));
    }
    template <class Half>
    V lowered(Half q) const {
        if constexpr (raised) return (V)(q - (Half)offset);
        else return q;
    }
};

// The same for s from 3 on, of 8 and 16 bits: bit 0 of the half may stand for the bit that was cut off.
template <class T, class Expression>
struct LongQuotient : Quotient<T, Expression> {
    using V = Vec<T>;
    using Quotient<T, Expression>::Quotient;
    V operator()(V a, V b) const {
        const auto half = Expression::half(a, b), cut = (decltype(half))Expression::cut(a, b);
        return this->lowered(this->round(half | (cut & 1)));
    }
};

// r / 2^16 of 16s is the sign, where r is beyond half of that. (A raised quotient would be odd where the quotient is even.)
template <class Expression>
struct SignOfSum {
    using Sample = int16_t;
    static constexpr int unrolled = 1;
    using V = Vec<int16_t>;
    V operator()(V a, V b) const {
        const V half = (V)(Expression::half(a, b) ^ kRaised) | ((V)Expression::cut(a, b) & 1);
        return (V)(half < -0x4000) - (V)(half > 0x4000);
    }
};

// r of 32-bit parts, computed modulo 2^32: where the sign of `overflow` tells that it left the range, the limit on the side
// of the larger operand.
template <class V>
inline V saturateOverflow(V overflow, V larger, V r) {
    return overflow < 0 ? (larger >> 31) ^ 0x7FFFFFFF : r;
}

// `limit` is the largest scale factor that leaves anything of a result.
template <class T, class Expression, class Task>
void mapScaled(const Task& task, int scaleFactor, int limit) {
    if (scaleFactor == 0) task(Saturated<T, Expression>{});
    else if (scaleFactor < 0) task(ShiftedLeft<T, Expression>{SaturatingShift<T>(magnitude(scaleFactor))});
    else if (scaleFactor == 1) task(Halved<T, Expression>{});
    else if (scaleFactor > limit) task.clear();
    else if (scaleFactor == 2 || sizeof(T) == 4) task(Quotient<T, Expression>(scaleFactor));
    else if constexpr (std::is_same_v<T, int16_t>) scaleFactor == 16 ? task(SignOfSum<Expression>{}) : task(LongQuotient<T, Expression>(scaleFactor));
    else if constexpr (sizeof(T) < 4) task(LongQuotient<T, Expression>(scaleFactor));
}

}  // namespace kvri
