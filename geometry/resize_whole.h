// geometry/resize_whole.h: the vertical pass of 8u where all sums are exact, in 16-bit numbers.
//
// Weights of whole 2^-n, as cubic and linear have at half and at double size, leave nothing to round before the end: any
// arithmetic gives what single precision does. Sums are kept less 128 times the weights' sum, so that they have 16 bits.
#pragma once

#include "geometry/resize_samples.h"
#include "geometry/resize_spec.h"

#if defined(__AVX512BW__)

namespace kvri {

class WholeRow {
    const uint8_t* row_[kWholeTaps];
    Vec<int16_t> weight_[kWholeTaps / 2];  // pairs of bytes
    int pairs_;
    Vec<uint16_t> begin_;

public:
    template <class RowAt>
    WholeRow(const ResizeSpec& spec, int position, RowAt rowAt) : pairs_((spec.y.taps + 1) / 2), begin_(splat<Vec<uint16_t>>(uint16_t(-less(spec.y)))) {
        const ResizeAxis& y = spec.y;
        const int first = spec.firstTap(y, position);
        const auto weight = [&](int t) { return t < y.taps ? int(spec.weight<float>(y, position, t) * float(1 << y.wholeBits)) : 0; };
        for (int t = 0; t < 2 * pairs_; ++t) row_[t] = rowAt(first + std::min(t, y.taps - 1));
        for (int k = 0; k < pairs_; ++k) weight_[k] = splat<Vec<int16_t>>(int16_t((weight(2 * k) & 255) | weight(2 * k + 1) * 256));
    }

    // What sums are less than they should be.
    static int less(const ResizeAxis& a) { return 128 << a.wholeBits; }

    // Writes up to a whole block behind the last sample.
    void sum(ptrdiff_t samples, int16_t* out) const {
        ptrdiff_t i = 0;
        for (; samples - i >= kVectorBytes; i += kVectorBytes) block(i, out + i, [](const uint8_t* p) KVRI_INLINE { return load<Bytes<>>(p); });
        if (i < samples) block(i, out + i, [=](const uint8_t* p) KVRI_INLINE { return loadPart<Bytes<>>(p, samples - i); });
    }

private:
    template <class Load>
    KVRI_INLINE void block(ptrdiff_t i, int16_t* out, Load loadFrom) const {
        using Words = Vec<uint16_t>;
        Words low = begin_, high = begin_;
        for (int k = 0; k < pairs_; ++k) {
            const auto a = loadedOnce(loadFrom(row_[2 * k] + i)), b = loadedOnce(loadFrom(row_[2 * k + 1] + i));
            low += (Words)multiplyPairsOfBytes(zipLow<1>(a, b), (Bytes<>)weight_[k]);
            high += (Words)multiplyPairsOfBytes(zipHigh<1>(a, b), (Bytes<>)weight_[k]);
        }
        // From lanes' halves to the order of samples.
        const __m512i first = _mm512_setr_epi64(0, 1, 8, 9, 2, 3, 10, 11), second = _mm512_setr_epi64(4, 5, 12, 13, 6, 7, 14, 15);
        store(out, (Bytes<>)_mm512_permutex2var_epi64((__m512i)low, first, (__m512i)high));
        store(out + kVectorBytes / 2, (Bytes<>)_mm512_permutex2var_epi64((__m512i)low, second, (__m512i)high));
    }
};

}  // namespace kvri

#endif
