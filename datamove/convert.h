// datamove/convert.h: rows of samples of one type to rows of another.
//
// A conversion is an object with the types Source, Work and Target: samples are widened from Source to Work, the object turns a
// vector of Work into one of the result, whose elements are of the same size, and these are narrowed to Target: taken as signed,
// and saturated. Where a result is the least number of its type or, if there are 16-bit numbers on the way, may be less than
// theirs, and the conversion has a function careful(), this one's results are taken instead.
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

// The samples of a vector, or of a part of one, as `count` vectors of Work, in order.
template <class Work, class V>
KVRI_INLINE inline void widen(V v, Vec<Work>* out) {
    constexpr int count = sizeof(V) / sizeof(ElementOf<V>) * sizeof(Work) / kVectorBytes;
    if constexpr (kHolds<V, Work>) {
        out[0] = v;
    } else {
#if defined(__SSE4_1__)
        static_assert(count <= 2);
        out[0] = extended<Vec<Work>>(v);
        if constexpr (count == 2) out[1] = extended<Vec<Work>>(zipHigh<8>(v, v));
#else
        widen<Work>(widenLow(v), out);
        widen<Work>(widenHigh(v), out + count / 2);
#endif
    }
}

// K vectors become two, of 16-bit elements where there were four.
template <int K, class V>
KVRI_INLINE inline auto halvesOf(const V* v) {
    if constexpr (K == 2) return std::array{v[0], v[1]};
    else return std::array{narrow<int16_t>(v[0], v[1]), narrow<int16_t>(v[2], v[3])};
}

// A row's last block, some of whose vectors may be whole, or not the row's at all.
struct LastBlock {
    template <class V>
    static V load(const uint8_t* p, ptrdiff_t bytes) {
        if (bytes >= ptrdiff_t(sizeof(V))) return kvri::load<V>(p);
        return bytes > 0 ? loadPart<V>(p, bytes) : V{};
    }
    template <class V>
    static void store(uint8_t* p, V v, ptrdiff_t bytes) {
        if (bytes >= ptrdiff_t(sizeof(V))) kvri::store(p, v);
        else if (bytes > 0) storePart(p, v, bytes);
    }
    template <class V>
    static void storeChosen(uint8_t* p, V v, Choice<V> choice, ptrdiff_t bytes) {
        if (bytes > 0) storeChosenPart(p, v, choice, bytes);
    }
};

// One block of `units`: a unit is the samples of one loaded vector or of one target vector, whichever are more.
template <class Op, bool Alpha, int units>
class ConversionStep {
    using S = typename Op::Source;
    using T = typename Op::Target;
    using Work = typename Op::Work;
    using V = Vec<Work>;
    static constexpr int loadedBytes = std::max<int>(16, kVectorBytes * sizeof(S) / sizeof(Work));
    static constexpr int perTarget = sizeof(Work) / sizeof(T);

public:
    static constexpr int samples = units * std::max(loadedBytes / sizeof(S), kVectorBytes / sizeof(T));
    static constexpr int works = samples * sizeof(Work) / kVectorBytes;

private:
    static constexpr int loads = samples * sizeof(S) / loadedBytes;
    const Op op_;
    const uint8_t* src_;
    uint8_t* dst_;

    template <int n, class F>
    KVRI_INLINE static auto mapped(const V* work, F f) {
        std::array<decltype(f(work[0])), n> result;
        unroll<n>([&](auto i) KVRI_INLINE { result[i] = f(work[i]); });
        return result;
    }

    // One vector of the target.
    template <class R>
    KVRI_INLINE Vec<T> target(const R* result, const V* work) const {
        if constexpr (perTarget == 1) {
            return (Vec<T>)result[0];
        } else {
            auto halves = halvesOf<perTarget>(result);
            if constexpr (requires { op_.careful(work[0]); }) {
                using Half = typename decltype(halves)::value_type;
                if (anyEqual(smaller(halves[0], halves[1]), splat<Half>(std::numeric_limits<ElementOf<Half>>::min()))) [[unlikely]]
                    halves = halvesOf<perTarget>(mapped<perTarget>(work, [&](V v) KVRI_INLINE { return op_.careful(v); }).data());
            }
            return unpackedOrder<perTarget>(narrow<T>(halves[0], halves[1]));
        }
    }

public:
    ConversionStep(const Op& op, const uint8_t* src, uint8_t* dst) : op_(op), src_(src), dst_(dst) {}

