// core/block.h: a row in blocks of pixels, and its tail.
//
// A kernel is a step(block, first, count) on `count` pixels from pixel `first` on. It moves bytes through `block`, naming
// how many of them are the row's: a whole block loads and stores vectors and ignores the number, the part at the row's end
// touches just these bytes. So tail and body are one text, and no byte behind the row is read or written.
#pragma once

#include "core/simd.h"

namespace kvri {

struct WholeBlock {
    // v, with 0 in the bytes that are not the row's.
    template <class V>
    static V only(V v, ptrdiff_t) { return v; }
    template <class V>
    static V load(const uint8_t* p, ptrdiff_t) { return kvri::load<V>(p); }
    template <class V>
    static void store(uint8_t* p, V v, ptrdiff_t) { kvri::store(p, v); }
    template <int U = 1, class V>
    static void storeChosen(uint8_t* p, V v, Choice<V> choice, ptrdiff_t) { kvri::storeChosen<U>(p, v, choice); }
};

// Destinations are aligned to the vector and bypass the caches.
struct StreamedBlock : WholeBlock {
    template <class V>
    static void store(uint8_t* p, V v, ptrdiff_t) { stream(p, v); }
};

struct PartBlock {
    template <class V>
    static V only(V v, ptrdiff_t bytes) { return firstBytes(v, bytes); }
    template <class V>
    static V load(const uint8_t* p, ptrdiff_t bytes) { return loadPart<V>(p, bytes); }
    template <class V>
    static void store(uint8_t* p, V v, ptrdiff_t bytes) { storePart(p, v, bytes); }
    template <int U = 1, class V>
    static void storeChosen(uint8_t* p, V v, Choice<V> choice, ptrdiff_t bytes) { storeChosenPart<U>(p, v, choice, bytes); }
};

// Blocks of N pixels, `Unrolled` of them per turn of the loop while there are as many. The last `Margin` pixels are never
// part of a whole block: for kernels whose last pixel is not theirs to its end.
template <int N, int Margin = 0, int Unrolled = 1, class Step>
KVRI_INLINE inline void forEachBlock(ptrdiff_t pixels, Step step) {
    ptrdiff_t first = 0;
    if constexpr (Unrolled > 1)
        for (; pixels - first >= N * Unrolled + Margin; first += N * Unrolled)
            unroll<Unrolled>([&](auto u) KVRI_INLINE { step(WholeBlock{}, first + u * N, N); });
    for (; pixels - first >= N + Margin; first += N) step(WholeBlock{}, first, N);
    if (first < pixels) step(PartBlock{}, first, pixels - first);
}

// The same with streaming stores, after `head` pixels that bring the destination to alignment.
template <int N, class Step>
KVRI_INLINE inline void forEachStreamedBlock(ptrdiff_t head, ptrdiff_t pixels, Step step) {
    ptrdiff_t first = std::min(head, pixels);
    if (first > 0) step(PartBlock{}, 0, first);
    for (; pixels - first >= N; first += N) step(StreamedBlock{}, first, N);
    if (first < pixels) step(PartBlock{}, first, pixels - first);
    fenceStreams();
}

}  // namespace kvri
