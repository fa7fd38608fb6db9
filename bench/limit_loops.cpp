// bench/limit_loops.cpp: loops that read R and write W vectors per step. Compiled once per processor level.
#include <immintrin.h>

#include <cstring>

#include "bench/limit.h"

namespace bench {
namespace {

#if defined(__AVX512F__)
constexpr int kBytes = 64;
#elif defined(__AVX2__)
constexpr int kBytes = 32;
#else
constexpr int kBytes = 16;
#endif
typedef long long Vector __attribute__((vector_size(kBytes)));

template <bool nonTemporal>
inline void put(uint8_t* p, Vector v) {
    if constexpr (!nonTemporal) std::memcpy(p, &v, kBytes);
#if defined(__AVX512F__)
    else _mm512_stream_si512(reinterpret_cast<__m512i*>(p), (__m512i)v);
#elif defined(__AVX2__)
    else _mm256_stream_si256(reinterpret_cast<__m256i*>(p), (__m256i)v);
#else
    else _mm_stream_si128(reinterpret_cast<__m128i*>(p), (__m128i)v);
#endif
}

// What does not fill a last step is left out of the larger side: fewer than R + W vectors.
template <int R, int W, bool nonTemporal>
void move(const Traffic& t, int times) {
    constexpr int unrolled = R + W <= 2 ? 4 : R + W <= 4 ? 2 : 1;
    const ptrdiff_t steps = (W ? t.written / W : t.read / R) / (kBytes * unrolled);
    Vector unused{};
    while (times-- > 0) {
        const uint8_t* s = t.src;
        uint8_t* d = t.dst;
        for (ptrdiff_t i = 0; i < steps; ++i) {
#pragma GCC unroll 4
            for (int u = 0; u < unrolled; ++u) {
                Vector v{};
#pragma GCC unroll 16
                for (int r = 0; r < R; ++r, s += kBytes) {
                    Vector x;
                    std::memcpy(&x, s, kBytes);
                    v ^= x;
                }
#pragma GCC unroll 16
                for (int w = 0; w < W; ++w, d += kBytes) put<nonTemporal>(d, v);
                if (W == 0) unused ^= v;
            }
        }
        if (nonTemporal) _mm_sfence();
        asm volatile("" : : "x"(unused), "r"(t.dst) : "memory");
    }
}

template <int R, int W>
bool pick(const Traffic& t, Movers& movers) {
    if (t.read * W != t.written * R) return false;
    movers = {move<R, W, false>, move<R, W, true>};
    return true;
}

template <int R, int... W>
bool pickAmong(const Traffic& t, Movers& movers) {
    return (pick<R, W>(t, movers) || ...);
}

}  // namespace

Movers KVRI_BENCH_LOOPS(const Traffic& t) {
    Movers movers{};
    pick<0, 1>(t, movers) || pick<1, 0>(t, movers) || pickAmong<1, 1, 2, 3, 4, 6, 8, 12, 16>(t, movers) ||
        pickAmong<2, 1, 3>(t, movers) || pickAmong<3, 1, 2, 4>(t, movers) || pickAmong<4, 1, 3>(t, movers) ||
        pickAmong<5, 4, 3, 2>(t, movers) || pickAmong<7, 6, 3>(t, movers) || pickAmong<8, 1, 7>(t, movers) ||
        pickAmong<9, 8>(t, movers) || pickAmong<13, 12>(t, movers) || pickAmong<17, 16>(t, movers);
    return movers;
}

}  // namespace bench
