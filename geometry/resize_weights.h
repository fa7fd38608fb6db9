// geometry/resize_weights.h: Resize by weights of single and double precision: linear but of 8u, cubic, Lanczos, super and the
// antialiased methods. The exports of each type of samples are a file.
//
// Two passes in the order that the object fixes. The tile is worked on in strips of columns, so that rows between the passes
// stay in the first-level cache. Rows first: every destination row is summed from source rows and then along. Columns first:
// source rows are resized along, kept in a ring for as many destination rows as use them, and then summed.
#pragma once

#include "core/dispatch.h"
#include "core/fpcontrol.h"
#include "core/layout.h"
#include "geometry/resize_apply.h"
#include "geometry/resize_double.h"
#include "geometry/resize_halve.h"
#include "geometry/resize_octave_down.h"
#include "geometry/resize_octave_up.h"
#include "geometry/resize_strip.h"
#include "geometry/resize_whole.h"

namespace kvri {

// Rows between the passes: those of a pixel's taps, and what is resized ahead of them.
constexpr int kRingSlots = 16, kRingBytes = kRingSlots * (kStripSamples * int(sizeof(float)) + 64);
static_assert(kMostKeptTaps + kGroupRows - 1 <= kRingSlots);

template <class T, int C>
class Resizer {
    using F = RealOf<T>;
    static constexpr ptrdiff_t pixelBytes = C * sizeof(T), rowStride = kStripRowBytes / sizeof(F);

    const ResizeTile& tile_;
    const ResizeSpec& spec_ = tile_.spec;
    const TapsOf<F> rowTaps_{spec_, spec_.y};
    Strip<F> strip_;
    alignas(64) F rows_[kGroupRows * rowStride];  // the strip's source columns
    alignas(64) uint8_t ring_[kRingBytes + 2 * kVectorBytes];  // sums look a little further

public:
    explicit Resizer(const ResizeTile& tile) : tile_(tile) {}

    void run() {
        const int n = Strip<F>::pixelsPerStrip(spec_, C);
        if (n == 0 || spec_.y.taps > kMostSources) return runPixels();
        for (int x = 0, pixels; x < tile_.size.width; x += pixels) {
#if defined(__AVX512BW__)
            if constexpr (sizeof(T) == 1) {
                pixels = std::min(Strip<F>::pixelsPerStrip(spec_, C, sizeof(int16_t)), tile_.size.width - x);
                if (wholeRows(x, pixels)) continue;
            }
#endif
            pixels = std::min(n, tile_.size.width - x);
            strip_.template prepare<C>(spec_, tile_.offset.x + x, pixels);
            if (spec_.rowsFirst) rowsFirst(x);
            else columnsFirst(x);
        }
    }

private:
    int position(int y) const { return tile_.offset.y + y; }
    int firstTap(int y) const { return rowTaps_.first(position(y)); }
    const F* weights(int y) const { return rowTaps_.weights(position(y)); }
    auto sourceFrom(int low) const {
        return [this, low](int row) { return tile_.source(row, low, pixelBytes); };
    }

    RowsOf<T> destination(int x, int y, int count) const {
        RowsOf<T> rows{{}, count};
        for (int r = 0; r < count; ++r) rows.p[r] = tile_.destination(y + r, x, pixelBytes);
        return rows;
    }

    // The last source rows that were resized along, as many as there are slots: a power of two.
    struct Ring {
        const uint8_t* place[2 * kRingSlots];  // twice, so that rows in sequence have places in sequence
        uint8_t* rows;
        ptrdiff_t step;
        int slots, end = INT_MIN;  // end: behind the last row

        Ring(uint8_t* rows, int slots, ptrdiff_t samples) : rows(rows), step(stepOf(samples)), slots(slots) {
            for (int i = 0; i < 2 * slots; ++i) place[i] = at(i);
        }
        // An odd number of lines, for the cache.
        static constexpr ptrdiff_t stepOf(ptrdiff_t samples) { return ((samples * ptrdiff_t(sizeof(F)) / 64 + 1) | 1) * 64; }
        uint8_t* at(int row) const { return rows + (row & (slots - 1)) * step; }
        const uint8_t* const* from(int row) const { return place + (row & (slots - 1)); }
    };

