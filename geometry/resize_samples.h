// geometry/resize_samples.h: samples of a row as vectors of real numbers, and back.
#pragma once

#include <cstring>

#include "core/lanes.h"

namespace kvri {

// What sums are formed in.
template <class T>
using RealOf = std::conditional_t<std::is_same_v<T, double>, double, float>;
template <class T>
using Reals = Vec<RealOf<T>>;
template <class T>
constexpr int kReals = kVectorBytes / sizeof(RealOf<T>);

// The samples of one vector of reals, packed: in the low bytes where they are less than a register.
template <class T>
constexpr int kPackedBytes = kReals<T> * int(sizeof(T));
template <class T>
using Packed = Bytes<std::max(kPackedBytes<T>, 16)>;

template <class T>
inline Reals<T> toReals(Packed<T> v) {
    if constexpr (sizeof(T) >= 4) return (Reals<T>)v;
#if defined(__AVX512BW__)
    else if constexpr (sizeof(T) == 1) return (Reals<T>)_mm512_cvtepi32_ps(_mm512_cvtepu8_epi32((__m128i)v));
    else if constexpr (std::is_signed_v<T>) return (Reals<T>)_mm512_cvtepi32_ps(_mm512_cvtepi16_epi32((__m256i)v));
    else return (Reals<T>)_mm512_cvtepi32_ps(_mm512_cvtepu16_epi32((__m256i)v));
#elif defined(__AVX2__)
    else if constexpr (sizeof(T) == 1) return (Reals<T>)_mm256_cvtepi32_ps(_mm256_cvtepu8_epi32((__m128i)v));
    else if constexpr (std::is_signed_v<T>) return (Reals<T>)_mm256_cvtepi32_ps(_mm256_cvtepi16_epi32((__m128i)v));
    else return (Reals<T>)_mm256_cvtepi32_ps(_mm256_cvtepu16_epi32((__m128i)v));
#else
    else if constexpr (sizeof(T) == 1) return (Reals<T>)_mm_cvtepi32_ps((__m128i)widenLow((Vec<uint16_t>)widenLow(v)));
    else return (Reals<T>)_mm_cvtepi32_ps((__m128i)widenLow((Vec<T>)v));
#endif
}

template <class T>
inline Reals<T> loadReals(const uint8_t* p) {
    if constexpr (kPackedBytes<T> >= 16) return toReals<T>(load<Packed<T>>(p));
    else {
        Packed<T> v{};
        std::memcpy(&v, p, kPackedBytes<T>);
        return toReals<T>(v);
    }
}

template <class T>
inline Reals<T> loadRealsPart(const uint8_t* p, ptrdiff_t samples) {
    return toReals<T>(loadPart<Packed<T>>(p, samples * ptrdiff_t(sizeof(T))));
}

// To nearest, ties to even. What exceeds 32 bits stays on its side, to be saturated.
inline Vec<int32_t> toIntegers(Vec<float> v) {
    const auto least = [](auto a, auto b) { KVRI_BY_WIDTH(decltype(a), min_ps, raw(a), raw(b)); };
    return toNearest(least(v, splat<Vec<float>>(1e9f)));
}

inline Vec<int32_t> toIntegers(Vec<int32_t> v) { return v; }

// Of reals, or of integers that are to be saturated.
template <class T, class V>
inline Packed<T> fromReals(V v) {
    if constexpr (sizeof(T) >= 4) return (Packed<T>)v;
#if defined(__AVX512BW__)
    else if constexpr (std::is_signed_v<T>) return (Packed<T>)_mm512_cvtsepi32_epi16((__m512i)toIntegers(v));
    else {
        const __m512i n = _mm512_max_epi32((__m512i)toIntegers(v), _mm512_setzero_si512());
        if constexpr (sizeof(T) == 1) return (Packed<T>)_mm512_cvtusepi32_epi8(n);
        else return (Packed<T>)_mm512_cvtusepi32_epi16(n);
    }
#elif defined(__AVX2__)
    else {
        const auto n = toIntegers(v);
        const auto lower = lowerHalf(n), upper = upperHalf(n);
        if constexpr (sizeof(T) == 2) return (Packed<T>)narrow<T>(lower, upper);
        else {
            const auto words = narrow<int16_t>(lower, upper);
            return narrow<uint8_t>(words, words);
        }
    }
#else
    else {
        const auto n = toIntegers(v);
        if constexpr (sizeof(T) == 2) return (Packed<T>)narrow<T>(n, n);
        else {
            const auto words = narrow<int16_t>(n, n);
            return narrow<uint8_t>(words, words);
        }
    }
#endif
}

template <class T, class V>
inline void storeReals(uint8_t* p, V v) {
    const Packed<T> samples = fromReals<T>(v);
    if constexpr (kPackedBytes<T> >= 16) store(p, samples);
    else std::memcpy(p, &samples, kPackedBytes<T>);
}

template <class T, class V>
inline void storeRealsPart(uint8_t* p, V v, ptrdiff_t samples) {
    storePart(p, fromReals<T>(v), samples * ptrdiff_t(sizeof(T)));
}

// Two vectors as one of 16-bit numbers.
template <class T, class V>
inline Bytes<> packedWords(V a, V b) {
    return unpackedOrder<2>((Bytes<>)narrow<T>(toIntegers(a), toIntegers(b)));
}

// Four vectors at once: packing works lane by lane, and one permutation puts all of it in order. put(place, vector) stores.
template <class T, class V, class Put>
inline void putFourReals(uint8_t* p, const V (&v)[4], Put put) {
    if constexpr (sizeof(T) == 1) {
        const auto low = narrow<int16_t>(toIntegers(v[0]), toIntegers(v[1])), high = narrow<int16_t>(toIntegers(v[2]), toIntegers(v[3]));
        put(p, unpackedOrder<4>(narrow<uint8_t>(low, high)));
    } else if constexpr (sizeof(T) == 2) {
        unroll<2>([&](auto half) KVRI_INLINE { put(p + half * kVectorBytes, packedWords<T>(v[2 * half], v[2 * half + 1])); });
    } else {
        unroll<4>([&](auto i) KVRI_INLINE { put(p + i * kVectorBytes, (Bytes<>)v[i]); });
    }
}

// A row that kernels write to, as samples of T from the sample at p on.
template <class T>
struct RowOf {
    uint8_t* p;

