// pointops/mul.cpp: Mul, MulC, MulScale and MulCScale.
#include "kvri/pointops.h"
#include "core/rounding.h"
#include "pointops/arithmetic.h"

namespace kvri {
namespace {

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
struct Saturated {
    using Sample = PartOf<T>;
    static constexpr int unrolled = 1;
    using V = Vec<Sample>;
    V operator()(V a, V b) const { return (V)Products<T>::saturated(a, b); }
};

template <class T>
struct ShiftedLeft {
    using Sample = PartOf<T>;
    static constexpr int unrolled = 1;
    using V = Vec<Sample>;
    SaturatingShift<Sample> shift;
    V operator()(V a, V b) const { return shift(Products<T>::saturated(a, b)); }
};

// A factor of bytes, and the byte from which on its products saturate: a larger one gives nothing else.
struct ByteFactor {
    uint8_t value, enough;
    explicit ByteFactor(uint8_t v) : value(v), enough(uint8_t(v == 0 ? 255 : std::min(255 / v + 1, 255))) {}
    ByteFactor() = default;

    struct Lanes {
        Vec<uint8_t> value, enough;
    };
    template <int B>
    class Pattern {
        FromValue<B> value_, enough_;
        static FromValue<B> pattern(const ByteFactor* f, int n, uint8_t ByteFactor::*member) {
            uint8_t bytes[4];
            for (int i = 0; i < n; ++i) bytes[i] = f[i].*member;
            return FromValue<B>(bytes, n);
        }

    public:
        Pattern(const ByteFactor* f, int n) : value_(pattern(f, n, &ByteFactor::value)), enough_(pattern(f, n, &ByteFactor::enough)) {}
        template <int j>
        KVRI_INLINE Lanes vector(auto block, ptrdiff_t first, ptrdiff_t bytes) const {
            return {value_.template vector<j>(block, first, bytes), enough_.template vector<j>(block, first, bytes)};
        }
    };
};

// Products of limited bytes fit into signed words, which are packed with saturation.
struct SaturatedByFactor {
    using Sample = uint8_t;
    static constexpr int unrolled = 2;
    using V = Vec<uint8_t>;
    V operator()(const ByteFactor::Lanes& factor, V b) const {
        const V limited = smaller(b, factor.enough);
        return narrow<uint8_t>(widenLow(factor.value) * widenLow(limited), widenHigh(factor.value) * widenHigh(limited));
    }
};

struct Mul : AnyValues {
    template <class T>
    static constexpr Checks checks = kComplex<T> ? Checks::SizeThenSteps : Checks::NoSteps;

