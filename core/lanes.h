// core/lanes.h: arithmetic on vectors of samples, where the compiler's own operators do not reach.
//
// Element types follow from the vector: Vec<uint16_t> holds 16u samples, and so on. widenLow, widenHigh and narrow work
// lane by lane, so a vector that is widened, computed and narrowed again has its samples in their places.
#pragma once

#include <limits>
#include <type_traits>

#include "core/simd.h"

namespace kvri {

template <class V>
using ElementOf = std::remove_cvref_t<decltype(V{}[0])>;

template <class V, class T>
constexpr bool kHolds = std::is_same_v<ElementOf<V>, T>;

// A vector of all n.
template <class V>
inline V splat(ElementOf<V> n) {
    return n - V{};  // a sum would lose the sign of -0
}

// Saturating sums and differences of 8u, 16u, 16s.
template <class V>
inline V addSat(V a, V b) {
    if constexpr (kHolds<V, uint8_t>) { KVRI_BY_WIDTH(V, adds_epu8, raw(a), raw(b)); }
    else if constexpr (kHolds<V, uint16_t>) { KVRI_BY_WIDTH(V, adds_epu16, raw(a), raw(b)); }
    else if constexpr (kHolds<V, int16_t>) { KVRI_BY_WIDTH(V, adds_epi16, raw(a), raw(b)); }
}

template <class V>
inline V subSat(V a, V b) {
    if constexpr (kHolds<V, uint8_t>) { KVRI_BY_WIDTH(V, subs_epu8, raw(a), raw(b)); }
    else if constexpr (kHolds<V, uint16_t>) { KVRI_BY_WIDTH(V, subs_epu16, raw(a), raw(b)); }
    else if constexpr (kHolds<V, int16_t>) { KVRI_BY_WIDTH(V, subs_epi16, raw(a), raw(b)); }
}

// (a + b + 1) >> 1 of 8u, 16u, without overflow.
template <class V>
inline V average(V a, V b) {
    if constexpr (kHolds<V, uint8_t>) { KVRI_BY_WIDTH(V, avg_epu8, raw(a), raw(b)); }
    else if constexpr (kHolds<V, uint16_t>) { KVRI_BY_WIDTH(V, avg_epu16, raw(a), raw(b)); }
}

// Low halves of the products, modulo 2^bits; of signed numbers, a * b would be undefined where it does not fit.
template <class V>
inline V multiplyLow(V a, V b) {
    using U = Vec<std::make_unsigned_t<ElementOf<V>>, sizeof(V)>;
    return (V)((U)a * (U)b);
}

// |v| of 16s; of the minimum, the maximum.
template <class V>
inline V absSat(V v) {
    v = v > -32767 ? v : splat<V>(-32767);
    KVRI_BY_WIDTH(V, abs_epi16, raw(v));
}

// Of 32f, correctly rounded.
template <class V>
inline V squareRoot(V v) {
    KVRI_BY_WIDTH(V, sqrt_ps, raw(v));
}

// High halves of the 32-bit products of 16u, 16s.
template <class V>
inline V multiplyHigh(V a, V b) {
    if constexpr (kHolds<V, uint16_t>) { KVRI_BY_WIDTH(V, mulhi_epu16, raw(a), raw(b)); }
    else if constexpr (kHolds<V, int16_t>) { KVRI_BY_WIDTH(V, mulhi_epi16, raw(a), raw(b)); }
}

// (a * b + 2^14) >> 15 of 16s.
template <class V>
inline V multiplyHighRounded(V a, V b) {
    KVRI_BY_WIDTH(V, mulhrs_epi16, raw(a), raw(b));
}

// Sums of the two 32-bit products of neighbouring 16s; a sum of 2^31 appears as -2^31.
template <class V>
inline Vec<int32_t, sizeof(V)> multiplyPairs(V a, V b) {
    using R = Vec<int32_t, sizeof(V)>;
    KVRI_BY_WIDTH(R, madd_epi16, raw(a), raw(b));
}

// Sums of the two products of neighbouring 8u in a and 8s in b, saturated.
template <class V>
inline Vec<int16_t, sizeof(V)> multiplyPairsOfBytes(V a, V b) {
    using R = Vec<int16_t, sizeof(V)>;
    KVRI_BY_WIDTH(R, maddubs_epi16, raw(a), raw(b));
}

// 64-bit products of the first of every two 32s.
template <class V>
inline Vec<int64_t, sizeof(V)> multiplyEven(V a, V b) {
    using R = Vec<int64_t, sizeof(V)>;
#if defined(__SSE4_1__)
    KVRI_BY_WIDTH(R, mul_epi32, raw(a), raw(b));
#else
    using U = Vec<uint32_t>;
    const U correction = (U)((a >> 31) & b) + (U)((b >> 31) & a);  // what a negative factor adds when taken as unsigned
    return (R)((Vec<uint64_t>)_mm_mul_epu32((__m128i)a, (__m128i)b) - ((Vec<uint64_t>)correction << 32));
#endif
}

// min(a, b) and max(a, b) of 8u, 16u, 16s, 32u (min), 32s, 8s (max), 32f, 64f. Of floating point it is b where a NaN is
// involved, and where both are zeros.
template <class V>
inline V smaller(V a, V b) {
    if constexpr (kHolds<V, uint8_t>) { KVRI_BY_WIDTH(V, min_epu8, raw(a), raw(b)); }
    else if constexpr (kHolds<V, int16_t>) { KVRI_BY_WIDTH(V, min_epi16, raw(a), raw(b)); }
    else if constexpr (kHolds<V, float>) { KVRI_BY_WIDTH(V, min_ps, raw(a), raw(b)); }
    else if constexpr (kHolds<V, double>) { KVRI_BY_WIDTH(V, min_pd, raw(a), raw(b)); }
#if defined(__SSE4_1__)
    else if constexpr (kHolds<V, uint16_t>) { KVRI_BY_WIDTH(V, min_epu16, raw(a), raw(b)); }
    else if constexpr (kHolds<V, uint32_t>) { KVRI_BY_WIDTH(V, min_epu32, raw(a), raw(b)); }
    else { KVRI_BY_WIDTH(V, min_epi32, raw(a), raw(b)); }
#else
    else if constexpr (kHolds<V, uint16_t>) return a - subSat(a, b);
    else return a < b ? a : b;
#endif
}

template <class V>
inline V larger(V a, V b) {
    if constexpr (kHolds<V, uint8_t>) { KVRI_BY_WIDTH(V, max_epu8, raw(a), raw(b)); }
    else if constexpr (kHolds<V, int16_t>) { KVRI_BY_WIDTH(V, max_epi16, raw(a), raw(b)); }
    else if constexpr (kHolds<V, float>) { KVRI_BY_WIDTH(V, max_ps, raw(a), raw(b)); }
    else if constexpr (kHolds<V, double>) { KVRI_BY_WIDTH(V, max_pd, raw(a), raw(b)); }
#if defined(__SSE4_1__)
    else if constexpr (kHolds<V, int8_t>) { KVRI_BY_WIDTH(V, max_epi8, raw(a), raw(b)); }
    else if constexpr (kHolds<V, uint16_t>) { KVRI_BY_WIDTH(V, max_epu16, raw(a), raw(b)); }
    else { KVRI_BY_WIDTH(V, max_epi32, raw(a), raw(b)); }
#else
    else if constexpr (kHolds<V, uint16_t>) return b + subSat(a, b);
    else return a > b ? a : b;
#endif
}

// n, and 1 more where a > b; of 8u, 16u.
template <class V>
inline V oneMoreWhereGreater(V n, V a, V b) {
#if defined(__AVX512BW__)
    const V one = splat<V>(1);
    if constexpr (kHolds<V, uint8_t>)
        return (V)_mm512_mask_add_epi8((__m512i)n, _mm512_cmpgt_epu8_mask((__m512i)a, (__m512i)b), (__m512i)n, (__m512i)one);
    else
        return (V)_mm512_mask_add_epi16((__m512i)n, _mm512_cmpgt_epu16_mask((__m512i)a, (__m512i)b), (__m512i)n, (__m512i)one);
#else
    return n - (V)(a > b);
#endif
}

// A count of bits to shift by, the same for all elements. Counts of the element's width and more shift everything out.
class Shift {
    __m128i count_;

public:
    explicit Shift(int count) : count_(_mm_cvtsi32_si128(count)) {}
    operator __m128i() const { return count_; }
};

// Elements of 16 and 32 bits; to the right, signed elements drag their sign along.
template <class V>
inline V operator<<(V v, Shift n) {
    if constexpr (sizeof(ElementOf<V>) == 2) { KVRI_BY_WIDTH(V, sll_epi16, raw(v), n); }
    else if constexpr (sizeof(ElementOf<V>) == 4) { KVRI_BY_WIDTH(V, sll_epi32, raw(v), n); }
    else { KVRI_BY_WIDTH(V, sll_epi64, raw(v), n); }
}

template <class V>
inline V operator>>(V v, Shift n) {
    using T = ElementOf<V>;
    if constexpr (kHolds<V, int16_t>) { KVRI_BY_WIDTH(V, sra_epi16, raw(v), n); }
    else if constexpr (kHolds<V, int32_t>) { KVRI_BY_WIDTH(V, sra_epi32, raw(v), n); }
    else if constexpr (sizeof(T) == 2) { KVRI_BY_WIDTH(V, srl_epi16, raw(v), n); }
    else if constexpr (sizeof(T) == 4) { KVRI_BY_WIDTH(V, srl_epi32, raw(v), n); }
    else { KVRI_BY_WIDTH(V, srl_epi64, raw(v), n); }
}

// 32s, shifted by a count of its own for each element; to the right with their sign.
#if defined(__AVX2__)
template <class V>
inline V shiftLeft(V v, V counts) {
    KVRI_BY_WIDTH(V, sllv_epi32, raw(v), raw(counts));
}

template <class V>
inline V shiftRight(V v, V counts) {
    KVRI_BY_WIDTH(V, srav_epi32, raw(v), raw(counts));
}
#else
namespace detail {

// shifted(count) shifts all elements; each keeps what its own count gave.
template <class V, class F>
inline V shiftEach(V counts, F shifted) {
    V r{};
    unroll<4>([&](auto element) KVRI_INLINE {
        constexpr int e = element;
        const V count = shuffle(counts, constant<V>([](int i) { return i < 4 ? 4 * e + i : 128; }));
        r |= (V)shifted((__m128i)count) & constant<V>([](int i) { return i / 4 == e ? 255 : 0; });
    });
    return r;
}

}  // namespace detail

template <class V>
inline V shiftLeft(V v, V counts) {
    return detail::shiftEach(counts, [&](__m128i n) KVRI_INLINE { return _mm_sll_epi32((__m128i)v, n); });
}

template <class V>
inline V shiftRight(V v, V counts) {
    return detail::shiftEach(counts, [&](__m128i n) KVRI_INLINE { return _mm_sra_epi32((__m128i)v, n); });
}
#endif

// Element i of each lane becomes element f(i) of it; f captures nothing.
template <class V, class F>
inline V pick(V v, F) {
    constexpr int size = sizeof(ElementOf<V>);
    using B = Bytes<sizeof(V)>;
    return (V)shuffle((B)v, constant<B>([](int i) { return F{}(i % 16 / size) * size + i % size; }));
}

// Elements of twice the size: of the low or the high half of each lane.
template <class T>
struct WiderOf;
template <> struct WiderOf<uint8_t> { using type = uint16_t; };
template <> struct WiderOf<int8_t> { using type = int16_t; };
template <> struct WiderOf<uint16_t> { using type = uint32_t; };
template <> struct WiderOf<int16_t> { using type = int32_t; };
template <> struct WiderOf<uint32_t> { using type = uint64_t; };
template <> struct WiderOf<int32_t> { using type = int64_t; };
template <class V>
using Wider = Vec<typename WiderOf<ElementOf<V>>::type, sizeof(V)>;

template <class V>
inline Wider<V> widenLow(V v) {
    constexpr int size = sizeof(ElementOf<V>);
    if constexpr (std::is_signed_v<ElementOf<V>>) return (Wider<V>)zipLow<size>(v, (V)(v < 0));
    else return (Wider<V>)zipLow<size>(v, V{});
}

template <class V>
inline Wider<V> widenHigh(V v) {
    constexpr int size = sizeof(ElementOf<V>);
    if constexpr (std::is_signed_v<ElementOf<V>>) return (Wider<V>)zipHigh<size>(v, (V)(v < 0));
    else return (Wider<V>)zipHigh<size>(v, V{});
}

#if defined(__SSE4_1__)
// The first elements of v, across lanes, as many as a vector R of wider ones holds.
template <class R, class V>
inline R extended(V v) {
    constexpr int from = sizeof(ElementOf<V>), to = sizeof(ElementOf<R>);
    if constexpr (std::is_signed_v<ElementOf<V>>) {
        if constexpr (from == 2) { KVRI_BY_WIDTH(R, cvtepi16_epi32, raw(v)); }
        else if constexpr (to == 2) { KVRI_BY_WIDTH(R, cvtepi8_epi16, raw(v)); }
        else { KVRI_BY_WIDTH(R, cvtepi8_epi32, raw(v)); }
    } else {
        if constexpr (from == 2) { KVRI_BY_WIDTH(R, cvtepu16_epi32, raw(v)); }
        else if constexpr (to == 2) { KVRI_BY_WIDTH(R, cvtepu8_epi16, raw(v)); }
        else { KVRI_BY_WIDTH(R, cvtepu8_epi32, raw(v)); }
    }
}
#endif

// The reverse of widenLow and widenHigh, with saturation: low halves of the lanes from a, high halves from b. The elements are taken as signed.
template <class T, class V>
inline Vec<T, sizeof(V)> narrow(V a, V b) {
    using R = Vec<T, sizeof(V)>;
    if constexpr (std::is_same_v<T, uint8_t>) { KVRI_BY_WIDTH(R, packus_epi16, raw(a), raw(b)); }
    else if constexpr (std::is_same_v<T, int8_t>) { KVRI_BY_WIDTH(R, packs_epi16, raw(a), raw(b)); }
    else if constexpr (std::is_same_v<T, int16_t>) { KVRI_BY_WIDTH(R, packs_epi32, raw(a), raw(b)); }
#if defined(__SSE4_1__)
    else { KVRI_BY_WIDTH(R, packus_epi32, raw(a), raw(b)); }
#else
    else {  // through 16s: below 0 becomes 0, and 32768 less saturates where it should
        const auto clamp = [](V v) { return (v & ~(v >> 31)) - 32768; };
        return (R)_mm_packs_epi32((__m128i)clamp(a), (__m128i)clamp(b)) + uint16_t(32768);
    }
#endif
}

// Groups of 16 / K bytes in the order of K vectors that have been packed together lane by lane.
template <int K, class V>
inline V unpackedOrder(V v) {
    constexpr int lanes = sizeof(V) / 16;
    if constexpr (lanes == 1) return v;
    else return permute4(v, [](int i) {
        constexpr int perGroup = 4 / K;
        const int group = i / perGroup, vector = group / lanes, lane = group % lanes;
        return (lane * K + vector) * perGroup + i % perGroup;
    });
}

// Halves of a vector, and a vector of two halves.
template <class V>
using Half = Vec<ElementOf<V>, sizeof(V) / 2>;

template <class V>
inline Half<V> lowerHalf(V v) {
    return [&]<int... i>(std::integer_sequence<int, i...>) {
        return __builtin_shufflevector(v, v, i...);
    }(std::make_integer_sequence<int, sizeof(V) / sizeof(ElementOf<V>) / 2>{});
}

template <class V>
inline Half<V> upperHalf(V v) {
    constexpr int half = sizeof(V) / sizeof(ElementOf<V>) / 2;
    return [&]<int... i>(std::integer_sequence<int, i...>) {
        return __builtin_shufflevector(v, v, (half + i)...);
    }(std::make_integer_sequence<int, half>{});
}

template <class H>
inline Vec<ElementOf<H>, 2 * sizeof(H)> joinHalves(H lower, H upper) {
    return [&]<int... i>(std::integer_sequence<int, i...>) {
        return __builtin_shufflevector(lower, upper, i...);
    }(std::make_integer_sequence<int, 2 * sizeof(H) / sizeof(ElementOf<H>)>{});
}

// A vector of W bytes whose lane i is lane(i).
template <int W, class F>
KVRI_INLINE inline Bytes<W> fromLanes(F lane) {
    if constexpr (W == 16) return lane(0);
    else return joinHalves(fromLanes<W / 2>(lane), fromLanes<W / 2>([&](int i) KVRI_INLINE { return lane(i + W / 32); }));
}

// To 32s by the processor's rounding mode, and toward zero; what lies outside of the range becomes its minimum.
template <class V>
inline Vec<int32_t, sizeof(V)> toNearest(V v) {
    using R = Vec<int32_t, sizeof(V)>;
    KVRI_BY_WIDTH(R, cvtps_epi32, raw(v));
}

template <class V>
inline Vec<int32_t, sizeof(V)> towardZero(V v) {
    using R = Vec<int32_t, sizeof(V)>;
    KVRI_BY_WIDTH(R, cvttps_epi32, raw(v));
}

// 32f or 32s to 64f: half a vector of them.
template <class H>
inline Vec<double, 2 * sizeof(H)> toDoubles(H h) {
#if defined(__AVX512BW__)  // where the compiler would convert quarters
    if constexpr (sizeof(H) == 32 && kHolds<H, float>) return (Vec<double, 64>)_mm512_cvtps_pd((__m256)h);
    else if constexpr (sizeof(H) == 32) return (Vec<double, 64>)_mm512_cvtepi32_pd((__m256i)h);
    else
#endif
    return __builtin_convertvector(h, Vec<double, 2 * sizeof(H)>);
}

// The same to 32u, of numbers that are not negative; what lies above the range becomes its maximum.
#if defined(__AVX512BW__)
inline Vec<uint32_t> toNearestUnsigned(Vec<float> v) { return (Vec<uint32_t>)_mm512_cvtps_epu32((__m512)v); }
inline Vec<uint32_t> towardZeroUnsigned(Vec<float> v) { return (Vec<uint32_t>)_mm512_cvttps_epu32((__m512)v); }
#else
// The range's upper half is converted with 2^31 less.
template <class F>
inline Vec<uint32_t> upperHalfApart(Vec<float> v, F toSigned) {
    using U = Vec<uint32_t>;
    const Vec<float> half = splat<Vec<float>>(0x1p31f);
    const U upper = (U)(v >= half), above = (U)(v >= splat<Vec<float>>(0x1p32f));
    return ((U)toSigned(v - (Vec<float>)(upper & (U)half)) ^ (upper & 0x80000000)) | above;
}
inline Vec<uint32_t> toNearestUnsigned(Vec<float> v) {
    return upperHalfApart(v, [](Vec<float> f) { return toNearest(f); });
}
inline Vec<uint32_t> towardZeroUnsigned(Vec<float> v) {
    return upperHalfApart(v, [](Vec<float> f) { return towardZero(f); });
}
#endif

// 32s and 32u to 32f by the processor's rounding mode.
template <class V>
inline Vec<float, sizeof(V)> toFloats(V v) {
    using R = Vec<float, sizeof(V)>;
    if constexpr (kHolds<V, int32_t>) { KVRI_BY_WIDTH(R, cvtepi32_ps, raw(v)); }
#if defined(__AVX512BW__)
    else { KVRI_BY_WIDTH(R, cvtepu32_ps, raw(v)); }
#else
    else {  // the halves exactly, then their sum
        using Signed = Vec<int32_t, sizeof(V)>;
        return toFloats((Signed)(v >> 16)) * 65536 + toFloats((Signed)(v & 0xFFFF));
    }
#endif
}

// 64f to 32s by the processor's rounding mode: half a vector of them.
inline Vec<int32_t, 8> toNearestHalf(Vec<double, 16> v) { return lowerHalf((Vec<int32_t, 16>)_mm_cvtpd_epi32((__m128d)v)); }
#if defined(__AVX2__)
inline Vec<int32_t, 16> toNearestHalf(Vec<double, 32> v) { return (Vec<int32_t, 16>)_mm256_cvtpd_epi32((__m256d)v); }
#endif
#if defined(__AVX512BW__)
inline Vec<int32_t, 32> toNearestHalf(Vec<double, 64> v) { return (Vec<int32_t, 32>)_mm512_cvtpd_epi32((__m512d)v); }
#endif

#if defined(__FMA__)
// a * b + c, rounded once: for results that are proved to be the same without.
template <class V>
inline V fusedMultiplyAdd(V a, V b, V c) {
    KVRI_BY_WIDTH(V, fmadd_ps, raw(a), raw(b), raw(c));
}
#endif

// The same toward zero.
inline Vec<int32_t, 8> towardZeroHalf(Vec<double, 16> v) { return lowerHalf((Vec<int32_t, 16>)_mm_cvttpd_epi32((__m128d)v)); }
#if defined(__AVX2__)
inline Vec<int32_t, 16> towardZeroHalf(Vec<double, 32> v) { return (Vec<int32_t, 16>)_mm256_cvttpd_epi32((__m256d)v); }
#endif
#if defined(__AVX512BW__)
inline Vec<int32_t, 32> towardZeroHalf(Vec<double, 64> v) { return (Vec<int32_t, 32>)_mm512_cvttpd_epi32((__m512d)v); }
#endif

// The number of the range low to high that is nearest to v; a NaN stays one.
template <class V>
inline V clamp(V v, V low, V high) {
    return larger(low, smaller(high, v));
}

// Of 32f, the smaller one in magnitude, perhaps without its sign.
template <class V>
inline V smallerMagnitude(V a, V b) {
#if defined(__AVX512DQ__)
    return (V)_mm512_range_ps((__m512)a, (__m512)b, 0b1010);
#else
    using I = Vec<int32_t>;
    const I x = (I)a & 0x7FFFFFFF, y = (I)b & 0x7FFFFFFF;
    return (V)(x < y ? x : y);
#endif
}

// Whether any element of a is equal to that of b.
template <class V>
inline bool anyEqual(V a, V b) {
#if defined(__AVX512BW__)
    if constexpr (kHolds<V, float>) return _mm512_cmp_ps_mask((__m512)a, (__m512)b, _CMP_EQ_OQ) != 0;
    else if constexpr (sizeof(ElementOf<V>) == 1) return _mm512_cmpeq_epi8_mask((__m512i)a, (__m512i)b) != 0;
    else if constexpr (sizeof(ElementOf<V>) == 2) return _mm512_cmpeq_epi16_mask((__m512i)a, (__m512i)b) != 0;
    else if constexpr (sizeof(ElementOf<V>) == 4) return _mm512_cmpeq_epi32_mask((__m512i)a, (__m512i)b) != 0;
    else return _mm512_cmpeq_epi64_mask((__m512i)a, (__m512i)b) != 0;
#else
    return !allZero((Bytes<>)(a == b));
#endif
}

template <class V>
inline bool anyZero(V v) {
    return anyEqual(v, V{});
}

// Whether any element of a is greater than b's; of 32s.
template <class V>
inline bool anyGreater(V a, V b) {
#if defined(__AVX512BW__)
    return _mm512_cmpgt_epi32_mask((__m512i)a, (__m512i)b) != 0;
#else
    return !allZero((Bytes<>)(a > b));
#endif
}

}  // namespace kvri
