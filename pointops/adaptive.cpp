// pointops/adaptive.cpp: ThresholdAdaptiveBox and ThresholdAdaptiveGauss.
//
// Every source row is filtered along its length once, into a ring of as many rows as the mask has. Box: differences of
// prefix sums; a running total of the ring's rows gains one and loses one per row of the ROI. Gauss: both axes are weighted
// sums. A row is filtered before the first row that it is a neighbour of is written, so a call may work in place.
#include <cmath>

#include "core/check.h"
#include "core/dispatch.h"
#include "core/fpcontrol.h"
#include "datamove/fill.h"
#include "kvri/pointops.h"
#include "pointops/bytetable.h"

namespace kvri {
namespace {

struct Threshold {
    double delta;
    Kvr8u above, notAbove;
};

// The source and what surrounds its ROI.
class Surroundings {
    static constexpr int kFlags = kvrBorderInMemTop | kvrBorderInMemBottom | kvrBorderInMemLeft | kvrBorderInMemRight;
    const Kvr8u* src_;
    ptrdiff_t step_, width_, height_, reach_;
    bool replicated_;
    int inMemory_;
    Kvr8u value_;

    bool has(int side) const { return inMemory_ & side; }
    const Kvr8u* row(ptrdiff_t y) const { return src_ + y * step_; }

public:
    static constexpr ptrdiff_t kConstantRow = PTRDIFF_MIN;

    Surroundings(const Kvr8u* src, int step, KvriSize roi, ptrdiff_t reach, KvriBorderType border, Kvr8u value)
        : src_(src), step_(step), width_(roi.width), height_(roi.height), reach_(reach), replicated_((border & 15) == kvrBorderRepl),
          inMemory_((border & 15) == kvrBorderInMem ? kFlags : border & kFlags), value_(value) {}

    // The row that stands for row y.
    ptrdiff_t standIn(ptrdiff_t y) const {
        if (y < 0 && !has(kvrBorderInMemTop)) return replicated_ ? 0 : kConstantRow;
        if (y >= height_ && !has(kvrBorderInMemBottom)) return replicated_ ? height_ - 1 : kConstantRow;
        return y;
    }

    // A row that stands for others, from column -reach to width + reach.
    void extend(ptrdiff_t y, Kvr8u* out) const {
        if (y == kConstantRow) {
            std::memset(out, value_, size_t(width_ + 2 * reach_));
            return;
        }
        const Kvr8u* s = row(y);
        const ptrdiff_t left = has(kvrBorderInMemLeft) ? reach_ : 0, right = has(kvrBorderInMemRight) ? reach_ : 0;
        std::memset(out, replicated_ ? s[0] : value_, size_t(reach_ - left));
        std::memcpy(out + reach_ - left, s - left, size_t(left + width_ + right));
        std::memset(out + reach_ + width_ + right, replicated_ ? s[width_ - 1] : value_, size_t(reach_ - right));
    }
};

// Arrays carved out of the caller's buffer.
class Scratch {
    uintptr_t next_;

public:
    static constexpr ptrdiff_t alignment = 8;

    explicit Scratch(void* buffer) : next_(reinterpret_cast<uintptr_t>(buffer)) {}
    template <class T>
    T* array(ptrdiff_t n) {
        next_ = (next_ + alignment - 1) & -uintptr_t(alignment);
        T* p = reinterpret_cast<T*>(next_);
        next_ += size_t(n) * sizeof(T);
        return p;
    }
};

// Filtered rows, asked for from top to bottom; the last `side` stay.
template <class T, class Filter>
class Ring {
    const Surroundings& image_;
    const Filter& filter_;
    T* rows_;
    ptrdiff_t width_, side_, newest_ = PTRDIFF_MIN + 1;

