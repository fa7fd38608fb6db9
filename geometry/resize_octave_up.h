// geometry/resize_octave_up.h: exactly twice the size by weights of single precision.
//
// Destination pixels have one of two sets of weights, by turns, and two neighbours have the same taps or the second one's lie
// a pixel farther. So pairs of pixels are summed along from one load of each tap, and pairs of rows from one load of each
// resized row. Operations and their order are those of any ratio, columns first.
#pragma once

#include "geometry/resize_apply.h"
#include "geometry/resize_pick.h"
#include "geometry/resize_rows.h"

namespace kvri {

template <class T, int C, int Taps>
class OctaveUp {
    using V = Vec<float>;
    static constexpr int lanes = kVectorBytes / 4;
    static constexpr int most = 512 / C / 2 * 2;  // destination columns of a strip
    static constexpr ptrdiff_t pixelBytes = C * sizeof(T);

    // Weights of a tile's even and odd positions, counted from its first.
    struct Phases {
        V weight[2][Taps];
        int shift;  // of the odd ones' taps

        Phases(const ResizeSpec& spec, const ResizeAxis& a, int position) : shift(1 - position % 2) {
            for (int i : {0, 1})
                for (int t = 0; t < Taps; ++t) weight[i][t] = splat<V>(spec.weight<float>(a, position + i, t));
        }
    };

    const ResizeTile& tile_;
    const Phases along_, across_;
    alignas(64) float lines_[2][(most / 2 + Taps + 1) * C + 2 * lanes];  // source rows
    alignas(64) float ring_[Taps + 1][most * C + 4 * lanes];            // such rows resized along

public:
    explicit OctaveUp(const ResizeTile& tile)
        : tile_(tile), along_(tile.spec, tile.spec.x, tile.offset.x), across_(tile.spec, tile.spec.y, tile.offset.y) {}

    void run() {
        for (int x = 0; x < tile_.size.width; x += most) {
            const int pixels = std::min(most, tile_.size.width - x);
            if (most * pixelBytes % kVectorBytes == 0 && tile_.streamsVectors()) strip<StreamedRowOf<T>>(x, pixels);
            else strip<RowOf<T>>(x, pixels);
        }
    }

private:
    template <class Row>
    void strip(int x, int pixels) {
        const ResizeSpec& spec = tile_.spec;
        const KvriPoint offset = tile_.offset;
        const KvriSize size = tile_.size;
        const int first = spec.firstTap(spec.x, offset.x + x), top = spec.firstTap(spec.y, offset.y);
        const int columns = (pixels - 1) / 2 + Taps + along_.shift, rows = (size.height - 1) / 2 + Taps + across_.shift;
        const auto fetch = [&](int row) { fetchRow<T, C>(tile_, top + row, first, first + columns - 1, lines_[row % 2]); };
        fetch(0);
        for (int y = 0, filled = 0; y < size.height; y += 2) {
            for (; filled < std::min(y / 2 + Taps + across_.shift, rows); ++filled) {
                resizeRow(lines_[filled % 2], (pixels + 1) / 2 * C, ring_[filled % (Taps + 1)]);
                if (filled + 1 < rows) fetch(filled + 1);  // well before its use
            }
            if (size.height - y == 1) sumRows<1, 0>(y / 2, pixels * C, Row(tile_.destination(y, x, pixelBytes)), Row(nullptr));
            else {
                const Row even(tile_.destination(y, x, pixelBytes)), odd(tile_.destination(y + 1, x, pixelBytes));
                if (across_.shift) sumRows<2, 1>(y / 2, pixels * C, even, odd);
                else sumRows<2, 0>(y / 2, pixels * C, even, odd);
            }
        }
    }

    void resizeRow(const float* line, int samples, float* out) const {
        if (along_.shift) sumColumns<1>(line, samples, out);
        else sumColumns<0>(line, samples, out);
    }

    // Sums by both sets of weights from taps that `loadTap` gives; the second set's lie `shift` farther.
    template <int sets, int shift, class Load>
    KVRI_INLINE static void sumBoth(V (&sums)[2], const Phases& phases, Load loadTap) {
        unroll<Taps + shift>([&](auto j) KVRI_INLINE {
            const V v = loadedOnce(loadTap(j));
            unroll<sets>([&](auto i) KVRI_INLINE {
                constexpr int tap = j - i * shift;
                if constexpr (tap >= 0 && tap < Taps) {
                    const V product = v * phases.weight[i][tap];
                    sums[i] = loadedOnce(tap == 0 ? product : sums[i] + product);
                }
            });
        });
    }

    template <int shift>
    void sumColumns(const float* line, int samples, float* out) const {
        constexpr int taken = lanes / C * C;  // whole pixels of a vector
        for (int s = 0; s < samples; s += taken) {
            V sums[2];
            sumBoth<2, shift>(sums, along_, [&](int t) KVRI_INLINE { return load<V>(line + s + t * C); });
            store(out + 2 * s, interleavedPixels<C, 0>(sums[0], sums[1]));
            store(out + 2 * s + lanes, interleavedPixels<C, 1>(sums[0], sums[1]));
        }
    }

    // One or two destination rows from the ring's rows from `row` on.
    template <int count, int shift, class Row>
    void sumRows(int row, ptrdiff_t samples, Row even, Row odd) const {
        const float* rows[Taps + shift];
        for (int j = 0; j < Taps + shift; ++j) rows[j] = ring_[(row + j) % (Taps + 1)];
        const auto sum = [&](ptrdiff_t i, auto put) KVRI_INLINE {
            V sums[2];
            sumBoth<count, shift>(sums, across_, [&](int j) KVRI_INLINE { return load<V>(rows[j] + i); });
            unroll<count>([&](auto r) KVRI_INLINE { put(r, sums[r]); });
        };
        writeRows<count, V>(samples, sum, [&](int r) KVRI_INLINE { return r == 0 ? even : odd; });
    }
};

}  // namespace kvri
