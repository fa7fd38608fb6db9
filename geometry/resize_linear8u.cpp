// geometry/resize_linear8u.cpp: Linear of 8u, exact: the four products of a pixel have 28 fractional bits and are rounded once.
//
// With weights of a row split in high and low parts, its sums are 128 * H + L of 16-bit numbers. Sums of two rows' H and of their
// L by the rows' weights, 14 bits again, have 32; the result is (sum of H + (sum of L >> 7) + 2^20) >> 21.
#include <cstring>

#include "core/dispatch.h"
#include "core/lanes.h"
#include "core/layout.h"
#include "geometry/resize_apply.h"
#include "geometry/resize_double8u.h"
#include "geometry/resize_halve.h"
#include "geometry/resize_taps8u.h"

namespace kvri {
namespace {

// What a destination row is made of.
struct RowPair {
    const uint8_t *upper, *lower;  // source rows
    uint32_t weights;              // as 16-bit numbers
    bool isNew;                    // not the source rows of the row before
};

// Sums along both rows of a vector's samples.
template <bool Rough>
struct PairSums {
    Vec<int16_t> high, low;

    KVRI_INLINE void set(Bytes<> taps, Bytes<> highWeights, Bytes<> lowWeights) {
        high = multiplyPairsOfBytes(taps, highWeights);
        if constexpr (!Rough) low = multiplyPairsOfBytes(taps, lowWeights);
    }
    KVRI_INLINE Vec<int32_t> weighted(Vec<int16_t> rows) const {
        if constexpr (Rough) return multiplyPairs(high, rows);
        else return multiplyPairs(high, rows) + (multiplyPairs(low, rows) >> 7);
    }
};

// Numbers (n + 2^20) >> 21 as bytes.
KVRI_INLINE inline auto roundedBytes(const Vec<int32_t> (&v)[kTapVectors]) {
    using Words = Vec<int16_t>;
    const auto rounded = [](Words upper) KVRI_INLINE { return multiplyHighRounded(upper, splat<Words>(1 << 10)); };
#if defined(__AVX512BW__)
    const auto upper = permuteBoth<2>((Bytes<>)v[0], (Bytes<>)v[1], [](int i) { return 2 * i + 1; });
    return __builtin_convertvector(rounded((Words)upper), Bytes<32>);
#else
    const auto pack = [&](int i) KVRI_INLINE { return rounded(narrow<int16_t>(v[i] >> 16, v[i + 1] >> 16)); };
    return unpackedOrder<4>(narrow<uint8_t>(pack(0), pack(2)));
#endif
}

template <class Gather, bool Rough>
void sumRows(const TapTables& taps, const RowPair* rows, int n, uint8_t* dst, ptrdiff_t step) {
    for (int group = 0; group < taps.groups(); ++group) {
        const auto constants = [&](auto f) KVRI_INLINE {
            return [&]<int... i>(std::integer_sequence<int, i...>) KVRI_INLINE {
                return std::array{f(group * kTapVectors + i)...};
            }(std::make_integer_sequence<int, kTapVectors>{});
        };
        const auto gather = constants([&](int at) KVRI_INLINE { return Gather(taps, at); });
        const auto high = constants([&](int at) KVRI_INLINE { return taps.high[at]; }), low = constants([&](int at) KVRI_INLINE { return taps.low[at]; });
        PairSums<Rough> sums[kTapVectors];
        uint8_t* to = dst + taps.start(group);
        for (int y = 0; y < n; ++y, to += step) {
            const RowPair& row = rows[y];
            if (row.isNew) unroll<kTapVectors>([&](auto i) KVRI_INLINE { sums[i].set(gather[i](row.upper, row.lower), high[i], low[i]); });
            Vec<int32_t> v[kTapVectors];
            const auto weights = (Vec<int16_t>)splat<Vec<uint32_t>>(row.weights);
            unroll<kTapVectors>([&](auto i) KVRI_INLINE { v[i] = sums[i].weighted(weights); });
            const auto bytes = roundedBytes(v);
            if (taps.samples >= kTapSamples) store(to, bytes);
            else storePart(to, bytes, taps.samples);
        }
    }
}

constexpr int kBandRows = 8, kTurnRows = 256;

template <int C>
class LinearResizer {
    static constexpr int most = TapTables::mostGroups * kTapSamples / C;  // pixels of a strip

    const ResizeTile& tile_;
    const ResizeSpec& spec_ = tile_.spec;
    TapTables taps_;
    int first_;     // the strip's first source column
    bool tapByTap_;  // pixels are copied in pairs, and these are the source columns
    int32_t index_[most + kTapSamples + 4], weight_[kTapSamples + 4];
    int32_t left_[most], right_[most];
    uint8_t pixels_[2][2 * C * most + 64];

public:
    explicit LinearResizer(const ResizeTile& tile) : tile_(tile) {}