    void rowsFirst(int x) {
        const int first = strip_.first, last = strip_.last, low = tile_.columns(first), high = tile_.columns(last);
        const ptrdiff_t samples = ptrdiff_t(high - low + 1) * C;
        for (int y = 0, n; y < tile_.size.height; y += n) {
            n = rowTaps_.rowsWithin(position(y), std::min(kGroupRows, tile_.size.height - y), kMostSources);
            RowGroup<F> group(rowTaps_, position(y), n);
            group.setRows(sourceFrom(low));
            if constexpr (C > 1 && sizeof(F) == 4)
                if (F* columns = strip_.sideBySide()) {
                    constexpr int column = Picker<F>::lanes;
                    sumRows<T>(group, samples, LaneColumns<C>(columns + ptrdiff_t(low - first) * column));
                    repeatEdges<column>(columns, first, low, high, last);
                    strip_.template applySideBySide<C>(destination(x, y, n));
                    continue;
                }
            SumRows<F> sums{{{}, n}};
            for (int r = 0; r < n; ++r) sums.p[r] = reinterpret_cast<uint8_t*>(rows_ + r * rowStride + ptrdiff_t(low - first) * C);
            sumRows<T>(group, samples, sums);
            for (int r = 0; r < n; ++r) repeatEdges<C>(rows_ + r * rowStride, first, low, high, last);
            strip_.template apply<C>(rows_, rowStride, destination(x, y, n));
        }
    }

#if defined(__AVX512BW__)
    // Rows first in exact numbers; false, with nothing done, where the weights or the taps' places are not fit for it.
    bool wholeRows(int x, int n) {
        if (!spec_.whole() || !strip_.template prepareWhole<C>(spec_, tile_.offset.x + x, n)) return false;
        const int first = strip_.first, last = strip_.last, low = tile_.columns(first), high = tile_.columns(last);
        const ptrdiff_t samples = ptrdiff_t(high - low + 1) * C, stride = rowStride * 2;
        auto* rows = reinterpret_cast<int16_t*>(rows_);
        const int bits = spec_.x.wholeBits, begin = lessThanWhole(spec_.y) << bits;
        for (int y = 0, n; y < tile_.size.height; y += n) {
            n = WholeGroup::rowsWithin(rowTaps_, position(y), std::min(kGroupRows, tile_.size.height - y));
            WholeGroup(spec_.y, rowTaps_, position(y), n, sourceFrom(low)).sum(samples, rows + ptrdiff_t(low - first) * C, stride);
            for (int r = 0; r < n; ++r) repeatEdges<C>(rows + r * stride, first, low, high, last);
            strip_.template applyWhole<C>(rows, stride, begin, bits + spec_.y.wholeBits, destination(x, y, n));
        }
        return true;
    }
#endif

    void columnsFirst(int x) {
        const int taps = spec_.y.taps, end = firstTap(tile_.size.height - 1) + taps;
        const bool dense = spec_.y.ratio() <= taps;
        const ptrdiff_t samples = ptrdiff_t(strip_.pixels) * C;
        Ring ring(ring_, taps + kGroupRows - 1 <= kRingSlots / 2 ? kRingSlots / 2 : kRingSlots, samples);
        for (int y = 0, n; y < tile_.size.height; y += n) {
            ring.end = std::max(ring.end, firstTap(y));
            while (ring.end < firstTap(y) + taps) resizeSourceRows(ring, dense ? end : firstTap(y) + taps, x);
            TapRows<F> rows[kBandRows];
            n = 0;
            do rows[n] = {ring.from(firstTap(y + n)), weights(y + n)};
            while (++n < kBandRows && y + n < tile_.size.height && firstTap(y + n) + taps <= ring.end);
            const RowsOf<T> out = destination(x, y, n);
            if (tile_.streams && inSamples(out)) sumTaps<StreamedRowOf<T>>(rows, n, taps, samples, out.p.data());
            else sumTaps<RowOf<T>>(rows, n, taps, samples, out.p.data());
        }
    }

    static bool inSamples(const RowsOf<T>& rows) {
        return std::all_of(rows.p.begin(), rows.p.begin() + rows.count, [](auto p) { return reinterpret_cast<uintptr_t>(p) % sizeof(T) == 0; });
    }

    // The next rows, before row `end`, as many as share a pass.
    void resizeSourceRows(Ring& ring, int end, int x) {
        RowsOf<F> out{{}, std::min(end - ring.end, kGroupRows)};
        for (int r = 0; r < out.count; ++r, ++ring.end) {
            out.p[r] = ring.at(ring.end);
            F* to = rows_ + r * rowStride;
            if (strip_.sparse) copyTaps(ring.end, x, to);
            else fetchRow<T, C>(tile_, ring.end, strip_.first, strip_.last, to);
        }
        strip_.template apply<C>(rows_, rowStride, out);
    }

    void copyTaps(int row, int x, F* to) {
        for (int i = 0; i < strip_.pixels; ++i) {
            const int first = spec_.firstTap(spec_.x, tile_.offset.x + x + i);
            for (int t = 0; t < spec_.x.taps; ++t) {
                T pixel[C];
                std::memcpy(pixel, tile_.source(row, tile_.columns(first + t), pixelBytes), pixelBytes);
                for (int c = 0; c < C; ++c) *to++ = F(pixel[c]);
            }
        }
    }

    // Sums over the rows of destination row y, however many.
    void sumColumns(int y, int low, ptrdiff_t samples, uint8_t* sums) const {
        for (int t = 0; t < spec_.y.taps; t += kMostSources) {
            RowGroup<F> group(rowTaps_, position(y), 1, t, std::min(spec_.y.taps - t, kMostSources));
            group.setRows(sourceFrom(low));
            if (t == 0) sumRows<T>(group, samples, SumRows<F, RowOf>{{{sums}, 1}});
            else sumRows<T>(group, samples, AddedRow<F>{{{{sums}, 1}}});
        }
    }