    template <class T, class L>
        requires std::is_same_v<T, Kvr8u>
    static KvrStatus run(const ImageAndValue<T, L>& task, int scaleFactor) {
        if (scaleFactor != 0) return run<T, ImageAndValue<T, L>>(task, scaleFactor);
        ByteFactor factors[L::colours];
        for (int i = 0; i < L::colours; ++i) factors[i] = ByteFactor(task.value[i]);
        task.template with<ByteFactor::Pattern>(SaturatedByFactor{}, factors);
        return kvrStatusOk;
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task, int scaleFactor) {
        if (scaleFactor == 0) task(Saturated<T>{});
        else if (scaleFactor < 0) task(ShiftedLeft<T>{SaturatingShift<PartOf<T>>(magnitude(scaleFactor))});
        else if (scaleFactor <= Products<T>::limit) Products<T>::divided(task, scaleFactor);
        else task.clear();
        return kvrStatusOk;
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        task(Saturated<T>{});
        return kvrStatusOk;
    }
};

// (t + 1 + (t >> bits)) >> bits for t = a * b.
struct Fraction8 {
    using Sample = uint8_t;
    static constexpr int unrolled = 1;
    using V = Vec<uint8_t>;
    V operator()(V a, V b) const {
        const auto scaled = [](Vec<uint16_t> t) { return (t + 1 + (t >> 8)) >> 8; };
        return narrow<uint8_t>(scaled(widenLow(a) * widenLow(b)), scaled(widenHigh(a) * widenHigh(b)));
    }
};

// The low half, the high half and 1 carry where low >= 2^16 - 1 - high.
struct Fraction16 {
    using Sample = uint16_t;
    static constexpr int unrolled = 1;
    using V = Vec<uint16_t>;
    V operator()(V a, V b) const {
        const V low = a * b, high = multiplyHigh(a, b);
        return high - (V)(low >= (V)~high);
    }
};

struct MulScale : AnyValues {
    template <class T>
    static constexpr Checks checks = Checks::StepsThenSize;

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        task(std::conditional_t<sizeof(T) == 1, Fraction8, Fraction16>{});
        return kvrStatusOk;
    }
};

KVRI_EXPORT(kvriMul_8u_C1RSfs, twoImages<Mul, Kvr8u, C1>);
KVRI_EXPORT(kvriMul_8u_C3RSfs, twoImages<Mul, Kvr8u, C3>);
KVRI_EXPORT(kvriMul_8u_C4RSfs, twoImages<Mul, Kvr8u, C4>);
KVRI_EXPORT(kvriMul_8u_AC4RSfs, twoImages<Mul, Kvr8u, AC4>);
KVRI_EXPORT(kvriMul_8u_C1IRSfs, twoImagesInPlace<Mul, Kvr8u, C1>);
KVRI_EXPORT(kvriMul_8u_C3IRSfs, twoImagesInPlace<Mul, Kvr8u, C3>);
KVRI_EXPORT(kvriMul_8u_C4IRSfs, twoImagesInPlace<Mul, Kvr8u, C4>);
KVRI_EXPORT(kvriMul_8u_AC4IRSfs, twoImagesInPlace<Mul, Kvr8u, AC4>);
KVRI_EXPORT(kvriMul_16u_C1RSfs, twoImages<Mul, Kvr16u, C1>);
KVRI_EXPORT(kvriMul_16u_C3RSfs, twoImages<Mul, Kvr16u, C3>);
KVRI_EXPORT(kvriMul_16u_C4RSfs, twoImages<Mul, Kvr16u, C4>);
KVRI_EXPORT(kvriMul_16u_AC4RSfs, twoImages<Mul, Kvr16u, AC4>);
KVRI_EXPORT(kvriMul_16u_C1IRSfs, twoImagesInPlace<Mul, Kvr16u, C1>);
KVRI_EXPORT(kvriMul_16u_C3IRSfs, twoImagesInPlace<Mul, Kvr16u, C3>);
KVRI_EXPORT(kvriMul_16u_C4IRSfs, twoImagesInPlace<Mul, Kvr16u, C4>);
KVRI_EXPORT(kvriMul_16u_AC4IRSfs, twoImagesInPlace<Mul, Kvr16u, AC4>);
KVRI_EXPORT(kvriMul_16s_C1RSfs, twoImages<Mul, Kvr16s, C1>);
KVRI_EXPORT(kvriMul_16s_C3RSfs, twoImages<Mul, Kvr16s, C3>);
KVRI_EXPORT(kvriMul_16s_C4RSfs, twoImages<Mul, Kvr16s, C4>);
KVRI_EXPORT(kvriMul_16s_AC4RSfs, twoImages<Mul, Kvr16s, AC4>);
KVRI_EXPORT(kvriMul_16s_C1IRSfs, twoImagesInPlace<Mul, Kvr16s, C1>);
KVRI_EXPORT(kvriMul_16s_C3IRSfs, twoImagesInPlace<Mul, Kvr16s, C3>);
KVRI_EXPORT(kvriMul_16s_C4IRSfs, twoImagesInPlace<Mul, Kvr16s, C4>);
KVRI_EXPORT(kvriMul_16s_AC4IRSfs, twoImagesInPlace<Mul, Kvr16s, AC4>);
KVRI_EXPORT(kvriMul_16sc_C1RSfs, twoImages<Mul, Kvr16sc, C1>);
KVRI_EXPORT(kvriMul_16sc_C3RSfs, twoImages<Mul, Kvr16sc, C3>);
KVRI_EXPORT(kvriMul_16sc_AC4RSfs, twoImages<Mul, Kvr16sc, AC4>);
KVRI_EXPORT(kvriMul_16sc_C1IRSfs, twoImagesInPlace<Mul, Kvr16sc, C1>);
KVRI_EXPORT(kvriMul_16sc_C3IRSfs, twoImagesInPlace<Mul, Kvr16sc, C3>);
KVRI_EXPORT(kvriMul_16sc_AC4IRSfs, twoImagesInPlace<Mul, Kvr16sc, AC4>);
KVRI_EXPORT(kvriMul_32sc_C1RSfs, twoImages<Mul, Kvr32sc, C1>);
KVRI_EXPORT(kvriMul_32sc_C3RSfs, twoImages<Mul, Kvr32sc, C3>);
KVRI_EXPORT(kvriMul_32sc_AC4RSfs, twoImages<Mul, Kvr32sc, AC4>);
KVRI_EXPORT(kvriMul_32sc_C1IRSfs, twoImagesInPlace<Mul, Kvr32sc, C1>);
KVRI_EXPORT(kvriMul_32sc_C3IRSfs, twoImagesInPlace<Mul, Kvr32sc, C3>);
KVRI_EXPORT(kvriMul_32sc_AC4IRSfs, twoImagesInPlace<Mul, Kvr32sc, AC4>);
KVRI_EXPORT(kvriMul_32f_C1R, twoImages<Mul, Kvr32f, C1>);
KVRI_EXPORT(kvriMul_32f_C3R, twoImages<Mul, Kvr32f, C3>);
KVRI_EXPORT(kvriMul_32f_C4R, twoImages<Mul, Kvr32f, C4>);
KVRI_EXPORT(kvriMul_32f_AC4R, twoImages<Mul, Kvr32f, AC4>);
KVRI_EXPORT(kvriMul_32f_C1IR, twoImagesInPlace<Mul, Kvr32f, C1>);
KVRI_EXPORT(kvriMul_32f_C3IR, twoImagesInPlace<Mul, Kvr32f, C3>);
KVRI_EXPORT(kvriMul_32f_C4IR, twoImagesInPlace<Mul, Kvr32f, C4>);
KVRI_EXPORT(kvriMul_32f_AC4IR, twoImagesInPlace<Mul, Kvr32f, AC4>);
KVRI_EXPORT(kvriMul_32fc_C1R, twoImages<Mul, Kvr32fc, C1>);
KVRI_EXPORT(kvriMul_32fc_C3R, twoImages<Mul, Kvr32fc, C3>);
KVRI_EXPORT(kvriMul_32fc_AC4R, twoImages<Mul, Kvr32fc, AC4>);
KVRI_EXPORT(kvriMul_32fc_C1IR, twoImagesInPlace<Mul, Kvr32fc, C1>);
KVRI_EXPORT(kvriMul_32fc_C3IR, twoImagesInPlace<Mul, Kvr32fc, C3>);
KVRI_EXPORT(kvriMul_32fc_AC4IR, twoImagesInPlace<Mul, Kvr32fc, AC4>);

KVRI_EXPORT(kvriMulC_8u_C1RSfs, imageAndValue<Mul, Kvr8u>);
KVRI_EXPORT(kvriMulC_8u_C3RSfs, imageAndValues<Mul, Kvr8u, C3>);
KVRI_EXPORT(kvriMulC_8u_C4RSfs, imageAndValues<Mul, Kvr8u, C4>);
KVRI_EXPORT(kvriMulC_8u_AC4RSfs, imageAndValues<Mul, Kvr8u, AC4>);
KVRI_EXPORT(kvriMulC_8u_C1IRSfs, valueInPlace<Mul, Kvr8u>);
KVRI_EXPORT(kvriMulC_8u_C3IRSfs, valuesInPlace<Mul, Kvr8u, C3>);
KVRI_EXPORT(kvriMulC_8u_C4IRSfs, valuesInPlace<Mul, Kvr8u, C4>);
KVRI_EXPORT(kvriMulC_8u_AC4IRSfs, valuesInPlace<Mul, Kvr8u, AC4>);
KVRI_EXPORT(kvriMulC_16u_C1RSfs, imageAndValue<Mul, Kvr16u>);
KVRI_EXPORT(kvriMulC_16u_C3RSfs, imageAndValues<Mul, Kvr16u, C3>);
KVRI_EXPORT(kvriMulC_16u_C4RSfs, imageAndValues<Mul, Kvr16u, C4>);
KVRI_EXPORT(kvriMulC_16u_AC4RSfs, imageAndValues<Mul, Kvr16u, AC4>);
KVRI_EXPORT(kvriMulC_16u_C1IRSfs, valueInPlace<Mul, Kvr16u>);
KVRI_EXPORT(kvriMulC_16u_C3IRSfs, valuesInPlace<Mul, Kvr16u, C3>);
KVRI_EXPORT(kvriMulC_16u_C4IRSfs, valuesInPlace<Mul, Kvr16u, C4>);
KVRI_EXPORT(kvriMulC_16u_AC4IRSfs, valuesInPlace<Mul, Kvr16u, AC4>);
KVRI_EXPORT(kvriMulC_16s_C1RSfs, imageAndValue<Mul, Kvr16s>);
KVRI_EXPORT(kvriMulC_16s_C3RSfs, imageAndValues<Mul, Kvr16s, C3>);
KVRI_EXPORT(kvriMulC_16s_C4RSfs, imageAndValues<Mul, Kvr16s, C4>);
KVRI_EXPORT(kvriMulC_16s_AC4RSfs, imageAndValues<Mul, Kvr16s, AC4>);
KVRI_EXPORT(kvriMulC_16s_C1IRSfs, valueInPlace<Mul, Kvr16s>);
KVRI_EXPORT(kvriMulC_16s_C3IRSfs, valuesInPlace<Mul, Kvr16s, C3>);
KVRI_EXPORT(kvriMulC_16s_C4IRSfs, valuesInPlace<Mul, Kvr16s, C4>);
KVRI_EXPORT(kvriMulC_16s_AC4IRSfs, valuesInPlace<Mul, Kvr16s, AC4>);
KVRI_EXPORT(kvriMulC_16sc_C1RSfs, imageAndValue<Mul, Kvr16sc>);
KVRI_EXPORT(kvriMulC_16sc_C3RSfs, imageAndValues<Mul, Kvr16sc, C3>);
KVRI_EXPORT(kvriMulC_16sc_AC4RSfs, imageAndValues<Mul, Kvr16sc, AC4>);
KVRI_EXPORT(kvriMulC_16sc_C1IRSfs, valueInPlace<Mul, Kvr16sc>);
KVRI_EXPORT(kvriMulC_16sc_C3IRSfs, valuesInPlace<Mul, Kvr16sc, C3>);
KVRI_EXPORT(kvriMulC_16sc_AC4IRSfs, valuesInPlace<Mul, Kvr16sc, AC4>);
KVRI_EXPORT(kvriMulC_32sc_C1RSfs, imageAndValue<Mul, Kvr32sc>);
KVRI_EXPORT(kvriMulC_32sc_C3RSfs, imageAndValues<Mul, Kvr32sc, C3>);
KVRI_EXPORT(kvriMulC_32sc_AC4RSfs, imageAndValues<Mul, Kvr32sc, AC4>);
KVRI_EXPORT(kvriMulC_32sc_C1IRSfs, valueInPlace<Mul, Kvr32sc>);
KVRI_EXPORT(kvriMulC_32sc_C3IRSfs, valuesInPlace<Mul, Kvr32sc, C3>);
KVRI_EXPORT(kvriMulC_32sc_AC4IRSfs, valuesInPlace<Mul, Kvr32sc, AC4>);
KVRI_EXPORT(kvriMulC_32f_C1R, imageAndValue<Mul, Kvr32f>);
KVRI_EXPORT(kvriMulC_32f_C3R, imageAndValues<Mul, Kvr32f, C3>);
KVRI_EXPORT(kvriMulC_32f_C4R, imageAndValues<Mul, Kvr32f, C4>);
KVRI_EXPORT(kvriMulC_32f_AC4R, imageAndValues<Mul, Kvr32f, AC4>);
KVRI_EXPORT(kvriMulC_32f_C1IR, valueInPlace<Mul, Kvr32f>);
KVRI_EXPORT(kvriMulC_32f_C3IR, valuesInPlace<Mul, Kvr32f, C3>);
KVRI_EXPORT(kvriMulC_32f_C4IR, valuesInPlace<Mul, Kvr32f, C4>);
KVRI_EXPORT(kvriMulC_32f_AC4IR, valuesInPlace<Mul, Kvr32f, AC4>);
KVRI_EXPORT(kvriMulC_32fc_C1R, imageAndValue<Mul, Kvr32fc>);
KVRI_EXPORT(kvriMulC_32fc_C3R, imageAndValues<Mul, Kvr32fc, C3>);
KVRI_EXPORT(kvriMulC_32fc_AC4R, imageAndValues<Mul, Kvr32fc, AC4>);
KVRI_EXPORT(kvriMulC_32fc_C1IR, valueInPlace<Mul, Kvr32fc>);
KVRI_EXPORT(kvriMulC_32fc_C3IR, valuesInPlace<Mul, Kvr32fc, C3>);
KVRI_EXPORT(kvriMulC_32fc_AC4IR, valuesInPlace<Mul, Kvr32fc, AC4>);

KVRI_EXPORT(kvriMulScale_8u_C1R, twoImages<MulScale, Kvr8u, C1>);
KVRI_EXPORT(kvriMulScale_8u_C3R, twoImages<MulScale, Kvr8u, C3>);
KVRI_EXPORT(kvriMulScale_8u_C4R, twoImages<MulScale, Kvr8u, C4>);
KVRI_EXPORT(kvriMulScale_8u_AC4R, twoImages<MulScale, Kvr8u, AC4>);
KVRI_EXPORT(kvriMulScale_8u_C1IR, twoImagesInPlace<MulScale, Kvr8u, C1>);
KVRI_EXPORT(kvriMulScale_8u_C3IR, twoImagesInPlace<MulScale, Kvr8u, C3>);
KVRI_EXPORT(kvriMulScale_8u_C4IR, twoImagesInPlace<MulScale, Kvr8u, C4>);
KVRI_EXPORT(kvriMulScale_8u_AC4IR, twoImagesInPlace<MulScale, Kvr8u, AC4>);
KVRI_EXPORT(kvriMulScale_16u_C1R, twoImages<MulScale, Kvr16u, C1>);
KVRI_EXPORT(kvriMulScale_16u_C3R, twoImages<MulScale, Kvr16u, C3>);
KVRI_EXPORT(kvriMulScale_16u_C4R, twoImages<MulScale, Kvr16u, C4>);
KVRI_EXPORT(kvriMulScale_16u_AC4R, twoImages<MulScale, Kvr16u, AC4>);
KVRI_EXPORT(kvriMulScale_16u_C1IR, twoImagesInPlace<MulScale, Kvr16u, C1>);
KVRI_EXPORT(kvriMulScale_16u_C3IR, twoImagesInPlace<MulScale, Kvr16u, C3>);
KVRI_EXPORT(kvriMulScale_16u_C4IR, twoImagesInPlace<MulScale, Kvr16u, C4>);
KVRI_EXPORT(kvriMulScale_16u_AC4IR, twoImagesInPlace<MulScale, Kvr16u, AC4>);

KVRI_EXPORT(kvriMulCScale_8u_C1R, imageAndValue<MulScale, Kvr8u>);
KVRI_EXPORT(kvriMulCScale_8u_C3R, imageAndValues<MulScale, Kvr8u, C3>);
KVRI_EXPORT(kvriMulCScale_8u_C4R, imageAndValues<MulScale, Kvr8u, C4>);
KVRI_EXPORT(kvriMulCScale_8u_AC4R, imageAndValues<MulScale, Kvr8u, AC4>);
KVRI_EXPORT(kvriMulCScale_8u_C1IR, valueInPlace<MulScale, Kvr8u>);
KVRI_EXPORT(kvriMulCScale_8u_C3IR, valuesInPlace<MulScale, Kvr8u, C3>);
KVRI_EXPORT(kvriMulCScale_8u_C4IR, valuesInPlace<MulScale, Kvr8u, C4>);
KVRI_EXPORT(kvriMulCScale_8u_AC4IR, valuesInPlace<MulScale, Kvr8u, AC4>);
KVRI_EXPORT(kvriMulCScale_16u_C1R, imageAndValue<MulScale, Kvr16u>);
KVRI_EXPORT(kvriMulCScale_16u_C3R, imageAndValues<MulScale, Kvr16u, C3>);
KVRI_EXPORT(kvriMulCScale_16u_C4R, imageAndValues<MulScale, Kvr16u, C4>);
KVRI_EXPORT(kvriMulCScale_16u_AC4R, imageAndValues<MulScale, Kvr16u, AC4>);
KVRI_EXPORT(kvriMulCScale_16u_C1IR, valueInPlace<MulScale, Kvr16u>);
KVRI_EXPORT(kvriMulCScale_16u_C3IR, valuesInPlace<MulScale, Kvr16u, C3>);
KVRI_EXPORT(kvriMulCScale_16u_C4IR, valuesInPlace<MulScale, Kvr16u, C4>);
KVRI_EXPORT(kvriMulCScale_16u_AC4IR, valuesInPlace<MulScale, Kvr16u, AC4>);

}  // namespace
}  // namespace kvri
