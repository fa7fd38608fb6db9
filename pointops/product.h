// pointops/product.h: exact products of two samples, divided by a power of two.
#pragma once

#include "core/rounding.h"
#include "pointops/arithmetic.h"

namespace kvri {

// Products by type: saturated(a, b), and exact ones divided by 2^s for s from 1 to `limit`.

template <class T>
struct Products;

template <>
struct Products<uint8_t> {
    static constexpr int limit = 16;
    using V = Vec<uint8_t>;

    static V saturated(V a, V b) {
        const auto most = [](Vec<uint16_t> p) { return smaller(p, splat<Vec<uint16_t>>(255)); };
        return narrow<uint8_t>(most(widenLow(a) * widenLow(b)), most(widenHigh(a) * widenHigh(b)));
    }

    template <class Round>
    struct Quotient {
        using Sample = uint8_t;
        static constexpr int unrolled = 1;
        Round round;
        V operator()(V a, V b) const {
            return narrow<uint8_t>(round(widenLow(a) * widenLow(b)), round(widenHigh(a) * widenHigh(b)));
        }
    };

    // s = 8: the upper bytes of the products, as bytes.
    struct UpperHalf {
        using Sample = uint8_t;
        static constexpr int unrolled = 1;
        V operator()(V a, V b) const {
            using Wide = Vec<uint16_t>;
            const Wide even = ((Wide)a & 255) * ((Wide)b & 255), odd = ((Wide)a >> 8) * ((Wide)b >> 8);
            return roundedUpperHalf((V)((even >> 8) | (odd & 0xFF00)), (V)((even & 255) | (odd << 8)));
        }
    };

    template <class Task>
    static void divided(const Task& task, int s) {
        if (s == 1) task(Quotient<RoundingHalf>{});
        else if (s == 8) task(UpperHalf{});
        else task(Quotient<RoundingShift<uint16_t>>{RoundingShift<uint16_t>(s)});
    }
};

template <>
struct Products<uint16_t> {
    static constexpr int limit = 32;
    using V = Vec<uint16_t>;

    static V saturated(V a, V b) { return a * b | (V)(multiplyHigh(a, b) != 0); }

    // s up to 15: the high half moves up to meet what rounding leaves of the low one.
    struct Quotient {
        using Sample = uint16_t;
        static constexpr int unrolled = 1;
        RoundingShift<uint16_t> round;
        Shift up;
        V largest;

        explicit Quotient(int s) : round(s), up(16 - s), largest(splat<V>(uint16_t((1 << s) - 1))) {}
        V operator()(V a, V b) const {
            const V low = a * b, high = multiplyHigh(a, b);
            return addSat(high << up, round(low, V{})) | (V)(high > largest);
        }
    };

    struct UpperHalf {
        using Sample = uint16_t;
        static constexpr int unrolled = 2;
        V operator()(V a, V b) const { return roundedUpperHalf(multiplyHigh(a, b), a * b); }
    };

    // s from 17 on.
    struct HighQuotient {
        using Sample = uint16_t;
        static constexpr int unrolled = 1;
        RoundingShift<uint16_t> round;
        explicit HighQuotient(int s) : round(s - 16) {}
        V operator()(V a, V b) const { return round(multiplyHigh(a, b), (V)(a * b != 0)); }
    };

    template <class Task>
    static void divided(const Task& task, int s) {
        if (s < 16) task(Quotient(s));
        else if (s == 16) task(UpperHalf{});
        else task(HighQuotient(s));
    }
};

template <>
struct Products<int16_t> {
    static constexpr int limit = 30;
    using V = Vec<int16_t>;
    using Wide = Vec<int32_t>;

    static Wide low(V a, V b) { return (Wide)zipLow<2>(multiplyLow(a, b), multiplyHigh(a, b)); }
    static Wide high(V a, V b) { return (Wide)zipHigh<2>(multiplyLow(a, b), multiplyHigh(a, b)); }
    static V saturated(V a, V b) { return narrow<int16_t>(low(a, b), high(a, b)); }

    struct Quotient {
        using Sample = int16_t;
        static constexpr int unrolled = 1;
        SmallRoundingShift round;
        explicit Quotient(int s) : round(s) {}
        V operator()(V a, V b) const { return narrow<int16_t>(round(low(a, b)), round(high(a, b))); }
    };

    template <class Task>
    static void divided(const Task& task, int s) {
        task(Quotient(s));
    }
};

template <>
struct Products<Kvr32f> {
    using V = Vec<float>;
    static V saturated(V a, V b) { return a * b; }
};

// Complex numbers. The imaginary part of a product can reach 2^31, or 2^63, where all four parts are the type's minimum: one
// more than fits. It appears as the minimum, which no product has, and is taken as one less: no rounding sees the
// difference.
template <>
struct Products<Kvr16sc> {
    static constexpr int limit = 31;
    using V = Vec<int16_t>;
    using Wide = Vec<int32_t>;