    T* place(ptrdiff_t standIn) const {
        const ptrdiff_t r = standIn % side_;
        return rows_ + width_ * (standIn == Surroundings::kConstantRow ? side_ : r < 0 ? r + side_ : r);
    }

public:
    Ring(const Surroundings& image, const Filter& filter, Scratch& scratch, ptrdiff_t width, ptrdiff_t side)
        : image_(image), filter_(filter), rows_(scratch.array<T>(width * (side + 1))), width_(width), side_(side) {
        filter_(image_, Surroundings::kConstantRow, place(Surroundings::kConstantRow));
    }
    const T* get(ptrdiff_t y) {
        const ptrdiff_t standIn = image_.standIn(y);
        T* row = place(standIn);
        if (standIn > newest_) filter_(image_, newest_ = standIn, row);
        return row;
    }
};

// Results go through a buffer: the source may be the destination.
template <class F>
void writeRow(Kvr8u* dst, ptrdiff_t width, F result) {
    constexpr ptrdiff_t chunk = 512;
    for (ptrdiff_t first = 0; first < width; first += chunk) {
        const ptrdiff_t n = std::min(chunk, width - first);
        Kvr8u out[chunk];
        for (ptrdiff_t i = 0; i < n; ++i) out[i] = result(first + i);
        std::memcpy(dst + first, out, size_t(n));
    }
}

// Box

// Sums of `side` neighbours along a row. Prefix sums may wrap around, their differences do not.
template <class T>
struct WindowSums {
    ptrdiff_t width, side;
    Kvr8u* extended;
    T* prefix;

    WindowSums(Scratch& scratch, ptrdiff_t width, ptrdiff_t side)
        : width(width), side(side), extended(scratch.array<Kvr8u>(width + side - 1)), prefix(scratch.array<T>(width + side)) {}

    void operator()(const Surroundings& image, ptrdiff_t y, T* __restrict sums) const {
        image.extend(y, extended);
        accumulate();
        for (ptrdiff_t x = 0; x < width; ++x) sums[x] = T(prefix[x + side] - prefix[x]);
    }

private:
    void accumulate() const {
        const ptrdiff_t n = width + side - 1;
        ptrdiff_t i = 0;
        T sum = prefix[0] = 0;
        if constexpr (sizeof(T) == 2) {
            using V = Vec<uint16_t, 16>;
            V carry{};
            for (; i + 8 <= n; i += 8) {
                V v = (V)_mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(extended + i)), _mm_setzero_si128());
                v += (V)_mm_slli_si128((__m128i)v, 2);
                v += (V)_mm_slli_si128((__m128i)v, 4);
                v += (V)_mm_slli_si128((__m128i)v, 8);
                v += carry;
                store(prefix + i + 1, v);
                carry = pick(v, [](int) { return 7; });
            }
            sum = carry[0];
        }
        for (; i < n; ++i) prefix[i + 1] = sum = T(sum + extended[i]);
    }
};

// Whether src * area > sum - delta * area. Where the right side is exact, or too far from an integer for its rounding to
// matter, this is src * area - sum > floor(-delta * area).
class BoxComparison {
    double area_, offset_;

public:
    BoxComparison(double area, double delta) : area_(area), offset_(delta * area) {}
    bool isInteger() const {
        constexpr double safe = 1.0 / (1 << 20);
        const double fraction = std::abs(-offset_ - std::floor(-offset_ + 0.5));
        return fraction == 0 || fraction > safe;
    }
    int32_t integerBound() const { return int32_t(std::floor(-offset_)); }
    bool operator()(Kvr8u src, double sum) const { return src * area_ > sum - offset_; }
};

// T: sums of a row; Total: of the mask.
template <class T, class Total>
void boxRows(const Surroundings& image, const Threshold& threshold, const Kvr8u* src, ptrdiff_t srcStep, Kvr8u* dst, ptrdiff_t dstStep,
             KvriSize roi, ptrdiff_t side, Scratch scratch) {
    const ptrdiff_t width = roi.width, reach = side / 2;
    auto* __restrict total = scratch.array<Total>(width);
    const WindowSums<T> sums(scratch, width, side);
    Ring<T, WindowSums<T>> ring(image, sums, scratch, width, side);
    const BoxComparison isAbove(double(side) * double(side), threshold.delta);
    const bool inIntegers = sizeof(Total) == 4 && isAbove.isInteger();
    const uint32_t area = uint32_t(side * side);
    const int32_t bound = inIntegers ? isAbove.integerBound() : 0;
    const Kvr8u above = threshold.above, notAbove = threshold.notAbove;

    const auto add = [&](const T* row) { for (ptrdiff_t x = 0; x < width; ++x) total[x] += row[x]; };
    const auto subtract = [&](const T* row) { for (ptrdiff_t x = 0; x < width; ++x) total[x] -= row[x]; };
    std::fill_n(total, width, Total(0));
    for (ptrdiff_t y = -reach; y < reach; ++y) add(ring.get(y));
    for (ptrdiff_t y = 0; y < roi.height; ++y, src += srcStep, dst += dstStep) {
        add(ring.get(y + reach));
        if (inIntegers)
            writeRow(dst, width, [&](ptrdiff_t x) { return int32_t(src[x] * area - uint32_t(total[x])) > bound ? above : notAbove; });
        else
            writeRow(dst, width, [&](ptrdiff_t x) { return isAbove(src[x], double(total[x])) ? above : notAbove; });
        subtract(ring.get(y - reach));
    }
}

