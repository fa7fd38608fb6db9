// geometry/resize_whole.h: the vertical pass of 8u where all sums are exact, in 16-bit numbers.
//
// Weights of whole 2^-n, as cubic and linear have at half and at double size, leave nothing to round before the end: any
// arithmetic gives what single precision does. Sums are kept less 128 times the weights' sum, so that they have 16 bits.
#pragma once

#include "geometry/resize_rows.h"

#if defined(__AVX512BW__)

namespace kvri {

// What sums are less than they should be.
inline int lessThanWhole(const ResizeAxis& a) { return 128 << a.wholeBits; }

// Some destination rows: weights of source rows j and j + 1 for each of them that uses this pair.
class WholeGroup {
    static constexpr int kMostPairs = 64;

    uint64_t used_[kGroupRows] = {};        // bit j: pair j, by this destination row
    int32_t pair_[kMostPairs][kGroupRows];  // of bytes, twice
    const uint8_t* row_[kMostPairs + 1];
    int rows_, sources_;
    uint16_t begin_;

public:
    template <class RowAt>
    WholeGroup(const ResizeAxis& y, const TapsOf<float>& of, int position, int rows, RowAt rowAt) : rows_(rows), begin_(uint16_t(-lessThanWhole(y))) {
        const int first = of.first(position), end = of.first(position + rows - 1) + y.taps;
        sources_ = end - first;
        for (int j = 0; j <= sources_; ++j) row_[j] = rowAt(std::min(first + j, end - 1));
        for (int r = 0; r < rows; ++r) {
            const int begin = of.first(position + r) - first;
            uint16_t pair[kWholeTaps / 2];
            wholePairs(of.weights(position + r), y, pair);
            for (int t = 0; t < y.taps; t += 2) {
                used_[r] |= uint64_t(1) << (begin + t);
                pair_[begin + t][r] = int32_t(pair[t / 2] * 0x10001u);
            }
        }
    }

    // The most rows that a group may have.
    static int rowsWithin(const TapsOf<float>& of, int position, int rows) { return of.rowsWithin(position, rows, kMostPairs); }

    // Row r of the sums lies at out + r * stride. Writes up to a whole block behind the last sample.
    void sum(ptrdiff_t samples, int16_t* out, ptrdiff_t stride) const {
        ptrdiff_t i = 0;
        for (; samples - i >= kVectorBytes; i += kVectorBytes) block(i, out + i, stride, [](const uint8_t* p) KVRI_INLINE { return load<Bytes<>>(p); });
        if (i < samples) block(i, out + i, stride, [=](const uint8_t* p) KVRI_INLINE { return loadPart<Bytes<>>(p, samples - i); });
    }

private:
    static void wholePairs(const float* weight, const ResizeAxis& y, uint16_t (&pair)[kWholeTaps / 2]) {
        using Eight = Vec<float, 32>;
        const auto w = loadPart<Eight>(reinterpret_cast<const uint8_t*>(weight), y.taps * ptrdiff_t(sizeof(float)));
        const __m128i bytes = _mm256_cvtepi32_epi8((__m256i)towardZero(w * float(1 << y.wholeBits)));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(pair), bytes);
    }

    template <class Load>
    KVRI_INLINE void block(ptrdiff_t i, int16_t* out, ptrdiff_t stride, Load loadFrom) const {
        using Words = Vec<uint16_t>;
        Words low[kGroupRows], high[kGroupRows];
        unroll<kGroupRows>([&](auto r) KVRI_INLINE { low[r] = high[r] = splat<Words>(begin_); });
        for (int j = 0; j < sources_; ++j) {
            const auto a = loadedOnce(loadFrom(row_[j] + i)), b = loadedOnce(loadFrom(row_[j + 1] + i));
            const auto lowPairs = zipLow<1>(a, b), highPairs = zipHigh<1>(a, b);
            unroll<kGroupRows>([&](auto r) KVRI_INLINE {
                if (!(used_[r] >> j & 1)) return;
                const auto weights = (Bytes<>)splat<Vec<int32_t>>(pair_[j][r]);
                low[r] += (Words)multiplyPairsOfBytes(lowPairs, weights);
                high[r] += (Words)multiplyPairsOfBytes(highPairs, weights);
            });
        }
        // From lanes' halves to the order of samples.
        const __m512i first = _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11), second = _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15);
        unroll<kGroupRows>([&](auto r) KVRI_INLINE {
            if (r >= rows_) return;
            store(out + r * stride, (Bytes<>)_mm512_permutex2var_epi64((__m512i)low[r], first, (__m512i)high[r]));
            store(out + r * stride + kVectorBytes / 2, (Bytes<>)_mm512_permutex2var_epi64((__m512i)low[r], second, (__m512i)high[r]));
        });
    }
};

}  // namespace kvri

#endif
