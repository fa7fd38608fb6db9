// pointops/log_exp.h: exp and ln of vectors, the same bits in every build: no fused multiplications, no estimates.
//
// Range reduction in two steps: W. J. Cody, W. Waite, Software Manual for the Elementary Functions, 1980. exp by a table of
// 2^(j/8) and a short polynomial: P. T. P. Tang, Table-driven implementation of the exponential function in IEEE
// floating-point arithmetic, ACM TOMS 15 (1989). The polynomials are minimax ones of their own. Of all 2^32 singles no
// result is more than one unit in the last place from the correctly rounded one.
#pragma once

#include <bit>

#include "core/lanes.h"

namespace kvri {

// ln 2 in two parts: a multiple of the first by an integer of 11 bits, or by one of 8 and an eighth, is exact.
constexpr float kLn2High = 0x1.62ep-1f, kLn2Low = 0x1.0bfbe8p-15f;

constexpr float kSmallExponent = 64;

// c[0] + c[1] v + c[2] v^2 ... of 2, 4 or 8 coefficients, by pairs: a short way from v to the sum (G. Estrin, 1960).
template <class V, class C, int N>
V polynomial(V v, const C (&c)[N]) {
    V pair[N / 2];
    unroll<N / 2>([&](auto i) KVRI_INLINE { pair[i] = c[2 * i] + v * c[2 * i + 1]; });
    if constexpr (N == 2) return pair[0];
    else return polynomial(v * v, pair);
}

// 2^(j/8) for j, the three low bits of each element of i - as bits, without the j that stands in them at i << 20.
template <class U>
U powersOfEighths(U i) {
    constexpr auto bits = [](float power, uint32_t j) { return std::bit_cast<uint32_t>(power) - (j << 20); };
    alignas(64) static constexpr uint32_t power[16] = {
        bits(0x1p0f, 0),        bits(0x1.172b84p0f, 1), bits(0x1.306fep0f, 2),  bits(0x1.4bfdaep0f, 3),
        bits(0x1.6a09e6p0f, 4), bits(0x1.8ace54p0f, 5), bits(0x1.ae89fap0f, 6), bits(0x1.d5818ep0f, 7),
        power[0], power[1], power[2], power[3], power[4], power[5], power[6], power[7]};
#if defined(__AVX512BW__)
    return (U)_mm512_permutexvar_epi32((__m512i)i, _mm512_load_si512(power));
#elif defined(__AVX2__)
    return (U)_mm256_permutevar8x32_epi32(load<__m256i>(power), (__m256i)i);
#else
    using B = Bytes<sizeof(U)>;
    const B fourTimes = shuffle((B)(i << 2), constant<B>([](int k) { return k & ~3; }));
    const B place = (fourTimes & 12) | constant<B>([](int k) { return k & 3; });
    const B fromUpperFour = (B)((Vec<int32_t, sizeof(U)>)(i << 29) >> 31);
    return (U)blend<B>(fromUpperFour, shuffle(load<B>(power + 4), place), shuffle(load<B>(power), place));
#endif
}

// x = n ln 2 + r with n, a multiple of 1/8: what is added leaves no finer bits, and 8 n in the low bits of `eighths`.
template <class F>
struct Reduced {
    using U = Vec<uint32_t, sizeof(F)>;
    F n, r;
    U eighths;

