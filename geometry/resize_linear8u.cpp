// geometry/resize_linear8u.cpp: Linear of 8u, exact: the four products of a pixel have 28 fractional bits and are rounded once.
//
// Along a row, a pair of samples times its 14-bit weights is one multiply-add of 16-bit numbers, with a result h of 22 bits.
// For the second one h + 2^13 is split as high * 2^16 + low, low a signed number: as the weights' sum is 2^14, what was added
// rounds the result. With S the weighted sum of two such parts,
//     (high S * 2^16 + low S) >> 28 = (high S + (low S >> 16)) >> 12.
//
// Where all weights are multiples of 1/8, as they are when an image is enlarged 2, 4 or 8 times, both sums fit in 16 bits.
#include <cstring>

#include "core/dispatch.h"
#include "core/lanes.h"
#include "core/layout.h"
#include "geometry/resize_apply.h"
#include "geometry/resize_double8u.h"
#include "geometry/resize_halve.h"

namespace kvri {
namespace {

using Pairs = Vec<int16_t>;
using Sums = Vec<int32_t>;
using Split = Vec<uint32_t>;  // high part in the upper half, low part in the lower

Split split(Sums h) { return ((Split)h + (0x2000 + 0x8000)) ^ 0x8000; }

// Column pass: results for weights a, b (as pairs) of the rows' split sums.
struct RowPair {
    Pairs weight;

    explicit RowPair(int w) : weight((Pairs)splat<Split>(uint32_t(w) << 16 | uint32_t(16384 - w))) {}

    Sums operator()(Split upper, Split lower) const {
        const Pairs low = (Pairs)((upper & 0xFFFF) | (lower << 16)), high = (Pairs)((upper >> 16) | (lower & 0xFFFF0000u));
        return (multiplyPairs(high, weight) + (multiplyPairs(low, weight) >> 16)) >> 12;
    }
};

// The same for weights of 3 bits, of sums of 11 bits.
struct EighthsPair {
    using Words = Vec<uint16_t>;
    Words upper, lower;

    explicit EighthsPair(int w) : upper(splat<Words>(uint16_t(8 - (w >> 11)))), lower(splat<Words>(uint16_t(w >> 11))) {}

    Pairs operator()(Words a, Words b) const { return (Pairs)((a * upper + b * lower + 32) >> 6); }
};

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
            const ptrdiff_t at = ptrdiff_t(i) * 4 + u * kVectorBytes;
            v[u] = combine(load<Split>(upper + at), load<Split>(lower + at));
        });
        storeBytes(dst + i, unpackedOrder<4>(narrow<uint8_t>(narrow<int16_t>(v[0], v[1]), narrow<int16_t>(v[2], v[3]))), n);
    }
}

void combineEighths(const uint8_t* upper, const uint8_t* lower, int w, int samples, uint8_t* dst) {
    using Words = EighthsPair::Words;
    const EighthsPair combine(w);
    for (int i = 0; i < samples; i += kVectorBytes) {
        Pairs v[2];
        const int n = samples - i;
        unroll<2>([&](auto u) KVRI_INLINE {
            const ptrdiff_t at = ptrdiff_t(i) * 2 + u * kVectorBytes;
            v[u] = combine(load<Words>(upper + at), load<Words>(lower + at));
        });
        storeBytes(dst + i, unpackedOrder<2>(narrow<uint8_t>(v[0], v[1])), n);
    }
}

constexpr int kStripSamples = 1024, kBandRows = 64;

// A strip of destination columns. A lane of samples has its taps within 16 bytes of a row of source columns: four samples
// with 14-bit weights, or eight with eighths. No lane reaches beyond the last column that has weight.
template <int C, bool Eighths>
class LinearStrip {
    using Quad = Vec<uint32_t, 16>;
    using Lane = Bytes<16>;
    static constexpr int perLane = Eighths ? 8 : 4, maxLanes = kStripSamples / perLane + kLanes;

    alignas(64) Lane control_[maxLanes];  // per sample: left and right, as 8- or 16-bit numbers
    alignas(64) Lane weight_[maxLanes];   // the same
    int32_t base_[maxLanes];
    int32_t left_[kStripSamples + 8], right_[kStripSamples + 8];  // taps of every pixel, in columns

public:
    static constexpr int sumBytes = 16 / perLane;
    static constexpr int most = kStripSamples / C / 16 * 16;
    int first, columns, pixels;  // source columns, destination pixels
    enum Source { InPlace, Copied, TapByTap } source;

    int samples() const { return pixels * C; }

