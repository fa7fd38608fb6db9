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
#include "geometry/resize_double8u_columns.h"
#include "geometry/resize_halve.h"
#include "geometry/resize_taps8u.h"

namespace kvri {
namespace {

// What some destination rows are made of.
struct RowPairs {
    static constexpr int most = 16;

    const uint8_t* source;  // row 0
    ptrdiff_t sourceStep;
    alignas(64) int32_t upper[most], lower[most];
    alignas(64) uint32_t weights[most];  // of the upper and the lower row, as 16-bit numbers
    int rows;
    int alwaysNew;  // INT_MIN: few rows in a row have the same source rows, too few to foresee which; else 0

    // Of rows in the object's tables.
    void set(const int32_t* index, const int32_t* weight, const Readable& readable) {
        using Numbers = Vec<int32_t>;
        const auto within = [&](Numbers v) KVRI_INLINE { return smaller(larger(v, splat<Numbers>(readable.low)), splat<Numbers>(readable.high)); };
        for (int i = 0; i < rows; i += kVectorBytes / 4) {
            const auto values = [&](const int32_t* table) KVRI_INLINE {
                return loadPart<Numbers>(reinterpret_cast<const uint8_t*>(table + i), (rows - i) * ptrdiff_t(sizeof(int32_t)));
            };
            const Numbers position = values(index), w = values(weight);
            store(upper + i, within(position));
            store(lower + i, within(position - (w != 0)));  // no row without weight is to be read
            store(weights + i, (w << 16) | (16384 - w));
        }
    }
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

// Rough: as the tables are. Sums of a row stay in registers for as long as rows have the same source rows.
template <class Gather, bool Rough>
void sumRows(const TapTables& taps, const RowPairs& pairs, uint8_t* dst, ptrdiff_t step) {
    for (int group = 0; group < taps.groups(); ++group) {
        const auto constants = [&](auto f) KVRI_INLINE {
            return [&]<int... i>(std::integer_sequence<int, i...>) KVRI_INLINE {
                return std::array{f(group * kTapVectors + i)...};
            }(std::make_integer_sequence<int, kTapVectors>{});
        };
        const auto gather = constants([&](int at) KVRI_INLINE { return Gather(taps, at); });
        const auto high = constants([&](int at) KVRI_INLINE { return taps.vector[at].high; }), low = constants([&](int at) KVRI_INLINE { return taps.vector[at].low; });
        PairSums<Rough> sums[kTapVectors];
        uint8_t* to = dst + taps.start(group);
        for (int y = 0, above = INT_MIN, below = INT_MIN; y < pairs.rows; ++y, to += step) {
            const int upper = pairs.upper[y], lower = pairs.lower[y];
            if (upper != above || lower != below) {
                const uint8_t *p = pairs.source + upper * pairs.sourceStep, *q = pairs.source + lower * pairs.sourceStep;
                unroll<kTapVectors>([&](auto i) KVRI_INLINE { sums[i].set(gather[i](p, q), high[i], low[i]); });
                above = upper | pairs.alwaysNew, below = lower;
            }
            Vec<int32_t> v[kTapVectors];
            const auto weights = (Vec<int16_t>)splat<Vec<uint32_t>>(pairs.weights[y]);
            unroll<kTapVectors>([&](auto i) KVRI_INLINE { v[i] = sums[i].weighted(weights); });
            const auto bytes = roundedBytes(v);
            if (taps.samples >= kTapSamples) store(to, bytes);
            else storePart(to, bytes, taps.samples);
        }
    }
}

// Strips of destination columns, by tables.
template <int C>
class LinearResizer {
    static constexpr int most = TapTables::mostGroups * kTapSamples / C;  // pixels of a strip

    const ResizeTile& tile_;
    const ResizeSpec& spec_ = tile_.spec;
    TapTables taps_;
    int first_;      // the strip's first source column
    bool tapByTap_;  // taps are copied side by side, and what is copied is the source
    int32_t index_[most + kTapSamples + 4], weight_[kTapSamples + 4];
    int32_t left_[most], right_[most];
    uint8_t pixels_[2][2 * C * most + 64];

public:
    explicit LinearResizer(const ResizeTile& tile) : tile_(tile) {}

