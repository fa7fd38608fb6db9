// pointops/shift.cpp: LShiftC and RShiftC.
//
// Counts alike for all channels are one shift. Counts of their own are 32-bit shifts by element, and products with powers of
// two for narrower samples. Nothing special comes of counts that shift everything out: a shift by 32, a factor of 0.
#include <tuple>

#include "kvri/pointops.h"
#include "pointops/arithmetic.h"

namespace kvri {
namespace {

using Words = Vec<uint16_t>;

// 2^n, or 0 where a number of so many bits does not hold it.
constexpr unsigned powerOfTwo(int64_t n, int bits) { return n >= 0 && n < bits ? 1u << n : 0; }

// To the right, samples go no further than out, signed ones no further than to their sign.
template <class T>
constexpr int furthest(Kvr32u n) { return int(std::min<Kvr32u>(n, 8 * sizeof(T) - std::is_signed_v<T>)); }

// Where that brings the top bit.
template <class T>
constexpr unsigned topAfter(Kvr32u n) { return 1u << (8 * sizeof(T) - 1) >> furthest<T>(n); }

// What an unsigned shift to the right has made of signed samples, with the sign in all bits above.
template <class T, class V>
inline Vec<T> withSign(V shifted, V sign) {
    if constexpr (std::is_signed_v<T>) return (Vec<T>)((shifted ^ sign) - sign);
    else return shifted;
}

// Operations are op(v), or op(patterns..., v) where patterns<L>() makes these of one count per colour. Bytes are shifted in
// 16-bit elements: what they would lose to or take from a neighbour is masked out.

template <class T>
class LeftByAll {
    Shift shift_;
    Bytes<> kept_;

public:
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    explicit LeftByAll(Kvr32u n) : shift_(int(std::min(n, 32u))), kept_(splat<Bytes<>>(uint8_t(255 * powerOfTwo(n, 8)))) {}
    V operator()(V v) const {
        if constexpr (sizeof(T) == 1) return (V)((Words)v << shift_) & (V)kept_;
        else return v << shift_;
    }
};

template <class T>
class RightByAll {
    Shift shift_;
    Bytes<> kept_, sign_;

public:
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    explicit RightByAll(Kvr32u count)
        : shift_(furthest<T>(count)), kept_(splat<Bytes<>>(uint8_t(255 >> furthest<T>(count)))),
          sign_(splat<Bytes<>>(uint8_t(topAfter<T>(count)))) {}
    V operator()(V v) const {
        if constexpr (sizeof(T) == 1) return withSign<T>((Bytes<>)((Words)v >> shift_) & kept_, sign_);
        else return v >> shift_;
    }
};

// 16-bit factors for every second byte, the even or the odd ones.
template <class L, int Odd, class F>
auto byteFactors(const Kvr32u* count, F factor) {
    constexpr int period = L::channels == 3 ? 3 : 8;
    uint16_t factors[period];
    for (int i = 0; i < period; ++i) {
        const int channel = (2 * i + Odd) % L::channels;
        factors[i] = channel < L::colours ? uint16_t(factor(count[channel])) : 0;
    }
    return FromValue<2 * period>(factors, sizeof factors);
}

template <class T, class L, class F>
auto numbers(const Kvr32u* count, F number) {
    T n[L::colours];
    for (int i = 0; i < L::colours; ++i) n[i] = T(number(count[i]));
    return pattern<L>(n);
}

template <class T, int Size = sizeof(T)>
struct LeftByEach;
template <class T, int Size = sizeof(T)>
struct RightByEach;

template <class T>
struct LeftByEach<T, 1> {
    using Sample = T;
    static constexpr int unrolled = 2;
    using V = Vec<T>;
    V operator()(V even, V odd, V v) const {
        return (V)((((Words)v * (Words)even) & 0xFF) | (((Words)v & 0xFF00) * (Words)odd));
    }
    template <class L>
    static auto patterns(const Kvr32u* count) {
        const auto factor = [](Kvr32u n) { return powerOfTwo(n, 8); };
        return std::make_tuple(byteFactors<L, 0>(count, factor), byteFactors<L, 1>(count, factor));
    }
};

template <class T>
struct RightByEach<T, 1> {
    using Sample = T;
    static constexpr int unrolled = 2;
    using V = Vec<T>;
    V operator()(V even, V odd, V sign, V v) const {
        const Words low = ((Words)v & 0xFF) * (Words)even >> 8, high = ((Words)v >> 8) * (Words)odd & 0xFF00;
        return withSign<T>((Bytes<>)(low | high), (Bytes<>)sign);
    }
    template <class L>
    static auto patterns(const Kvr32u* count) {
        const auto factor = [](Kvr32u n) { return powerOfTwo(8 - furthest<T>(n), 9); };
        return std::make_tuple(byteFactors<L, 0>(count, factor), byteFactors<L, 1>(count, factor),
                               numbers<T, L>(count, topAfter<T>));
    }
};

template <class T>
struct LeftByEach<T, 2> {
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    V operator()(V factor, V v) const { return v * factor; }
    template <class L>
    static auto patterns(const Kvr32u* count) {
        return std::make_tuple(numbers<T, L>(count, [](Kvr32u n) { return powerOfTwo(n, 16); }));
    }
};

// 2^16, the factor of a count of 0, does not fit: these samples are kept.
template <class T>
struct RightByEach<T, 2> {
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    V operator()(V factor, V kept, V sign, V v) const {
        return withSign<T>(multiplyHigh((Words)v, (Words)factor) | (Words)(v & kept), (Words)sign);
    }
    template <class L>
    static auto patterns(const Kvr32u* count) {
        return std::make_tuple(
            numbers<T, L>(count, [](Kvr32u n) { return powerOfTwo(16 - furthest<T>(n), 16); }),
            numbers<T, L>(count, [](Kvr32u n) { return n == 0 ? 0xFFFF : 0; }), numbers<T, L>(count, topAfter<T>));
    }
};

struct CountsThemselves {
    template <class L>
    static auto patterns(const Kvr32u* count) {
        return std::make_tuple(pattern<L>(count));
    }
};

template <class T>
struct LeftByEach<T, 4> : CountsThemselves {
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    V operator()(V count, V v) const { return shiftLeft(v, count); }
};

template <class T>
struct RightByEach<T, 4> : CountsThemselves {
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    V operator()(V count, V v) const { return shiftRight(v, count); }
};

template <template <class> class ByAll, template <class, int> class ByEach>
struct ShiftFamily : AnyValues {
    template <class T>
    static constexpr Checks checks = Checks::StepsThenSize;

