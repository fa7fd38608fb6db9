// geometry/resize_halve.h: integers at half the size: means of 2 x 2 pixels, which Linear and Super have in common.
//
// The sum of four samples is exact, and so is what the two passes in single precision would give; only ties differ.
#pragma once

#include "core/lanes.h"
#include "geometry/resize_apply.h"

namespace kvri {

enum class Ties { Up, Even };

inline bool halves(const ResizeSpec& spec) {
    return spec.x.reducedSource == 2 && spec.x.reducedDestination == 1 && spec.y.reducedSource == 2 && spec.y.reducedDestination == 1;
}

template <class T, int C, Ties ties>
class Halver {
    static constexpr int size = sizeof(T);
    // Source bytes that a lane takes: whole pairs of pixels.
    static constexpr int laneBytes = C == 3 ? 12 : 16;

    template <class V>
    static V mean(V sum) {
        if constexpr (ties == Ties::Up) return (sum + 2) >> 2;
        else return (sum + 1 + ((sum >> 2) & 1)) >> 2;
    }

    // Bytes of a lane such that samples to be added are neighbours; C3 begins `skipped` bytes into the lane.
    template <int W, int skipped>
    static Bytes<W> pairUp(Bytes<W> v) {
        if constexpr (C == 1) return v;
        else
            return shuffle(v, constant<Bytes<W>>([](int i) {
                const int sample = i % 16 / size, pair = sample / 2, pixel = pair / C * 2 + sample % 2;
                const int byte = (pixel * C + pair % C) * size + i % size;
                return byte < laneBytes ? byte + skipped : 128;
            }));
    }

    template <class V>
    static auto addPairs(V v) {
        if constexpr (size == 1) return multiplyPairsOfBytes(v, splat<V>(1));
        else return multiplyPairs((Vec<int16_t, sizeof(V)>)v, splat<Vec<int16_t, sizeof(V)>>(1));
    }

    // 16u as 16s, each 2^15 less.
    template <class V>
    static V centred(V v) {
        if constexpr (std::is_same_v<T, uint16_t>) return v ^ (V)splat<Vec<uint16_t, sizeof(V)>>(0x8000);
        else return v;
    }

    // Lanes of both rows from p and q on, `stride` bytes apart.
    template <int W, int stride, int skipped>
    static auto means(const uint8_t* p, const uint8_t* q) {
        const auto rows = [&](const uint8_t* row) {
            const auto v = [&]() KVRI_INLINE {
                if constexpr (stride == 16) return load<Bytes<W>>(row);
                else return fromLanes<W>([&](int l) KVRI_INLINE { return load<Bytes<16>>(row + l * stride); });
            }();
            return addPairs(pairUp<W, skipped>(centred(v)));
        };
        auto sum = rows(p) + rows(q);
        if constexpr (std::is_same_v<T, uint16_t>) sum += 4 * 0x8000;
        return mean(sum);
    }

    // `bytes<W>` bytes of the destination.
    template <int W>
    static constexpr int bytes = W / 16 * laneBytes;

    template <int W>
    static void block(const uint8_t* p, const uint8_t* q, uint8_t* dst) {
        constexpr int lanes = W / 16;
        if constexpr (C == 3) {  // the second of each two lanes is loaded from 4 bytes before, to stay inside
            const auto v = (Bytes<W>)narrow<T>(means<W, 24, 0>(p, q), means<W, 24, 4>(p + 8, q + 8));
            const auto packed = shuffle(v, constant<Bytes<W>>([](int i) { return i % 16 < 6 ? i % 16 : i % 16 < 12 ? i % 16 + 2 : 128; }));
            if constexpr (lanes == 1) storePart(dst, packed, 12);
            else storePart(dst, permute4(packed, [](int i) { return i < 3 * (W / 16) ? i / 3 * 4 + i % 3 : 3; }), bytes<W>);
        } else {
            const auto v = (Bytes<W>)narrow<T>(means<W, 16, 0>(p, q), means<W, 16, 0>(p + W, q + W));
            if constexpr (lanes == 1) store(dst, v);
            else store(dst, permute4(v, [](int i) { return (i / 2 % (W / 16) * 2 + i / 2 / (W / 16)) * 2 + i % 2; }));
        }
    }

    // Where the last block would reach beyond the row, it is moved back over what is there already.
    template <int W>
    static void row(const uint8_t* p, const uint8_t* q, uint8_t* dst, ptrdiff_t n) {
        ptrdiff_t i = 0;
        for (; n - i >= bytes<W>; i += bytes<W>) block<W>(p + 2 * i, q + 2 * i, dst + i);
        if (i == n) return;
        i = n - bytes<W>;
        block<W>(p + 2 * i, q + 2 * i, dst + i);
    }

    static void samples(const uint8_t* p, const uint8_t* q, uint8_t* dst, ptrdiff_t n) {
        for (ptrdiff_t i = 0; i < n / size; ++i) {
            const ptrdiff_t left = (i / C * 2 * C + i % C) * size;
            const auto at = [](const uint8_t* p) {
                T t;
                std::memcpy(&t, p, size);
                return int(t);
            };
            const T result = T(mean(at(p + left) + at(p + left + C * size) + at(q + left) + at(q + left + C * size)));
            std::memcpy(dst + i * size, &result, size);
        }
    }

public:
    static void run(const ResizeTile& tile) {
        constexpr ptrdiff_t pixelBytes = C * size;
        const ptrdiff_t n = tile.size.width * pixelBytes;
        for (int y = 0; y < tile.size.height; ++y) {
            const int x = 2 * tile.offset.x, upper = 2 * (tile.offset.y + y);
            const uint8_t *p = tile.source(upper, x, pixelBytes), *q = tile.source(upper + 1, x, pixelBytes);
            uint8_t* dst = tile.destination(y, 0, pixelBytes);
            if (n >= bytes<kVectorBytes>) row<kVectorBytes>(p, q, dst, n);
            else if (n >= bytes<kShuffleBytes>) row<kShuffleBytes>(p, q, dst, n);
            else if (n >= bytes<16>) row<16>(p, q, dst, n);
            else samples(p, q, dst, n);
        }
    }
};

}  // namespace kvri