// Gauss

// Weights are multiples of 2^-44 with the sum 1: sums of products with bytes are exact, and the mean of equal pixels is
// their value.
struct GaussSpec {
    static constexpr uint32_t kIdentifier = 0x47415554;
    static constexpr ptrdiff_t alignment = 64;
    uint32_t identifier;
    int32_t side;
    double* weights() { return reinterpret_cast<double*>(this + 1); }  // of the first half and the centre
    const double* weights() const { return reinterpret_cast<const double*>(this + 1); }

    static int64_t bytes(int side) { return alignment + int64_t(sizeof(GaussSpec)) + (int64_t(side) / 2 + 1) * int64_t(sizeof(double)); }
    template <class Spec>
    static Spec* at(const void* p) {
        return reinterpret_cast<Spec*>((reinterpret_cast<uintptr_t>(p) + alignment - 1) & -uintptr_t(alignment));
    }

    void init(int maskSide, double sigma) {
        identifier = kIdentifier;
        side = maskSide;
        const int reach = side / 2;
        if (!(sigma > 0)) sigma = 0.3 * ((side - 1) * 0.5 - 1) + 0.8;
        double sum = 1, rest = 1;  // the centre's weight is 1 before the division
        for (int i = 0; i < reach; ++i) {
            const double distance = i - reach;
            sum += 2 * (weights()[i] = std::exp(-distance * distance / (2 * sigma * sigma)));
        }
        for (int i = 0; i < reach; ++i) {
            constexpr double unit = 1.0 / (int64_t(1) << 44);
            weights()[i] = std::floor(weights()[i] / sum / unit + 0.5) * unit;
            rest -= 2 * weights()[i];
        }
        weights()[reach] = rest;
    }
};

// out[x]: the sum of weight[i] * (first(i)[x] + last(i)[x]), i = 0 .. reach - 1, then weight[reach] * centre[x].
template <class First, class Last>
void weightedSum(const double* weight, ptrdiff_t reach, First first, Last last, const double* centre, double* out, ptrdiff_t width) {
    using V = Vec<double>;
    constexpr int vectors = 4, lanes = kVectorBytes / sizeof(double);
    forEachBlock<vectors * lanes>(width, [&](auto block, ptrdiff_t x, ptrdiff_t n) KVRI_INLINE {
        const auto bytes = [&](int j) { return (n - j * lanes) * ptrdiff_t(sizeof(double)); };
        const auto from = [&](const double* row, int j) KVRI_INLINE {
            return (V)block.template load<Bytes<>>(reinterpret_cast<const uint8_t*>(row + x + j * lanes), bytes(j));
        };
        V sum[vectors] = {};
        for (ptrdiff_t i = 0; i < reach; ++i) {
            const V w = splat<V>(weight[i]);
            const double *a = first(i), *b = last(i);
            unroll<vectors>([&](auto j) KVRI_INLINE { sum[j] += w * (from(a, j) + from(b, j)); });
        }
        unroll<vectors>([&](auto j) KVRI_INLINE {
            const V all = sum[j] + splat<V>(weight[reach]) * from(centre, j);
            block.store(reinterpret_cast<uint8_t*>(out + x + j * lanes), (Bytes<>)all, bytes(j));
        });
    });
}

struct WeightedRows {
    const GaussSpec& spec;
    ptrdiff_t width;
    Kvr8u* extended;
    double* wide;

    WeightedRows(const GaussSpec& spec, Scratch& scratch, ptrdiff_t width)
        : spec(spec), width(width), extended(scratch.array<Kvr8u>(width + spec.side - 1)),
          wide(scratch.array<double>(width + spec.side - 1)) {}

    void operator()(const Surroundings& image, ptrdiff_t y, double* out) const {
        image.extend(y, extended);
        std::copy_n(extended, width + spec.side - 1, wide);
        const ptrdiff_t reach = spec.side / 2;
        weightedSum(spec.weights(), reach, [&](ptrdiff_t i) { return wide + i; },
                    [&](ptrdiff_t i) { return wide + spec.side - 1 - i; }, wide + reach, out, width);
    }
};

