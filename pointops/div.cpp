// pointops/div.cpp: Div, DivC and Div_Round.
#include "core/fpcontrol.h"
#include "core/roundmode.h"
#include "kvri/pointops.h"
#include "pointops/reciprocal.h"

namespace kvri {
namespace {

// Divisions of integers: quotients(a, b) of 32s, for any b and any a but 0, and the rest follows.
template <class T, class Quotients>
class IntegerQuotient {
public:
    using Sample = T;
    static constexpr int unrolled = 1;

private:
    using V = Vec<T>;
    using Wide = Vec<int32_t>;
    Quotients quotients_;

    template <class W>
    auto divide16(W a, W b) const {
        return narrow<ElementOf<W>>(quotients_((Wide)widenLow(a), (Wide)widenLow(b)), quotients_((Wide)widenHigh(a), (Wide)widenHigh(b)));
    }

public:
    template <class... Arg>
    explicit IntegerQuotient(Arg... arg) : quotients_(arg...) {}

    static bool anyZero(V a) { return kvri::anyZero(a); }
    static V zeros(V a) { return (V)(a == 0); }

    V operator()(V a, V b) const {
        if constexpr (sizeof(T) == 2) return divide16(a, b);
        else {
            using H = Vec<int16_t>;
            return narrow<uint8_t>(divide16((H)widenLow(a), (H)widenLow(b)), divide16((H)widenHigh(a), (H)widenHigh(b)));
        }
    }

    // By 0: the type's limit on the side of b.
    V careful(V a, V b) const {
        const V zero = zeros(a), most = splat<V>(std::numeric_limits<T>::max()), least = splat<V>(std::numeric_limits<T>::min());
        const V saturated = b > 0 ? most : b < 0 ? least : V{};
        return zero ? saturated : (*this)(a | (zero & 1), b);
    }
};

// (b * 2^-scaleFactor) / a in single precision.
template <class Round>
class SinglePrecision {
    using Wide = Vec<int32_t>;
    using F = Vec<float>;
    F scale_;

public:
    explicit SinglePrecision(int scaleFactor) : scale_(splat<F>(scaleOf<float>(scaleFactor, 40))) {}

    Wide operator()(Wide a, Wide b) const {
        const F q = __builtin_convertvector(b, F) * scale_ / __builtin_convertvector(a, F);
        const F limit = splat<F>(0x1p30f);  // beyond any type's
        return Round{}(clamp(q, -limit, limit));
    }
};

// b / a.
struct Divided {
    using Wide = Vec<int32_t>;
    using F = Vec<float>;
    Wide operator()(Wide a, Wide b) const { return toNearest(__builtin_convertvector(b, F) / __builtin_convertvector(a, F)); }
};

// By zero of either sign: infinity with the dividend's sign, or this NaN.
constexpr uint32_t kZeroByZero = 0x7FBFFFFF, kInfinity = 0x7F800000, kSign = 0x80000000;

template <class F>
F byZero(F b) {
    using U = Vec<uint32_t>;
    const U bits = (U)b, special = (U)(b == 0) ? splat<U>(kZeroByZero) : (bits & kSign) | kInfinity;
    return (F)special;
}

struct FloatQuotient {
    using Sample = Kvr32f;
    static constexpr int unrolled = 1;
    using V = Vec<float>;

    static bool anyZero(V a) { return kvri::anyZero(a); }
    static Vec<int32_t> zeros(V a) { return a == 0; }

    V operator()(V a, V b) const { return b / a; }
    V careful(V a, V b) const { return zeros(a) & (b == b) ? byZero(b) : b / a; }
};

// Complex numbers b * conj(a) / |a|^2, in vectors of doubles that hold real and imaginary parts in turn.
struct ComplexDivision {
    using D = Vec<double>;
    D numerator, denominator;

    ComplexDivision(D a, D b) {
        const D re = (D)zipLow<8>(a, a), im = (D)zipHigh<8>(a, a);
        const D cross = swapped(b) * im;
        const D minusImaginary = (D)constant<Bytes<>>([](int i) { return i % 16 == 15 ? 0x80 : 0; });
        numerator = b * re + (D)((Bytes<>)cross ^ (Bytes<>)minusImaginary);
        denominator = a * a + swapped(a * a);
    }
    static D swapped(D v) {
        return (D)shuffle((Bytes<>)v, constant<Bytes<>>([](int i) { return i % 16 ^ 8; }));
    }
};

template <class T>
class ComplexQuotient {
public:
    using Sample = PartOf<T>;
    static constexpr int unrolled = 1;

private:
    using V = Vec<Sample>;
    using Wide = Vec<int32_t>;
    using D = Vec<double>;
    D scale_;