    static Wide re(V a, V b) {
        const Wide first = splat<Wide>(0xFFFF);
        return multiplyPairs(a, (V)((Wide)b & first)) - multiplyPairs(a, (V)((Wide)b & ~first));
    }
    static Wide im(V a, V b) {
        const V swapped = (V)shuffle((Bytes<>)b, constant<Bytes<>>([](int i) { return i % 16 ^ 2; }));
        const Wide sum = multiplyPairs(a, swapped);
        return sum ^ (sum == std::numeric_limits<int32_t>::min());
    }
    static V join(Wide re, Wide im) {
        return (V)shuffle((Bytes<>)narrow<int16_t>(re, im), constant<Bytes<>>([](int i) {
            return i % 16 / 4 * 2 + i % 4 / 2 * 8 + i % 2;
        }));
    }
    static V saturated(V a, V b) { return join(re(a, b), im(a, b)); }

    struct Quotient {
        using Sample = int16_t;
        static constexpr int unrolled = 1;
        RoundingShift<int32_t> round;
        explicit Quotient(int s) : round(s) {}
        V operator()(V a, V b) const { return join(round(re(a, b)), round(im(a, b))); }
    };

    template <class Task>
    static void divided(const Task& task, int s) {
        task(Quotient(s));
    }
};

template <>
struct Products<Kvr32sc> {
    static constexpr int limit = 63;
    using V = Vec<int32_t>;
    using Wide = Vec<int64_t>;

    static V second(V v) { return (V)((Vec<uint64_t>)v >> 32); }
    static Wide re(V a, V b) { return multiplyEven(a, b) - multiplyEven(second(a), second(b)); }
    static Wide im(V a, V b) {
        using U = Vec<uint64_t>;
        const Wide sum = (Wide)((U)multiplyEven(a, second(b)) + (U)multiplyEven(second(a), b));
        return sum ^ (sum == std::numeric_limits<int64_t>::min());
    }
    static V join(Wide re, Wide im) {
        constexpr int64_t most = std::numeric_limits<int32_t>::max(), least = std::numeric_limits<int32_t>::min();
        const auto clamp = [](Wide v) {
            v = v > most ? splat<Wide>(most) : v;
            return v < least ? splat<Wide>(least) : v;
        };
        return (V)((clamp(re) & 0xFFFFFFFF) | (Wide)((Vec<uint64_t>)clamp(im) << 32));
    }
    static V saturated(V a, V b) { return join(re(a, b), im(a, b)); }

    struct Quotient {
        using Sample = int32_t;
        static constexpr int unrolled = 1;
        RoundingShift<int64_t> round;
        explicit Quotient(int s) : round(s) {}
        V operator()(V a, V b) const { return join(round(re(a, b)), round(im(a, b))); }
    };

    template <class Task>
    static void divided(const Task& task, int s) {
        task(Quotient(s));
    }
};

template <>
struct Products<Kvr32fc> {
    using V = Vec<float>;
    static V saturated(V a, V b) {
        const V re = pick(a, [](int i) { return i & ~1; }) * b, im = pick(a, [](int i) { return i | 1; }) * pick(b, [](int i) { return i ^ 1; });
        return (V)blendWhere<Bytes<>>([](int i) { return i % 8 < 4; }, (Bytes<>)(re - im), (Bytes<>)(re + im));
    }
};

template <class T>
struct SaturatedProduct {
    using Sample = PartOf<T>;
    static constexpr int unrolled = 1;
    using V = Vec<Sample>;
    V operator()(V a, V b) const { return (V)Products<T>::saturated(a, b); }
};

template <class T>
struct ShiftedProduct {
    using Sample = PartOf<T>;
    static constexpr int unrolled = 1;
    using V = Vec<Sample>;
    SaturatingShift<Sample> shift;
    V operator()(V a, V b) const { return shift(Products<T>::saturated(a, b)); }
};

template <class T, class Task>
void mapProducts(const Task& task, int scaleFactor) {
    if (scaleFactor == 0) task(SaturatedProduct<T>{});
    else if (scaleFactor < 0) task(ShiftedProduct<T>{SaturatingShift<PartOf<T>>(magnitude(scaleFactor))});
    else if (scaleFactor <= Products<T>::limit) Products<T>::divided(task, scaleFactor);
    else task.clear();
}

}  // namespace kvri