void gaussRows(const GaussSpec& spec, const Surroundings& image, const Threshold& threshold, const Kvr8u* src, ptrdiff_t srcStep,
               Kvr8u* dst, ptrdiff_t dstStep, KvriSize roi, Scratch scratch) {
    const ptrdiff_t width = roi.width, reach = spec.side / 2;
    double* mean = scratch.array<double>(width);
    const double** row = scratch.array<const double*>(spec.side);
    const WeightedRows rows(spec, scratch, width);
    Ring<double, WeightedRows> ring(image, rows, scratch, width, spec.side);
    for (ptrdiff_t y = 0; y < roi.height; ++y, src += srcStep, dst += dstStep) {
        for (ptrdiff_t i = 0; i < spec.side; ++i) row[i] = ring.get(y - reach + i);
        weightedSum(spec.weights(), reach, [&](ptrdiff_t i) { return row[i]; }, [&](ptrdiff_t i) { return row[spec.side - 1 - i]; },
                    row[reach], mean, width);
        writeRow(dst, width, [&](ptrdiff_t x) { return src[x] > mean[x] - threshold.delta ? threshold.above : threshold.notAbove; });
    }
}

// Bodies

constexpr KvrStatus validMask(KvriSize mask) {
    return mask.width == mask.height && mask.width > 0 && mask.width % 2 == 1 ? kvrStatusOk : kvrStatusBadMaskSize;
}

constexpr KvrStatus validBorder(KvriBorderType border) {
    const int rule = border & 15;
    return rule == kvrBorderConst || rule == kvrBorderRepl || rule == kvrBorderInMem ? kvrStatusOk : kvrStatusBorderNotSupported;
}

constexpr KvrStatus validFormat(KvrDataType dataType, int numChannels) {
    return dataType != kvrDataType8u ? kvrStatusBadDataType : numChannels != 1 ? kvrStatusBadNumChannels : kvrStatusOk;
}

using Wide = __int128;

KvrStatus report(Wide bytes, int* size) {
    if (bytes > INT32_MAX) return kvrStatusSizeOverflow;
    *size = int(bytes);
    return kvrStatusOk;
}

// What needs no neighbours; whether that is all.
bool isPointwise(const Threshold& threshold, const Images& images, int side) {
    if (threshold.delta > 255) fill<1>(&threshold.above, images.dst, images.dstStep, images.roi);
    else if (threshold.delta <= -255) fill<1>(&threshold.notAbove, images.dst, images.dstStep, images.roi);
    else if (side == 1) {
        Kvr8u table[256];
        for (int i = 0; i < 256; ++i) table[i] = i > i - threshold.delta ? threshold.above : threshold.notAbove;
        mapThrough<C1>({ByteTable(table)}, images);
    } else return false;
    return true;
}

KvrStatus boxBufferSize(KvriSize roi, KvriSize mask, KvrDataType dataType, int numChannels, int* pBufferSize) {
    if (KvrStatus e = firstError(nonNull(pBufferSize), hasPixels(roi), validMask(mask), validFormat(dataType, numChannels))) return e;
    const auto aligned = [](Wide x) { return (x + 31) / 32 * 32; };
    const Wide w = roi.width, h = roi.height, m = mask.width, reach = m / 2;
    const Wide rows = aligned(w + m + 30) * m + aligned(4 * w + 31) * (m + 1) + (8 * m + 31) / 32 * 32;
    return report(aligned((std::min(w, h) + 2 * reach) * 3 * reach + 31) + ((reach * w + 31) >> 5) * 64 + ((reach * h + 31) >> 5) * 64 + rows,
                  pBufferSize);
}

KvrStatus box(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roi, KvriSize mask, Kvr32f delta, Kvr8u valGT,
              Kvr8u valLE, KvriBorderType border, Kvr8u borderValue, Kvr8u* pBuffer) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, pBuffer), hasPixels(roi), validMask(mask), validBorder(border))) return e;
    const DefaultFloatControl control;
    const Threshold threshold{delta, valGT, valLE};
    const int side = mask.width;
    if (isPointwise(threshold, {pSrc, srcStep, pDst, dstStep, roi}, side)) return kvrStatusOk;
    const Surroundings image(pSrc, srcStep, roi, side / 2, border, borderValue);
    constexpr int mostOf16Bits = 257, mostOf31Bits = 2901;  // 255 * 257 and 255 * 2901^2 just fit
    const auto run = [&](auto rows) { rows(image, threshold, pSrc, srcStep, pDst, dstStep, roi, side, Scratch(pBuffer)); };
    if (side <= mostOf16Bits) run(boxRows<uint16_t, uint32_t>);
    else if (side <= mostOf31Bits) run(boxRows<uint32_t, uint32_t>);
    else run(boxRows<uint32_t, uint64_t>);
    return kvrStatusOk;
}