    Half<Wide> divide(Half<Wide> a, Half<Wide> b) const {
        const ComplexDivision c(__builtin_convertvector(a, D), __builtin_convertvector(b, D));
        const D q = c.numerator / c.denominator * scale_;
        return toNearestHalf(clamp(q, splat<D>(std::numeric_limits<Sample>::min()), splat<D>(std::numeric_limits<Sample>::max())));
    }

    Wide divide(Wide a, Wide b) const {
        return joinHalves(divide(lowerHalf(a), lowerHalf(b)), divide(upperHalf(a), upperHalf(b)));
    }

public:
    explicit ComplexQuotient(int scaleFactor) : scale_(splat<D>(scaleOf<double>(scaleFactor, 200))) {}

    using Both = Vec<std::conditional_t<sizeof(T) == 4, int32_t, int64_t>>;
    static bool anyZero(V a) { return kvri::anyZero((Both)a); }
    static V zeros(V a) { return (V)((Both)a == 0); }

    V operator()(V a, V b) const {
        if constexpr (sizeof(Sample) == 4) return divide(a, b);
        else return narrow<int16_t>(divide(widenLow(a), widenLow(b)), divide(widenHigh(a), widenHigh(b)));
    }

    // By 0: each part's limit on the side of b.
    V careful(V a, V b) const {
        const V most = splat<V>(std::numeric_limits<Sample>::max()), least = splat<V>(std::numeric_limits<Sample>::min());
        return zeros(a) ? b > 0 ? most : b < 0 ? least : V{} : (*this)(a | (zeros(a) & 1), b);
    }
};

struct FloatComplexQuotient {
    using Sample = Kvr32f;
    static constexpr int unrolled = 1;
    using V = Vec<float>;
    using D = Vec<double>;

    static Half<V> divide(Half<V> a, Half<V> b) {
        const ComplexDivision c(__builtin_convertvector(a, D), __builtin_convertvector(b, D));
        return __builtin_convertvector(c.numerator / c.denominator, Half<V>);
    }

    static Vec<int64_t> magnitude(V a) { return (Vec<int64_t>)a & int64_t(0x7FFFFFFF7FFFFFFF); }
    static bool anyZero(V a) { return kvri::anyZero(magnitude(a)); }
    static Vec<int64_t> zeros(V a) { return magnitude(a) == 0; }

    V operator()(V a, V b) const { return joinHalves(divide(lowerHalf(a), lowerHalf(b)), divide(upperHalf(a), upperHalf(b))); }
    V careful(V a, V b) const { return (Vec<int32_t>)zeros(a) & (b == b) ? byZero(b) : (*this)(a, b); }
};

struct Div {
    template <class T>
    static constexpr Checks checks = Checks::SizeThenSteps;

    template <class T>
    static bool isZero(T value) {
        if constexpr (kComplex<T>) return value.re == 0 && value.im == 0;
        else return value == 0;
    }
    template <class T>
    static KvrStatus checkValues(const T* value, int n) {
        return std::any_of(value, value + n, isZero<T>) ? kvrStatusDivByZero : kvrStatusOk;
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task, int scaleFactor) {
        const DefaultFloatControl control;
        if constexpr (kComplex<T>) return task.quotients(ComplexQuotient<T>(scaleFactor));
        else if (scaleFactor == 0) return task.quotients(IntegerQuotient<T, Divided>());
        else return task.quotients(IntegerQuotient<T, SinglePrecision<ToNearest>>(scaleFactor));
    }

    template <class T, class L>
    static KvrStatus run(const ImageAndValue<T, L>& task, int scaleFactor) {
        if constexpr (!kComplex<T>) {
            Reciprocal reciprocals[L::colours];
            if (reciprocalsOf(task.value, L::colours, scaleFactor, reciprocals)) {
                task.template with<ReciprocalPattern<T>::template Of>(QuotientByReciprocal<T>{}, reciprocals);
                return kvrStatusOk;
            }
        }
        return run<T, ImageAndValue<T, L>>(task, scaleFactor);
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        return task.quotients(std::conditional_t<kComplex<T>, FloatComplexQuotient, FloatQuotient>{});
    }

#if defined(__FMA__)
    template <class L>
    static bool divide(const ImageAndValue<Kvr32f, L>& task) {
        if (!DefaultFloatControl::isSet()) return false;
        FloatReciprocal reciprocals[L::colours];
        for (int i = 0; i < L::colours; ++i) {
            const float c = task.value[i];
            if (!(std::abs(c) >= 0x1p-30f && std::abs(c) <= 0x1p30f)) return false;
            reciprocals[i] = FloatReciprocal(c);
            if (!reciprocals[i].exact()) return false;
        }
        task.template with<FloatReciprocalPattern::Of>(FloatQuotientByReciprocal{}, reciprocals);
        return true;
    }