    // False where a lane's taps lie too far apart; pairs of 14-bit weights can always be held.
    bool prepare(const ResizeTile& tile, int x, int count) {
        const ResizeSpec& spec = tile.spec;
        const int position = tile.offset.x + x;
        const int32_t* index = spec.table<int32_t>(spec.x.index) + position;
        const int32_t* weight = spec.table<int32_t>(spec.x.weights) + position;
        pixels = count;
        first = tile.columns(index[0]);
        columns = tile.columns(index[count - 1] + (weight[count - 1] >> 16 != 0)) - first + 1;
        for (int i = 0; i < count; ++i) {
            left_[i] = smallest(tile.columns(index[i]) - first, columns - 1);
            right_[i] = smallest(tile.columns(index[i] + 1) - first, columns - 1);
        }
        if (place(weight)) {
            source = columns * C < 16 ? Copied : InPlace;
            if (source == InPlace) stayWithin(columns * C - 16);
            return true;
        }
        if (Eighths) return false;
        source = TapByTap;
        for (int i = 0; i < count; ++i) left_[i] = 2 * i, right_[i] = 2 * i + 1;
        return place(weight);
    }

    // Sums of every sample: split ones, or 16-bit ones.
    void apply(const uint8_t* row, uint8_t* out) const {
        for (int lane = 0; lane * perLane < samples(); lane += kLanes) {
            const auto v = fromLanes<kVectorBytes>([&](int l) KVRI_INLINE { return load<Lane>(row + base_[lane + l]); });
            const auto taps = shuffle(v, load<Bytes<>>(control_ + lane)), weights = load<Bytes<>>(weight_ + lane);
            if constexpr (Eighths) store(out + 16 * lane, multiplyPairsOfBytes(taps, weights));
            else store(out + 16 * lane, split(multiplyPairs((Pairs)taps, (Pairs)weights)));
        }
    }

    void copyTaps(const uint8_t* row, uint8_t* to, const ResizeTile& tile, int x) const {
        const int32_t* index = tile.spec.table<int32_t>(tile.spec.x.index) + tile.offset.x + x;
        for (int i = 0; i < pixels; ++i)
            for (int t = 0; t < 2; ++t, to += C)
                std::memcpy(to, row + ptrdiff_t(smallest(tile.columns(index[i] + t) - first, columns - 1)) * C, C);
    }

private:
    static int smallest(int a, int b) { return a < b ? a : b; }

    // Samples of a quad that begins at channel `phase` of a pixel: which pixel's they are, as bytes to shuffle by, and which
    // channel's.
    struct Phase {
        alignas(16) uint8_t pixel[16];
        alignas(16) uint32_t channel[4];
    };
    static constexpr auto kPhases = [] {
        std::array<Phase, C> phases{};
        for (int p = 0; p < C; ++p)
            for (int k = 0; k < 16; ++k) {
                phases[p].pixel[k] = uint8_t((p + k / 4) / C * 4 + k % 4);
                phases[p].channel[k / 4] = uint32_t(p + k / 4) % C;
            }
        return phases;
    }();

    // Of the pixels of four samples from `sample` on; what it reads behind the strip's pixels is not used.
    static Quad ofSamples(const int32_t* ofPixels, int sample) {
        const Quad v = load<Quad>(ofPixels + sample / C);
        if constexpr (C == 1) return v;
        else return (Quad)shuffle((Lane)v, load<Lane>(kPhases[sample % C].pixel));
    }

    bool place(const int32_t* weight) {
        std::fill_n(left_ + pixels, 8, left_[pixels - 1]);
        std::fill_n(right_ + pixels, 8, right_[pixels - 1]);
        Quad reach{};
        const int lanes = (samples() + perLane - 1) / perLane;
        for (int lane = 0; lane < lanes; ++lane) {
            const int begin = lane * perLane, pixel = begin / C, phase = begin % C;
            int low = left_[pixel] * C + phase;
            if (phase > 0) low = smallest(low, left_[pixel + 1] * C);
            Quad controls[2], weights[2];
            for (int q = 0; q < perLane / 4; ++q) {
                const int sample = begin + 4 * q;
                const Quad channel = load<Quad>(kPhases[sample % C].channel) - uint32_t(low);
                const Quad left = ofSamples(left_, sample) * uint32_t(C) + channel, right = ofSamples(right_, sample) * uint32_t(C) + channel;
                const Quad pair = ofSamples(weight, sample);
                reach = larger(reach, right);
                controls[q] = Eighths ? left | right << 8 : left | right << 16 | 0x80008000u;
                weights[q] = Eighths ? (pair >> 27) * 255 + 8 : pair;
            }
            base_[lane] = low;
            if constexpr (Eighths) {
                control_[lane] = (Lane)narrow<int16_t>((Vec<int32_t, 16>)controls[0], (Vec<int32_t, 16>)controls[1]);
                weight_[lane] = (Lane)narrow<int16_t>((Vec<int32_t, 16>)weights[0], (Vec<int32_t, 16>)weights[1]);
            } else {
                control_[lane] = (Lane)controls[0];
                weight_[lane] = (Lane)weights[0];
            }
        }
        for (int lane = lanes; lane < lanes + kLanes; ++lane) base_[lane] = base_[lanes - 1];
        return !anyAbove15(reach);
    }

    static bool anyAbove15(Quad v) { return !allZero((Lane)(v & ~15u)); }

