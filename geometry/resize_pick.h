// geometry/resize_pick.h: numbers picked from one or two vectors.
#pragma once

#include <algorithm>
#include <array>

#include "core/lanes.h"

namespace kvri {

// Picks the numbers at 0 <= n < Reach vectors from an address, n told by a vector of codes.
template <class F>
struct Picker {
    using V = Vec<F>;
    using Code = std::conditional_t<sizeof(F) == 4, uint32_t, uint64_t>;
    using Codes = Vec<Code>;
    static constexpr int lanes = kVectorBytes / sizeof(F);

    static constexpr Code code(uint32_t n) {
#if defined(__AVX512BW__)
        return n;
#elif defined(__AVX2__)
        if constexpr (sizeof(F) == 4) return n;
        else return Code(2 * n) | Code(2 * n + 1) << 32;
#else
        if constexpr (sizeof(F) == 4) return n * 0x04040404u + 0x03020100u;
        else return n * 0x0808080808080808u + 0x0706050403020100u;
#endif
    }

    static Codes codes(Codes n) {
        if constexpr (kVectorBytes > 16) return n;
        else return n * uint32_t(0x04040404) + uint32_t(0x03020100);
    }

    // What a number's code gains with it.
    static constexpr Code step(int n) { return code(uint32_t(n)) - code(0); }

    // From a, and b behind it if Reach is 2.
    template <int Reach>
    static V pick(V a, V b, Codes codes) {
#if defined(__AVX512BW__)
        if constexpr (sizeof(F) == 4) {
            if constexpr (Reach == 1) return (V)_mm512_permutexvar_ps((__m512i)codes, (__m512)a);
            else return (V)_mm512_permutex2var_ps((__m512)a, (__m512i)codes, (__m512)b);
        } else {
            if constexpr (Reach == 1) return (V)_mm512_permutexvar_pd((__m512i)codes, (__m512d)a);
            else return (V)_mm512_permutex2var_pd((__m512d)a, (__m512i)codes, (__m512d)b);
        }
#elif defined(__AVX2__)
        const __m256 low = _mm256_permutevar8x32_ps((__m256)a, (__m256i)codes);
        if constexpr (Reach == 1) return (V)low;
        else {
            const __m256 high = _mm256_permutevar8x32_ps((__m256)b, (__m256i)codes);
            if constexpr (sizeof(F) == 4) return (V)_mm256_blendv_ps(low, high, (__m256)_mm256_slli_epi32((__m256i)codes, 28));
            else return (V)_mm256_blendv_pd((__m256d)low, (__m256d)high, (__m256d)_mm256_slli_epi64((__m256i)codes, 28));
        }
#else
        if constexpr (Reach == 1) return (V)shuffle((Bytes<>)a, (Bytes<>)codes);
        else  // a control byte with its highest bit set gives 0
            return (V)(shuffle((Bytes<>)a, (Bytes<>)codes + uint8_t(0x70)) | shuffle((Bytes<>)b, (Bytes<>)codes - uint8_t(16)));
#endif
    }
};

// Pixels of an even and an odd vector alternately: the first vector of them, or the second.
template <int C, int half>
inline Vec<float> interleavedPixels(Vec<float> even, Vec<float> odd) {
    using Pick = Picker<float>;
    alignas(64) static constexpr auto codes = [] {
        std::array<uint32_t, Pick::lanes> a{};
        for (int i = 0; i < Pick::lanes; ++i) {
            const int sample = half * Pick::lanes + i, pixel = sample / C;
            a[i] = Pick::code(uint32_t(pixel % 2 * Pick::lanes + std::min(pixel / 2 * C + sample % C, Pick::lanes - 1)));
        }
        return a;
    }();
    return Pick::template pick<2>(even, odd, load<typename Pick::Codes>(codes.data()));
}

}  // namespace kvri
