// geometry/resize_double.h: Linear at twice the size. Weights are 1/4 and 3/4 everywhere: a source pixel's products serve two
// destination columns, and those of a resized row two destination rows. Operations and their order are those of any ratio.
#pragma once

#include "geometry/resize_apply.h"
#include "geometry/resize_pick.h"
#include "geometry/resize_rows.h"

namespace kvri {

inline bool doubles(const ResizeTile& tile) {
    return tile.spec.method == kvrInterpLinear && tile.spec.doubles() && tile.offset.x % 2 == 0;
}

template <class T, int C>
class Doubler {
    using V = Vec<float>;
    static constexpr int lanes = kVectorBytes / 4;
    static constexpr int taken = lanes / C * C;  // samples of a vector: whole pixels
    static constexpr int most = 256 / C;         // source pixels of a strip
    static constexpr ptrdiff_t pixelBytes = C * sizeof(T);

    const ResizeTile& tile_;
    alignas(64) float rows_[2][C + most * C + 2 * lanes];  // two source rows: pixels and one on either side
    alignas(64) float upper_[2 * most * C / taken * lanes + 4 * lanes];  // the source row above, resized along, as it came in vectors

public:
    explicit Doubler(const ResizeTile& tile) : tile_(tile) {}

    void run() {
        if (taken == lanes && tile_.streamsVectors()) strips<true>();
        else strips<false>();
    }

private:
    template <bool streams>
    void strips() {
        const int end = tile_.offset.x + tile_.size.width;
        for (int x = tile_.offset.x; x < end; x += 2 * most) strip<streams>(x / 2, std::min(2 * most, end - x));
    }

    // `width` destination columns from source column `first` on.
    template <bool streams>
    void strip(int first, int width) {
        const int columns = (width + 1) / 2, x = 2 * first - tile_.offset.x, begin = tile_.offset.y, end = begin + tile_.size.height;
        const int top = (begin + 1) / 2 - 1;  // the upper source row of the first destination row
        fetch(top, first, columns);
        fetch(top + 1, first, columns);
        resizeRow(top, columns, [&](int s, V a, V b) KVRI_INLINE { store(upper(s), a), store(upper(s) + lanes, b); });
        for (int source = top; 2 * source < end - 1; ++source) {
            if (2 * source < end - 3) fetch(source + 2, first, columns);  // well before its use
            const int y = 2 * source + 1 - begin;  // of the two destination rows between this source row and the next
            const RowOf<T> odd(tile_.destination(y, x, pixelBytes)), even(tile_.destination(y + 1, x, pixelBytes));
            const int samples = width * C;
            if (y < 0) resizeRow(source + 1, columns, [&](int s, V a, V b) KVRI_INLINE { between<streams, false, true>(s, a, b, odd, even, samples); });
            else if (y + 1 == tile_.size.height) resizeRow(source + 1, columns, [&](int s, V a, V b) KVRI_INLINE { between<streams, true, false>(s, a, b, odd, even, samples); });
            else resizeRow(source + 1, columns, [&](int s, V a, V b) KVRI_INLINE { between<streams, true, true>(s, a, b, odd, even, samples); });
        }
    }

    // Two vectors a, b of a source row below upper_, which they replace.
    template <bool streams, bool hasOdd, bool hasEven>
    KVRI_INLINE void between(int s, V a, V b, const RowOf<T>& odd, const RowOf<T>& even, int samples) {
        const V c = load<V>(upper(s)), d = load<V>(upper(s) + lanes);
        if (hasOdd) put<streams>(odd, s, c * 0.75f + a * 0.25f, d * 0.75f + b * 0.25f, samples - s);
        if (hasEven) put<streams>(even, s, c * 0.25f + a * 0.75f, d * 0.25f + b * 0.75f, samples - s);
        store(upper(s), a);
        store(upper(s) + lanes, b);
    }

    float* upper(int s) { return upper_ + s / taken * lanes; }

    template <bool streams>
    KVRI_INLINE static void put(const RowOf<T>& row, int at, V a, V b, int samples) {
        const auto write = [&](ptrdiff_t behind, Bytes<> v) KVRI_INLINE {
            uint8_t* p = row.p + ptrdiff_t(at) * ptrdiff_t(sizeof(T)) + behind;
            if constexpr (streams) stream(p, v);
            else store(p, v);
        };
        if (samples >= 2 * lanes) {
            if constexpr (sizeof(T) == 4) write(0, (Bytes<>)a), write(kVectorBytes, (Bytes<>)b);
            else write(0, packedWords<T>(toNearest(a), toNearest(b)));
        } else if (samples > lanes) {
            row.one(at, a);
            row.part(at + lanes, b, samples - lanes);
        } else {
            row.part(at, a, samples);
        }
    }

    void fetch(int row, int first, int columns) {
        fetchRow<T, C>(tile_, row, first - 1, first + columns, rows_[row & 1]);
    }

    // give(s, samples from 2 * taken * n on in two vectors): what is there behind 2 * taken of them is given again.
    template <class Give>
    KVRI_INLINE void resizeRow(int row, int columns, Give give) const {
        const float* p = rows_[row & 1];
        for (int s = 0; s < columns * C; s += taken) {
            const V middle = load<V>(p + s + C) * 0.75f;
            const V even = load<V>(p + s) * 0.25f + middle, odd = middle + load<V>(p + s + 2 * C) * 0.25f;
            give(2 * s, interleavedPixels<C, 0>(even, odd), interleavedPixels<C, 1>(even, odd));
        }
    }
};

}  // namespace kvri
