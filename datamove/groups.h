// datamove/groups.h: pixels of 3, 6 and 12 bytes, worked on in groups of twelve bytes, one in each lane of 16.
//
// Four groups are three lanes of a row. A shuffle turns each group's bytes within its lane, so that they lie where one or
// two of the three lanes want them; then the groups close ranks by blends alone.
#pragma once

#include "core/simd.h"

namespace kvri {

// Which byte of group k, of four, place i of its lane holds; from 12 on none.
constexpr int groupByte(int k, int i) { return (i + 4 * k) & 15; }

// 16 bytes from `low`, and where the vector has two lanes 16 from `high`.
template <class V>
KVRI_INLINE inline V loadLanes(const uint8_t* low, [[maybe_unused]] const uint8_t* high) {
    if constexpr (sizeof(V) == 16) return load<V>(low);
#if defined(__AVX2__)
    // A load that repeats and a blend: an insertion would compete with the shuffles.
    else return halves<0, 1>((V)_mm256_castsi128_si256(load<__m128i>(low)), loadedOnce(broadcastLane<V>(load<Bytes<16>>(high))));
#endif
}

// The low lanes of four vectors of groups become the first 48 bytes, the high lanes the next 48.
template <class V>
KVRI_INLINE inline void closeRanks(const V (&group)[4], V (&packed)[3]) {
    unroll<3>([&](auto index) KVRI_INLINE {
        constexpr int j = index;
        packed[j] = blendWhere<V>([](int i) { return (16 * j + i % 16) / 12 == j; }, group[j], group[j + 1]);
    });
    if constexpr (sizeof(V) == 32) {
        const V a = packed[0], b = packed[1], c = packed[2];
        packed[0] = halves<0, 0>(a, b);
        packed[1] = halves<0, 1>(c, a);
        packed[2] = halves<1, 1>(b, c);
    }
}

}  // namespace kvri
