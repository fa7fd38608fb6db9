// core/simd.h: vectors of bytes, one kernel text for all builds.
//
// A vector is a compiler vector type of 16, 32 or 64 bytes; kVectorBytes is the widest of the build. A "lane" is 16 bytes,
// the reach of a byte shuffle. Loads and stores take any address. loadPart and storePart touch the first `bytes` bytes and
// no others, so a row's tail is the kernel's ordinary step on a part of a vector.
#pragma once

#include <immintrin.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#if defined(__SANITIZE_ADDRESS__)
#define KVRI_INLINE  // checks of everything inlined make functions that take minutes to compile
#else
#define KVRI_INLINE __attribute__((always_inline))
#endif

namespace kvri {

#if defined(__AVX512BW__)
constexpr int kVectorBytes = 64;
#elif defined(__AVX2__)
constexpr int kVectorBytes = 32;
#else
constexpr int kVectorBytes = 16;
#endif

constexpr int kLanes = kVectorBytes / 16;

// Two lanes at most: kernels made of shuffles gain nothing from more, as lanes must be put in order again.
constexpr int kShuffleBytes = std::min(kVectorBytes, 32);

template <class T, int W>
struct VecOf {
    typedef T type __attribute__((vector_size(W)));
};
template <class T, int W = kVectorBytes>
using Vec = typename VecOf<T, W>::type;
template <int W = kVectorBytes>
using Bytes = Vec<uint8_t, W>;

template <class V>
inline auto rawFloats(V v) {
    if constexpr (sizeof(V) == 64) return (__m512)v;
    else if constexpr (sizeof(V) == 32) return (__m256)v;
    else return (__m128)v;
}

template <class V>
inline auto rawDoubles(V v) {
    if constexpr (sizeof(V) == 64) return (__m512d)v;
    else if constexpr (sizeof(V) == 32) return (__m256d)v;
    else return (__m128d)v;
}

// The intrinsics' type of a vector's size, for 32f and 64f theirs.
template <class V>
inline auto raw(V v) {
    using T = std::remove_reference_t<decltype(v[0])>;
    if constexpr (std::is_same_v<T, float>) return rawFloats(v);
    else if constexpr (std::is_same_v<T, double>) return rawDoubles(v);
    else if constexpr (sizeof(V) == 64) return (__m512i)v;
    else if constexpr (sizeof(V) == 32) return (__m256i)v;
    else return (__m128i)v;
}

// Returns what the intrinsic `f` of V's size gives, as V.
#define KVRI_BY_WIDTH(V, f, ...)                                         \
    if constexpr (sizeof(V) == 64) return (V)_mm512_##f(__VA_ARGS__);    \
    else if constexpr (sizeof(V) == 32) return (V)_mm256_##f(__VA_ARGS__); \
    else return (V)_mm_##f(__VA_ARGS__)

// f(0), f(1) ... f(N - 1), each index a constant.
template <int N, class F>
KVRI_INLINE inline void unroll(F f) {
    [&]<int... i>(std::integer_sequence<int, i...>) KVRI_INLINE {
        (f(std::integral_constant<int, i>{}), ...);
    }(std::make_integer_sequence<int, N>{});
}

template <class V>
inline V load(const void* p) {
    typedef V Anywhere __attribute__((aligned(1), may_alias));
    return *static_cast<const Anywhere*>(p);
}

// A loaded vector with several uses: the compiler would rather repeat the load in each of them than keep it in a register.
template <class V>
inline V loadedOnce(V v) {
#if defined(__AVX512BW__)
    asm("" : "+v"(v));
#else
    asm("" : "+x"(v));
#endif
    return v;
}

template <class V>
inline void store(void* p, V v) {
    typedef V Anywhere __attribute__((aligned(1), may_alias));
    *static_cast<Anywhere*>(p) = v;
}

// Past the caches; p is a multiple of the vector's size. fenceStreams() ends a run of these.
template <class V>
inline void stream(void* p, V v) {
#if defined(__AVX512BW__)
    if constexpr (sizeof v == 64) return _mm512_stream_si512(static_cast<__m512i*>(p), (__m512i)v);
#endif
#if defined(__AVX2__)
    if constexpr (sizeof v == 32) return _mm256_stream_si256(static_cast<__m256i*>(p), (__m256i)v);
#endif
    if constexpr (sizeof v == 16) return _mm_stream_si128(static_cast<__m128i*>(p), (__m128i)v);
}

inline void fenceStreams() { _mm_sfence(); }

// A vector whose byte i is f(i). f captures nothing, so the bytes are data of the library.
template <class V, class F>
inline V constant(F) {
    alignas(V) static constexpr auto bytes = [] {
        std::array<uint8_t, sizeof(V)> a{};
        for (int i = 0; i < int(sizeof(V)); ++i) a[i] = uint8_t(F{}(i));
        return a;
    }();
    return load<V>(bytes.data());
}

// loadPart gives the first `bytes` bytes at p, the rest 0; storePart writes no others; firstBytes leaves these of a vector.
// Counts below 0 and above the vector's size are taken as these.
//
// A choice of bytes of a vector: bits of a mask register where the build has them, else bytes of 0 or 255. Bits may stand
// for units of 2, 4 or 8 bytes, where a function says so.
#if defined(__AVX512BW__)

namespace detail {

// The low n bits set, for any n.
inline uint64_t lowBits(ptrdiff_t n) { return n <= 0 ? 0 : _bzhi_u64(~uint64_t(0), n < 64 ? unsigned(n) : 64); }

}  // namespace detail

template <class V>
using Choice = uint64_t;

// The bytes i for which f(i) holds; f captures nothing.
template <class V, class F>
constexpr Choice<V> choose(F f) {
    uint64_t bits = 0;
    for (int i = 0; i < int(sizeof(V)); ++i) bits |= uint64_t(bool(f(i))) << i;
    return bits;
}

template <class V>
inline Choice<V> chooseNonZero(V v) {
    if constexpr (sizeof(V) == 64) return _mm512_test_epi8_mask((__m512i)v, (__m512i)v);
    else if constexpr (sizeof(V) == 32) return _mm256_test_epi8_mask((__m256i)v, (__m256i)v);
    else return _mm_test_epi8_mask((__m128i)v, (__m128i)v);
}

// The chosen bytes of a, the others of b.
template <class V>
inline V blend(Choice<V> choice, V a, V b) {
    KVRI_BY_WIDTH(V, mask_blend_epi8, choice, raw(b), raw(a));
}

// U: bytes that one bit of the choice stands for.
template <int U = 1, class V>
inline void storeChosen(uint8_t* p, V v, Choice<V> choice) {
    if constexpr (U == 8) {
        if constexpr (sizeof(V) == 64) _mm512_mask_storeu_epi64(p, __mmask8(choice), (__m512i)v);
        else if constexpr (sizeof(V) == 32) _mm256_mask_storeu_epi64(p, __mmask8(choice), (__m256i)v);
        else _mm_mask_storeu_epi64(p, __mmask8(choice), (__m128i)v);
    } else if constexpr (U == 4) {
        if constexpr (sizeof(V) == 64) _mm512_mask_storeu_epi32(p, __mmask16(choice), (__m512i)v);
        else if constexpr (sizeof(V) == 32) _mm256_mask_storeu_epi32(p, __mmask8(choice), (__m256i)v);
        else _mm_mask_storeu_epi32(p, __mmask8(choice), (__m128i)v);
    } else if constexpr (U == 2) {
        if constexpr (sizeof(V) == 64) _mm512_mask_storeu_epi16(p, __mmask32(choice), (__m512i)v);
        else if constexpr (sizeof(V) == 32) _mm256_mask_storeu_epi16(p, __mmask16(choice), (__m256i)v);
        else _mm_mask_storeu_epi16(p, __mmask8(choice), (__m128i)v);
    } else {
        if constexpr (sizeof(V) == 64) _mm512_mask_storeu_epi8(p, choice, (__m512i)v);
        else if constexpr (sizeof(V) == 32) _mm256_mask_storeu_epi8(p, __mmask32(choice), (__m256i)v);
        else _mm_mask_storeu_epi8(p, __mmask16(choice), (__m128i)v);
    }
}

template <int U = 1, class V>
inline void storeChosenPart(uint8_t* p, V v, Choice<V> choice, ptrdiff_t bytes) {
    storeChosen<U>(p, v, choice & detail::lowBits(bytes / U));
}

template <class V>
inline V loadPart(const uint8_t* p, ptrdiff_t bytes) {
    KVRI_BY_WIDTH(V, maskz_loadu_epi8, detail::lowBits(bytes), p);
}

template <class V>
inline void storePart(uint8_t* p, V v, ptrdiff_t bytes) {
    storeChosen(p, v, detail::lowBits(bytes));
}

template <class V>
inline V firstBytes(V v, ptrdiff_t bytes) {
    KVRI_BY_WIDTH(V, maskz_mov_epi8, detail::lowBits(bytes), raw(v));
}

#else

namespace detail {

template <class T>
inline uint64_t word(const uint8_t* p) {
    T t;
    std::memcpy(&t, p, sizeof t);
    return t;
}

// 1 to 7 bytes, by two loads that meet or overlap.
inline uint64_t loadShort(const uint8_t* p, ptrdiff_t n) {
    if (n >= 4) return word<uint32_t>(p) | word<uint32_t>(p + n - 4) << (8 * (n - 4));
    if (n >= 2) return word<uint16_t>(p) | word<uint16_t>(p + n - 2) << (8 * (n - 2));
    return *p;
}

inline __m128i loadPart16(const uint8_t* p, ptrdiff_t n) {
    if (n >= 16) return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    if (n > 8) {
        const uint64_t high = word<uint64_t>(p + n - 8) >> (8 * (16 - n));
        return _mm_set_epi64x(int64_t(high), int64_t(word<uint64_t>(p)));
    }
    if (n == 8) return _mm_cvtsi64_si128(int64_t(word<uint64_t>(p)));
    return n > 0 ? _mm_cvtsi64_si128(int64_t(loadShort(p, n))) : _mm_setzero_si128();
}

inline void storePart16(uint8_t* p, __m128i v, ptrdiff_t n) {
    if (n >= 16) return _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v);
    uint64_t rest = uint64_t(_mm_cvtsi128_si64(v));
    if (n & 8) {
        std::memcpy(p, &rest, 8);
        rest = uint64_t(_mm_cvtsi128_si64(_mm_unpackhi_epi64(v, v)));
        p += 8;
    }
    if (n & 4) {
        std::memcpy(p, &rest, 4);
        rest >>= 32;
        p += 4;
    }
    if (n & 2) {
        std::memcpy(p, &rest, 2);
        rest >>= 16;
        p += 2;
    }
    if (n & 1) *p = uint8_t(rest);
}

}  // namespace detail

