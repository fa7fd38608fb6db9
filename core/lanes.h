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

// High halves of the 32-bit products of 16u, 16s.
template <class V>
inline V multiplyHigh(V a, V b) {
    if constexpr (kHolds<V, uint16_t>) { KVRI_BY_WIDTH(V, mulhi_epu16, raw(a), raw(b)); }
    else if constexpr (kHolds<V, int16_t>) { KVRI_BY_WIDTH(V, mulhi_epi16, raw(a), raw(b)); }
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
    const R correction = (R)(((a >> 31) & b) + ((b >> 31) & a));  // what a negative factor adds when taken as unsigned
    return (R)((Vec<uint64_t, sizeof(V)>)_mm_mul_epu32((__m128i)a, (__m128i)b) - ((Vec<uint64_t, sizeof(V)>)correction << 32));
#endif
}

// min(a, b) of 8u, 16u.
template <class V>
inline V smaller(V a, V b) {
    if constexpr (kHolds<V, uint8_t>) { KVRI_BY_WIDTH(V, min_epu8, raw(a), raw(b)); }
#if defined(__SSE4_1__)
    else { KVRI_BY_WIDTH(V, min_epu16, raw(a), raw(b)); }
#else
    else return a - subSat(a, b);
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

// The reverse, with saturation: low halves of the lanes from a, high halves from b. The elements are taken as signed.
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

// 64f to 32s by the processor's rounding mode: half a vector of them.
inline Vec<int32_t, 8> toNearestHalf(Vec<double, 16> v) { return lowerHalf((Vec<int32_t, 16>)_mm_cvtpd_epi32((__m128d)v)); }
#if defined(__AVX2__)
inline Vec<int32_t, 16> toNearestHalf(Vec<double, 32> v) { return (Vec<int32_t, 16>)_mm256_cvtpd_epi32((__m256d)v); }
#endif
#if defined(__AVX512BW__)
inline Vec<int32_t, 32> toNearestHalf(Vec<double, 64> v) { return (Vec<int32_t, 32>)_mm512_cvtpd_epi32((__m512d)v); }
#endif

// The number of the range low to high that is nearest to v; v is no NaN.
template <class V>
inline V clamp(V v, V low, V high) {
    if constexpr (kHolds<V, float>) {
        const auto least = [](V a, V b) { KVRI_BY_WIDTH(V, min_ps, raw(a), raw(b)); };
        const auto most = [](V a, V b) { KVRI_BY_WIDTH(V, max_ps, raw(a), raw(b)); };
        return most(least(v, high), low);
    } else {
        const auto least = [](V a, V b) { KVRI_BY_WIDTH(V, min_pd, raw(a), raw(b)); };
        const auto most = [](V a, V b) { KVRI_BY_WIDTH(V, max_pd, raw(a), raw(b)); };
        return most(least(v, high), low);
    }
}

// Whether any element is 0.
template <class V>
inline bool anyZero(V v) {
#if defined(__AVX512BW__)
    if constexpr (kHolds<V, float>) return _mm512_cmp_ps_mask((__m512)v, _mm512_setzero_ps(), _CMP_EQ_OQ) != 0;
    else if constexpr (sizeof(ElementOf<V>) == 1) return _mm512_testn_epi8_mask((__m512i)v, (__m512i)v) != 0;
    else if constexpr (sizeof(ElementOf<V>) == 2) return _mm512_testn_epi16_mask((__m512i)v, (__m512i)v) != 0;
    else if constexpr (sizeof(ElementOf<V>) == 4) return _mm512_testn_epi32_mask((__m512i)v, (__m512i)v) != 0;
    else return _mm512_testn_epi64_mask((__m512i)v, (__m512i)v) != 0;
#else
    return !allZero((Bytes<>)(v == 0));
#endif
}

}  // namespace kvri
