// core/sources.h: where the vectors of a row come from: an image, or a value that repeats.
//
// A row is a run of pixels of B bytes, taken in blocks that hold a whole number of pixels and of vectors.
#pragma once

#include <bit>

#include "core/block.h"

namespace kvri {

// Vectors until a pattern of B bytes, a power of two or three times one, repeats.
template <int B>
constexpr int kPeriod = B % 3 == 0 ? 3 : std::max(1, B / kVectorBytes);

// Sources: vector j of the block that starts at pixel `first`; from that vector on, `bytes` bytes are the row's.
template <int B>
struct FromImage {
    const uint8_t* row;

    template <int j>
    KVRI_INLINE Bytes<> vector(auto block, ptrdiff_t first, ptrdiff_t bytes) const {
        return block.template load<Bytes<>>(row + first * B + j * kVectorBytes, bytes);
    }
};

template <int B>
class FromValue {
    Bytes<> pattern_[kPeriod<B>];

public:
    // The first `size` bytes of a pixel. A power of two of them is repeated; where it is none, the rest is never written.
    FromValue(const void* value, int size) {
        if constexpr (B > 16) repeat(value, size);
        else repeatLane(value, size);
    }

    template <int j>
    KVRI_INLINE Bytes<> vector(auto, ptrdiff_t, ptrdiff_t) const {
        return pattern_[j % kPeriod<B>];
    }

private:
    void repeatLane(const void* value, int size) {
        Bytes<16> lane{};
        std::memcpy(&lane, value, size_t(size));
        unroll<kPeriod<B>>([&](auto index) KVRI_INLINE {
            constexpr int j = index;
            const auto place = constant<Bytes<>>([](int i) { return (j * kVectorBytes + i) % B; });
            const uint8_t repeated = std::has_single_bit(unsigned(size)) ? uint8_t(size - 1) : 255;
            pattern_[j] = shuffle(broadcastLane<Bytes<>>(lane), place & repeated);
        });
    }

    void repeat(const void* value, int size) {
        uint8_t bytes[sizeof pattern_] = {};
        for (int i = 0; i < int(sizeof bytes); i += B) std::memcpy(bytes + i, value, size_t(size));
        for (int j = 0; j < kPeriod<B>; ++j) pattern_[j] = load<Bytes<>>(bytes + j * kVectorBytes);
    }
};

// Calls step(block, first pixel, vector number j as a constant, bytes of the row from that vector on) for every vector.
template <int B, int Vectors, int LastPixel, int Unrolled = 2, class Step>
KVRI_INLINE inline void forEachVector(ptrdiff_t pixels, Step step) {
    forEachBlock<Vectors * kVectorBytes / B, LastPixel != B, Unrolled>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
        unroll<Vectors>([&](auto j) KVRI_INLINE { step(block, first, j, (n - 1) * B + LastPixel - j * kVectorBytes); });
    });
}

}  // namespace kvri
