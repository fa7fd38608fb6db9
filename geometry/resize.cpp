// geometry/resize.cpp: Resize by weights of single and double precision: linear but of 8u, cubic, Lanczos, super and the
// antialiased methods.
//
// Two passes in the order that the object fixes. The tile is worked on in strips of columns, so that rows between the passes
// stay in the first-level cache. Rows first: every destination row is summed from source rows and then along. Columns first:
// source rows are resized along, kept in a ring for as many destination rows as use them, and then summed.
#include "core/dispatch.h"
#include "core/fpcontrol.h"
#include "core/layout.h"
#include "geometry/resize_apply.h"
#include "geometry/resize_double.h"
#include "geometry/resize_halve.h"
#include "geometry/resize_octave.h"
#include "geometry/resize_octave_up.h"
#include "geometry/resize_strip.h"
#include "geometry/resize_whole.h"

namespace kvri {
namespace {

// Rows between the passes that the stack has room for; of more, the caller's buffer holds as many as a pixel has taps.
constexpr int kRingRows = 8;

template <class T, int C>
class Resizer {
    using F = RealOf<T>;
    static constexpr ptrdiff_t pixelBytes = C * sizeof(T), rowStride = kStripRowBytes / sizeof(F);
    static constexpr bool sideBySide = C > 1 && sizeof(F) == 4;  // rows first

    const ResizeTile& tile_;
    const ResizeSpec& spec_ = tile_.spec;
    Strip<F> strip_;
    alignas(64) F rows_[kGroupRows * rowStride];  // the strip's source columns, of a group
    alignas(64) F ring_[kRingRows * kStripSamples];

public:
    explicit Resizer(const ResizeTile& tile) : tile_(tile) {}

    void run() {
        const int n = Strip<F>::pixelsPerStrip(spec_, C);
        if (n == 0 || spec_.y.taps > kMostSources) return runPixels();
        for (int x = 0; x < tile_.size.width; x += n) {
            const int pixels = std::min(n, tile_.size.width - x);
#if defined(__AVX512BW__)
            if constexpr (sizeof(T) == 1)
                if (wholeRows(x, pixels)) continue;
#endif
            strip_.template prepare<C>(spec_, tile_.offset.x + x, pixels, spec_.rowsFirst && sideBySide);
            if (spec_.rowsFirst) rowsFirst(x);
            else columnsFirst(x);
        }
    }

private:
    int position(int y) const { return tile_.offset.y + y; }
    // How many rows from y on are summed together.
    int rowsTogether(int y, int sources) const {
        return RowGroup<F>::rowsWithin(spec_, position(y), std::min(kGroupRows, tile_.size.height - y), sources);
    }
    auto sourceFrom(int low) const {
        return [this, low](int row) { return tile_.source(row, low, pixelBytes); };
    }

    // Columns low to high of a row that begins with column `first` are there; those beyond up to `last` repeat them.
    template <int numbers, class Number>
    static void extend(Number* row, int first, int low, int high, int last) {
        const auto repeat = [&](int column, int from, int to) {
            const Number* edge = row + ptrdiff_t(column - first) * numbers;
            for (int x = from; x < to; ++x) std::copy(edge, edge + numbers, row + ptrdiff_t(x - first) * numbers);
        };
        repeat(low, first, low);
        repeat(high, high + 1, last + 1);
    }

    RowsOf<T> destination(int x, int y, int count) const {
        RowsOf<T> rows{{}, count};
        for (int r = 0; r < count; ++r) rows.p[r] = tile_.destination(y + r, x, pixelBytes);
        return rows;
    }

