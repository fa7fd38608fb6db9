// datamove/convert.cpp: Convert, every sample as the nearest value of another type.
#include "core/fpcontrol.h"
#include "core/rounding.h"
#include "core/roundmode.h"
#include "datamove/convert.h"

namespace kvri {
namespace {

// Integers

// What narrowing takes as signed must not be above its range.
template <class T, class V>
V withinRange(V v) {
    if constexpr (std::is_unsigned_v<ElementOf<V>> && (sizeof(T) < sizeof(ElementOf<V>) || std::is_signed_v<T>))
        return smaller(v, splat<V>(ElementOf<V>(std::numeric_limits<T>::max())));
    else return v;
}

// To any type but narrower floats: exactly where it is wider, else saturated.
template <class S, class T>
struct Saturated {
    using Source = S;
    using Target = T;
    using Work = typename Widened<S, sizeof(T)>::type;
    auto operator()(Vec<Work> v) const {
        if constexpr (!std::is_same_v<T, float>) return sizeof(S) < sizeof(T) ? v : withinRange<T>(v);
        else if constexpr (sizeof(S) < sizeof(T)) return toFloats((Vec<int32_t>)v);
        else return toFloats(v);
    }
};

template <class S, class T, class L, Steps steps>
KvrStatus convert(const S* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = checkImages<steps>(pSrc, srcStep, pDst, dstStep, roi)) return e;
    convertImage<L>(Saturated<S, T>{}, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class S, class T>
struct WithoutNegatives {
    using Source = S;
    using Target = T;
    using Work = typename Widened<S, sizeof(T)>::type;
    Vec<Work> operator()(Vec<Work> v) const { return larger(v, Vec<Work>{}); }
};

template <class S, class T>
KvrStatus withoutNegatives(const S* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = checkImages<Steps::Any>(pSrc, srcStep, pDst, dstStep, roi)) return e;
    convertImage<C1>(WithoutNegatives<S, T>{}, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

// 32f to integers

struct Unchanged {
    Vec<float> operator()(Vec<float> v) const { return v; }
};

template <class T, class L>
void roundImage(const Kvr32f* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, KvrRoundMode mode) {
    const DefaultFloatControl control;
    withRounding(mode, [&](auto round) { convertImage<L>(Rounded<T, decltype(round), Unchanged>{}, pSrc, srcStep, pDst, dstStep, roi); });
}

template <class T, class L>
KvrStatus round(const Kvr32f* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, KvrRoundMode mode) {
    if (KvrStatus e = checkImages<Steps::Positive>(pSrc, srcStep, pDst, dstStep, roi)) return e;
    roundImage<T, L>(pSrc, srcStep, pDst, dstStep, roi, mode);
    return kvrStatusOk;
}

// Scaled. 2^-scaleFactor itself may be beyond the range of 32f while its product with a number is not: it comes as two factors.
class Product {
    static constexpr int limit = 200;
    Vec<float> first_, second_;

public:
    explicit Product(int scaleFactor) {
        const int n = std::clamp(scaleFactor, -limit, limit);
        first_ = splat<Vec<float>>(scaleOf<float>(n / 2, limit));
        second_ = splat<Vec<float>>(scaleOf<float>(n - n / 2, limit));
    }
    Vec<float> operator()(Vec<float> v) const { return v * first_ * second_; }
};

// 8u is computed as 16u.
template <class S>
using ScaledWork = typename Widened<S, 2>::type;

template <class S, class T>
struct ShiftedLeft {
    using Source = S;
    using Target = T;
    using Work = ScaledWork<S>;
    SaturatingShift<Work> shift;
    Vec<Work> operator()(Vec<Work> v) const { return withinRange<T>(shift(v)); }
};

template <class S, class T, class Round>
struct ShiftedRight {
    using Source = S;
    using Target = T;
    using Work = ScaledWork<S>;
    RoundedQuotient<Work, Round> quotient;
    Vec<Work> operator()(Vec<Work> v) const { return withinRange<T>(quotient(v)); }
};

template <class T>
void scaleImage(const Kvr32f* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, KvrRoundMode mode, int scaleFactor) {
    if (scaleFactor == 0) return roundImage<T, C1>(pSrc, srcStep, pDst, dstStep, roi, mode);
    const DefaultFloatControl control;
    withRounding(mode, [&](auto round) {
        convertImage<C1>(Rounded<T, decltype(round), Product>{Product(scaleFactor)}, pSrc, srcStep, pDst, dstStep, roi);
    });
}

template <class S, class T>
void scaleImage(const S* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, KvrRoundMode mode, int scaleFactor) {
    auto map = [&](const auto& op) { convertImage<C1>(op, pSrc, srcStep, pDst, dstStep, roi); };
    using Work = ScaledWork<S>;
    constexpr int mostBits = 64;
    if (scaleFactor == 0) map(Saturated<S, T>{});
    else if (scaleFactor < 0) map(ShiftedLeft<S, T>{SaturatingShift<Work>(-std::max(scaleFactor, -mostBits))});
    else withRounding(mode, [&](auto round) {
        map(ShiftedRight<S, T, decltype(round)>{RoundedQuotient<Work, decltype(round)>(scaleFactor)});
    });
}

template <class S, class T>
KvrStatus scale(const S* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, KvrRoundMode mode, int scaleFactor) {
    if (KvrStatus e = checkImages<Steps::Any>(pSrc, srcStep, pDst, dstStep, roi)) return e;
    scaleImage(pSrc, srcStep, pDst, dstStep, roi, mode, scaleFactor);
    return kvrStatusOk;
}

KvrStatus scaleInPlace(Kvr32u* pSrcDst, int step, KvriSize roi, KvrRoundMode mode, int scaleFactor) {
    return scale(reinterpret_cast<const Kvr32f*>(pSrcDst), step, pSrcDst, step, roi, mode, scaleFactor);
}

// Bits

// Rows of bits whose first is bit `offset`, 0 to 7, of their first byte.
struct BitImage : Image<const uint8_t> {
    int offset;

    constexpr bool contiguous(ptrdiff_t width) const { return offset == 0 && step * 8 == width; }
};

// The n bits from bit `offset` of p on, up to 64, as a number's bits from the highest on. Only bytes that hold them are read.
KVRI_INLINE inline uint64_t loadBits(WholeBlock, const uint8_t* p, int offset, ptrdiff_t) {
    const uint64_t last = p[offset == 0 ? 7 : 8];
    return __builtin_bswap64(load<Vec<uint64_t, 16>>(p)[0]) << offset | last >> (8 - offset);
}

KVRI_INLINE inline uint64_t loadBits(PartBlock, const uint8_t* p, int offset, ptrdiff_t n) {
    const auto words = loadPart<Vec<uint64_t, 16>>(p, (offset + n + 7) / 8);
    return __builtin_bswap64(words[0]) << offset | words[1] >> (8 - offset);
}

void expandRow(const uint8_t* src, int offset, uint8_t* dst, ptrdiff_t pixels) {
    constexpr int N = 64;
    forEachBlock<N>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
        const Bytes<> bits = (Bytes<>)splat<Vec<uint64_t>>(loadBits(block, src + first / 8, offset, n));
        unroll<N / kVectorBytes>([&](auto vector) KVRI_INLINE {
            constexpr int j = vector;
            const Bytes<> bytes = shuffle(bits, constant<Bytes<>>([](int i) { return 7 - (j * kVectorBytes + i) / 8; }));
            const Bytes<> bit = constant<Bytes<>>([](int i) { return 0x80 >> i % 8; });
            block.store(dst + first + j * kVectorBytes, (Bytes<>)((bytes & bit) == bit), n - j * kVectorBytes);
        });
    });
}

KvrStatus expandBits(const Kvr8u* pSrc, int srcStep, int srcBitOffset, Kvr8u* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = checkImages<Steps::Positive>(pSrc, srcStep, pDst, dstStep, roi)) return e;
    if (srcBitOffset < 0) return kvrStatusBadSize;
    const int offset = srcBitOffset % 8;
    eachRow(roi, [&](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE { expandRow(s, offset, d, pixels); },
            BitImage{{pSrc + srcBitOffset / 8, srcStep, 0}, offset}, destination<1>(pDst, dstStep));
    return kvrStatusOk;
}

KVRI_EXPORT(kvriConvert_8u16u_C1R, convert<Kvr8u, Kvr16u, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u16u_C3R, convert<Kvr8u, Kvr16u, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u16u_C4R, convert<Kvr8u, Kvr16u, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u16u_AC4R, convert<Kvr8u, Kvr16u, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u16s_C1R, convert<Kvr8u, Kvr16s, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u16s_C3R, convert<Kvr8u, Kvr16s, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u16s_C4R, convert<Kvr8u, Kvr16s, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u16s_AC4R, convert<Kvr8u, Kvr16s, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u32s_C1R, convert<Kvr8u, Kvr32s, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u32s_C3R, convert<Kvr8u, Kvr32s, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u32s_C4R, convert<Kvr8u, Kvr32s, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u32s_AC4R, convert<Kvr8u, Kvr32s, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u32f_C1R, convert<Kvr8u, Kvr32f, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u32f_C3R, convert<Kvr8u, Kvr32f, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u32f_C4R, convert<Kvr8u, Kvr32f, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8u32f_AC4R, convert<Kvr8u, Kvr32f, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8s32s_C1R, convert<Kvr8s, Kvr32s, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8s32s_C3R, convert<Kvr8s, Kvr32s, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8s32s_C4R, convert<Kvr8s, Kvr32s, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8s32s_AC4R, convert<Kvr8s, Kvr32s, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8s32f_C1R, convert<Kvr8s, Kvr32f, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8s32f_C3R, convert<Kvr8s, Kvr32f, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8s32f_C4R, convert<Kvr8s, Kvr32f, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_8s32f_AC4R, convert<Kvr8s, Kvr32f, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16u8u_C1R, convert<Kvr16u, Kvr8u, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16u8u_C3R, convert<Kvr16u, Kvr8u, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16u8u_C4R, convert<Kvr16u, Kvr8u, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16u8u_AC4R, convert<Kvr16u, Kvr8u, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16s8u_C1R, convert<Kvr16s, Kvr8u, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16s8u_C3R, convert<Kvr16s, Kvr8u, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16s8u_C4R, convert<Kvr16s, Kvr8u, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16s8u_AC4R, convert<Kvr16s, Kvr8u, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16u32f_C1R, convert<Kvr16u, Kvr32f, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16u32f_C3R, convert<Kvr16u, Kvr32f, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16u32f_C4R, convert<Kvr16u, Kvr32f, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16u32f_AC4R, convert<Kvr16u, Kvr32f, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16s32f_C1R, convert<Kvr16s, Kvr32f, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16s32f_C3R, convert<Kvr16s, Kvr32f, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16s32f_C4R, convert<Kvr16s, Kvr32f, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_16s32f_AC4R, convert<Kvr16s, Kvr32f, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_32s8u_C1R, convert<Kvr32s, Kvr8u, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_32s8u_C3R, convert<Kvr32s, Kvr8u, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_32s8u_C4R, convert<Kvr32s, Kvr8u, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_32s8u_AC4R, convert<Kvr32s, Kvr8u, AC4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_32s8s_C1R, convert<Kvr32s, Kvr8s, C1, Steps::Positive>);
KVRI_EXPORT(kvriConvert_32s8s_C3R, convert<Kvr32s, Kvr8s, C3, Steps::Positive>);
KVRI_EXPORT(kvriConvert_32s8s_C4R, convert<Kvr32s, Kvr8s, C4, Steps::Positive>);
KVRI_EXPORT(kvriConvert_32s8s_AC4R, convert<Kvr32s, Kvr8s, AC4, Steps::Positive>);

KVRI_EXPORT(kvriConvert_16u32s_C1R, convert<Kvr16u, Kvr32s, C1, Steps::Any>);
KVRI_EXPORT(kvriConvert_16u32s_C3R, convert<Kvr16u, Kvr32s, C3, Steps::Any>);
KVRI_EXPORT(kvriConvert_16u32s_C4R, convert<Kvr16u, Kvr32s, C4, Steps::Any>);
KVRI_EXPORT(kvriConvert_16u32s_AC4R, convert<Kvr16u, Kvr32s, AC4, Steps::Any>);
KVRI_EXPORT(kvriConvert_16s32s_C1R, convert<Kvr16s, Kvr32s, C1, Steps::Any>);
KVRI_EXPORT(kvriConvert_16s32s_C3R, convert<Kvr16s, Kvr32s, C3, Steps::Any>);
KVRI_EXPORT(kvriConvert_16s32s_C4R, convert<Kvr16s, Kvr32s, C4, Steps::Any>);
KVRI_EXPORT(kvriConvert_16s32s_AC4R, convert<Kvr16s, Kvr32s, AC4, Steps::Any>);
KVRI_EXPORT(kvriConvert_8s16s_C1R, convert<Kvr8s, Kvr16s, C1, Steps::Any>);
KVRI_EXPORT(kvriConvert_16u32u_C1R, convert<Kvr16u, Kvr32u, C1, Steps::Any>);
KVRI_EXPORT(kvriConvert_32s32f_C1R, convert<Kvr32s, Kvr32f, C1, Steps::Any>);
KVRI_EXPORT(kvriConvert_32u32f_C1R, convert<Kvr32u, Kvr32f, C1, Steps::Any>);

KVRI_EXPORT(kvriConvert_8s8u_C1Rs, withoutNegatives<Kvr8s, Kvr8u>);
KVRI_EXPORT(kvriConvert_8s16u_C1Rs, withoutNegatives<Kvr8s, Kvr16u>);
KVRI_EXPORT(kvriConvert_8s32u_C1Rs, withoutNegatives<Kvr8s, Kvr32u>);
KVRI_EXPORT(kvriConvert_16s16u_C1Rs, withoutNegatives<Kvr16s, Kvr16u>);
KVRI_EXPORT(kvriConvert_16s32u_C1Rs, withoutNegatives<Kvr16s, Kvr32u>);
KVRI_EXPORT(kvriConvert_32s32u_C1Rs, withoutNegatives<Kvr32s, Kvr32u>);

KVRI_EXPORT(kvriConvert_32f8u_C1R, round<Kvr8u, C1>);
KVRI_EXPORT(kvriConvert_32f8u_C3R, round<Kvr8u, C3>);
KVRI_EXPORT(kvriConvert_32f8u_C4R, round<Kvr8u, C4>);
KVRI_EXPORT(kvriConvert_32f8u_AC4R, round<Kvr8u, AC4>);
KVRI_EXPORT(kvriConvert_32f8s_C1R, round<Kvr8s, C1>);
KVRI_EXPORT(kvriConvert_32f8s_C3R, round<Kvr8s, C3>);
KVRI_EXPORT(kvriConvert_32f8s_C4R, round<Kvr8s, C4>);
KVRI_EXPORT(kvriConvert_32f8s_AC4R, round<Kvr8s, AC4>);
KVRI_EXPORT(kvriConvert_32f16u_C1R, round<Kvr16u, C1>);
KVRI_EXPORT(kvriConvert_32f16u_C3R, round<Kvr16u, C3>);
KVRI_EXPORT(kvriConvert_32f16u_C4R, round<Kvr16u, C4>);
KVRI_EXPORT(kvriConvert_32f16u_AC4R, round<Kvr16u, AC4>);
KVRI_EXPORT(kvriConvert_32f16s_C1R, round<Kvr16s, C1>);
KVRI_EXPORT(kvriConvert_32f16s_C3R, round<Kvr16s, C3>);
KVRI_EXPORT(kvriConvert_32f16s_C4R, round<Kvr16s, C4>);
KVRI_EXPORT(kvriConvert_32f16s_AC4R, round<Kvr16s, AC4>);

KVRI_EXPORT(kvriConvert_16s8s_C1RSfs, scale<Kvr16s, Kvr8s>);
KVRI_EXPORT(kvriConvert_16u16s_C1RSfs, scale<Kvr16u, Kvr16s>);
KVRI_EXPORT(kvriConvert_16u8s_C1RSfs, scale<Kvr16u, Kvr8s>);
KVRI_EXPORT(kvriConvert_32s16s_C1RSfs, scale<Kvr32s, Kvr16s>);
KVRI_EXPORT(kvriConvert_32s16u_C1RSfs, scale<Kvr32s, Kvr16u>);
KVRI_EXPORT(kvriConvert_32u16s_C1RSfs, scale<Kvr32u, Kvr16s>);
KVRI_EXPORT(kvriConvert_32u16u_C1RSfs, scale<Kvr32u, Kvr16u>);
KVRI_EXPORT(kvriConvert_32u32s_C1RSfs, scale<Kvr32u, Kvr32s>);
KVRI_EXPORT(kvriConvert_32u8s_C1RSfs, scale<Kvr32u, Kvr8s>);
KVRI_EXPORT(kvriConvert_32u8u_C1RSfs, scale<Kvr32u, Kvr8u>);
KVRI_EXPORT(kvriConvert_8u8s_C1RSfs, scale<Kvr8u, Kvr8s>);
KVRI_EXPORT(kvriConvert_32f8u_C1RSfs, scale<Kvr32f, Kvr8u>);
KVRI_EXPORT(kvriConvert_32f8s_C1RSfs, scale<Kvr32f, Kvr8s>);
KVRI_EXPORT(kvriConvert_32f16u_C1RSfs, scale<Kvr32f, Kvr16u>);
KVRI_EXPORT(kvriConvert_32f16s_C1RSfs, scale<Kvr32f, Kvr16s>);
KVRI_EXPORT(kvriConvert_32f32s_C1RSfs, scale<Kvr32f, Kvr32s>);
KVRI_EXPORT(kvriConvert_32f32u_C1RSfs, scale<Kvr32f, Kvr32u>);
KVRI_EXPORT(kvriConvert_32f32u_C1IRSfs, scaleInPlace);

KVRI_EXPORT(kvriConvert_1u8u_C1R, expandBits);

}  // namespace
}  // namespace kvri
