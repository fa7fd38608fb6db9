// core/table.h: any function of a byte, looked up in a table that lies in vectors.
#pragma once

#include "core/lanes.h"

namespace kvri {

class ByteTable {
    using V = Bytes<>;

public:
    // The values of op(vector of bytes).
    template <class Op>
    explicit ByteTable(const Op& op) {
        alignas(V) uint8_t value[256];
        for (int first = 0; first < 256; first += kVectorBytes)
            store(value + first, op(constant<V>([](int i) { return i; }) + uint8_t(first)));
        arrange(value);
    }

#if defined(__AVX512BW__)
    // Permutations find pairs of bytes, 64 at a time. Of a byte x, bit 7 tells which 64, bits 6 to 1 which pair, and bit 0
    // which of the two: it is moved, where it is not yet there, to the half of the pair from which the result is taken.
    V operator()(V v) const {
        using U = Vec<uint16_t>;
        const U x = (U)v, odd = x >> 8;
        const __m512i even = pairs(x, 1 << 7), uneven = pairs(odd, 1 << 7);
        const __m512i low = _mm512_mask_srli_epi16(even, bit(x, 1), even, 8);
        const __m512i high = _mm512_mask_slli_epi16(uneven, bit(odd, 1) ^ __mmask32(-1), uneven, 8);
        return (V)_mm512_mask_blend_epi8(0xAAAAAAAAAAAAAAAA, low, high);
    }

private:
    __m512i pair_[4];

    static __mmask32 bit(Vec<uint16_t> v, uint16_t b) {
        return _mm512_test_epi16_mask((__m512i)v, (__m512i)splat<Vec<uint16_t>>(b));
    }
    __m512i pairs(Vec<uint16_t> x, uint16_t half) const {
        const __m512i index = (__m512i)(x >> 1);
        return _mm512_mask_blend_epi16(bit(x, half), _mm512_permutex2var_epi16(pair_[0], index, pair_[1]),
                                       _mm512_permutex2var_epi16(pair_[2], index, pair_[3]));
    }
    void arrange(const uint8_t* value) { std::memcpy(pair_, value, sizeof pair_); }
#else
    // A shuffle finds one of 16 bytes, or 0 where its control is negative. Part k of the table is kept as the difference
    // from part k - 1; going down by 16 at a time, x meets differences until it is negative, and their sum is part x / 16.
    // Each half of the table has its own x, which is negative for the other half and stays so.
    V operator()(V v) const {
        V lower = stayNegative(v), upper = stayNegative(v ^ 128), result = V{};
        unroll<8>([&](auto k) KVRI_INLINE {
            result ^= shuffle(difference_[k], lower) ^ shuffle(difference_[8 + k], upper);
            lower -= 16, upper -= 16;
        });
        return result;
    }

private:
    V difference_[16];

    static V stayNegative(V v) { return v | (V)((Vec<int8_t>)v < 0); }

    void arrange(const uint8_t* value) {
        for (int k = 0; k < 16; ++k) {
            const auto part = load<Bytes<16>>(value + 16 * k);
            difference_[k] = broadcastLane<V>(k % 8 == 0 ? part : part ^ load<Bytes<16>>(value + 16 * (k - 1)));
        }
    }
#endif
};

}  // namespace kvri