    explicit RowOf(void* p) : p(static_cast<uint8_t*>(p)) {}
    // Samples that are to be written before groups of four vectors.
    static ptrdiff_t head() { return 0; }
    template <class V>
    void four(ptrdiff_t i, const V (&v)[4]) const { putFourReals<T>(at(i), v, [](uint8_t* p, auto v) KVRI_INLINE { store(p, v); }); }
    template <class V>
    void one(ptrdiff_t i, V v) const { storeReals<T>(at(i), v); }
    template <class V>
    void part(ptrdiff_t i, V v, ptrdiff_t samples) const { storeRealsPart<T>(at(i), v, samples); }
    template <class V>
    void fourPart(ptrdiff_t i, const V (&v)[4], ptrdiff_t samples) const {
        const uint8_t* end = at(i + samples);
        putFourReals<T>(at(i), v, [end](uint8_t* p, auto v) KVRI_INLINE { storePart(p, v, end - p); });
    }

protected:
    uint8_t* at(ptrdiff_t i) const { return p + i * ptrdiff_t(sizeof(T)); }
};

// The same with room behind its end for the rest of a vector.
template <class T>
struct RoomyRowOf : RowOf<T> {
    using RowOf<T>::RowOf;
    template <class V>
    void part(ptrdiff_t i, V v, ptrdiff_t) const { this->one(i, v); }
    template <class V>
    void fourPart(ptrdiff_t i, const V (&v)[4], ptrdiff_t) const { this->four(i, v); }
};

// The same by aligned vectors; p is a multiple of the sample's size.
template <class T>
struct AlignedRowOf : RowOf<T> {
    using RowOf<T>::RowOf;
    ptrdiff_t head() const { return (-reinterpret_cast<intptr_t>(this->p) & (kVectorBytes - 1)) / ptrdiff_t(sizeof(T)); }
};

// The same past the caches.
template <class T>
struct StreamedRowOf : AlignedRowOf<T> {
    using AlignedRowOf<T>::AlignedRowOf;
    void four(ptrdiff_t i, const Reals<T> (&v)[4]) const { putFourReals<T>(this->at(i), v, [](uint8_t* p, auto v) KVRI_INLINE { stream(p, v); }); }
};

// Rows written together: sum(i, put) gives put(r, the sums from sample i on of row r) as vectors V; row(r) is what is written.
template <int rows, class V, class Sum, class RowAt>
KVRI_INLINE inline void writeRows(ptrdiff_t samples, Sum sum, RowAt row) {
    constexpr int lanes = kVectorBytes / sizeof(V{}[0]);
    ptrdiff_t i = 0;
    for (; samples - i >= 4 * lanes; i += 4 * lanes) {
        V v[rows][4];
        unroll<4>([&](auto u) KVRI_INLINE { sum(i + u * lanes, [&](auto r, V sums) KVRI_INLINE { v[r][u] = sums; }); });
        unroll<rows>([&](auto r) KVRI_INLINE { row(r).four(i, v[r]); });
    }
    for (; samples - i >= lanes; i += lanes) sum(i, [&](auto r, V sums) KVRI_INLINE { row(r).one(i, sums); });
    if (i < samples) sum(i, [&](auto r, V sums) KVRI_INLINE { row(r).part(i, sums, samples - i); });
}

}  // namespace kvri
