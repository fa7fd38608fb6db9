// geometry/resize_linear8u.cpp: Linear of 8u, exact: the four products of a pixel have 28 fractional bits and are rounded once.
//
// Along a row, a pair of samples times its 14-bit weights is one multiply-add of 16-bit numbers, with a result h of 22 bits.
// For the second one h is split as high * 2^11 + low: with S the weighted sum of two such parts,
//     (high S * 2^11 + low S + 2^27) >> 28 = (high S + ((low S + 2^27) >> 11)) >> 17.
//
// Where all weights are multiples of 1/8, as they are when an image is enlarged 2, 4 or 8 times, both sums fit in 16 bits.
#include <cstring>

#include "core/dispatch.h"
#include "core/lanes.h"
#include "core/layout.h"
#include "geometry/resize_apply.h"
#include "geometry/resize_double.h"
#include "geometry/resize_halve.h"

namespace kvri {
namespace {

using Pairs = Vec<int16_t>;
using Sums = Vec<int32_t>;
using Split = Vec<uint32_t>;  // high part in the upper half, low part in the lower

constexpr int kSums = kVectorBytes / 4;

Split split(Sums h) { return ((Split)h & 2047) | (((Split)h << 5) & 0xFFFF0000u); }

// Column pass: results for weights a, b (as pairs) of the rows' split sums.
struct RowPair {
    Pairs weight;

    explicit RowPair(int w) : weight((Pairs)splat<Split>(uint32_t(w) << 16 | uint32_t(16384 - w))) {}

    Sums operator()(Split upper, Split lower) const {
        const Pairs low = (Pairs)((upper & 0xFFFF) | (lower << 16)), high = (Pairs)((upper >> 16) | (lower & 0xFFFF0000u));
        const Split s = (Split)multiplyPairs(low, weight) + (1 << 27);
        return (Sums)(((Split)multiplyPairs(high, weight) + (s >> 11)) >> 17);
    }
};

// The same for weights of 3 bits, of sums of 11 bits.
struct EighthsPair {
    using Words = Vec<uint16_t>;
    Words upper, lower;

    explicit EighthsPair(int w) : upper(splat<Words>(uint16_t(8 - (w >> 11)))), lower(splat<Words>(uint16_t(w >> 11))) {}

    Pairs operator()(Words a, Words b) const { return (Pairs)((a * upper + b * lower + 32) >> 6); }
};

constexpr int kLanes = kVectorBytes / 16;

void storeBytes(uint8_t* dst, Bytes<> v, int n) {
    if (n >= kVectorBytes) store(dst, v);
    else storePart(dst, v, n);
}

void combineRows(const uint8_t* upper, const uint8_t* lower, int w, int samples, uint8_t* dst) {
    const RowPair combine(w);
    for (int i = 0; i < samples; i += kVectorBytes) {
        Sums v[4];
        const int n = samples - i;
        unroll<4>([&](auto u) KVRI_INLINE {
            const auto at = [&](const uint8_t* row) KVRI_INLINE {
                const uint8_t* p = row + ptrdiff_t(i) * 4 + u * kVectorBytes;
                return n >= kVectorBytes ? load<Split>(p) : (Split)loadPart<Bytes<>>(p, 4 * n - u * kVectorBytes);
            };
            v[u] = combine(at(upper), at(lower));
        });
        const auto bytes = narrow<uint8_t>(narrow<int16_t>(v[0], v[1]), narrow<int16_t>(v[2], v[3]));
        if constexpr (kLanes == 1) storeBytes(dst + i, bytes, n);
        else storeBytes(dst + i, permute4(bytes, [](int k) { return k % kLanes * 4 + k / kLanes; }), n);
    }
}

void combineEighths(const uint8_t* upper, const uint8_t* lower, int w, int samples, uint8_t* dst) {
    using Words = EighthsPair::Words;
    const EighthsPair combine(w);
    for (int i = 0; i < samples; i += kVectorBytes) {
        Pairs v[2];
        const int n = samples - i;
        unroll<2>([&](auto u) KVRI_INLINE {
            const auto at = [&](const uint8_t* row) KVRI_INLINE {
                const uint8_t* p = row + ptrdiff_t(i) * 2 + u * kVectorBytes;
                return n >= kVectorBytes ? load<Words>(p) : (Words)loadPart<Bytes<>>(p, 2 * n - u * kVectorBytes);
            };
            v[u] = combine(at(upper), at(lower));
        });
        const auto bytes = narrow<uint8_t>(v[0], v[1]);
        if constexpr (kLanes == 1) storeBytes(dst + i, bytes, n);
        else storeBytes(dst + i, permute4(bytes, [](int k) { return (k / 2 % kLanes * 2 + k / 2 / kLanes) * 2 + k % 2; }), n);
    }
}

constexpr int kStripSamples = 512, kRowBytes = 4096, kRowSlack = 16;
constexpr int kDenseRatio = 7;  // from here on only the taps are copied

// A strip of destination columns. A lane of samples has its taps within 16 bytes of a row of source columns: four samples
// with 14-bit weights, or eight with eighths.
template <int C, bool Eighths>
class LinearStrip {
    static constexpr int perLane = Eighths ? 8 : 4;