KvrStatus boxInPlace(Kvr8u* pSrcDst, int step, KvriSize roi, KvriSize mask, Kvr32f delta, Kvr8u valGT, Kvr8u valLE,
                     KvriBorderType border, Kvr8u borderValue, Kvr8u* pBuffer) {
    return box(pSrcDst, step, pSrcDst, step, roi, mask, delta, valGT, valLE, border, borderValue, pBuffer);
}

// Of the buffer: bytes and double precision numbers of an extended row, the mean, the ring and the addresses of its rows.
KvrStatus gaussBufferSize(KvriSize roi, KvriSize mask, KvrDataType dataType, int numChannels, int* pSpecSize, int* pBufferSize) {
    if (KvrStatus e = firstError(nonNull(pSpecSize, pBufferSize), hasPixels(roi), validMask(mask), validFormat(dataType, numChannels)))
        return e;
    const Wide w = roi.width, m = mask.width, numbers = (w + m) + w + w * (m + 1) + m;
    int specSize, bufferSize;
    if (KvrStatus e = firstError(report(GaussSpec::bytes(mask.width), &specSize),
                                 report(w + m + numbers * Wide(sizeof(double)) + 5 * Scratch::alignment, &bufferSize)))
        return e;
    *pSpecSize = specSize;
    *pBufferSize = bufferSize;
    return kvrStatusOk;
}

KvrStatus gaussInit(KvriSize roi, KvriSize mask, KvrDataType dataType, int numChannels, Kvr32f sigma, KvriThresholdAdaptiveSpec* pSpec) {
    if (KvrStatus e = firstError(nonNull(pSpec), hasPixels(roi), validMask(mask), validFormat(dataType, numChannels))) return e;
    const DefaultFloatControl control;
    GaussSpec::at<GaussSpec>(pSpec)->init(mask.width, sigma);
    return kvrStatusOk;
}

KvrStatus gauss(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roi, KvriSize mask, Kvr32f delta, Kvr8u valGT,
                Kvr8u valLE, KvriBorderType border, Kvr8u borderValue, const KvriThresholdAdaptiveSpec* pSpec, Kvr8u* pBuffer) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, pSpec, pBuffer), hasPixels(roi), validMask(mask), validBorder(border))) return e;
    const auto& spec = *GaussSpec::at<const GaussSpec>(pSpec);
    if (spec.identifier != GaussSpec::kIdentifier || spec.side != mask.width) return kvrStatusBadContext;
    const DefaultFloatControl control;
    const Threshold threshold{delta, valGT, valLE};
    if (isPointwise(threshold, {pSrc, srcStep, pDst, dstStep, roi}, spec.side)) return kvrStatusOk;
    const Surroundings image(pSrc, srcStep, roi, spec.side / 2, border, borderValue);
    gaussRows(spec, image, threshold, pSrc, srcStep, pDst, dstStep, roi, Scratch(pBuffer));
    return kvrStatusOk;
}

KvrStatus gaussInPlace(Kvr8u* pSrcDst, int step, KvriSize roi, KvriSize mask, Kvr32f delta, Kvr8u valGT, Kvr8u valLE,
                       KvriBorderType border, Kvr8u borderValue, const KvriThresholdAdaptiveSpec* pSpec, Kvr8u* pBuffer) {
    return gauss(pSrcDst, step, pSrcDst, step, roi, mask, delta, valGT, valLE, border, borderValue, pSpec, pBuffer);
}

KVRI_EXPORT(kvriThresholdAdaptiveBoxGetBufferSize, boxBufferSize);
KVRI_EXPORT(kvriThresholdAdaptiveBox_8u_C1R, box);
KVRI_EXPORT(kvriThresholdAdaptiveBox_8u_C1IR, boxInPlace);
KVRI_EXPORT(kvriThresholdAdaptiveGaussGetBufferSize, gaussBufferSize);
KVRI_EXPORT(kvriThresholdAdaptiveGaussInit, gaussInit);
KVRI_EXPORT(kvriThresholdAdaptiveGauss_8u_C1R, gauss);
KVRI_EXPORT(kvriThresholdAdaptiveGauss_8u_C1IR, gaussInPlace);

}  // namespace
}  // namespace kvri
