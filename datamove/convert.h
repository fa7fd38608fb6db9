// datamove/convert.h: rows of samples of one type to rows of another.
//
// A conversion is an object with the types Source, Work and Target: samples are widened from Source to Work, the object turns a
// vector of Work into one of the result, whose elements are of the same size, and these are narrowed to Target: taken as signed,
// and saturated.
#pragma once

#include "core/check.h"
#include "core/dispatch.h"
#include "core/lanes.h"
#include "core/layout.h"
#include "core/map.h"
#include "core/rows.h"
#include "kvri/datamove.h"

namespace kvri {

// T, or where `bytes` is more, the wider integer that holds its numbers.
template <class T, int bytes>
struct Widened { using type = typename Widened<typename WiderOf<T>::type, bytes>::type; };
template <class T, int bytes>
    requires(sizeof(T) >= bytes)
struct Widened<T, bytes> { using type = T; };

// Samples of some or all of a vector become as many as fit into `count` vectors of Work, in order.
template <class Work, class V>
KVRI_INLINE inline void widen(V v, Vec<Work>* out) {
    constexpr int count = sizeof(V) / sizeof(ElementOf<V>) * sizeof(Work) / kVectorBytes;
    if constexpr (kHolds<V, Work>) out[0] = v;
    else if constexpr (count == 1) out[0] = __builtin_convertvector(v, Vec<Work>);
    else if constexpr (kVectorBytes == 16) {
        widen<Work>(widenLow(v), out);
        widen<Work>(widenHigh(v), out + count / 2);
    } else {
        widen<Work>(lowerHalf(v), out);
        widen<Work>(upperHalf(v), out + count / 2);
    }
}

// Groups of 16 / K bytes in the order of K vectors that have been packed together lane by lane.
template <int K, class V>
inline V unpackedOrder(V v) {
    constexpr int lanes = sizeof(V) / 16;
    if constexpr (lanes == 1) return v;
    else return permute4(v, [](int i) {
        constexpr int perGroup = 4 / K;
        const int group = i / perGroup, vector = group / lanes, lane = group % lanes;
        return (lane * K + vector) * perGroup + i % perGroup;
    });
}

// K vectors as one of T, in order.
template <class T, int K, class V>
KVRI_INLINE inline Vec<T> joined(const V* v) {
    if constexpr (K == 1) return (Vec<T>)v[0];
    else if constexpr (K == 2) return unpackedOrder<K>(narrow<T>(v[0], v[1]));
    else return unpackedOrder<K>(narrow<T>(narrow<int16_t>(v[0], v[1]), narrow<int16_t>(v[2], v[3])));
}

// One block: as many samples as fill a vector of the narrower type.
template <class Op, bool Alpha>
class ConversionStep {
    using S = typename Op::Source;
    using T = typename Op::Target;
    using Work = typename Op::Work;
    using V = Vec<Work>;
    static constexpr int sourceVectorBytes = std::max<int>(16, kVectorBytes * sizeof(S) / sizeof(Work));
    static constexpr int perTarget = sizeof(Work) / sizeof(T);

public:
    static constexpr int samples = kVectorBytes / std::min(sizeof(S), sizeof(T));

private:
    static constexpr int works = samples * sizeof(Work) / kVectorBytes, sources = samples * sizeof(S) / sourceVectorBytes;
    const Op op_;  // bytes that are stored might alias the constants of another's operation, but no copy's
    const uint8_t* src_;
    uint8_t* dst_;

    // Row bytes that are left behind vectors.
    KVRI_INLINE static void store(auto block, uint8_t* dst, Bytes<> v, ptrdiff_t bytes, auto vector) {
        constexpr int j = vector, pixel = 4 * sizeof(T), colours = 3 * sizeof(T);
        if constexpr (Alpha) block.storeChosen(dst, v, choose<Bytes<>>(IsChosen<pixel, colours, j>{}), bytes);
        else block.store(dst, v, bytes);
    }

public:
    ConversionStep(const Op& op, const uint8_t* src, uint8_t* dst) : op_(op), src_(src), dst_(dst) {}

    KVRI_INLINE void operator()(auto block, ptrdiff_t first, ptrdiff_t n) const {
        V work[works];
        unroll<sources>([&](auto i) KVRI_INLINE {
            const ptrdiff_t at = i * sourceVectorBytes;
            using Part = Vec<S, sourceVectorBytes>;
            widen<Work>(block.template load<Part>(src_ + first * ptrdiff_t(sizeof(S)) + at, n * ptrdiff_t(sizeof(S)) - at),
                        work + i * works / sources);
        });
        decltype(op_(work[0])) result[works];
        unroll<works>([&](auto i) KVRI_INLINE { result[i] = op_(work[i]); });
        unroll<works / perTarget>([&](auto i) KVRI_INLINE {
            const ptrdiff_t at = i * kVectorBytes;
            store(block, dst_ + first * ptrdiff_t(sizeof(T)) + at, (Bytes<>)joined<T, perTarget>(result + i * perTarget),
                  n * ptrdiff_t(sizeof(T)) - at, i);
        });
    }
};

template <bool Alpha, class Op>
KVRI_INLINE inline void convertRow(const Op& op, const uint8_t* src, uint8_t* dst, ptrdiff_t samples) {
    using Step = ConversionStep<Op, Alpha>;
    constexpr bool equal = sizeof(typename Op::Source) == sizeof(typename Op::Target);
    forEachBlock<Step::samples, 0, equal ? 4 : 1>(samples, Step(op, src, dst));
}

template <bool Alpha, class Op>
void convertRows(const Op& op, const void* pSrc, int srcStep, void* pDst, int dstStep, KvriSize roi, int channels) {
    eachRow(roi, [&](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE { convertRow<Alpha>(op, s, d, pixels * channels); },
            source(pSrc, srcStep, ptrdiff_t(sizeof(typename Op::Source)) * channels),
            destination(pDst, dstStep, ptrdiff_t(sizeof(typename Op::Target)) * channels));
}

// Every sample of an image, or the colours of every pixel.
template <class L, class Op>
void convertImage(const Op& op, const typename Op::Source* pSrc, int srcStep, typename Op::Target* pDst, int dstStep, KvriSize roi) {
    convertRows<L::channels != L::colours>(op, pSrc, srcStep, pDst, dstStep, roi, L::channels);
}

// The checks of both families. Most members refuse steps below 1.
enum class Steps { Any, Positive };

template <Steps steps, class S, class T>
KvrStatus checkImages(const S* pSrc, int srcStep, const T* pDst, int dstStep, KvriSize roi) {
    const KvrStatus badStep = steps == Steps::Positive ? positiveSteps(srcStep, dstStep) : kvrStatusOk;
    return firstError(nonNull(pSrc, pDst), hasPixels(roi), badStep);
}

// 32f numbers to integers for Target; NaN becomes 0.
template <class T, class Round>
Vec<int32_t> toIntegers(Vec<float> v, Round round) {
    using F = Vec<float>;
    if constexpr (std::is_same_v<T, uint32_t>) {
        return (Vec<int32_t>)round.toUnsigned(larger(v, F{}));
    } else if constexpr (std::is_same_v<T, int32_t>) {
        const Vec<int32_t> above = v >= splat<F>(0x1p31f);
        return (round(v) ^ above) & (v == v);
    } else {  // what lies below, and NaN, become the least number of all
        const Vec<int32_t> r = round(smaller(splat<F>(std::numeric_limits<T>::max()), v));
        return std::is_unsigned_v<T> ? r : r & (v == v);
    }
}

}  // namespace kvri