template <class V>
inline V loadPart(const uint8_t* p, ptrdiff_t bytes) {
    const __m128i low = detail::loadPart16(p, bytes);
    if constexpr (sizeof(V) == 16) return (V)low;
#if defined(__AVX2__)
    else return (V)_mm256_inserti128_si256(_mm256_castsi128_si256(low), detail::loadPart16(p + 16, bytes - 16), 1);
#endif
}

template <class V>
inline void storePart(uint8_t* p, V v, ptrdiff_t bytes) {
    if (bytes <= 0) return;
    if constexpr (sizeof(V) == 16) detail::storePart16(p, (__m128i)v, bytes);
#if defined(__AVX2__)
    else {
        detail::storePart16(p, _mm256_castsi256_si128((__m256i)v), bytes);
        if (bytes > 16) detail::storePart16(p + 16, _mm256_extracti128_si256((__m256i)v, 1), bytes - 16);
    }
#endif
}

template <class V>
inline V firstBytes(V v, ptrdiff_t bytes) {
    using B = Bytes<sizeof(V)>;
    const B end = B{} + uint8_t(std::clamp<ptrdiff_t>(bytes, 0, sizeof(V)));
    return (V)((B)v & (B)(constant<B>([](int i) { return i; }) < end));
}

template <class V>
using Choice = V;