    KVRI_INLINE void operator()(auto block, ptrdiff_t first, ptrdiff_t n) const {
        const uint8_t* src = src_ + first * ptrdiff_t(sizeof(S));
        uint8_t* dst = dst_ + first * ptrdiff_t(sizeof(T));
        V work[works];
        unroll<loads>([&](auto i) KVRI_INLINE {
            const ptrdiff_t at = i * loadedBytes;
            widen<Work>(block.template load<Vec<S, loadedBytes>>(src + at, n * ptrdiff_t(sizeof(S)) - at), work + i * works / loads);
        });
        const auto result = mapped<works>(work, op_);
        unroll<works / perTarget>([&](auto i) KVRI_INLINE {
            constexpr int at = i * kVectorBytes, pixel = 4 * sizeof(T), colours = 3 * sizeof(T);
            const Bytes<> v = (Bytes<>)target(result.data() + i * perTarget, work + i * perTarget);
            const ptrdiff_t bytes = n * ptrdiff_t(sizeof(T)) - at;
            if constexpr (Alpha) block.storeChosen(dst + at, v, choose<Bytes<>>(IsChosen<pixel, colours, i>{}), bytes);
            else block.store(dst + at, v, bytes);
        });
    }
};

// Vectors of Work that are loaded before any is stored.
template <class Op>
constexpr int kGrouped = 4;
template <class Op>
    requires requires { Op::grouped; }
constexpr int kGrouped<Op> = Op::grouped;

// Samples [0, head) are fewer than a block; behind them whole blocks may need an aligned destination.
template <bool Alpha, class Block, class Op>
KVRI_INLINE inline void convertRow(const Op& op, const uint8_t* src, uint8_t* dst, ptrdiff_t head, ptrdiff_t samples) {
    using Unit = ConversionStep<Op, Alpha, 1>;
    constexpr int units = std::max(1, kGrouped<Op> / Unit::works);
    const ConversionStep<Op, Alpha, units> group(op, src, dst);
    const Unit unit(op, src, dst);
    for (ptrdiff_t first = 0, end = head > 0 ? head : samples;; end = samples) {
        for (; end - first >= group.samples; first += group.samples) group(Block{}, first, group.samples);
        if constexpr (units > 1)
            for (; end - first >= unit.samples; first += unit.samples) unit(Block{}, first, unit.samples);
        if (first < end) unit(LastBlock{}, first, end - first);
        if (end == samples) return;
        first = end;
    }
}

template <bool Alpha, class Op>
void convertRows(const Op& conversion, const void* pSrc, int srcStep, void* pDst, int dstStep, KvriSize roi, int channels) {
    const Op op = conversion;  // bytes that are stored might alias its constants, but no local copy's
    constexpr int srcBytes = sizeof(typename Op::Source), dstBytes = sizeof(typename Op::Target);
    const auto src = source(pSrc, srcStep, srcBytes * channels);
    const auto dst = destination(pDst, dstStep, dstBytes * channels);
    const bool reachesAlignment = (reinterpret_cast<uintptr_t>(pDst) | unsigned(dstStep)) % dstBytes == 0;
    if (!Alpha && reachesAlignment && pSrc != pDst && exceedsCache(roi, (srcBytes + dstBytes) * channels)) {
        eachRow(roi, [&](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE {
            const ptrdiff_t samples = pixels * channels, head = (-reinterpret_cast<intptr_t>(d) & (kVectorBytes - 1)) / dstBytes;
            if constexpr (!Alpha) convertRow<Alpha, StreamedBlock>(op, s, d, std::min(head, samples), samples);
        }, src, dst);
        fenceStreams();
    } else {
        eachRow(roi, [&](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE {
            convertRow<Alpha, WholeBlock>(op, s, d, 0, pixels * channels);
        }, src, dst);
    }
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

// 32f numbers value(v) to integers for T.
template <class T, class Round, class Value>
struct Rounded {
    using Source = Kvr32f;
    using Target = T;
    using Work = Kvr32f;
    using F = Vec<float>;
    using I = Vec<int32_t>;
    Value value;

    // Of narrow T, numbers beyond the range of 32s, and NaN, become its minimum.
    I operator()(F v) const {
        if constexpr (std::is_same_v<T, uint32_t>) return (I)Round{}.toUnsigned(larger(value(v), F{}));
        else if constexpr (std::is_same_v<T, int32_t>) return saturated(value(v));
        else return Round{}(value(v));
    }

    // Where the minimum has been seen.
    I careful(F v) const requires(sizeof(T) < 4) { return saturated(value(v)); }

private:
    static I saturated(F v) {
        const I above = v >= splat<F>(0x1p31f);
        return (Round{}(v) ^ above) & (v == v);
    }
};

}  // namespace kvri