    alignas(64) uint8_t control_[16 / perLane * kStripSamples + 64];  // per sample: left and right, as 8- or 16-bit numbers
    alignas(64) uint8_t weight_[16 / perLane * kStripSamples + 64];   // the same
    int32_t base_[kStripSamples / perLane + 4];

public:
    static constexpr int sumBytes = 16 / perLane;
    static constexpr int most = kStripSamples / C / 16 * 16;
    int first, last, pixels;  // source columns, destination pixels
    bool sparse;              // the row holds pairs of taps

    int samples() const { return pixels * C; }

    // False where a lane's taps lie too far apart; pairs of 14-bit weights can always be held.
    bool prepare(const ResizeSpec& spec, int position, int count) {
        const int32_t* index = spec.table<int32_t>(spec.x.index) + position;
        const int32_t* weight = spec.table<int32_t>(spec.x.weights) + position;
        pixels = count;
        first = index[0];
        last = index[count - 1] + (weight[count - 1] >> 16 != 0);
        std::memset(weight_ + samples() * sumBytes, 0, kVectorBytes);
        for (int i = 0; i < count; ++i) setWeight(i, weight[i]);
        sparse = false;
        if (spec.x.ratio() <= kDenseRatio && place(index)) return true;
        sparse = true;
        return !Eighths && place(nullptr);
    }

    // Sums of every sample: split ones, or 16-bit ones.
    void apply(const uint8_t* row, uint8_t* out) const {
        constexpr int lanes = kVectorBytes / 16, perVector = lanes * perLane;
        const auto sums = [&](int i) KVRI_INLINE {
            const int32_t* base = base_ + i / perLane;
            const auto v = fromLanes<kVectorBytes>([&](int l) KVRI_INLINE { return load<Bytes<16>>(row + base[l]); });
            const auto taps = shuffle(v, load<Bytes<>>(control_ + sumBytes * i));
            const auto weights = load<Bytes<>>(weight_ + sumBytes * i);
            if constexpr (Eighths) return (Bytes<>)multiplyPairsOfBytes(taps, weights);
            else return (Bytes<>)split(multiplyPairs((Pairs)taps, (Pairs)weights));
        };
        int i = 0;
        for (; samples() - i >= perVector; i += perVector) store(out + sumBytes * i, sums(i));
        if (i < samples()) storePart(out + sumBytes * i, sums(i), sumBytes * (samples() - i));
    }

private:
    void setWeight(int pixel, int32_t pair) {
        const int w = pair >> 16;
        if constexpr (Eighths) pair = (w >> 11) << 8 | (8 - (w >> 11));
        for (int c = 0; c < C; ++c) std::memcpy(weight_ + (pixel * C + c) * sumBytes, &pair, sumBytes);
    }

    // Places in a row of all columns from the first on, or of pairs; false where a lane's taps lie too far apart.
    bool place(const int32_t* index) {
        int reach = 0;
        const int lanes = (samples() + perLane - 1) / perLane;
        const auto at = [&](int sample) { return (index ? index[sample / C] - first : sample / C * 2) * C + sample % C; };
        for (int lane = 0; lane < lanes; ++lane) {
            const int begin = lane * perLane, n = std::min(samples() - begin, perLane);
            int places[perLane], low = INT_MAX;
            for (int k = 0, pixel = begin / C, c = begin % C; k < perLane; ++k) {
                places[k] = k < n ? at(pixel * C + c) : places[0];
                low = std::min(low, places[k]);
                if (++c == C) c = 0, ++pixel;
            }
            base_[lane] = low;
            for (int k = 0; k < perLane; ++k) {
                const int left = places[k] - low, right = left + C;
                reach = std::max(reach, right);
                const uint32_t control = Eighths ? uint32_t(left | right << 8) : 0x80008000u | uint32_t(left) | uint32_t(right) << 16;
                std::memcpy(control_ + (begin + k) * sumBytes, &control, sumBytes);
            }
        }
        for (int lane = lanes; lane < lanes + 4; ++lane) base_[lane] = 0;
        return reach < 16;
    }
};

template <int C, bool Eighths>
class LinearResizer {
    const ResizeTile& tile_;
    const ResizeSpec& spec_ = tile_.spec;
    LinearStrip<C, Eighths> strip_;
    alignas(64) uint8_t row_[kRowBytes + kRowSlack];

public:
    explicit LinearResizer(const ResizeTile& tile) : tile_(tile) {}

