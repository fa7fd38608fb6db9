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
#include "geometry/resize_halve.h"
#include "geometry/resize_rows.h"

namespace kvri {
namespace {

template <class T, int C>
class Resizer {
    using F = RealOf<T>;
    static constexpr ptrdiff_t pixelBytes = C * sizeof(T);

    const ResizeTile& tile_;
    const ResizeSpec& spec_ = tile_.spec;
    Strip<F> strip_;
    alignas(64) F row_[kStripRowBytes / sizeof(F)];  // the strip's source columns

public:
    explicit Resizer(const ResizeTile& tile) : tile_(tile) {}

    void run() {
        const int n = Strip<F>::pixelsPerStrip(spec_, C);
        if (n == 0) return runPixels();
        for (int x = 0; x < tile_.size.width; x += n) {
            strip_.template prepare<C>(spec_, tile_.offset.x + x, std::min(n, tile_.size.width - x));
            if (spec_.rowsFirst) rowsFirst(x);
            else columnsFirst(x);
        }
    }

private:
    int firstRow(int y) const { return spec_.firstTap(spec_.y, tile_.offset.y + y); }
    const F* rowWeights(int y) const {
        return spec_.table<F>(spec_.y.weights) + ptrdiff_t((tile_.offset.y + y) % spec_.y.period) * spec_.y.positionStride;
    }

    // Source columns low to high summed over the rows of destination row y.
    void sumSource(int y, int low, int high, F* sums) const {
        const int taps = spec_.y.taps, first = firstRow(y);
        const F* weight = rowWeights(y);
        const ptrdiff_t samples = ptrdiff_t(high - low + 1) * C;
        for (int t = 0; t < taps; t += kResizeRowGroup) {
            const uint8_t* rows[kResizeRowGroup];
            const int n = std::min(taps - t, kResizeRowGroup);
            for (int k = 0; k < n; ++k) rows[k] = tile_.source(first + t + k, low, pixelBytes);
            if (t == 0) sumRows<T>(rows, weight, n, samples, AlignedRowOf<F>(sums));
            else sumRows<T, 0, true>(rows, weight + t, n, samples, sums, RowOf<F>(sums));
        }
    }

    // row[0] is of column `first`; columns low to high are there, those beyond up to `last` repeat them.
    static void extend(F* row, int first, int low, int high, int last) {
        const F* edge = row + ptrdiff_t(low - first) * C;
        for (int i = 0; i < (low - first) * C; ++i) row[i] = edge[i % C];
        edge = row + ptrdiff_t(high - first) * C;
        for (int i = 0; i < (last - high) * C; ++i) row[(high + 1 - first) * C + i] = edge[i % C];
    }

    void rowsFirst(int x) {
        const int low = tile_.columns(strip_.first), high = tile_.columns(strip_.last);
        F* row = alignedLike(tile_.source(firstRow(0), low, pixelBytes), (low - strip_.first) * C);
        for (int y = 0; y < tile_.size.height; ++y) {
            if (y + 2 < tile_.size.height) prefetchSource(y + 2, low, high);
            sumSource(y, low, high, row + ptrdiff_t(low - strip_.first) * C);
            extend(row, strip_.first, low, high, strip_.last);
            strip_.template apply<C>(row, RowOf<T>(tile_.destination(y, x, pixelBytes)));
        }
    }

    // A place for a row whose sample `i` is as far from a whole vector as the source sample at p.
    F* alignedLike(const uint8_t* p, int i) {
        constexpr uintptr_t lanes = kReals<T>;
        return row_ + (reinterpret_cast<uintptr_t>(p) / sizeof(T) - uintptr_t(i)) % lanes;
    }

    // Rows that destination row y is the first to use.
    void prefetchSource(int y, int low, int high) const {
        const int taps = spec_.y.taps, end = firstRow(y) + taps;
        for (int row = std::max(firstRow(y - 1) + taps, end - kResizeRowGroup); row < end; ++row)
            prefetch(tile_.source(row, low, pixelBytes), (high - low + 1) * pixelBytes);
    }

    void columnsFirst(int x) {
        const int taps = spec_.y.taps;
        const ptrdiff_t samples = ptrdiff_t(strip_.pixels) * C, ringStep = upTo32(samples * ptrdiff_t(sizeof(F)));
        uint8_t* ring = tile_.buffer + (-reinterpret_cast<uintptr_t>(tile_.buffer) & 63);
        int held[kResizeRowGroup];
        std::fill(held, held + taps, INT_MIN);
        for (int y = 0; y < tile_.size.height; ++y) {
            const uint8_t* rows[kResizeRowGroup];
            const int first = firstRow(y);
            for (int t = 0; t < taps; ++t) {
                const int row = tile_.rows(first + t), slot = (row - tile_.rows.low) % taps;
                uint8_t* place = ring + slot * ringStep;
                if (held[slot] != row) {
                    resizeSourceRow(row, x, RowOf<F>(place));
                    held[slot] = row;
                }
                rows[t] = place;
            }
            tile_.prefetchDestination(y + 2, x, strip_.pixels, pixelBytes);
            uint8_t* dst = tile_.destination(y, x, pixelBytes);
            if (tile_.streams && reinterpret_cast<uintptr_t>(dst) % sizeof(T) == 0)
                sumRows<F>(rows, rowWeights(y), taps, samples, StreamedRowOf<T>(dst));
            else sumRows<F>(rows, rowWeights(y), taps, samples, RowOf<T>(dst));
        }
    }

    void resizeSourceRow(int row, int x, RowOf<F> out) {
        if (strip_.sparse) {
            copyTaps(row, x);
        } else {
            const int low = tile_.columns(strip_.first), high = tile_.columns(strip_.last);
            F* inside = row_ + ptrdiff_t(low - strip_.first) * C;
            convertRow<T>(tile_.source(row, low, pixelBytes), ptrdiff_t(high - low + 1) * C, RowOf<F>(inside));
            extend(row_, strip_.first, low, high, strip_.last);
        }
        strip_.template apply<C>(row_, out);
    }

    void copyTaps(int row, int x) {
        F* to = row_;
        for (int i = 0; i < strip_.pixels; ++i) {
            const int first = spec_.firstTap(spec_.x, tile_.offset.x + x + i);
            for (int t = 0; t < spec_.x.taps; ++t) {
                T pixel[C];
                std::memcpy(pixel, tile_.source(row, tile_.columns(first + t), pixelBytes), pixelBytes);
                for (int c = 0; c < C; ++c) *to++ = F(pixel[c]);
            }
        }
    }

    // Where the taps of a single pixel fill a strip, they go to the caller's buffer.
    void runPixels() {
        F* sums = reinterpret_cast<F*>(tile_.buffer + (-reinterpret_cast<uintptr_t>(tile_.buffer) & (sizeof(F) - 1)));
        for (int x = 0; x < tile_.size.width; ++x) {
            const int position = tile_.offset.x + x, first = spec_.firstTap(spec_.x, position);
            const int low = tile_.columns(first), high = tile_.columns(first + spec_.x.taps - 1);
            for (int y = 0; y < tile_.size.height; ++y) {
                sumSource(y, low, high, sums);
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

// A function of its own, so that halving needs no large frame.
template <class T, int C>
[[gnu::noinline]] void resizeByWeights(const ResizeTile& tile) {
    const DefaultFloatControl control;
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
            if (halves(call.spec)) return Halver<T, L::channels, Ties::Even>::run(call);
        resizeByWeights<T, L::channels>(call);
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