    template <class T, class L>
    static KvrStatus run(const ImageAndValue<T, L, Kvr32u>& task) {
        const Kvr32u* count = task.value;
        if constexpr (L::colours > 1) {
            if (std::any_of(count + 1, count + L::colours, [&](Kvr32u n) { return n != count[0]; })) {
                using Op = ByEach<T, sizeof(T)>;
                std::apply([&](auto... values) { mapPatterns<T, L>(Op{}, task.b, task.d, task.roi, values...); },
                           Op::template patterns<L>(count));
                return kvrStatusOk;
            }
        }
        mapPatterns<T, L>(ByAll<T>(count[0]), task.b, task.d, task.roi);
        return kvrStatusOk;
    }
};
using Left = ShiftFamily<LeftByAll, LeftByEach>;
using Right = ShiftFamily<RightByAll, RightByEach>;

KVRI_EXPORT(kvriLShiftC_8u_C1R, imageAndValue<Left, Kvr8u>);
KVRI_EXPORT(kvriLShiftC_8u_C3R, imageAndValues<Left, Kvr8u, C3>);
KVRI_EXPORT(kvriLShiftC_8u_C4R, imageAndValues<Left, Kvr8u, C4>);
KVRI_EXPORT(kvriLShiftC_8u_AC4R, imageAndValues<Left, Kvr8u, AC4>);
KVRI_EXPORT(kvriLShiftC_8u_C1IR, valueInPlace<Left, Kvr8u>);
KVRI_EXPORT(kvriLShiftC_8u_C3IR, valuesInPlace<Left, Kvr8u, C3>);
KVRI_EXPORT(kvriLShiftC_8u_C4IR, valuesInPlace<Left, Kvr8u, C4>);
KVRI_EXPORT(kvriLShiftC_8u_AC4IR, valuesInPlace<Left, Kvr8u, AC4>);
KVRI_EXPORT(kvriLShiftC_16u_C1R, imageAndValue<Left, Kvr16u>);
KVRI_EXPORT(kvriLShiftC_16u_C3R, imageAndValues<Left, Kvr16u, C3>);
KVRI_EXPORT(kvriLShiftC_16u_C4R, imageAndValues<Left, Kvr16u, C4>);
KVRI_EXPORT(kvriLShiftC_16u_AC4R, imageAndValues<Left, Kvr16u, AC4>);
KVRI_EXPORT(kvriLShiftC_16u_C1IR, valueInPlace<Left, Kvr16u>);
KVRI_EXPORT(kvriLShiftC_16u_C3IR, valuesInPlace<Left, Kvr16u, C3>);
KVRI_EXPORT(kvriLShiftC_16u_C4IR, valuesInPlace<Left, Kvr16u, C4>);
KVRI_EXPORT(kvriLShiftC_16u_AC4IR, valuesInPlace<Left, Kvr16u, AC4>);
KVRI_EXPORT(kvriLShiftC_32s_C1R, imageAndValue<Left, Kvr32s>);
KVRI_EXPORT(kvriLShiftC_32s_C3R, imageAndValues<Left, Kvr32s, C3>);
KVRI_EXPORT(kvriLShiftC_32s_C4R, imageAndValues<Left, Kvr32s, C4>);
KVRI_EXPORT(kvriLShiftC_32s_AC4R, imageAndValues<Left, Kvr32s, AC4>);
KVRI_EXPORT(kvriLShiftC_32s_C1IR, valueInPlace<Left, Kvr32s>);
KVRI_EXPORT(kvriLShiftC_32s_C3IR, valuesInPlace<Left, Kvr32s, C3>);
KVRI_EXPORT(kvriLShiftC_32s_C4IR, valuesInPlace<Left, Kvr32s, C4>);
KVRI_EXPORT(kvriLShiftC_32s_AC4IR, valuesInPlace<Left, Kvr32s, AC4>);

KVRI_EXPORT(kvriRShiftC_8u_C1R, imageAndValue<Right, Kvr8u>);
KVRI_EXPORT(kvriRShiftC_8u_C3R, imageAndValues<Right, Kvr8u, C3>);
KVRI_EXPORT(kvriRShiftC_8u_C4R, imageAndValues<Right, Kvr8u, C4>);
KVRI_EXPORT(kvriRShiftC_8u_AC4R, imageAndValues<Right, Kvr8u, AC4>);
KVRI_EXPORT(kvriRShiftC_8u_C1IR, valueInPlace<Right, Kvr8u>);
KVRI_EXPORT(kvriRShiftC_8u_C3IR, valuesInPlace<Right, Kvr8u, C3>);
KVRI_EXPORT(kvriRShiftC_8u_C4IR, valuesInPlace<Right, Kvr8u, C4>);
KVRI_EXPORT(kvriRShiftC_8u_AC4IR, valuesInPlace<Right, Kvr8u, AC4>);
KVRI_EXPORT(kvriRShiftC_8s_C1R, imageAndValue<Right, Kvr8s>);
KVRI_EXPORT(kvriRShiftC_8s_C3R, imageAndValues<Right, Kvr8s, C3>);
KVRI_EXPORT(kvriRShiftC_8s_C4R, imageAndValues<Right, Kvr8s, C4>);
KVRI_EXPORT(kvriRShiftC_8s_AC4R, imageAndValues<Right, Kvr8s, AC4>);
KVRI_EXPORT(kvriRShiftC_8s_C1IR, valueInPlace<Right, Kvr8s>);
KVRI_EXPORT(kvriRShiftC_8s_C3IR, valuesInPlace<Right, Kvr8s, C3>);
KVRI_EXPORT(kvriRShiftC_8s_C4IR, valuesInPlace<Right, Kvr8s, C4>);
KVRI_EXPORT(kvriRShiftC_8s_AC4IR, valuesInPlace<Right, Kvr8s, AC4>);
KVRI_EXPORT(kvriRShiftC_16u_C1R, imageAndValue<Right, Kvr16u>);
KVRI_EXPORT(kvriRShiftC_16u_C3R, imageAndValues<Right, Kvr16u, C3>);
KVRI_EXPORT(kvriRShiftC_16u_C4R, imageAndValues<Right, Kvr16u, C4>);
KVRI_EXPORT(kvriRShiftC_16u_AC4R, imageAndValues<Right, Kvr16u, AC4>);
KVRI_EXPORT(kvriRShiftC_16u_C1IR, valueInPlace<Right, Kvr16u>);
KVRI_EXPORT(kvriRShiftC_16u_C3IR, valuesInPlace<Right, Kvr16u, C3>);
KVRI_EXPORT(kvriRShiftC_16u_C4IR, valuesInPlace<Right, Kvr16u, C4>);
KVRI_EXPORT(kvriRShiftC_16u_AC4IR, valuesInPlace<Right, Kvr16u, AC4>);
KVRI_EXPORT(kvriRShiftC_16s_C1R, imageAndValue<Right, Kvr16s>);
KVRI_EXPORT(kvriRShiftC_16s_C3R, imageAndValues<Right, Kvr16s, C3>);
KVRI_EXPORT(kvriRShiftC_16s_C4R, imageAndValues<Right, Kvr16s, C4>);
KVRI_EXPORT(kvriRShiftC_16s_AC4R, imageAndValues<Right, Kvr16s, AC4>);
KVRI_EXPORT(kvriRShiftC_16s_C1IR, valueInPlace<Right, Kvr16s>);
KVRI_EXPORT(kvriRShiftC_16s_C3IR, valuesInPlace<Right, Kvr16s, C3>);
KVRI_EXPORT(kvriRShiftC_16s_C4IR, valuesInPlace<Right, Kvr16s, C4>);
KVRI_EXPORT(kvriRShiftC_16s_AC4IR, valuesInPlace<Right, Kvr16s, AC4>);
KVRI_EXPORT(kvriRShiftC_32s_C1R, imageAndValue<Right, Kvr32s>);
KVRI_EXPORT(kvriRShiftC_32s_C3R, imageAndValues<Right, Kvr32s, C3>);
KVRI_EXPORT(kvriRShiftC_32s_C4R, imageAndValues<Right, Kvr32s, C4>);
KVRI_EXPORT(kvriRShiftC_32s_AC4R, imageAndValues<Right, Kvr32s, AC4>);
KVRI_EXPORT(kvriRShiftC_32s_C1IR, valueInPlace<Right, Kvr32s>);
KVRI_EXPORT(kvriRShiftC_32s_C3IR, valuesInPlace<Right, Kvr32s, C3>);
KVRI_EXPORT(kvriRShiftC_32s_C4IR, valuesInPlace<Right, Kvr32s, C4>);
KVRI_EXPORT(kvriRShiftC_32s_AC4IR, valuesInPlace<Right, Kvr32s, AC4>);

}  // namespace
}  // namespace kvri
