// pointops/mul.cpp: Mul, MulC, MulScale and MulCScale.
#include "kvri/pointops.h"
#include "pointops/product.h"

namespace kvri {
namespace {

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
        mapProducts<T>(task, scaleFactor);
        return kvrStatusOk;
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        task(SaturatedProduct<T>{});
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