    void rowsFirst(int x) {
        const int first = strip_.first, last = strip_.last, low = tile_.columns(first), high = tile_.columns(last);
        const ptrdiff_t samples = ptrdiff_t(high - low + 1) * C;
        for (int y = 0, n; y < tile_.size.height; y += n) {
            n = rowsTogether(y, kMostSources);
            RowGroup<F> group(spec_, position(y), n);
            group.setRows(sourceFrom(low));
            prefetchSource(y + n, group.first + group.sources, low, samples * ptrdiff_t(sizeof(T)));
            if constexpr (sideBySide) {
                constexpr int column = Picker<F>::lanes;
                sumRows<T>(group, samples, LaneColumns<C>(rows_ + ptrdiff_t(low - first) * column));
                extend<column>(rows_, first, low, high, last);
                strip_.template apply<C>(rows_, destination(x, y, n));
            } else {
                RowsOf<F> sums{{}, n};
                for (int r = 0; r < n; ++r) sums.p[r] = reinterpret_cast<uint8_t*>(rows_ + r * rowStride + ptrdiff_t(low - first) * C);
                sumRows<T>(group, samples, sums);
                for (int r = 0; r < n; ++r) extend<C>(rows_ + r * rowStride, first, low, high, last);
                strip_.template apply<C>(rows_, rowStride, destination(x, y, n));
            }
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
            n = WholeGroup::rowsWithin(spec_, position(y), std::min(kGroupRows, tile_.size.height - y));
            prefetchSource(y + n, spec_.firstTap(spec_.y, position(y + n - 1)) + spec_.y.taps, low, samples);
            WholeGroup(spec_, position(y), n, sourceFrom(low)).sum(samples, rows + ptrdiff_t(low - first) * C, stride);
            for (int r = 0; r < n; ++r) extend<C>(rows + r * stride, first, low, high, last);
            strip_.template applyWhole<C>(rows, stride, begin, bits + spec_.y.wholeBits, destination(x, y, n));
        }
        return true;
    }
#endif

    // Rows from `row` on that the group of destination row y uses.
    void prefetchSource(int y, int row, int low, ptrdiff_t bytes) const {
        if (y >= tile_.size.height) return;
        const int begin = spec_.firstTap(spec_.y, position(y)), last = std::min(y + kGroupRows, tile_.size.height) - 1;
        const int end = std::min(spec_.firstTap(spec_.y, position(last)) + spec_.y.taps, begin + kMostSources);
        for (row = std::max(row, begin); row < end; ++row) prefetch(tile_.source(row, low, pixelBytes), bytes);
    }

    void columnsFirst(int x) {
        Ring ring(tile_, spec_.y.taps, ptrdiff_t(strip_.pixels) * C, ring_);
        for (int y = 0, n; y < tile_.size.height; y += n) {
            n = rowsTogether(y, ring.slots);
            RowGroup<F> group(spec_, position(y), n);
            fill(ring, group, x);
            group.setRows([&](int row) { return ring.place(tile_.rows(row)); });
            for (int r = 0; r < n; ++r) tile_.prefetchDestination(y + n + r, x, strip_.pixels, pixelBytes);
            const auto sum = [&](const auto& out) { sumRows<F>(group, ptrdiff_t(strip_.pixels) * C, out); };
            const RowsOf<T> out = destination(x, y, n);
            if (tile_.streams && alignedAlike(out)) sum(RowsOf<T, StreamedRowOf>{out.p, out.count});
            else sum(out);
        }
    }

    // Source rows resized along, by their number.
    struct Ring {
        F* rows;
        ptrdiff_t step;
        int slots, low;
        int held[kResizeRowGroup];

        Ring(const ResizeTile& tile, int taps, ptrdiff_t samples, F* here) : rows(here), step(kStripSamples), slots(kRingRows), low(tile.rows.low) {
            if (taps > kRingRows) {
                rows = reinterpret_cast<F*>(tile.buffer + (-reinterpret_cast<uintptr_t>(tile.buffer) & 63));
                step = upTo32(samples * ptrdiff_t(sizeof(F))) / ptrdiff_t(sizeof(F));
                slots = taps;
            }
            std::fill(held, held + slots, INT_MIN);
        }
        int slot(int row) const { return slots == kRingRows ? (row - low) % kRingRows : (row - low) % slots; }
        uint8_t* place(int row) const { return reinterpret_cast<uint8_t*>(rows + slot(row) * step); }
    };

    // Rows of the group that the ring does not hold, as many at a time as share a pass.
    void fill(Ring& ring, const RowGroup<F>& group, int x) {
        int row[kGroupRows];
        RowsOf<F> out{{}, 0};
        for (int j = 0; j < group.sources; ++j) {
            const int wanted = tile_.rows(group.first + j);
            int& held = ring.held[ring.slot(wanted)];
            if (held == wanted || group.used(j) == 0) continue;
            held = wanted;
            row[out.count] = wanted;
            out.p[out.count++] = ring.place(wanted);
            if (out.count == kGroupRows) resizeSourceRows(row, x, out), out.count = 0;
        }
        if (out.count > 0) resizeSourceRows(row, x, out);
    }

