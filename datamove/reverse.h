// datamove/reverse.h: rows of pixels of P bytes in reversed order.
//
// Pixels of a power of two are reversed within a vector; those of 3, 6 and 12 bytes in a block of three vectors, group by
// group. Rows are covered by blocks of one size; what remains is a block that reaches back into pixels already written, or
// in place blocks of half the size, and in the end parts of a lane. Of each pixel the first `Chosen` bytes are written.
#pragma once

#include "core/block.h"
#include "datamove/groups.h"

namespace kvri {

template <int P, class V>
inline V reverseVector(V v) {
    constexpr int W = sizeof(V);
    if constexpr (P >= 4) return permute4(v, [](int i) { return (W / P - 1 - i / (P / 4)) * (P / 4) + i % (P / 4); });
#if defined(__AVX512BW__)
    else if constexpr (P == 2 && W > 16) return permute2(v, [](int i) { return W / 2 - 1 - i; });
#endif
    else {
        v = shuffle(v, constant<V>([](int i) { return (16 / P - 1 - i % 16 / P) * P + i % P; }));
        if constexpr (W > 16) v = permute4(v, [](int i) { return (W / 16 - 1 - i / 4) * 4 + i % 4; });
        return v;
    }
}

// A block of pixels in vectors of W bytes.
template <int P, int W>
struct Reversal {
    using V = Bytes<W>;
    static constexpr bool grouped = P % 3 == 0;
    static constexpr int vectors = grouped ? 3 : 1, pixels = vectors * W / P;

    // The block at src, reversed.
    static KVRI_INLINE void load(const uint8_t* src, V (&out)[vectors]) {
        if constexpr (grouped) {
            V part[4];
            unroll<4>([&](auto k) KVRI_INLINE { part[k] = loadPart<k>(src); });
            unroll<3>([&](auto index) KVRI_INLINE {
                constexpr int j = index;
                out[j] = blendWhere<V>([](int i) { return (W * j + i) / part_ == j; }, part[j], part[j + 1]);
            });
        } else {
            out[0] = reverseVector<P>(kvri::load<V>(src));
        }
    }

    template <int Chosen>
    static KVRI_INLINE void store(auto block, uint8_t* dst, const V (&v)[vectors]) {
        for (int j = 0; j < vectors; ++j) {
            if constexpr (Chosen == P) block.store(dst + j * W, v[j], W);
            else block.storeChosen(dst + j * W, v[j], choose<V>([](int i) { return i % P < Chosen; }), W);
        }
    }

private:
    // Four parts of 12 or 24 bytes become three vectors: each is turned such that it lies where these want it.
    static constexpr int part_ = 12 * (W / 16);

    // Part k from the end, a group in each lane, from a vector that reaches over both its ends, though not over the block's.
    template <int k>
    static KVRI_INLINE V loadPart(const uint8_t* src) {
        constexpr int first = (3 - k) * part_;
        if constexpr (W == 16) {
            constexpr int before = k == 0 ? 4 : 0;
            return shuffle(kvri::load<V>(src + first - before), constant<V>([](int i) {
                const int b = groupByte(k, i);
                return b < 12 ? (12 / P - 1 - b / P) * P + b % P + before : 128;
            }));
        } else {
            const V lanes = k == 0 || k == 3 ? loadWords<k == 0 ? 0 : 1, k == 0 ? 7 : 8>(src + first - 4) : kvri::load<V>(src + first - 4);
            const V reversed = shuffle(lanes, constant<V>([](int i) {
                const int b = i % 16;
                return b < 12 ? (12 / P - 1 - b / P) * P + b % P + (i < 16 ? 4 : 0) : 128;
            }));
            return permute4(reversed, [](int i) {
                const int word = (i + 8 * 3 - 6 * k) % 8;  // of the part; the last lane's group comes first
                return word < 3 ? 4 + word : word < 6 ? word - 3 : 0;
            });
        }
    }

    // Words [Begin, End) of a vector.
    template <int Begin, int End>
    static KVRI_INLINE V loadWords(const uint8_t* p) {
#if defined(__AVX512BW__)
        return (V)_mm256_maskz_loadu_epi32((1 << End) - (1 << Begin), p);
#elif defined(__AVX2__)
        const V words = constant<V>([](int i) { return i / 4 >= Begin && i / 4 < End ? 255 : 0; });
        return (V)_mm256_maskload_epi32(reinterpret_cast<const int*>(p), (__m256i)words);
#endif
    }
};

template <int P>
constexpr int kReversalBytes = P % 3 == 0 ? kShuffleBytes : kVectorBytes;

// Up to a lane of pixels.
template <int P>
struct ReversedPart {
    static constexpr int pixels = 16 / P;
    Bytes<16> v;
    ptrdiff_t bytes;