template <class V, class F>
inline Choice<V> choose(F) {
    return constant<V>([](int i) { return F{}(i) ? 255 : 0; });
}

template <class V>
inline Choice<V> chooseNonZero(V v) {
    return (V)(v != V{});
}

template <class V>
inline V blend(Choice<V> choice, V a, V b) {
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (V)_mm256_blendv_epi8((__m256i)b, (__m256i)a, (__m256i)choice);
    else
#endif
    return (choice & a) | (~choice & b);
}

template <int U = 1, class V>
inline void storeChosen(uint8_t* p, V v, Choice<V> choice) {
    store(p, blend(choice, v, load<V>(p)));
}

template <int U = 1, class V>
inline void storeChosenPart(uint8_t* p, V v, Choice<V> choice, ptrdiff_t bytes) {
    storePart(p, blend(choice, v, loadPart<V>(p, bytes)), bytes);
}

#endif

// The bytes i of a for which f(i) holds, the others of b; f captures nothing.
template <class V, class F>
inline V blendWhere(F f, V a, V b) {
#if defined(__AVX2__)
    constexpr int groups = [] {  // the choice of four-byte groups, or -1 where a group is not chosen as a whole
        int bits = 0;
        for (int i = 0; i < int(sizeof(V)); ++i) {
            if (F{}(i) != F{}(i / 4 * 4)) return -1;
            bits |= F{}(i) << i / 4;
        }
        return bits;
    }();
    if constexpr (sizeof(V) == 32 && groups >= 0) return (V)_mm256_blend_epi32((__m256i)b, (__m256i)a, groups);
    else
#endif
    return blend<V>(choose<V>(f), a, b);
}

// Within each lane: byte i becomes byte control[i] & 15 of v, or 0 where control[i] >= 128.
template <class V>
inline V shuffle(V v, V control) {
    KVRI_BY_WIDTH(V, shuffle_epi8, raw(v), raw(control));
}

// Bytes, unsigned.
template <class V>
inline V addSaturated(V a, V b) {
    KVRI_BY_WIDTH(V, adds_epu8, raw(a), raw(b));
}