    // Where the taps of a single pixel fill a strip, they go to the caller's buffer.
    void runPixels() {
        F* sums = reinterpret_cast<F*>(tile_.buffer + (-reinterpret_cast<uintptr_t>(tile_.buffer) & (sizeof(F) - 1)));
        for (int x = 0; x < tile_.size.width; ++x) {
            const int position = tile_.offset.x + x, first = spec_.firstTap(spec_.x, position);
            const int low = tile_.columns(first), high = tile_.columns(first + spec_.x.taps - 1);
            for (int y = 0; y < tile_.size.height; ++y) {
                sumColumns(y, low, ptrdiff_t(high - low + 1) * C, reinterpret_cast<uint8_t*>(sums));
                F pixel[C];
                for (int t = 0; t < spec_.x.taps; ++t) {
                    const F* column = sums + ptrdiff_t(tile_.columns(first + t) - low) * C;
                    const F w = spec_.weight<F>(spec_.x, position, t);
                    for (int c = 0; c < C; ++c) pixel[c] = t == 0 ? column[c] * w : pixel[c] + column[c] * w;
                }
                convertRow<F>(reinterpret_cast<const uint8_t*>(pixel), C, RowOf<T>(tile_.destination(y, x, pixelBytes)));
            }
        }
    }
};

template <class T>
constexpr bool kWholeNumbers = sizeof(T) == 1 && kVectorBytes == 64;

// Exactly half or twice the size; false, with nothing done, where it is not or no kernel has as many taps.
template <class T, int C>
bool octaveDown(const ResizeTile& tile) {
    const ResizeSpec& spec = tile.spec;
    if (!spec.halves() || spec.x.taps != spec.y.taps) return false;
    switch (spec.x.taps) {
        case 4: OctaveDown<T, C, 4>(tile).run(); return true;
        case 6: OctaveDown<T, C, 6>(tile).run(); return true;
        case 8: OctaveDown<T, C, 8>(tile).run(); return true;
        case 12: OctaveDown<T, C, 12>(tile).run(); return true;
        default: return false;
    }
}

template <class T, int C>
bool octaveUp(const ResizeTile& tile) {
    const ResizeSpec& spec = tile.spec;
    if (!spec.doubles() || spec.rowsFirst || spec.x.taps != spec.y.taps) return false;
    switch (spec.x.taps) {
        case 4: OctaveUp<T, C, 4>(tile).run(); return true;
        case 6: OctaveUp<T, C, 6>(tile).run(); return true;
        default: return false;
    }
}

// A function of its own, so that halving needs no large frame.
template <class T, int C, KvriInterpolationType Method>
[[gnu::noinline]] void resizeByWeights(const ResizeTile& tile) {
    const DefaultFloatControl control;
    if constexpr (!std::is_same_v<T, Kvr64f> && sizeof(T) > 1 && Method == kvrInterpLinear)
        if (doubles(tile)) return Doubler<T, C>(tile).run();
    if constexpr (!std::is_same_v<T, Kvr64f>)
        if (!(kWholeNumbers<T> && tile.spec.whole()) && (octaveDown<T, C>(tile) || octaveUp<T, C>(tile))) return;
    Resizer<T, C>(tile).run();
}

template <class T, class L, KvriInterpolationType Method, bool Antialiasing = false>
KvrStatus resize(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border,
                 const T*, const KvriResizeSpec* pSpec, Kvr8u* pBuffer) {
    constexpr bool isDouble = std::is_same_v<T, Kvr64f>;
    constexpr Accepts accepts{isDouble ? kResizeSpecId64f : kResizeSpecId, Method, Antialiasing,
                              isDouble ? ResizeWeights::Double : ResizeWeights::Float};
    const auto run = [](const ResizeCall& call) KVRI_INLINE {
        if constexpr (!isDouble && (Method == kvrInterpLinear || Method == kvrInterpSuper))
            if (call.spec.halves()) return Halver<T, L::channels, Ties::Even>::run(call);
        inTurns(call, resizeByWeights<T, L::channels, Method>);
    };
    return applyResize<L::channels>(accepts, run, pSrc, srcStep, pDst, dstStep, dstOffset, dstSize, border, pSpec, pBuffer);
}

template <class T, class L>
constexpr auto linear = resize<T, L, kvrInterpLinear>;
template <class T, class L>
constexpr auto cubic = resize<T, L, kvrInterpCubic>;
template <class T, class L>
constexpr auto lanczos = resize<T, L, kvrInterpLanczos>;
template <class T, class L>
constexpr auto super = resize<T, L, kvrInterpSuper>;
template <class T, class L>
constexpr auto antialiasing = resize<T, L, 0, true>;

}  // namespace kvri
