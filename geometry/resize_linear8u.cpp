// geometry/resize_linear8u.cpp: Linear of 8u, exact: the four products of a pixel have 28 fractional bits and are rounded once.
//
// Along a row, a pair of samples times its 14-bit weights is one multiply-add of 16-bit numbers, with a result h of 22 bits.
// For the second one h is split as high * 2^11 + low: with S the weighted sum of two such parts,
//     (high S * 2^11 + low S + 2^27) >> 28 = (high S + ((low S + 2^27) >> 11)) >> 17.
#include <cstring>

#include "core/dispatch.h"
#include "core/lanes.h"
#include "core/layout.h"
#include "geometry/resize_apply.h"

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

void combineRows(const uint8_t* upper, const uint8_t* lower, int w, int samples, uint8_t* dst) {
    constexpr int lanes = kVectorBytes / 16;
    const RowPair combine(w);
    const auto at = [](const uint8_t* row, int i) KVRI_INLINE { return load<Split>(row + ptrdiff_t(i) * 4); };
    int i = 0;
    for (; samples - i >= 4 * kSums; i += 4 * kSums) {
        Sums v[4];
        unroll<4>([&](auto u) KVRI_INLINE { v[u] = combine(at(upper, i + u * kSums), at(lower, i + u * kSums)); });
        const auto bytes = narrow<uint8_t>(narrow<int16_t>(v[0], v[1]), narrow<int16_t>(v[2], v[3]));
        if constexpr (lanes == 1) store(dst + i, bytes);
        else store(dst + i, permute4(bytes, [](int k) { return k % lanes * 4 + k / lanes; }));
    }
    for (; i < samples; i += kSums) {
        const int n = std::min(samples - i, kSums);
        const auto part = [&](const uint8_t* row) KVRI_INLINE { return (Split)loadPart<Bytes<>>(row + ptrdiff_t(i) * 4, n * 4); };
        const Sums v = combine(part(upper), part(lower));
        const auto words = narrow<int16_t>(v, v);
        const auto bytes = narrow<uint8_t>(words, words);
        if constexpr (lanes == 1) storePart(dst + i, bytes, n);
        else storePart(dst + i, permute4(bytes, [](int k) { return k % lanes * 4; }), n);
    }
}

constexpr int kStripSamples = 512, kRowBytes = 4096, kRowSlack = 16;
constexpr int kDenseRatio = 7;  // from here on only the taps are copied

// A strip of destination columns. A lane of four samples has its taps within 16 bytes of a row of source columns.
template <int C>
class LinearStrip {
    alignas(64) uint8_t control_[4 * kStripSamples + 64];  // per sample: left, 0, right, 0
    alignas(64) int32_t weight_[kStripSamples + 16];
    int32_t base_[kStripSamples / 4 + 4];

public:
    static constexpr int most = kStripSamples / C / 16 * 16;
    int first, last, pixels;  // source columns, destination pixels
    bool sparse;              // the row holds pairs of taps

    int samples() const { return pixels * C; }

    void prepare(const ResizeSpec& spec, int position, int count) {
        const int32_t* index = spec.table<int32_t>(spec.x.index) + position;
        const int32_t* weight = spec.table<int32_t>(spec.x.weights) + position;
        pixels = count;
        first = index[0];
        last = index[count - 1] + (weight[count - 1] >> 16 != 0);
        for (int i = 0; i < count; ++i)
            for (int c = 0; c < C; ++c) weight_[i * C + c] = weight[i];
        std::fill(weight_ + samples(), weight_ + (samples() + 15) / 16 * 16, 0);
        sparse = spec.x.ratio() > kDenseRatio || !place(index);
        if (sparse) place(nullptr);
    }

    // Split sums of every sample.
    void apply(const uint8_t* row, uint8_t* out) const {
        constexpr int lanes = kVectorBytes / 16;
        const auto sums = [&](int i) KVRI_INLINE {
            const int32_t* base = base_ + i / 4;
            Bytes<> v;
            if constexpr (lanes == 1) v = load<Bytes<>>(row + base[0]);
            else if constexpr (lanes == 2) v = joinHalves(load<Bytes<16>>(row + base[0]), load<Bytes<16>>(row + base[1]));
            else
                v = joinHalves(joinHalves(load<Bytes<16>>(row + base[0]), load<Bytes<16>>(row + base[1])),
                               joinHalves(load<Bytes<16>>(row + base[2]), load<Bytes<16>>(row + base[3])));
            return split(multiplyPairs((Pairs)shuffle(v, load<Bytes<>>(control_ + 4 * i)), load<Pairs>(weight_ + i)));
        };
        int i = 0;
        for (; samples() - i >= kSums; i += kSums) store(out + 4 * i, sums(i));
        if (i < samples()) storePart(out + 4 * i, (Bytes<>)sums(i), 4 * (samples() - i));
    }

private:
    // Places in a row of all columns from the first on, or of pairs; false where a lane's taps lie too far apart.
    bool place(const int32_t* index) {
        const auto at = [&](int sample) { return (index ? index[sample / C] - first : sample / C * 2) * C + sample % C; };
        int reach = 0;
        for (int i = 0; i < (samples() + 15) / 16 * 16; i += 4) {
            const int n = std::clamp(samples() - i, 0, 4);
            int low = n > 0 ? at(i) : 0;
            for (int k = 1; k < n; ++k) low = std::min(low, at(i + k));
            base_[i / 4] = low;
            for (int k = 0; k < 4; ++k) {
                const int left = k < n ? at(i + k) - low : 0;
                reach = std::max(reach, left + C);
                const uint32_t control = 0x80008000u | uint32_t(left & 127) | uint32_t((left + C) & 127) << 16;
                std::memcpy(control_ + 4 * (i + k), &control, 4);
            }
        }
        return reach < 16;
    }
};

template <int C>
class LinearResizer {
    const ResizeTile& tile_;
    const ResizeSpec& spec_ = tile_.spec;
    LinearStrip<C> strip_;
    alignas(64) uint8_t row_[kRowBytes + kRowSlack];

public:
    explicit LinearResizer(const ResizeTile& tile) : tile_(tile) {}

    void run() {
        for (int x = 0; x < tile_.size.width; x += strip_.most) {
            strip_.prepare(spec_, tile_.offset.x + x, std::min(strip_.most, tile_.size.width - x));
            runStrip(x);
        }
    }

private:
    void runStrip(int x) {
        const ptrdiff_t step = upTo32(4 * ptrdiff_t(strip_.samples()));
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
            const uint8_t* upper = sums(index[y]);
            const uint8_t* lower = weight[y] == 0 ? upper : sums(index[y] + 1);
            combineRows(upper, lower, weight[y], strip_.samples(), tile_.destination(y, x, C));
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
    const auto run = [](const ResizeTile& tile) { LinearResizer<L::channels>(tile).run(); };
    return applyResize(accepts, run, pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border, pSpec, pBuffer);
}

KVRI_EXPORT(kvriResizeLinear_8u_C1R, linear<C1>);
KVRI_EXPORT(kvriResizeLinear_8u_C3R, linear<C3>);
KVRI_EXPORT(kvriResizeLinear_8u_C4R, linear<C4>);

}  // namespace
}  // namespace kvri