// Groups of four bytes, across lanes: group i becomes group f(i) of v; f captures nothing.
template <class V, class F>
inline V permute4(V v, F) {
#if defined(__AVX2__)
    [[maybe_unused]] const V from = constant<V>([](int i) { return i % 4 == 0 ? F{}(i / 4) : 0; });
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (V)_mm512_permutexvar_epi32((__m512i)from, (__m512i)v);
    else
#endif
    if constexpr (sizeof(V) == 32) return (V)_mm256_permutevar8x32_epi32((__m256i)v, (__m256i)from);
    else
#endif
    return shuffle(v, constant<V>([](int i) { return F{}(i / 4) * 4 + i % 4; }));
}

#if defined(__AVX512BW__)
// The same for groups of two bytes.
template <class V, class F>
inline V permute2(V v, F) {
    const V from = constant<V>([](int i) { return i % 2 == 0 ? F{}(i / 2) : 0; });
    if constexpr (sizeof(V) == 64) return (V)_mm512_permutexvar_epi16((__m512i)from, (__m512i)v);
    else return (V)_mm256_permutexvar_epi16((__m256i)from, (__m256i)v);
}
#endif

#if defined(__AVX512BW__)
// Groups of `Size` bytes, 2 or 4, from anywhere in two vectors: group i becomes group f(i) of a and, behind it, b.
template <int Size, class V, class F>
inline V permuteBoth(V a, V b, F) {
    const V from = constant<V>([](int i) { return i % Size == 0 ? F{}(i / Size) : 0; });
    if constexpr (Size == 4) { KVRI_BY_WIDTH(V, permutex2var_epi32, raw(a), raw(from), raw(b)); }
    else { KVRI_BY_WIDTH(V, permutex2var_epi16, raw(a), raw(from), raw(b)); }
}
#endif

// Elements of `Size` bytes of a and b alternately, from the low half of each lane, or the high half.
template <int Size, class V>
inline V zipLow(V first, V second) {
    const Bytes<sizeof(V)> a = (Bytes<sizeof(V)>)first, b = (Bytes<sizeof(V)>)second;
    if constexpr (Size == 1) { KVRI_BY_WIDTH(V, unpacklo_epi8, raw(a), raw(b)); }
    else if constexpr (Size == 2) { KVRI_BY_WIDTH(V, unpacklo_epi16, raw(a), raw(b)); }
    else if constexpr (Size == 4) { KVRI_BY_WIDTH(V, unpacklo_epi32, raw(a), raw(b)); }
    else { KVRI_BY_WIDTH(V, unpacklo_epi64, raw(a), raw(b)); }
}

template <int Size, class V>
inline V zipHigh(V first, V second) {
    const Bytes<sizeof(V)> a = (Bytes<sizeof(V)>)first, b = (Bytes<sizeof(V)>)second;
    if constexpr (Size == 1) { KVRI_BY_WIDTH(V, unpackhi_epi8, raw(a), raw(b)); }
    else if constexpr (Size == 2) { KVRI_BY_WIDTH(V, unpackhi_epi16, raw(a), raw(b)); }
    else if constexpr (Size == 4) { KVRI_BY_WIDTH(V, unpackhi_epi32, raw(a), raw(b)); }
    else { KVRI_BY_WIDTH(V, unpackhi_epi64, raw(a), raw(b)); }
}

// The low or high half (0, 1) of a, then of b.
template <int A, int B, class V>
inline V halves(V a, V b) {
    static_assert(sizeof(V) == 32);
#if defined(__AVX2__)
    if constexpr (A == 0 && B == 1) return (V)_mm256_blend_epi32((__m256i)a, (__m256i)b, 0xF0);
    else if constexpr (A == 0) return (V)_mm256_inserti128_si256((__m256i)a, _mm256_castsi256_si128((__m256i)b), 1);
    else return (V)_mm256_permute2x128_si256((__m256i)a, (__m256i)b, A | (2 + B) << 4);
#endif
}

template <class V>
inline bool allZero(V v) {
#if defined(__AVX512BW__)
    return chooseNonZero(v) == 0;
#elif defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return _mm256_testz_si256((__m256i)v, (__m256i)v);
    else return _mm_testz_si128((__m128i)v, (__m128i)v);
#else
    return _mm_movemask_epi8(_mm_cmpeq_epi8((__m128i)v, _mm_setzero_si128())) == 0xFFFF;
#endif
}

// The same 16 bytes in every lane.
template <class V>
inline V broadcastLane(Bytes<16> lane) {
#if defined(__AVX512BW__)
    if constexpr (sizeof(V) == 64) return (V)_mm512_broadcast_i32x4((__m128i)lane);
    else
#endif
#if defined(__AVX2__)
    if constexpr (sizeof(V) == 32) return (V)_mm256_broadcastsi128_si256((__m128i)lane);
    else
#endif
    return (V)lane;
}

}  // namespace kvri