    template <class T, class L>
    static KvrStatus run(const ImageAndValue<T, L>& task) {
        if constexpr (!kComplex<T>)
            if (divide(task)) return kvrStatusOk;
        return run<T, ImageAndValue<T, L>>(task);
    }
#endif
};

struct DivRound {
    template <class T>
    static constexpr Checks checks = Checks::SizeThenSteps;

    template <class T, class Task>
    static KvrStatus run(const Task& task, KvrRoundMode mode, int scaleFactor) {
        const DefaultFloatControl control;
        switch (mode) {
            case 0: return task.quotients(IntegerQuotient<T, SinglePrecision<TowardZero>>(scaleFactor));
            case 1: return task.quotients(IntegerQuotient<T, SinglePrecision<ToNearest>>(scaleFactor));
            case 2: return task.quotients(IntegerQuotient<T, SinglePrecision<HalfAway>>(scaleFactor));
            default: return kvrStatusBadRoundMode;
        }
    }
};

KVRI_EXPORT(kvriDiv_8u_C1RSfs, twoImages<Div, Kvr8u, C1>);
KVRI_EXPORT(kvriDiv_8u_C3RSfs, twoImages<Div, Kvr8u, C3>);
KVRI_EXPORT(kvriDiv_8u_C4RSfs, twoImages<Div, Kvr8u, C4>);
KVRI_EXPORT(kvriDiv_8u_AC4RSfs, twoImages<Div, Kvr8u, AC4>);
KVRI_EXPORT(kvriDiv_8u_C1IRSfs, twoImagesInPlace<Div, Kvr8u, C1>);
KVRI_EXPORT(kvriDiv_8u_C3IRSfs, twoImagesInPlace<Div, Kvr8u, C3>);
KVRI_EXPORT(kvriDiv_8u_C4IRSfs, twoImagesInPlace<Div, Kvr8u, C4>);
KVRI_EXPORT(kvriDiv_8u_AC4IRSfs, twoImagesInPlace<Div, Kvr8u, AC4>);
KVRI_EXPORT(kvriDiv_16u_C1RSfs, twoImages<Div, Kvr16u, C1>);
KVRI_EXPORT(kvriDiv_16u_C3RSfs, twoImages<Div, Kvr16u, C3>);
KVRI_EXPORT(kvriDiv_16u_C4RSfs, twoImages<Div, Kvr16u, C4>);
KVRI_EXPORT(kvriDiv_16u_AC4RSfs, twoImages<Div, Kvr16u, AC4>);
KVRI_EXPORT(kvriDiv_16u_C1IRSfs, twoImagesInPlace<Div, Kvr16u, C1>);
KVRI_EXPORT(kvriDiv_16u_C3IRSfs, twoImagesInPlace<Div, Kvr16u, C3>);
KVRI_EXPORT(kvriDiv_16u_C4IRSfs, twoImagesInPlace<Div, Kvr16u, C4>);
KVRI_EXPORT(kvriDiv_16u_AC4IRSfs, twoImagesInPlace<Div, Kvr16u, AC4>);
KVRI_EXPORT(kvriDiv_16s_C1RSfs, twoImages<Div, Kvr16s, C1>);
KVRI_EXPORT(kvriDiv_16s_C3RSfs, twoImages<Div, Kvr16s, C3>);
KVRI_EXPORT(kvriDiv_16s_C4RSfs, twoImages<Div, Kvr16s, C4>);
KVRI_EXPORT(kvriDiv_16s_AC4RSfs, twoImages<Div, Kvr16s, AC4>);
KVRI_EXPORT(kvriDiv_16s_C1IRSfs, twoImagesInPlace<Div, Kvr16s, C1>);
KVRI_EXPORT(kvriDiv_16s_C3IRSfs, twoImagesInPlace<Div, Kvr16s, C3>);
KVRI_EXPORT(kvriDiv_16s_C4IRSfs, twoImagesInPlace<Div, Kvr16s, C4>);
KVRI_EXPORT(kvriDiv_16s_AC4IRSfs, twoImagesInPlace<Div, Kvr16s, AC4>);
KVRI_EXPORT(kvriDiv_16sc_C1RSfs, twoImages<Div, Kvr16sc, C1>);
KVRI_EXPORT(kvriDiv_16sc_C3RSfs, twoImages<Div, Kvr16sc, C3>);
KVRI_EXPORT(kvriDiv_16sc_AC4RSfs, twoImages<Div, Kvr16sc, AC4>);
KVRI_EXPORT(kvriDiv_16sc_C1IRSfs, twoImagesInPlace<Div, Kvr16sc, C1>);
KVRI_EXPORT(kvriDiv_16sc_C3IRSfs, twoImagesInPlace<Div, Kvr16sc, C3>);
KVRI_EXPORT(kvriDiv_16sc_AC4IRSfs, twoImagesInPlace<Div, Kvr16sc, AC4>);
KVRI_EXPORT(kvriDiv_32sc_C1RSfs, twoImages<Div, Kvr32sc, C1>);
KVRI_EXPORT(kvriDiv_32sc_C3RSfs, twoImages<Div, Kvr32sc, C3>);
KVRI_EXPORT(kvriDiv_32sc_AC4RSfs, twoImages<Div, Kvr32sc, AC4>);
KVRI_EXPORT(kvriDiv_32sc_C1IRSfs, twoImagesInPlace<Div, Kvr32sc, C1>);
KVRI_EXPORT(kvriDiv_32sc_C3IRSfs, twoImagesInPlace<Div, Kvr32sc, C3>);
KVRI_EXPORT(kvriDiv_32sc_AC4IRSfs, twoImagesInPlace<Div, Kvr32sc, AC4>);
KVRI_EXPORT(kvriDiv_32f_C1R, twoImages<Div, Kvr32f, C1>);
KVRI_EXPORT(kvriDiv_32f_C3R, twoImages<Div, Kvr32f, C3>);
KVRI_EXPORT(kvriDiv_32f_C4R, twoImages<Div, Kvr32f, C4>);
KVRI_EXPORT(kvriDiv_32f_AC4R, twoImages<Div, Kvr32f, AC4>);
KVRI_EXPORT(kvriDiv_32f_C1IR, twoImagesInPlace<Div, Kvr32f, C1>);
KVRI_EXPORT(kvriDiv_32f_C3IR, twoImagesInPlace<Div, Kvr32f, C3>);
KVRI_EXPORT(kvriDiv_32f_C4IR, twoImagesInPlace<Div, Kvr32f, C4>);
KVRI_EXPORT(kvriDiv_32f_AC4IR, twoImagesInPlace<Div, Kvr32f, AC4>);
KVRI_EXPORT(kvriDiv_32fc_C1R, twoImages<Div, Kvr32fc, C1>);
KVRI_EXPORT(kvriDiv_32fc_C3R, twoImages<Div, Kvr32fc, C3>);
KVRI_EXPORT(kvriDiv_32fc_AC4R, twoImages<Div, Kvr32fc, AC4>);
KVRI_EXPORT(kvriDiv_32fc_C1IR, twoImagesInPlace<Div, Kvr32fc, C1>);
KVRI_EXPORT(kvriDiv_32fc_C3IR, twoImagesInPlace<Div, Kvr32fc, C3>);
KVRI_EXPORT(kvriDiv_32fc_AC4IR, twoImagesInPlace<Div, Kvr32fc, AC4>);

KVRI_EXPORT(kvriDivC_8u_C1RSfs, imageAndValue<Div, Kvr8u>);
KVRI_EXPORT(kvriDivC_8u_C3RSfs, imageAndValues<Div, Kvr8u, C3>);
KVRI_EXPORT(kvriDivC_8u_C4RSfs, imageAndValues<Div, Kvr8u, C4>);
KVRI_EXPORT(kvriDivC_8u_AC4RSfs, imageAndValues<Div, Kvr8u, AC4>);
KVRI_EXPORT(kvriDivC_8u_C1IRSfs, valueInPlace<Div, Kvr8u>);
KVRI_EXPORT(kvriDivC_8u_C3IRSfs, valuesInPlace<Div, Kvr8u, C3>);
KVRI_EXPORT(kvriDivC_8u_C4IRSfs, valuesInPlace<Div, Kvr8u, C4>);
KVRI_EXPORT(kvriDivC_8u_AC4IRSfs, valuesInPlace<Div, Kvr8u, AC4>);
KVRI_EXPORT(kvriDivC_16u_C1RSfs, imageAndValue<Div, Kvr16u>);
KVRI_EXPORT(kvriDivC_16u_C3RSfs, imageAndValues<Div, Kvr16u, C3>);
KVRI_EXPORT(kvriDivC_16u_C4RSfs, imageAndValues<Div, Kvr16u, C4>);
KVRI_EXPORT(kvriDivC_16u_AC4RSfs, imageAndValues<Div, Kvr16u, AC4>);
KVRI_EXPORT(kvriDivC_16u_C1IRSfs, valueInPlace<Div, Kvr16u>);
KVRI_EXPORT(kvriDivC_16u_C3IRSfs, valuesInPlace<Div, Kvr16u, C3>);
KVRI_EXPORT(kvriDivC_16u_C4IRSfs, valuesInPlace<Div, Kvr16u, C4>);
KVRI_EXPORT(kvriDivC_16u_AC4IRSfs, valuesInPlace<Div, Kvr16u, AC4>);
KVRI_EXPORT(kvriDivC_16s_C1RSfs, imageAndValue<Div, Kvr16s>);
KVRI_EXPORT(kvriDivC_16s_C3RSfs, imageAndValues<Div, Kvr16s, C3>);
KVRI_EXPORT(kvriDivC_16s_C4RSfs, imageAndValues<Div, Kvr16s, C4>);
KVRI_EXPORT(kvriDivC_16s_AC4RSfs, imageAndValues<Div, Kvr16s, AC4>);
KVRI_EXPORT(kvriDivC_16s_C1IRSfs, valueInPlace<Div, Kvr16s>);
KVRI_EXPORT(kvriDivC_16s_C3IRSfs, valuesInPlace<Div, Kvr16s, C3>);
KVRI_EXPORT(kvriDivC_16s_C4IRSfs, valuesInPlace<Div, Kvr16s, C4>);
KVRI_EXPORT(kvriDivC_16s_AC4IRSfs, valuesInPlace<Div, Kvr16s, AC4>);
KVRI_EXPORT(kvriDivC_16sc_C1RSfs, imageAndValue<Div, Kvr16sc>);
KVRI_EXPORT(kvriDivC_16sc_C3RSfs, imageAndValues<Div, Kvr16sc, C3>);
KVRI_EXPORT(kvriDivC_16sc_AC4RSfs, imageAndValues<Div, Kvr16sc, AC4>);
KVRI_EXPORT(kvriDivC_16sc_C1IRSfs, valueInPlace<Div, Kvr16sc>);
KVRI_EXPORT(kvriDivC_16sc_C3IRSfs, valuesInPlace<Div, Kvr16sc, C3>);
KVRI_EXPORT(kvriDivC_16sc_AC4IRSfs, valuesInPlace<Div, Kvr16sc, AC4>);
KVRI_EXPORT(kvriDivC_32sc_C1RSfs, imageAndValue<Div, Kvr32sc>);
KVRI_EXPORT(kvriDivC_32sc_C3RSfs, imageAndValues<Div, Kvr32sc, C3>);
KVRI_EXPORT(kvriDivC_32sc_AC4RSfs, imageAndValues<Div, Kvr32sc, AC4>);
KVRI_EXPORT(kvriDivC_32sc_C1IRSfs, valueInPlace<Div, Kvr32sc>);
KVRI_EXPORT(kvriDivC_32sc_C3IRSfs, valuesInPlace<Div, Kvr32sc, C3>);
KVRI_EXPORT(kvriDivC_32sc_AC4IRSfs, valuesInPlace<Div, Kvr32sc, AC4>);
KVRI_EXPORT(kvriDivC_32f_C1R, imageAndValue<Div, Kvr32f>);
KVRI_EXPORT(kvriDivC_32f_C3R, imageAndValues<Div, Kvr32f, C3>);
KVRI_EXPORT(kvriDivC_32f_C4R, imageAndValues<Div, Kvr32f, C4>);
KVRI_EXPORT(kvriDivC_32f_AC4R, imageAndValues<Div, Kvr32f, AC4>);
KVRI_EXPORT(kvriDivC_32f_C1IR, valueInPlace<Div, Kvr32f>);
KVRI_EXPORT(kvriDivC_32f_C3IR, valuesInPlace<Div, Kvr32f, C3>);
KVRI_EXPORT(kvriDivC_32f_C4IR, valuesInPlace<Div, Kvr32f, C4>);
KVRI_EXPORT(kvriDivC_32f_AC4IR, valuesInPlace<Div, Kvr32f, AC4>);
KVRI_EXPORT(kvriDivC_32fc_C1R, imageAndValue<Div, Kvr32fc>);
KVRI_EXPORT(kvriDivC_32fc_C3R, imageAndValues<Div, Kvr32fc, C3>);
KVRI_EXPORT(kvriDivC_32fc_AC4R, imageAndValues<Div, Kvr32fc, AC4>);
KVRI_EXPORT(kvriDivC_32fc_C1IR, valueInPlace<Div, Kvr32fc>);
KVRI_EXPORT(kvriDivC_32fc_C3IR, valuesInPlace<Div, Kvr32fc, C3>);
KVRI_EXPORT(kvriDivC_32fc_AC4IR, valuesInPlace<Div, Kvr32fc, AC4>);

KVRI_EXPORT(kvriDiv_Round_8u_C1RSfs, twoImages<DivRound, Kvr8u, C1>);
KVRI_EXPORT(kvriDiv_Round_8u_C3RSfs, twoImages<DivRound, Kvr8u, C3>);
KVRI_EXPORT(kvriDiv_Round_8u_C4RSfs, twoImages<DivRound, Kvr8u, C4>);
KVRI_EXPORT(kvriDiv_Round_8u_AC4RSfs, twoImages<DivRound, Kvr8u, AC4>);
KVRI_EXPORT(kvriDiv_Round_8u_C1IRSfs, twoImagesInPlace<DivRound, Kvr8u, C1>);
KVRI_EXPORT(kvriDiv_Round_8u_C3IRSfs, twoImagesInPlace<DivRound, Kvr8u, C3>);
KVRI_EXPORT(kvriDiv_Round_8u_C4IRSfs, twoImagesInPlace<DivRound, Kvr8u, C4>);
KVRI_EXPORT(kvriDiv_Round_8u_AC4IRSfs, twoImagesInPlace<DivRound, Kvr8u, AC4>);
KVRI_EXPORT(kvriDiv_Round_16u_C1RSfs, twoImages<DivRound, Kvr16u, C1>);
KVRI_EXPORT(kvriDiv_Round_16u_C3RSfs, twoImages<DivRound, Kvr16u, C3>);
KVRI_EXPORT(kvriDiv_Round_16u_C4RSfs, twoImages<DivRound, Kvr16u, C4>);
KVRI_EXPORT(kvriDiv_Round_16u_AC4RSfs, twoImages<DivRound, Kvr16u, AC4>);
KVRI_EXPORT(kvriDiv_Round_16u_C1IRSfs, twoImagesInPlace<DivRound, Kvr16u, C1>);
KVRI_EXPORT(kvriDiv_Round_16u_C3IRSfs, twoImagesInPlace<DivRound, Kvr16u, C3>);
KVRI_EXPORT(kvriDiv_Round_16u_C4IRSfs, twoImagesInPlace<DivRound, Kvr16u, C4>);
KVRI_EXPORT(kvriDiv_Round_16u_AC4IRSfs, twoImagesInPlace<DivRound, Kvr16u, AC4>);
KVRI_EXPORT(kvriDiv_Round_16s_C1RSfs, twoImages<DivRound, Kvr16s, C1>);
KVRI_EXPORT(kvriDiv_Round_16s_C3RSfs, twoImages<DivRound, Kvr16s, C3>);
KVRI_EXPORT(kvriDiv_Round_16s_C4RSfs, twoImages<DivRound, Kvr16s, C4>);
KVRI_EXPORT(kvriDiv_Round_16s_AC4RSfs, twoImages<DivRound, Kvr16s, AC4>);
KVRI_EXPORT(kvriDiv_Round_16s_C1IRSfs, twoImagesInPlace<DivRound, Kvr16s, C1>);
KVRI_EXPORT(kvriDiv_Round_16s_C3IRSfs, twoImagesInPlace<DivRound, Kvr16s, C3>);
KVRI_EXPORT(kvriDiv_Round_16s_C4IRSfs, twoImagesInPlace<DivRound, Kvr16s, C4>);
KVRI_EXPORT(kvriDiv_Round_16s_AC4IRSfs, twoImagesInPlace<DivRound, Kvr16s, AC4>);

}  // namespace
}  // namespace kvri