    void resizeSourceRows(const int* row, int x, const RowsOf<F>& out) {
        for (int r = 0; r < out.count; ++r) {
            F* to = rows_ + r * rowStride;
            if (strip_.sparse) {
                copyTaps(row[r], x, to);
            } else {
                const int low = tile_.columns(strip_.first), high = tile_.columns(strip_.last);
                convertRow<T>(tile_.source(row[r], low, pixelBytes), ptrdiff_t(high - low + 1) * C, RowOf<F>(to + ptrdiff_t(low - strip_.first) * C));
                extend<C>(to, strip_.first, low, high, strip_.last);
            }
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

    static bool alignedAlike(const RowsOf<T>& rows) {
        uintptr_t differences = 0;
        for (int r = 0; r < rows.count; ++r) differences |= uintptr_t(rows.p[r] - rows.p[0]);
        return differences % kVectorBytes == 0 && reinterpret_cast<uintptr_t>(rows.p[0]) % sizeof(T) == 0;
    }

    // Sums over the rows of destination row y, however many.
    void sumColumns(int y, int low, ptrdiff_t samples, uint8_t* sums) const {
        for (int t = 0; t < spec_.y.taps; t += kMostSources) {
            RowGroup<F> group(spec_, position(y), 1, t, std::min(spec_.y.taps - t, kMostSources));
            group.setRows(sourceFrom(low));
            if (t == 0) sumRows<T>(group, samples, RowsOf<F>{{sums}, 1});
            else sumRows<T>(group, samples, AddedRow<F>{{{sums}, 1}});
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

#if defined(__AVX512BW__)
template <class T>
constexpr bool kWholeNumbers = sizeof(T) == 1;
#else
template <class T>
constexpr bool kWholeNumbers = false;
#endif

// Exactly half or twice the size; false, with nothing done, where it is not or no kernel has as many taps.
template <class T>
bool octaveDown(const ResizeTile& tile) {
    const ResizeSpec& spec = tile.spec;
    if (!spec.halves() || spec.x.taps != spec.y.taps) return false;
    switch (spec.x.taps) {
        case 4: OctaveDown<T, 4>(tile).run(); return true;
        case 6: OctaveDown<T, 6>(tile).run(); return true;
        case 8: OctaveDown<T, 8>(tile).run(); return true;
        case 12: OctaveDown<T, 12>(tile).run(); return true;
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

template <class T, int C>
bool octave(const ResizeTile& tile) {
    if constexpr (C == 1)
        if (octaveDown<T>(tile)) return true;
    return octaveUp<T, C>(tile);
}

// A function of its own, so that halving needs no large frame.
template <class T, int C, KvriInterpolationType Method>
[[gnu::noinline]] void resizeByWeights(const ResizeTile& tile) {
    const DefaultFloatControl control;
    if constexpr (!std::is_same_v<T, Kvr64f> && sizeof(T) > 1 && Method == kvrInterpLinear)
        if (doubles(tile)) return Doubler<T, C>(tile).run();
    if constexpr (!std::is_same_v<T, Kvr64f>)
        if (!(kWholeNumbers<T> && tile.spec.whole()) && octave<T, C>(tile)) return;
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
        resizeByWeights<T, L::channels, Method>(call);
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

KVRI_EXPORT(kvriResizeLinear_16u_C1R, linear<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeLinear_16u_C3R, linear<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeLinear_16u_C4R, linear<Kvr16u, C4>);
KVRI_EXPORT(kvriResizeLinear_16s_C1R, linear<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeLinear_16s_C3R, linear<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeLinear_16s_C4R, linear<Kvr16s, C4>);
KVRI_EXPORT(kvriResizeLinear_32f_C1R, linear<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeLinear_32f_C3R, linear<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeLinear_32f_C4R, linear<Kvr32f, C4>);
KVRI_EXPORT(kvriResizeLinear_64f_C1R, linear<Kvr64f, C1>);
KVRI_EXPORT(kvriResizeLinear_64f_C3R, linear<Kvr64f, C3>);
KVRI_EXPORT(kvriResizeLinear_64f_C4R, linear<Kvr64f, C4>);

KVRI_EXPORT(kvriResizeCubic_8u_C1R, cubic<Kvr8u, C1>);
KVRI_EXPORT(kvriResizeCubic_8u_C3R, cubic<Kvr8u, C3>);
KVRI_EXPORT(kvriResizeCubic_8u_C4R, cubic<Kvr8u, C4>);
KVRI_EXPORT(kvriResizeCubic_16u_C1R, cubic<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeCubic_16u_C3R, cubic<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeCubic_16u_C4R, cubic<Kvr16u, C4>);
KVRI_EXPORT(kvriResizeCubic_16s_C1R, cubic<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeCubic_16s_C3R, cubic<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeCubic_16s_C4R, cubic<Kvr16s, C4>);
KVRI_EXPORT(kvriResizeCubic_32f_C1R, cubic<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeCubic_32f_C3R, cubic<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeCubic_32f_C4R, cubic<Kvr32f, C4>);

KVRI_EXPORT(kvriResizeLanczos_8u_C1R, lanczos<Kvr8u, C1>);
KVRI_EXPORT(kvriResizeLanczos_8u_C3R, lanczos<Kvr8u, C3>);
KVRI_EXPORT(kvriResizeLanczos_8u_C4R, lanczos<Kvr8u, C4>);
KVRI_EXPORT(kvriResizeLanczos_16u_C1R, lanczos<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeLanczos_16u_C3R, lanczos<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeLanczos_16u_C4R, lanczos<Kvr16u, C4>);
KVRI_EXPORT(kvriResizeLanczos_16s_C1R, lanczos<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeLanczos_16s_C3R, lanczos<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeLanczos_16s_C4R, lanczos<Kvr16s, C4>);
KVRI_EXPORT(kvriResizeLanczos_32f_C1R, lanczos<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeLanczos_32f_C3R, lanczos<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeLanczos_32f_C4R, lanczos<Kvr32f, C4>);

KVRI_EXPORT(kvriResizeSuper_8u_C1R, super<Kvr8u, C1>);
KVRI_EXPORT(kvriResizeSuper_8u_C3R, super<Kvr8u, C3>);
KVRI_EXPORT(kvriResizeSuper_8u_C4R, super<Kvr8u, C4>);
KVRI_EXPORT(kvriResizeSuper_16u_C1R, super<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeSuper_16u_C3R, super<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeSuper_16u_C4R, super<Kvr16u, C4>);
KVRI_EXPORT(kvriResizeSuper_16s_C1R, super<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeSuper_16s_C3R, super<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeSuper_16s_C4R, super<Kvr16s, C4>);
KVRI_EXPORT(kvriResizeSuper_32f_C1R, super<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeSuper_32f_C3R, super<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeSuper_32f_C4R, super<Kvr32f, C4>);

KVRI_EXPORT(kvriResizeAntialiasing_8u_C1R, antialiasing<Kvr8u, C1>);
KVRI_EXPORT(kvriResizeAntialiasing_8u_C3R, antialiasing<Kvr8u, C3>);
KVRI_EXPORT(kvriResizeAntialiasing_8u_C4R, antialiasing<Kvr8u, C4>);
KVRI_EXPORT(kvriResizeAntialiasing_16u_C1R, antialiasing<Kvr16u, C1>);
KVRI_EXPORT(kvriResizeAntialiasing_16u_C3R, antialiasing<Kvr16u, C3>);
KVRI_EXPORT(kvriResizeAntialiasing_16u_C4R, antialiasing<Kvr16u, C4>);
KVRI_EXPORT(kvriResizeAntialiasing_16s_C1R, antialiasing<Kvr16s, C1>);
KVRI_EXPORT(kvriResizeAntialiasing_16s_C3R, antialiasing<Kvr16s, C3>);
KVRI_EXPORT(kvriResizeAntialiasing_16s_C4R, antialiasing<Kvr16s, C4>);
KVRI_EXPORT(kvriResizeAntialiasing_32f_C1R, antialiasing<Kvr32f, C1>);
KVRI_EXPORT(kvriResizeAntialiasing_32f_C3R, antialiasing<Kvr32f, C3>);
KVRI_EXPORT(kvriResizeAntialiasing_32f_C4R, antialiasing<Kvr32f, C4>);

}  // namespace
}  // namespace kvri