    void stayWithin(int behind) {
        for (int lane = (samples() + perLane - 1) / perLane + kLanes - 1; lane >= 0 && base_[lane] > behind; --lane) {
            control_[lane] += uint8_t(base_[lane] - behind);
            base_[lane] = behind;
        }
    }
};

template <int C, bool Eighths>
class LinearResizer {
    const ResizeTile& tile_;
    const ResizeSpec& spec_ = tile_.spec;
    LinearStrip<C, Eighths> strip_;
    alignas(64) uint8_t sums_[2][LinearStrip<C, Eighths>::sumBytes * kStripSamples + 3 * kVectorBytes];
    uint8_t row_[2 * kStripSamples + 16];

public:
    explicit LinearResizer(const ResizeTile& tile) : tile_(tile) {}

    // False, with nothing done, where the weights or the taps' places are none of eighths.
    bool run() {
        if (Eighths && !hasEighths()) return false;
        const int width = tile_.size.width, height = tile_.size.height;
        const int bandRows = width > strip_.most ? kBandRows : height;  // pages of few rows at a time
        for (int y = 0; y < height; y += bandRows)
            for (int x = 0; x < width; x += strip_.most) {
                if (!strip_.prepare(tile_, x, std::min(strip_.most, width - x))) return false;
                runStrip(x, y, std::min(height, y + bandRows));
            }
        return true;
    }

private:
    bool hasEighths() const {
        if (spec_.x.ratio() > 1) return false;
        int32_t bits = 0;
        const int32_t* columns = spec_.table<int32_t>(spec_.x.weights) + tile_.offset.x;
        for (int i = 0; i < tile_.size.width; ++i) bits |= columns[i];
        const int32_t* rows = spec_.table<int32_t>(spec_.y.weights) + tile_.offset.y;
        for (int i = 0; i < tile_.size.height; ++i) bits |= rows[i];
        return bits % 2048 == 0;
    }

    void runStrip(int x, int y, int end) {
        int held[2] = {INT_MIN, INT_MIN};
        const auto sums = [&](int row) {
            row = tile_.rows(row);
            const int slot = row & 1;
            if (held[slot] != row) {
                resizeSourceRow(row, x, sums_[slot]);
                held[slot] = row;
            }
            return sums_[slot];
        };
        const int32_t* index = spec_.table<int32_t>(spec_.y.index) + tile_.offset.y;
        const int32_t* weight = spec_.table<int32_t>(spec_.y.weights) + tile_.offset.y;
        for (; y < end; ++y) {
            constexpr int ahead = 6;
            if (y + ahead < end) {
                tile_.prefetchDestination(y + ahead, x, strip_.pixels, C);
                prefetch(tile_.source(index[y + ahead], strip_.first, C), strip_.columns * C);
            }
            const uint8_t* upper = sums(index[y]);
            const uint8_t* lower = weight[y] == 0 ? upper : sums(index[y] + 1);
            uint8_t* dst = tile_.destination(y, x, C);
            if constexpr (Eighths) combineEighths(upper, lower, weight[y], strip_.samples(), dst);
            else combineRows(upper, lower, weight[y], strip_.samples(), dst);
        }
    }

    void resizeSourceRow(int row, int x, uint8_t* out) {
        const uint8_t* from = tile_.source(row, strip_.first, C);
        if (strip_.source == strip_.InPlace) return strip_.apply(from, out);
        if (strip_.source == strip_.Copied) std::memcpy(row_, from, size_t(strip_.columns) * C);
        else strip_.copyTaps(from, row_, tile_, x);
        strip_.apply(row_, out);
    }
};

// Functions of their own, so that halving needs no large frame.
template <int C>
[[gnu::noinline]] void doubleSize(const ResizeTile& tile) {
    LinearDoubler<C>(tile).run();
}

template <int C, bool Eighths>
[[gnu::noinline]] bool resizeStrips(const ResizeTile& tile) {
    return LinearResizer<C, Eighths>(tile).run();
}

template <int C>
[[gnu::noinline]] void resizeOther(const ResizeTile& tile) {
    if (tile.spec.doubles()) doubleSize<C>(tile);
    else if (!resizeStrips<C, true>(tile)) resizeStrips<C, false>(tile);
}

template <class L>
KvrStatus linear(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border,
                 const Kvr8u*, const KvriResizeSpec* pSpec, Kvr8u* pBuffer) {
    constexpr Accepts accepts{kResizeSpecId, kvrInterpLinear, false, ResizeWeights::Fixed14};
    const auto run = [](const ResizeCall& call) KVRI_INLINE {
        if (call.spec.halves()) Halver<Kvr8u, L::channels, Ties::Up>::run(call);
        else resizeOther<L::channels>(call);
    };
    return applyResize<L::channels>(accepts, run, pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border, pSpec, pBuffer);
}

KVRI_EXPORT(kvriResizeLinear_8u_C1R, linear<C1>);
KVRI_EXPORT(kvriResizeLinear_8u_C3R, linear<C3>);
KVRI_EXPORT(kvriResizeLinear_8u_C4R, linear<C4>);

}  // namespace
}  // namespace kvri