    ReversedPart(const uint8_t* src, ptrdiff_t n) : bytes(n * P) {
        const auto fromEnd = constant<Bytes<16>>([](int i) { return (pixels - 1 - i / P) * P + i % P; });
        v = shuffle(loadPart<Bytes<16>>(src, bytes), fromEnd - uint8_t(pixels * P - bytes));
    }

    template <int Chosen>
    void store(uint8_t* dst) const {
        if constexpr (Chosen == P) storePart(dst, v, bytes);
        else storeChosenPart(dst, v, choose<Bytes<16>>([](int i) { return i % P < Chosen; }), bytes);
    }
};

// dst pixel i is src pixel (pixels - 1 - i); the rows do not overlap.
template <int P, int Chosen, int W>
KVRI_INLINE inline void reverseBlock(const uint8_t* src, uint8_t* dst, ptrdiff_t pixels, ptrdiff_t first) {
    using R = Reversal<P, W>;
    typename R::V v[R::vectors];
    R::load(src + (pixels - first - R::pixels) * P, v);
    R::template store<Chosen>(WholeBlock{}, dst + first * P, v);
}

template <int P, int Chosen = P, int W = kReversalBytes<P>>
KVRI_INLINE inline void reverseRow(const uint8_t* src, uint8_t* dst, ptrdiff_t pixels) {
    using R = Reversal<P, W>;
    if (pixels >= R::pixels) {
        ptrdiff_t first = 0;
        for (; first <= pixels - R::pixels; first += R::pixels) reverseBlock<P, Chosen, W>(src, dst, pixels, first);
        if (first < pixels) reverseBlock<P, Chosen, W>(src, dst, pixels, pixels - R::pixels);
    } else if constexpr (W > 16) {
        reverseRow<P, Chosen, W / 2>(src, dst, pixels);
    } else if constexpr (R::pixels > 1) {
        using Part = ReversedPart<P>;
        for (ptrdiff_t left = pixels; left > 0; left -= Part::pixels) {
            const ptrdiff_t n = std::min<ptrdiff_t>(left, Part::pixels);
            Part(src + (left - n) * P, n).template store<Chosen>(dst + (pixels - left) * P);
        }
    }
}

// The same past the caches; fenceStreams() is the caller's.
template <int P>
void streamReversedRow(const uint8_t* src, uint8_t* dst, ptrdiff_t pixels) {
    using R = Reversal<P, kReversalBytes<P>>;
    constexpr int W = kReversalBytes<P>;
    ptrdiff_t first = 0;
    while (first < W && reinterpret_cast<uintptr_t>(dst + first * P) % W != 0) ++first;
    if (first == W || first > pixels) return reverseRow<P>(src, dst, pixels);  // no pixel starts at an aligned address
    if (first > 0) reverseRow<P>(src + (pixels - first) * P, dst, first);
    for (; pixels - first >= R::pixels; first += R::pixels) {
        typename R::V v[R::vectors];
        R::load(src + (pixels - first - R::pixels) * P, v);
        R::template store<P>(StreamedBlock{}, dst + first * P, v);
    }
    if (first < pixels) reverseRow<P>(src, dst + first * P, pixels - first);
}

// Pixel i from `begin` on changes places with pixel i before `end`, for so many pixels, which do not overlap.
template <int P, int Chosen = P, int W = kReversalBytes<P>>
KVRI_INLINE inline void swapReversed(uint8_t* begin, uint8_t* end, ptrdiff_t pixels) {
    using R = Reversal<P, W>;
    ptrdiff_t first = 0;
    for (; pixels - first >= R::pixels; first += R::pixels) {
        uint8_t *left = begin + first * P, *right = end - (first + R::pixels) * P;
        typename R::V fromLeft[R::vectors], fromRight[R::vectors];
        R::load(left, fromLeft);
        R::load(right, fromRight);
        R::template store<Chosen>(WholeBlock{}, left, fromRight);
        R::template store<Chosen>(WholeBlock{}, right, fromLeft);
    }
    if constexpr (W > 16) {
        if (first < pixels) swapReversed<P, Chosen, W / 2>(begin + first * P, end - first * P, pixels - first);
    } else if constexpr (R::pixels > 1) {
        using Part = ReversedPart<P>;
        for (; first < pixels; first += Part::pixels) {
            const ptrdiff_t n = std::min<ptrdiff_t>(pixels - first, Part::pixels);
            uint8_t *left = begin + first * P, *right = end - (first + n) * P;
            const Part fromLeft(left, n), fromRight(right, n);
            fromRight.template store<Chosen>(left);
            fromLeft.template store<Chosen>(right);
        }
    }
}

}  // namespace kvri