    void run() {
        const int width = tile_.size.width, strip = tile_.stripWidth(most);
        for (int x = 0; x < width; x += strip) {
            prepare(x, std::min(strip, width - x));
            runStrip(x);
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
        const int64_t source = spec_.x.source, destination = spec_.x.destination;
        const bool together = C == 4 || (C == 3 ? source <= destination : 3 * source <= 5 * destination);
        tapByTap_ = !(together && placer.place(true)) && !(source < 5 * destination && placer.place(false));
        if (!tapByTap_) return;
        if (taps_.samples < kTapSamples)
            for (auto& row : pixels_) std::memset(row, 0, 2 * kTapSamples + 64);  // what is not copied is computed as well
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

    void copyTaps(const uint8_t* row, uint8_t* to) const {
        for (int i = 0; i < taps_.samples / C; ++i, to += 2 * C) {
            std::memcpy(to, row + left_[i], C);
            std::memcpy(to + C, row + right_[i], C);
        }
    }

    // As many rows as the processor foresees or the caches hold; of rows whose parts lie in the same set of the first-level cache,
    // as many as it holds with their source rows.
    int rowsAtATime() const {
        const int rows = tile_.far ? 4 : RowPairs::most;
        if ((tile_.srcStep | tile_.dstStep) % 2048 != 0) return rows;
        constexpr int held = 9;
        const int64_t source = spec_.y.reducedSource, destination = spec_.y.reducedDestination;
        return std::clamp(int(held * destination / (source + destination)), 1, rows);
    }

    void runStrip(int x) {
        const int32_t* index = spec_.table<int32_t>(spec_.y.index) + tile_.offset.y;
        const int32_t* weight = spec_.table<int32_t>(spec_.y.weights) + tile_.offset.y;
        RowPairs pairs;
        pairs.alwaysNew = taps_.groups() <= 2 && 5 * int64_t(spec_.y.source) > 3 * int64_t(spec_.y.destination) ? INT_MIN : 0;
        const SourceColumn source(tile_, first_, C);
        if (!tapByTap_) pairs.source = source.top, pairs.sourceStep = source.step;
        else pairs.source = pixels_[0], pairs.sourceStep = sizeof pixels_[0];
        const int bandRows = tapByTap_ ? 1 : rowsAtATime();
        for (int y = 0; y < tile_.size.height; y += pairs.rows) {
            pairs.rows = std::min(bandRows, tile_.size.height - y);
            pairs.set(index + y, weight + y, tile_.rows);
            if (tapByTap_) {
                copyTaps(source[pairs.upper[0]], pixels_[0]);
                copyTaps(source[pairs.lower[0]], pixels_[1]);
                pairs.upper[0] = 0, pairs.lower[0] = 1;
            }
            sum(pairs, tile_.destination(y, x, C));
        }
    }

    void sum(const RowPairs& pairs, uint8_t* dst) const {
#if defined(__AVX512BW__)
        if (taps_.window == 32) return sumFrom<TapWindow<32, true, false>, TapWindow<32, false, false>>(pairs, dst);
        if (taps_.window == 64 && taps_.bytes >= 64) return sumFrom<TapWindow<64, true, false>, TapWindow<64, false, false>>(pairs, dst);
        if (taps_.window == 64) return sumFrom<TapWindow<64, true, true>, TapWindow<64, false, true>>(pairs, dst);
#endif
        sumFrom<TapLanes<true>, TapLanes<false>>(pairs, dst);
    }

    template <class Together, class Apart>
    void sumFrom(const RowPairs& pairs, uint8_t* dst) const {
        const auto run = [&]<class Gather>(std::type_identity<Gather>) {
            if (taps_.rough) sumRows<Gather, true>(taps_, pairs, dst, tile_.dstStep);
            else sumRows<Gather, false>(taps_, pairs, dst, tile_.dstStep);
        };
        if (taps_.together) run(std::type_identity<Together>{});
        else run(std::type_identity<Apart>{});
    }
};

// Functions of their own, so that halving needs no large frame.
template <class Doubler>
[[gnu::noinline]] void doubleSize(const ResizeTile& tile) {
    Doubler(tile).run();
}

template <int C>
[[gnu::noinline]] void resizeStrips(const ResizeTile& tile) {
    LinearResizer<C>(tile).run();
}

template <int C>
void copyRows(const ResizeCall& call) {
    const uint8_t* src = call.src;
    uint8_t* dst = call.dst;
    for (int y = 0; y < call.size.height; ++y, src += call.srcStep, dst += call.dstStep) std::memcpy(dst, src, size_t(call.size.width) * C);
}

template <int C>
[[gnu::noinline]] void resizeOther(const ResizeTile& tile) {
    if (!tile.spec.doubles() || tile.size.width * C < kVectorBytes) inTurns(tile, resizeStrips<C>);
    else if (ColumnDoubler<C>::takes(tile)) inTurns(tile, doubleSize<ColumnDoubler<C>>);
    else doubleSize<LinearDoubler<C>>(tile);
}

template <class L>
KvrStatus linear(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border,
                 const Kvr8u*, const KvriResizeSpec* pSpec, Kvr8u* pBuffer) {
    constexpr Accepts accepts{kResizeSpecId, kvrInterpLinear, false, ResizeWeights::Fixed14};
    const auto run = [](const ResizeCall& call) KVRI_INLINE {
        if (call.spec.halves()) Halver<Kvr8u, L::channels, Ties::Up>::run(call);
        else if (call.spec.keeps()) copyRows<L::channels>(call);
        else resizeOther<L::channels>(call);
    };
    return applyResize<L::channels>(accepts, run, pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border, pSpec, pBuffer);
}

KVRI_EXPORT(kvriResizeLinear_8u_C1R, linear<C1>);
KVRI_EXPORT(kvriResizeLinear_8u_C3R, linear<C3>);
KVRI_EXPORT(kvriResizeLinear_8u_C4R, linear<C4>);

}  // namespace
}  // namespace kvri
