// geometry/resize_lanes.h: pixels of several rows side by side.
//
// A pixel of three or four channels takes one lane; a vector holds one column of a group of rows. So the taps of a pixel are
// whole vectors, whatever the ratio. Three channels have a fourth number behind them that is never stored.
#pragma once

#include "geometry/resize_pick.h"
#include "geometry/resize_rows.h"

namespace kvri {

// Vector k gets lane k of all.
template <class V>
inline void transposeLanes([[maybe_unused]] V (&v)[kLanes]) {
#if defined(__AVX512BW__)
    const auto even = [](V a, V b) { return (V)_mm512_shuffle_f32x4((__m512)a, (__m512)b, 0x88); };
    const auto odd = [](V a, V b) { return (V)_mm512_shuffle_f32x4((__m512)a, (__m512)b, 0xDD); };
    const V a = even(v[0], v[1]), b = odd(v[0], v[1]), c = even(v[2], v[3]), d = odd(v[2], v[3]);
    v[0] = even(a, c), v[1] = even(b, d), v[2] = odd(a, c), v[3] = odd(b, d);
#elif defined(__AVX2__)
    const V a = v[0], b = v[1];
    v[0] = halves<0, 0>(a, b), v[1] = halves<1, 1>(a, b);
#endif
}

template <int lane, class V>
inline Bytes<16> laneOf(V v) {
#if defined(__AVX512BW__)
    return (Bytes<16>)_mm512_extracti32x4_epi32((__m512i)v, lane);
#elif defined(__AVX2__)
    return (Bytes<16>)_mm256_extracti128_si256((__m256i)v, lane);
#else
    return (Bytes<16>)v;
#endif
}

// What the vertical pass gives is put here, from pixel 0 on.
template <int C>
class LaneColumns {
    using V = Vec<float>;
    float* to_;

    // Pixels of three numbers, a lane each.
    KVRI_INLINE static void spread(const V (&v)[3], V (&out)[4]) {
        unroll<4>([&](auto k) KVRI_INLINE {
            if constexpr (k == 0 || k == 3) out[k] = Picker<float>::pick<1>(v[k == 0 ? 0 : 2], V{}, spreadCodes<k>());
            else out[k] = Picker<float>::pick<2>(v[k - 1], v[k], spreadCodes<k>());
        });
    }

    template <int k>
    static Picker<float>::Codes spreadCodes() {
        constexpr int n = Picker<float>::lanes, before = k == 0 ? 0 : (k - 1) * n;
        alignas(64) static constexpr auto codes = [] {
            std::array<uint32_t, n> a{};
            for (int i = 0; i < n; ++i) a[i] = Picker<float>::code(uint32_t((k * kLanes + i / 4) * 3 + std::min(i % 4, 2) - before));
            return a;
        }();
        return load<Picker<float>::Codes>(codes.data());
    }

public:
    static constexpr int block = C, least = C == 3 ? 3 : 1;

    explicit LaneColumns(float* to) : to_(to) {}

    template <class U>
    static U begin(int, ptrdiff_t) { return emptySum<U>(); }
    // Behind the last sample, up to a block is written.
    template <int vectors>
    KVRI_INLINE void put(ptrdiff_t i, const GroupSums<float, vectors>& sums, ptrdiff_t) const {
        constexpr int each = C == 3 ? 4 : vectors;
        V pixels[kGroupRows][each];
        unroll<kGroupRows>([&](auto r) KVRI_INLINE {
            if constexpr (C == 3) spread(sums.of[r], pixels[r]);
            else unroll<each>([&](auto u) KVRI_INLINE { pixels[r][u] = sums.of[r][u]; });
        });
        unroll<each>([&](auto u) KVRI_INLINE {
            V column[kLanes];
            unroll<kLanes>([&](auto r) KVRI_INLINE { column[r] = pixels[r][u]; });
            transposeLanes(column);
            unroll<kLanes>([&](auto k) KVRI_INLINE { store(to_ + (i / C + u * kLanes + k) * Picker<float>::lanes, column[k]); });
        });
    }
};

// Columns of some rows' pixels side by side; up to a vector's pixels more than there are.
template <int C>
void placeSideBySide(const float* rows, ptrdiff_t rowStride, int count, int pixels, float* to) {
    using Pick = Picker<float>;
    using V = Vec<float>;
    alignas(64) static constexpr auto lanesOfThree = [] {
        std::array<uint32_t, Pick::lanes> a{};
        for (int i = 0; i < Pick::lanes; ++i) a[i] = Pick::code(uint32_t(i / 4 * 3 + std::min(i % 4, 2)));
        return a;
    }();
    const auto codes = load<Pick::Codes>(lanesOfThree.data());
    for (int i = 0; i < pixels; i += kLanes) {
        V column[kLanes];
        unroll<kLanes>([&](auto r) KVRI_INLINE {
            column[r] = load<V>(rows + std::min<int>(r, count - 1) * rowStride + ptrdiff_t(i) * C);
            if constexpr (C == 3) column[r] = Pick::pick<1>(column[r], column[r], codes);
        });
        transposeLanes(column);
        unroll<kLanes>([&](auto k) KVRI_INLINE { store(to + ptrdiff_t(i + k) * Pick::lanes, column[k]); });
    }
}

// Sums of four pixels at a time, as samples of T in the group's rows.
template <class T, int C>
class LanePixels {
    static constexpr int perLane = 4 / sizeof(T), bytes = C * sizeof(T);
    uint8_t* const* row_;
    int rows_, pixels_;

    // Chunk k of the four pixels from i on: a lane is of a row.
    template <class V>
    KVRI_INLINE void putLanes(int i, V v) const {
        const int n = pixels_ - i;
        if (n <= 0) return;
        if constexpr (C == 3 && sizeof(T) < 4)
            v = (V)shuffle((Bytes<>)v, constant<Bytes<>>([](int k) {
                constexpr int size = sizeof(T);
                const int sample = k % 16 / size;
                return sample < 3 * perLane ? (sample / 3 * 4 + sample % 3) * size + k % size : 128;
            }));
        unroll<kLanes>([&](auto r) KVRI_INLINE {
            if (r >= rows_) return;
            uint8_t* p = row_[r] + ptrdiff_t(i) * bytes;
            if (n * bytes >= 16) store(p, laneOf<r>(v));  // of three channels, with a part of the next pixel, which follows
            else storePart(p, laneOf<r>(v), n * bytes);
        });
    }

public:
    LanePixels(uint8_t* const* row, int rows, int pixels) : row_(row), rows_(rows), pixels_(pixels) {}

    KVRI_INLINE void put(int i, const Vec<float> (&v)[4]) const {
        if constexpr (sizeof(T) == 4) {
            unroll<4>([&](auto k) KVRI_INLINE { putLanes(i + k, v[k]); });
        } else {
            using Narrow = std::conditional_t<sizeof(T) == 1, int16_t, T>;
            const auto low = narrow<Narrow>(toIntegers(v[0]), toIntegers(v[1])), high = narrow<Narrow>(toIntegers(v[2]), toIntegers(v[3]));
            if constexpr (sizeof(T) == 1) putLanes(i, narrow<uint8_t>(low, high));
            else putLanes(i, low), putLanes(i + 2, high);
        }
    }
};

}  // namespace kvri
