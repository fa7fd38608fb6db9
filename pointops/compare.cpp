// pointops/compare.cpp: Compare, CompareC, CompareEqualEps and CompareEqualEpsC: a mask byte for each pixel.
//
// A block is as many pixels as a vector has bytes. Samples are compared vector by vector; what comes out is brought down to
// one bit, or one byte, per sample, then per pixel.
#include "core/layout.h"
#include "datamove/interleave.h"
#include "kvri/pointops.h"
#include "pointops/arithmetic.h"

namespace kvri {
namespace {

enum Relation { kEqual, kLess, kLessOrEqual };  // the comparing instructions' codes

#if defined(__AVX512BW__)

// Of a vector's elements: a bit each.
using Mask = uint64_t;

template <Relation relation, class V>
inline Mask holds(V a, V b) {
    if constexpr (kHolds<V, uint8_t>) return _mm512_cmp_epu8_mask(raw(a), raw(b), relation);
    else if constexpr (kHolds<V, uint16_t>) return _mm512_cmp_epu16_mask(raw(a), raw(b), relation);
    else if constexpr (kHolds<V, int16_t>) return _mm512_cmp_epi16_mask(raw(a), raw(b), relation);
    else return _mm512_cmp_ps_mask(raw(a), raw(b), relation);
}

// The masks of consecutive vectors as one of 64 samples.
inline Mask join(const Mask (&m)[1]) { return m[0]; }
inline Mask join(const Mask (&m)[2]) { return _mm512_kunpackd(m[1], m[0]); }
inline Mask join(const Mask (&m)[4]) {
    return _mm512_kunpackd(_mm512_kunpackw(__mmask32(m[3]), __mmask32(m[2])), _mm512_kunpackw(__mmask32(m[1]), __mmask32(m[0])));
}

#else

// Of a vector's elements: 255 or 0 in every byte.
using Mask = Bytes<>;

template <Relation relation, class V>
inline Mask holds(V a, V b) {
    if constexpr (relation == kEqual) return (Mask)(a == b);
    else if constexpr (relation == kLess) return (Mask)(a < b);
    else return (Mask)(a <= b);
}

// The masks of consecutive vectors as one, a byte for each element. Vectors of two lanes are then put in order.
inline Mask join(const Mask (&m)[1]) { return m[0]; }
inline Mask join(const Mask (&m)[2]) {
    const Mask bytes = (Mask)narrow<int8_t>((Vec<int16_t>)m[0], (Vec<int16_t>)m[1]);
    if constexpr (kVectorBytes == 16) return bytes;
    else return permute4(bytes, [](int i) { return i / 2 % 2 * 4 + i / 4 * 2 + i % 2; });
}
inline Mask join(const Mask (&m)[4]) {
    const auto words = [&](int i) { return narrow<int16_t>((Vec<int32_t>)m[i], (Vec<int32_t>)m[i + 1]); };
    const Mask bytes = (Mask)narrow<int8_t>(words(0), words(2));
    if constexpr (kVectorBytes == 16) return bytes;
    else return permute4(bytes, [](int i) { return i % 2 * 4 + i / 2; });
}

#endif

// The masks of vectors c * S and the S - 1 behind it as one.
template <int S, int c, class F>
KVRI_INLINE inline Mask joined(F vectorMask) {
    Mask m[S];
    unroll<S>([&](auto s) KVRI_INLINE { m[s] = vectorMask(std::integral_constant<int, c * S + s>{}); });
    return join(m);
}

// Bytes of a block's pixels, where vectorMask(j) is the mask of its vector j: pixelBytes<L, sample's size>(vectorMask).
#if defined(__AVX512BW__)

// One bit per pixel of three samples: the first sample's bit meets the other two; the first bits are then taken together.
KVRI_INLINE inline Mask pixelsOfThree(const Mask (&samples)[3]) {
    Mask word[3], pixels = 0;
    for (int w = 0; w < 3; ++w) {
        word[w] = samples[w];
        asm("" : "+r"(word[w]));  // moved out of the mask register once, not for every use
    }
    unroll<3>([&](auto index) KVRI_INLINE {
        constexpr int w = index, before = (w * 64 + 2) / 3;  // pixels that begin in earlier words
        constexpr Mask firsts = choose<Bytes<>>([](int i) { return (w * 64 + i) % 3 == 0; });
        const auto channel = [&](int k) KVRI_INLINE {
            Mask bits = word[w] >> k;
            if constexpr (w < 2) bits |= word[w + 1] << (64 - k);
            return bits;
        };
        pixels |= _pext_u64(word[w] & channel(1) & channel(2), firsts) << before;
    });
    return pixels;
}

// Of four samples: those of 16 pixels make a vector of groups of which nothing is left where all compared channels hold.
template <class L>
KVRI_INLINE inline Mask pixelsOfFour(Mask samples) {
    const auto compared = constant<Bytes<>>([](int i) { return i % 4 < L::colours ? 255 : 0; });
    const auto left = (__m512i)blend<Bytes<>>(samples, Bytes<>{}, compared);
    return _mm512_testn_epi32_mask(left, left);
}

// Bytes of 64 pixels from N masks. Joined as bytes, as mask registers leave the join to the one unit that compares.
template <int N>
KVRI_INLINE inline Bytes<> bytesOf(const Mask (&m)[N]) {
    using Part = Bytes<64 / N>;
    const auto part = [&](int i) KVRI_INLINE { return blend<Part>(m[i], splat<Part>(255), Part{}); };
    if constexpr (N == 1) return part(0);
    else if constexpr (N == 2) return joinHalves(part(0), part(1));
    else return joinHalves(joinHalves(part(0), part(1)), joinHalves(part(2), part(3)));
}

template <class L, int S, class F>
KVRI_INLINE inline Bytes<> pixelBytes(F vectorMask) {
    if constexpr (L::channels == 1) {
        Mask pixels[S];
        unroll<S>([&](auto j) KVRI_INLINE { pixels[j] = vectorMask(j); });
        return bytesOf(pixels);
    } else if constexpr (L::channels == 3) {
        Mask samples[3];
        unroll<3>([&](auto c) KVRI_INLINE { samples[c] = joined<S, c>(vectorMask); });
        return bytesOf<1>({pixelsOfThree(samples)});
    } else {
        Mask pixels[4];
        unroll<4>([&](auto c) KVRI_INLINE { pixels[c] = pixelsOfFour<L>(joined<S, c>(vectorMask)); });
        return bytesOf(pixels);
    }
}

#else

template <class L, int S, class F>
KVRI_INLINE inline Bytes<> pixelBytes(F vectorMask) {
    Mask samples[L::channels];
    unroll<L::channels>([&](auto c) KVRI_INLINE { samples[c] = joined<S, c>(vectorMask); });
    if constexpr (L::channels == 1) {
        return samples[0];
    } else if constexpr (L::channels == 3) {
        Mask plane[3];
        ThreeChannels<1>::split(samples, plane);
        return plane[0] & plane[1] & plane[2];
    } else {
        const Mask ignored = constant<Mask>([](int i) { return i % 4 < L::colours ? 0 : 255; });
        for (Mask& m : samples) m = (Mask)((Vec<int32_t>)(m | ignored) == -1);
        return join(samples);
    }
}

#endif

// Operations give the mask of op(a, b).

template <class T, Relation relation>
struct Holds {
    using Sample = T;
    Mask operator()(Vec<T> a, Vec<T> b) const { return holds<relation>(a, b); }
};

template <class T, Relation relation>
struct HoldsReversed {
    using Sample = T;
    Mask operator()(Vec<T> a, Vec<T> b) const { return holds<relation>(b, a); }
};

struct Near {
    using Sample = Kvr32f;
    using V = Vec<Kvr32f>;
    V eps;
    Mask operator()(V a, V b) const {
        const V difference = (V)((Vec<uint32_t>)(a - b) & 0x7FFFFFFF);
        return holds<kLessOrEqual>(difference, eps);
    }
};

template <class L, class Op, class A, class B>
KVRI_INLINE inline void maskRow(const Op& operation, uint8_t* dst, ptrdiff_t pixels, A a, B b) {
    const Op op = operation;
    using V = Vec<typename Op::Sample>;
    constexpr int S = sizeof(typename Op::Sample), pixel = S * L::channels, unrolled = std::max(1, 4 / pixel);
    forEachBlock<kVectorBytes, 0, unrolled>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
        const auto vectorMask = [&](auto index) KVRI_INLINE {
            constexpr int j = index;
            const ptrdiff_t bytes = n * pixel - j * kVectorBytes;
            return op((V)a.template vector<j>(block, first, bytes), (V)b.template vector<j>(block, first, bytes));
        };
        block.store(dst + first, pixelBytes<L, S>(vectorMask), n);
    });
}