    explicit Reduced(F x) {
        const F integral = splat<F>(0x1.8p20f), shifted = x * 0x1.715476p0f + integral;
        n = shifted - integral;
        r = x - n * kLn2High - n * kLn2Low;
        eighths = (U)shifted;
    }
};

// power * e^r for |r| <= ln(2) / 16. First of all power * r, as both are there before the rest of the sum.
template <class F>
F timesExponential(F power, F r) {
    const F first = power * r;
    return power + (first + first * r * polynomial(r, {0x1.00087ep-1f, 0x1.555c24p-3f}));
}

// Up to kSmallExponent the powers of 2 may be part of the products: none gets so small that the result loses bits, as the
// comparison of all these singles with exponential() showed.
template <class F>
bool anyBeyondSmall(F x) {
    using I = Vec<int32_t, sizeof(F)>;
    return anyGreater((I)x & 0x7FFFFFFF, splat<I>(std::bit_cast<int32_t>(kSmallExponent)));
}
template <class F>
F smallExponential(F x) {
    const Reduced<F> a(x);
    return timesExponential((F)(powersOfEighths(a.eighths) + (a.eighths << 20)), a.r);
}

// v * 2^floor(n), rounded once, for |n| up to 160 and v from 1/2 to 2.
template <class F, class U>
F scaleByPower(F v, [[maybe_unused]] F n, [[maybe_unused]] U eighths) {
#if defined(__AVX512BW__)
    return (F)_mm512_scalef_ps((__m512)v, (__m512)n);
#else  // by a power 2^32 times nearer to 1, which is exact, and then by the rest
    using I = Vec<int32_t, sizeof(F)>;
    const U thirtyTwo = (U)((I)n >> 31) & (64u << 23);
    const F near = (F)(((eighths << 20) & 0xFF800000) + thirtyTwo + ((127u - 32) << 23));
    return v * near * (F)(((127u + 32) << 23) - thirtyTwo);
#endif
}

// Of any number; the same bits as smallExponential for small ones.
template <class F>
F exponential(F x) {
    const Reduced<F> a(clamp(x, splat<F>(-104), splat<F>(89)));  // beyond, 0 and infinity
    const F power = (F)(powersOfEighths(a.eighths) + ((a.eighths & 7) << 20));
    return scaleByPower(timesExponential(power, a.r), a.n, a.eighths);
}

// x = m * 2^exponent with m from sqrt(1/2) to sqrt(2), of positive numbers that are not denormal.
template <class F>
struct Split {
    using I = Vec<int32_t, sizeof(F)>;
    I exponent;
    F m;

    explicit Split(F x) {
        using U = Vec<uint32_t, sizeof(F)>;
        const U above = (U)x - 0x3F3504F3;
        exponent = (I)above >> 23;
        m = (F)((U)x - (above & 0xFF800000));
    }
};

// `scaledBy`: powers of 2 by which x has been multiplied.
template <class F>
F logarithm(F x, Vec<int32_t, sizeof(F)> scaledBy = Vec<int32_t, sizeof(F)>{}) {
    const Split<F> s(x);
    const F e = __builtin_convertvector(s.exponent - scaledBy, F), f = s.m - 1;
    // ln(1 + f) = f - f^2 / 2 + f^3 P(f).
    const F square = f * f;
    const F tail = polynomial(f, {0x1.555554p-2f, -0x1.000226p-2f, 0x1.99a00ap-3f, -0x1.547248p-3f,
                                  0x1.22da0ap-3f, -0x1.0d851p-3f, 0x1.055bc4p-3f, -0x1.38b742p-4f});
    return e * kLn2High + (f + (square * (f * tail - 0.5f) + e * kLn2Low));
}

// Whether any element is 0, negative, denormal, infinite or a NaN.
template <class F>
bool anySpecial(F x) {
    using U = Vec<uint32_t, sizeof(F)>;
    using I = Vec<int32_t, sizeof(F)>;
    return anyGreater((I)((U)x + 0x7F800000), splat<I>(-0x01000001));  // numbers from 0x00800000 wrap around to negative ones
}

// Of any number. 0 gives 0.
template <class F>
F anyLogarithm(F x) {
    using I = Vec<int32_t, sizeof(F)>;
    const I denormal = x < 0x1p-126f;
    const F ordinary = logarithm(denormal ? x * 0x1p24f : x, denormal & 24);
    const F infinity = splat<F>(__builtin_inff()), nan = splat<F>(__builtin_nanf(""));
    const F special = x > 0 ? x : x == 0 ? F{} : x < 0 ? nan : x + x;
    return (x > 0) & (x < infinity) ? ordinary : special;
}

// exponent * ln 2 + ln(1 + f), to 2^-39: for half a vector of singles, in doubles.
// ln m = 2 artanh s for s = (m - 1) / (m + 1).
template <class H>
auto preciseLogarithm(H exponent, Vec<float, sizeof(H)> f) {
    using D = Vec<double, 2 * sizeof(H)>;
    const D d = toDoubles(f), s = d / (d + 2), square = s * s;
    const D tail = polynomial(square, {0x1.555554cd7e9b5p-1, 0x1.999abcc40f18bp-2, 0x1.242b1a0459112p-2, 0x1.e4bc9c6ff2127p-3});
    return toDoubles(exponent) * 0x1.62e42fefa39efp-1 + (s + s + s * square * tail);
}

}  // namespace kvri
