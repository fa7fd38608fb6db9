// geometry/resize_spec.h: the specification object of Resize.
//
// The object lies at the first multiple of 64 in the caller's block. It holds offsets from there, no addresses; its tables
// follow the fixed part. Per axis: the first tap of every destination position and its weights. Column weights are stored
// tap by tap, so that a vector of neighbouring destination columns loads them; row weights position by position.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "core/check.h"
#include "kvri/geometry.h"

namespace kvri {

constexpr uint32_t kResizeSpecId = 0x4B617389, kResizeSpecId64f = 0x4B61738C;

// What the weight tables hold. Fixed14: per column the pair 16384 - w, w of 16-bit numbers, per row w.
enum class ResizeWeights : int32_t { None, Fixed14, Float, Double };

struct ResizeAxis {
    int32_t source, destination;                // lengths
    int32_t reducedSource, reducedDestination;  // without their common divisor
    double quotient;                            // of these
    int32_t halfWidth;
    int32_t taps;
    int32_t period;                     // positions after which weights repeat, and first taps move on by reducedSource
    int32_t index, weights;             // offsets of the tables in bytes
    int32_t positionStride, tapStride;  // of weights, in weights
    int32_t wholeBits;  // weights are whole numbers of 2^-wholeBits; -1: not, or too large ones for bytes
    int32_t magnitude;  // the largest sum of their magnitudes in these units

    double ratio() const { return quotient; }
    // The source coordinate of destination position i; pixel centres are whole numbers.
    double coordinate(int i) const { return (i + 0.5) * ratio() - 0.5; }
    bool shrinks() const { return source > destination; }
    bool halves() const { return reducedSource == 2 && reducedDestination == 1; }
    bool doubles() const { return reducedSource == 1 && reducedDestination == 2; }
    bool keeps() const { return source == destination; }
};

struct ResizeSpec {
    uint32_t id;
    KvriInterpolationType method;
    int32_t antialiasing;
    ResizeWeights kind;
    int32_t rowsFirst;      // whether a destination pixel is a sum over rows of sources first, then over columns
    KvriBorderSize border;  // what GetBorderSize tells
    ResizeAxis x, y;

    bool halves() const { return x.halves() && y.halves(); }
    bool doubles() const { return x.doubles() && y.doubles(); }
    bool keeps() const { return x.keeps() && y.keeps(); }
    // Whether sums of 8u, in any order, are exact in single precision and in 16-bit numbers between the passes.
    bool whole() const { return x.wholeBits >= 0 && y.wholeBits >= 0 && 255 * x.magnitude * y.magnitude <= 1 << 24; }

    template <class T>
    const T* table(int32_t offset) const { return reinterpret_cast<const T*>(reinterpret_cast<const char*>(this) + offset); }
    template <class T>
    T* table(int32_t offset) { return reinterpret_cast<T*>(reinterpret_cast<char*>(this) + offset); }

    int firstTap(const ResizeAxis& a, int i) const {
        const auto* first = table<int32_t>(a.index);
        return i < a.period ? first[i] : i / a.period * a.reducedSource + first[i % a.period];
    }
    // The weights of position i, a.tapStride apart.
    template <class F>
    const F* weightsOf(const ResizeAxis& a, int i) const {
        return table<F>(a.weights) + ptrdiff_t(i < a.period ? i : i % a.period) * a.positionStride;
    }
    template <class F>
    F weight(const ResizeAxis& a, int i, int tap) const {
        return weightsOf<F>(a, i)[ptrdiff_t(tap) * a.tapStride];
    }

    // The source position where a tile that begins at i has its pointer.
    int origin(const ResizeAxis& a, int i) const {
        return method == kvrInterpSuper ? firstTap(a, i) : int(i * a.ratio());
    }
};

constexpr int kWholeTaps = 8;

// Taps whose rows are kept between the passes; where a pixel has more, rows come first.
constexpr int kMostKeptTaps = 13;

constexpr int kResizeFixedBytes = 192;
static_assert(sizeof(ResizeSpec) <= kResizeFixedBytes);

template <class Spec>
auto alignedSpec(Spec* block) {
    const auto address = (reinterpret_cast<uintptr_t>(block) + 63) & ~uintptr_t(63);
    if constexpr (std::is_const_v<Spec>) return reinterpret_cast<const ResizeSpec*>(address);
    else return reinterpret_cast<ResizeSpec*>(address);
}

// An object of the other kind of samples, or none.
inline KvrStatus carriesId(const KvriResizeSpec* block, uint32_t id) {
    return alignedSpec(block)->id == id ? kvrStatusOk : kvrStatusBadContext;
}

inline KvrStatus lengthsNotZero(KvriSize size) {
    return size.width == 0 || size.height == 0 ? kvrStatusNoOperation : kvrStatusOk;
}

inline KvrStatus lengthsNotNegative(KvriSize size) {
    return size.width < 0 || size.height < 0 ? kvrStatusBadSize : kvrStatusOk;
}

inline KvrStatus insideDestination(const ResizeSpec& spec, KvriPoint p) {
    return p.x < 0 || p.y < 0 || p.x >= spec.x.destination || p.y >= spec.y.destination ? kvrStatusOutOfRange : kvrStatusOk;
}

inline KvrStatus withinDestination(const ResizeSpec& spec, KvriSize size) {
    return size.width > spec.x.destination || size.height > spec.y.destination ? kvrStatusRoiExceedsSpec : kvrStatusOk;
}

// The part of a tile that lies in the destination.
inline KvriSize clipped(const ResizeSpec& spec, KvriPoint offset, KvriSize size) {
    return {std::min(size.width, spec.x.destination - offset.x), std::min(size.height, spec.y.destination - offset.y)};
}

// Super: source pixels that a destination pixel may cover, of reduced lengths.
constexpr int superTaps(int src, int dst) { return src / dst + std::min(src % dst, 2); }

// n rounded up to a multiple of 32.
constexpr int64_t upTo32(int64_t n) { return (n + 31) & ~int64_t(31); }

}  // namespace kvri