// What an operation is mapped over.
template <class T, class L>
struct MaskOfTwo {
    static constexpr int B = sizeof(T) * L::channels;
    Operand a, b;
    Result d;
    KvriSize roi;

    template <class Op>
    void operator()(const Op& op) const {
        eachRow(roi, [&](auto pa, auto pb, auto pd, ptrdiff_t pixels) KVRI_INLINE {
            maskRow<L>(op, pd, pixels, FromImage<B>{pa}, FromImage<B>{pb});
        }, source<B>(a.p, a.step), source<B>(b.p, b.step), destination<1>(d.p, d.step));
    }
};

template <class T, class L>
struct MaskWithValue {
    static constexpr int B = sizeof(T) * L::channels;
    Operand a;
    const T* value;
    Result d;
    KvriSize roi;

    template <class Op>
    void operator()(const Op& op) const {
        const auto values = pattern<L>(value);
        eachRow(roi, [&](auto pa, auto pd, ptrdiff_t pixels) KVRI_INLINE {
            maskRow<L>(op, pd, pixels, FromImage<B>{pa}, values);
        }, source<B>(a.p, a.step), destination<1>(d.p, d.step));
    }
};

// Unknown codes do nothing.
template <class T, class Task>
void mapRelation(const Task& task, KvrCmpOp cmpOp) {
    switch (cmpOp) {
        case kvrCmpLess: return task(Holds<T, kLess>{});
        case kvrCmpLessEq: return task(Holds<T, kLessOrEqual>{});
        case kvrCmpEq: return task(Holds<T, kEqual>{});
        case kvrCmpGreaterEq: return task(HoldsReversed<T, kLessOrEqual>{});
        case kvrCmpGreater: return task(HoldsReversed<T, kLess>{});
    }
}