    // False, with nothing done, where the weights or the taps' places are none of eighths.
    bool run() {
        if (Eighths && !hasEighths()) return false;
        for (int x = 0; x < tile_.size.width; x += strip_.most) {
            if (!strip_.prepare(spec_, tile_.offset.x + x, std::min(strip_.most, tile_.size.width - x))) return false;
            runStrip(x);
        }
        return true;
    }

private:
    bool hasEighths() const {
        int32_t bits = 0;
        const int32_t* columns = spec_.table<int32_t>(spec_.x.weights) + tile_.offset.x;
        for (int i = 0; i < tile_.size.width; ++i) bits |= columns[i];
        const int32_t* rows = spec_.table<int32_t>(spec_.y.weights) + tile_.offset.y;
        for (int i = 0; i < tile_.size.height; ++i) bits |= rows[i];
        return bits % 2048 == 0 && spec_.x.ratio() <= 1;
    }

    void runStrip(int x) {
        const ptrdiff_t step = upTo32(strip_.sumBytes * ptrdiff_t(strip_.samples()));
        uint8_t* ring = tile_.buffer + (-reinterpret_cast<uintptr_t>(tile_.buffer) & 63);
        int held[2] = {INT_MIN, INT_MIN};
        const auto sums = [&](int row) {
            row = tile_.rows(row);
            const int slot = (row - tile_.rows.low) & 1;
            uint8_t* place = ring + slot * step;
            if (held[slot] != row) {
                resizeSourceRow(row, x, place);
                held[slot] = row;
            }
            return place;
        };
        const int32_t* index = spec_.table<int32_t>(spec_.y.index) + tile_.offset.y;
        const int32_t* weight = spec_.table<int32_t>(spec_.y.weights) + tile_.offset.y;
        for (int y = 0; y < tile_.size.height; ++y) {
            tile_.prefetchDestination(y + 2, x, strip_.pixels, C);
            const uint8_t* upper = sums(index[y]);
            const uint8_t* lower = weight[y] == 0 ? upper : sums(index[y] + 1);
            uint8_t* dst = tile_.destination(y, x, C);
            if constexpr (Eighths) combineEighths(upper, lower, weight[y], strip_.samples(), dst);
            else combineRows(upper, lower, weight[y], strip_.samples(), dst);
        }
    }

    void resizeSourceRow(int row, int x, uint8_t* out) {
        if (strip_.sparse) {
            copyTaps(row, x);
        } else {
            const int low = tile_.columns(strip_.first), high = tile_.columns(strip_.last);
            copyColumns(tile_.source(row, low, C), low - strip_.first, high - low + 1, strip_.last - high);
        }
        strip_.apply(row_, out);
    }

    // Columns of the source, their first repeated before them and their last behind.
    void copyColumns(const uint8_t* from, int before, int columns, int behind) {
        uint8_t* to = row_;
        for (int i = 0; i < before; ++i, to += C) std::memcpy(to, from, C);
        std::memcpy(to, from, size_t(columns) * C);
        to += columns * C;
        for (int i = 0; i <= behind; ++i, to += C) std::memcpy(to, from + (columns - 1) * C, C);
    }

    void copyTaps(int row, int x) {
        const int32_t* index = spec_.table<int32_t>(spec_.x.index) + tile_.offset.x + x;
        uint8_t* to = row_;
        for (int i = 0; i < strip_.pixels; ++i)
            for (int t = 0; t < 2; ++t, to += C)
                std::memcpy(to, tile_.source(row, std::min(tile_.columns(index[i] + t), strip_.last), C), C);
    }
};

template <class L>
KvrStatus linear(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border,
                 const Kvr8u*, const KvriResizeSpec* pSpec, Kvr8u* pBuffer) {
    constexpr Accepts accepts{kResizeSpecId, kvrInterpLinear, false, ResizeWeights::Fixed14};
    const auto run = [](const ResizeTile& tile) {
        if (halves(tile.spec)) Halver<Kvr8u, L::channels, Ties::Up>::run(tile);
        else if (doubles(tile.spec)) LinearDoubler<L::channels>(tile).run();
        else if (!LinearResizer<L::channels, true>(tile).run()) LinearResizer<L::channels, false>(tile).run();
    };
    return applyResize<L::channels>(accepts, run, pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border, pSpec, pBuffer);
}

KVRI_EXPORT(kvriResizeLinear_8u_C1R, linear<C1>);
KVRI_EXPORT(kvriResizeLinear_8u_C3R, linear<C3>);
KVRI_EXPORT(kvriResizeLinear_8u_C4R, linear<C4>);

}  // namespace
}  // namespace kvri