    void run() {
        const int width = tile_.size.width, height = tile_.size.height, strips = (width + most - 1) / most;
        for (int y = 0; y < height; y += kTurnRows)
            for (int i = 0; i < strips; ++i) {
                const int x = int(int64_t(width) * i / strips), end = int(int64_t(width) * (i + 1) / strips);
                prepare(x, end - x);
                runStrip(x, y, std::min(height, y + kTurnRows));
            }
    }

private:
    void prepare(int x, int count) {
        const int32_t* index = spec_.table<int32_t>(spec_.x.index) + tile_.offset.x + x;
        const int32_t* weight = spec_.table<int32_t>(spec_.x.weights) + tile_.offset.x + x;
        taps_.samples = count * C;
        if (taps_.samples < kTapSamples) {
            index = repeatLast(index, count, index_);
            weight = repeatLast(weight, count, weight_);
        }
        first_ = tile_.columns(index[0]);
        const int last = tile_.columns(index[count - 1] + (weight[count - 1] >> 16 != 0)) - first_;
        TapPlacer<C> placer(taps_, index, weight, first_, last);
        const double ratio = spec_.x.ratio(), mostTogether = C == 1 ? 5. / 3 : C == 3 ? 1 : 1e9;
        tapByTap_ = !(ratio <= mostTogether && placer.place(true)) && !(ratio < 5 && placer.place(false));
        if (!tapByTap_) return;
        for (int i = 0; i < count; ++i) {
            left_[i] = std::min(tile_.columns(index[i]) - first_, last) * C;
            right_[i] = std::min(tile_.columns(index[i] + 1) - first_, last) * C;
        }
        for (int i = 0; i < most + kTapSamples; ++i) index_[i] = 2 * i;
        TapPlacer<C>(taps_, index_, weight, 0, 2 * most - 1).place(C != 3);
    }

    static const int32_t* repeatLast(const int32_t* from, int count, int32_t* to) {
        for (int i = 0; i < kTapSamples + 4; ++i) to[i] = from[std::min(i, count - 1)];
        return to;
    }

    const uint8_t* copied(const uint8_t* row, uint8_t* to) const {
        uint8_t* at = to;
        for (int i = 0; i < taps_.samples / C; ++i, at += 2 * C) {
            std::memcpy(at, row + left_[i], C);
            std::memcpy(at + C, row + right_[i], C);
        }
        return to;
    }

    void runStrip(int x, int y, int end) {
        const int32_t* index = spec_.table<int32_t>(spec_.y.index) + tile_.offset.y;
        const int32_t* weight = spec_.table<int32_t>(spec_.y.weights) + tile_.offset.y;
        const int bandRows = tapByTap_ ? 1 : kBandRows;
        for (; y < end; y += bandRows) {
            RowPair rows[kBandRows];
            const int n = std::min(bandRows, end - y);
            for (int i = 0; i < n; ++i) {
                const int w = weight[y + i];
                rows[i].upper = tile_.source(index[y + i], first_, C);
                rows[i].lower = w == 0 ? rows[i].upper : tile_.source(index[y + i] + 1, first_, C);
                rows[i].weights = uint32_t(w) << 16 | uint32_t(16384 - w);
                rows[i].isNew = i == 0 || rows[i].upper != rows[i - 1].upper || rows[i].lower != rows[i - 1].lower;
            }
            if (tapByTap_) rows[0].upper = copied(rows[0].upper, pixels_[0]), rows[0].lower = copied(rows[0].lower, pixels_[1]);
            sum(rows, n, tile_.destination(y, x, C));
        }
    }

    void sum(const RowPair* rows, int n, uint8_t* dst) const {
#if defined(__AVX512BW__)
        if (taps_.window == 32) sumFrom<TapWindow<32, true, false>, TapWindow<32, false, false>>(rows, n, dst);
        else if (taps_.bytes >= 64) sumFrom<TapWindow<64, true, false>, TapWindow<64, false, false>>(rows, n, dst);
        else sumFrom<TapWindow<64, true, true>, TapWindow<64, false, true>>(rows, n, dst);
#else
        sumFrom<TapLanes<true>, TapLanes<false>>(rows, n, dst);
#endif
    }

    template <class Together, class Apart>
    void sumFrom(const RowPair* rows, int n, uint8_t* dst) const {
        const auto run = [&]<class Gather>(std::type_identity<Gather>) {
            if (taps_.rough) sumRows<Gather, true>(taps_, rows, n, dst, tile_.dstStep);
            else sumRows<Gather, false>(taps_, rows, n, dst, tile_.dstStep);
        };
        if (taps_.together) run(std::type_identity<Together>{});
        else run(std::type_identity<Apart>{});
    }
};

// Functions of their own, so that halving needs no large frame.
template <int C>
[[gnu::noinline]] void doubleSize(const ResizeTile& tile) {
    LinearDoubler<C>(tile).run();
}

template <int C>
[[gnu::noinline]] void resizeStrips(const ResizeTile& tile) {
    LinearResizer<C>(tile).run();
}

template <int C>
[[gnu::noinline]] void resizeOther(const ResizeTile& tile) {
    if (tile.spec.doubles()) doubleSize<C>(tile);
    else resizeStrips<C>(tile);
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
