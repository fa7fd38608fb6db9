// pointops/sum.h: what Add and Sub share. Both form r = a + b or b - a; they differ in a few expressions.
#pragma once

#include "core/rounding.h"
#include "pointops/arithmetic.h"

namespace kvri {

// Expressions are structs with, on vectors of T:
//   saturated(a, b)  r, saturated
//   half(a, b)       r / 2 rounded down, in the type's own width; what is cut off is bit 0 of cut(a, b)

template <class T, class Expression>
struct Saturated {
    using Sample = T;
    static constexpr int unrolled = 4;
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

// r / 2: a tie between half and half + 1, where a bit was cut off, goes to the even one; half + 1 may be too large.
template <class T, class Expression>
struct Halved {
    using Sample = T;
    static constexpr int unrolled = 2;
    using V = Vec<T>;
    V operator()(V a, V b) const {
        const V half = Expression::half(a, b), up = half & Expression::cut(a, b) & 1;
        if constexpr (kHolds<V, int16_t>) return addSat(half, up);
        else if constexpr (kHolds<V, int32_t>) return half + (up & (half != std::numeric_limits<T>::max()));
        else return half + up;
    }
};

template <class T, class Expression>
struct Quotient {
    using Sample = T;
    static constexpr int unrolled = 1;
    using V = Vec<T>;
    RoundingShift<T> round;
    V operator()(V a, V b) const { return round(Expression::half(a, b), Expression::cut(a, b)); }
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
    else if (scaleFactor <= limit) task(Quotient<T, Expression>{RoundingShift<T>(scaleFactor - 1)});
    else task.clear();
}

}  // namespace kvri