template <class T, class L>
KvrStatus compare(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roi,
                  KvrCmpOp cmpOp) {
    if (KvrStatus e = firstError(nonNull(pSrc1, pSrc2, pDst), positiveSteps(src1Step, src2Step, dstStep), hasPixels(roi)))
        return e;
    mapRelation<T>(MaskOfTwo<T, L>{{pSrc1, src1Step}, {pSrc2, src2Step}, {pDst, dstStep}, roi}, cmpOp);
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus compareWithValue(const T* pSrc, int srcStep, Constants<T, L> value, Kvr8u* pDst, int dstStep, KvriSize roi,
                           KvrCmpOp cmpOp) {
    const T* values = arrayOf(value);
    if (KvrStatus e = firstError(nonNull(pSrc, values, pDst), positiveSteps(srcStep, dstStep), hasPixels(roi))) return e;
    mapRelation<T>(MaskWithValue<T, L>{{pSrc, srcStep}, values, {pDst, dstStep}, roi}, cmpOp);
    return kvrStatusOk;
}

constexpr KvrStatus notNegative(Kvr32f eps) { return eps < 0 ? kvrStatusBadEps : kvrStatusOk; }

template <class L>
KvrStatus compareEqualEps(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr8u* pDst, int dstStep,
                          KvriSize roi, Kvr32f eps) {
    if (KvrStatus e = firstError(nonNull(pSrc1, pSrc2, pDst), positiveSteps(src1Step, src2Step, dstStep), hasPixels(roi),
                                 notNegative(eps)))
        return e;
    MaskOfTwo<Kvr32f, L>{{pSrc1, src1Step}, {pSrc2, src2Step}, {pDst, dstStep}, roi}(Near{splat<Vec<Kvr32f>>(eps)});
    return kvrStatusOk;
}

template <class L>
KvrStatus compareEqualEpsWithValue(const Kvr32f* pSrc, int srcStep, Constants<Kvr32f, L> value, Kvr8u* pDst, int dstStep,
                                   KvriSize roi, Kvr32f eps) {
    const Kvr32f* values = arrayOf(value);
    if (KvrStatus e = firstError(nonNull(pSrc, values, pDst), positiveSteps(srcStep, dstStep), hasPixels(roi),
                                 notNegative(eps)))
        return e;
    MaskWithValue<Kvr32f, L>{{pSrc, srcStep}, values, {pDst, dstStep}, roi}(Near{splat<Vec<Kvr32f>>(eps)});
    return kvrStatusOk;
}

KVRI_EXPORT(kvriCompare_8u_C1R, compare<Kvr8u, C1>);
KVRI_EXPORT(kvriCompare_8u_C3R, compare<Kvr8u, C3>);
KVRI_EXPORT(kvriCompare_8u_C4R, compare<Kvr8u, C4>);
KVRI_EXPORT(kvriCompare_8u_AC4R, compare<Kvr8u, AC4>);
KVRI_EXPORT(kvriCompare_16u_C1R, compare<Kvr16u, C1>);
KVRI_EXPORT(kvriCompare_16u_C3R, compare<Kvr16u, C3>);
KVRI_EXPORT(kvriCompare_16u_C4R, compare<Kvr16u, C4>);
KVRI_EXPORT(kvriCompare_16u_AC4R, compare<Kvr16u, AC4>);
KVRI_EXPORT(kvriCompare_16s_C1R, compare<Kvr16s, C1>);
KVRI_EXPORT(kvriCompare_16s_C3R, compare<Kvr16s, C3>);
KVRI_EXPORT(kvriCompare_16s_C4R, compare<Kvr16s, C4>);
KVRI_EXPORT(kvriCompare_16s_AC4R, compare<Kvr16s, AC4>);
KVRI_EXPORT(kvriCompare_32f_C1R, compare<Kvr32f, C1>);
KVRI_EXPORT(kvriCompare_32f_C3R, compare<Kvr32f, C3>);
KVRI_EXPORT(kvriCompare_32f_C4R, compare<Kvr32f, C4>);
KVRI_EXPORT(kvriCompare_32f_AC4R, compare<Kvr32f, AC4>);

KVRI_EXPORT(kvriCompareC_8u_C1R, compareWithValue<Kvr8u, C1>);
KVRI_EXPORT(kvriCompareC_8u_C3R, compareWithValue<Kvr8u, C3>);
KVRI_EXPORT(kvriCompareC_8u_C4R, compareWithValue<Kvr8u, C4>);
KVRI_EXPORT(kvriCompareC_8u_AC4R, compareWithValue<Kvr8u, AC4>);
KVRI_EXPORT(kvriCompareC_16u_C1R, compareWithValue<Kvr16u, C1>);
KVRI_EXPORT(kvriCompareC_16u_C3R, compareWithValue<Kvr16u, C3>);
KVRI_EXPORT(kvriCompareC_16u_C4R, compareWithValue<Kvr16u, C4>);
KVRI_EXPORT(kvriCompareC_16u_AC4R, compareWithValue<Kvr16u, AC4>);
KVRI_EXPORT(kvriCompareC_16s_C1R, compareWithValue<Kvr16s, C1>);
KVRI_EXPORT(kvriCompareC_16s_C3R, compareWithValue<Kvr16s, C3>);
KVRI_EXPORT(kvriCompareC_16s_C4R, compareWithValue<Kvr16s, C4>);
KVRI_EXPORT(kvriCompareC_16s_AC4R, compareWithValue<Kvr16s, AC4>);
KVRI_EXPORT(kvriCompareC_32f_C1R, compareWithValue<Kvr32f, C1>);
KVRI_EXPORT(kvriCompareC_32f_C3R, compareWithValue<Kvr32f, C3>);
KVRI_EXPORT(kvriCompareC_32f_C4R, compareWithValue<Kvr32f, C4>);
KVRI_EXPORT(kvriCompareC_32f_AC4R, compareWithValue<Kvr32f, AC4>);

KVRI_EXPORT(kvriCompareEqualEps_32f_C1R, compareEqualEps<C1>);
KVRI_EXPORT(kvriCompareEqualEps_32f_C3R, compareEqualEps<C3>);
KVRI_EXPORT(kvriCompareEqualEps_32f_C4R, compareEqualEps<C4>);
KVRI_EXPORT(kvriCompareEqualEps_32f_AC4R, compareEqualEps<AC4>);

KVRI_EXPORT(kvriCompareEqualEpsC_32f_C1R, compareEqualEpsWithValue<C1>);
KVRI_EXPORT(kvriCompareEqualEpsC_32f_C3R, compareEqualEpsWithValue<C3>);
KVRI_EXPORT(kvriCompareEqualEpsC_32f_C4R, compareEqualEpsWithValue<C4>);
KVRI_EXPORT(kvriCompareEqualEpsC_32f_AC4R, compareEqualEpsWithValue<AC4>);

}  // namespace
}  // namespace kvri
