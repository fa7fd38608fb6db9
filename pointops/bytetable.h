// pointops/bytetable.h: bytes through a table of 256 bytes, a vector at a time.
//
// AVX-512: the table is 128 words of an entry and the one 128 further on, in four registers. The low seven bits of a byte
// find its word - two permutations and a choice -, the eighth the half of it. Even and odd bytes are looked up apart; the
// odd ones in words with their halves exchanged, so that blends alone bring both together.
//
// Other builds: sixteen shuffles of 16 entries. A shuffle gives 0 where bit 7 of its control is set: with x + 16 j, saturated,
// entry row h of the lower half answers in the steps 0 to 7 - h, and the exclusive or of these rows is its own. The upper
// half is the same for x ^ 128.
#pragma once

#include "pointops/channels.h"

namespace kvri {

class ByteTable {
#if defined(__AVX512BW__)
    using V = Bytes<64>;
    V even_[4], odd_[4];

    // Word i is byte i of `low`, then byte i of `high`.
    static void pair(V low, V high, V& first, V& second) {
        const V a = zipLow<1>(low, high), b = zipHigh<1>(low, high);
        first = (V)_mm512_permutex2var_epi64((__m512i)a, _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11), (__m512i)b);
        second = (V)_mm512_permutex2var_epi64((__m512i)a, _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15), (__m512i)b);
    }

    // Of each word the low seven bits.
    static V lookUp(const V (&words)[4], V index) {
        const __m512i i = (__m512i)index;
        const __mmask32 bit6 = _mm512_test_epi16_mask(i, _mm512_set1_epi16(64));
        return (V)_mm512_mask_blend_epi16(bit6, _mm512_permutex2var_epi16((__m512i)words[0], i, (__m512i)words[1]),
                                          _mm512_permutex2var_epi16((__m512i)words[2], i, (__m512i)words[3]));
    }

public:
    ByteTable() = default;
    explicit ByteTable(const uint8_t* table) {
        const V a = load<V>(table), b = load<V>(table + 64), c = load<V>(table + 128), d = load<V>(table + 192);
        pair(a, c, even_[0], even_[1]);
        pair(b, d, even_[2], even_[3]);
        pair(c, a, odd_[0], odd_[1]);
        pair(d, b, odd_[2], odd_[3]);
    }

    // Also given the bytes one place further on, which may be had by a load.
    V operator()(V x, V next) const {
        const V even = lookUp(even_, x), odd = lookUp(odd_, next);
        const V lower = blendWhere<V>([](int i) { return i % 2 == 0; }, even, odd);
        const V upper = blendWhere<V>([](int i) { return i % 2 == 0; }, odd, even);
        const V swap = constant<V>([](int i) { return i % 16 ^ 1; });
        return (V)_mm512_mask_shuffle_epi8((__m512i)lower, _mm512_movepi8_mask((__m512i)x), (__m512i)upper, (__m512i)swap);
    }
    V operator()(V x) const { return (*this)(x, (V)((Vec<uint16_t>)x >> 8)); }
#else
    using V = Bytes<>;
    V lower_[8], upper_[8];

    static void prepare(const uint8_t* table, V (&step)[8]) {
        V above{};
        for (int row = 7; row >= 0; --row) {
            const V entries = broadcastLane<V>(load<Bytes<16>>(table + 16 * row));
            step[7 - row] = entries ^ above;
            above = entries;
        }
    }

public:
    ByteTable() = default;
    explicit ByteTable(const uint8_t* table) {
        prepare(table, lower_);
        prepare(table + 128, upper_);
    }

    V operator()(V x) const {
        V low = x, high = x ^ 128, r = shuffle(lower_[0], low) ^ shuffle(upper_[0], high);
        unroll<7>([&](auto step) KVRI_INLINE {
            low = addSaturated(low, splat<V>(16));
            high = addSaturated(high, splat<V>(16));
            r ^= shuffle(lower_[step + 1], low) ^ shuffle(upper_[step + 1], high);
        });
        return r;
    }
    V operator()(V x, V) const { return (*this)(x); }
#endif
};

// The next bytes of a vector come by a load, which must not reach beyond the row.
inline void mapBytes(const ByteTable& map, const uint8_t* src, uint8_t* dst, ptrdiff_t bytes) {
    const ByteTable table = map;
    forEachBlock<kVectorBytes, 1, 2>(bytes, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
        const auto x = loadedOnce(block.template load<Bytes<>>(src + first, n));
        const auto next = block.template load<Bytes<>>(src + first + 1, n - 1);
        block.store(dst + first, table(x, next), n);
    });
}

template <class L>
void mapThrough(const ByteTable (&tables)[L::colours], const Images& images) {
    images.eachRow<L::channels>([&](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE {
        if constexpr (L::channels == 1) mapBytes(tables[0], s, d, pixels);
        else mapChannels<Kvr8u, L>([&](auto x, auto c) KVRI_INLINE { return tables[c](x); }, s, d, pixels);
    });
}

}  // namespace kvri
