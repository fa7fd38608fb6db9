// datamove/write.h: rows written from an image or from a repeating value: every byte, chosen channels, or masked pixels.
#pragma once

#include "core/sources.h"

namespace kvri {

template <int B, class Source>
KVRI_INLINE inline void writeAll(Source source, uint8_t* dst, ptrdiff_t pixels) {
    forEachVector<B, kPeriod<B>, B>(pixels, [&](auto block, ptrdiff_t first, auto j, ptrdiff_t bytes) KVRI_INLINE {
        block.store(dst + first * B + j * kVectorBytes, source.template vector<j>(block, first, bytes), bytes);
    });
}

// The first `Chosen` bytes of every pixel. The row ends with byte `LastPixel` of its last pixel.
template <int B, int Chosen, int LastPixel, class Source>
KVRI_INLINE inline void writeChannels(Source source, uint8_t* dst, ptrdiff_t pixels) {
    forEachVector<B, kPeriod<B>, LastPixel>(pixels, [&](auto block, ptrdiff_t first, auto index, ptrdiff_t bytes) KVRI_INLINE {
        constexpr int j = index;
        const auto written = choose<Bytes<>>([](int i) { return (j * kVectorBytes + i) % B < Chosen; });
        block.storeChosen(dst + first * B + j * kVectorBytes, source.template vector<j>(block, first, bytes), written, bytes);
    });
}

// Pixels whose byte of a mask is not 0: the choice of each vector of a block of N pixels, in units that divide pixels and
// what is chosen of them.
template <int B, int Chosen, int N>
class PixelMask {
public:
    static constexpr int unit = (B | Chosen) % 8 == 0 ? 8 : (B | Chosen) % 4 == 0 ? 4 : (B | Chosen) % 2 == 0 ? 2 : 1;

private:
#if defined(__AVX512BW__)
    static constexpr int pixel = B / unit, vectorUnits = 64 / unit;
    uint64_t pixels_;

    static constexpr uint64_t lowest(int bits) { return bits >= 64 ? ~uint64_t(0) : (uint64_t(1) << bits) - 1; }
    static constexpr uint64_t everyPixel(int from) {
        uint64_t bits = 0;
        for (int i = from; i < vectorUnits; i += pixel) bits |= uint64_t(1) << i;
        return bits;
    }

public:
    KVRI_INLINE PixelMask(const uint8_t* mask, auto block, ptrdiff_t n)
        : pixels_(chooseNonZero(block.template load<Bytes<N>>(mask, n))) {
        if constexpr (pixel > 1) asm("" : "+r"(pixels_));  // moved out of the mask register once, not for every use
    }

    // A masked store costs less than asking whether it is needed, a spread mask more.
    bool none() const { return pixel > 1 && pixels_ == 0; }

    // One bit per pixel, spread to a bit at each pixel's first unit, then over the pixel's chosen units.
    template <int j>
    KVRI_INLINE Choice<Bytes<>> vector() const {
        constexpr int begun = j * vectorUnits % pixel, first = j * vectorUnits / pixel;  // it starts inside pixel `first`
        constexpr int next = begun ? first + 1 : first, nextAt = begun ? pixel - begun : 0;
        if constexpr (pixel == 1) return pixels_ >> first;
        uint64_t bits = _pdep_u64(pixels_ >> next, everyPixel(nextAt)) * lowest(Chosen / unit);
        if constexpr (begun != 0) bits |= (pixels_ >> first & 1) * lowest(pixel - begun);
        return bits;
    }
#else
    // Windows of 16 mask bytes: those of all pixels, or from 8 j on where a block has 32 pixels of three bytes.
    static constexpr int window(int j) { return N == 16 ? 0 : 8 * j; }
    static constexpr bool direct = B == 1;
    static constexpr int windows = direct ? 0 : N == 16 ? 1 : 3;
    Bytes<> all_;
    Bytes<> window_[windows + 1];

public:
    KVRI_INLINE PixelMask(const uint8_t* mask, auto block, ptrdiff_t n) {
        if constexpr (direct || windows == 3) all_ = block.template load<Bytes<>>(mask, n);
        unroll<windows>([&](auto j) KVRI_INLINE {
            window_[j] = broadcastLane<Bytes<>>(block.template load<Bytes<16>>(mask + window(j), n - window(j)));
        });
        if constexpr (windows == 1) all_ = window_[0];
    }

    bool none() const { return allZero(all_); }

    template <int j>
    KVRI_INLINE Choice<Bytes<>> vector() const {
        if constexpr (direct) return chooseNonZero(all_);
        const Bytes<> pixelOfByte = constant<Bytes<>>([](int i) {
            const int byte = j * kVectorBytes + i;
            return byte % B < Chosen ? byte / B - window(j) : 128;
        });
        return chooseNonZero(shuffle(window_[windows == 1 ? 0 : j], pixelOfByte));
    }
#endif
};

// The first `Chosen` bytes of every pixel whose mask byte is not 0.
template <int B, int Chosen, class Source>
KVRI_INLINE inline void writeMasked(Source source, const uint8_t* mask, uint8_t* dst, ptrdiff_t pixels) {
    constexpr int N = std::max(16, kPeriod<B> * kVectorBytes / B);
    forEachBlock<N, 0, 2>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
        using Mask = PixelMask<B, Chosen, N>;
        const Mask chosen(mask + first, block, n);
        if (chosen.none()) return;
        unroll<N * B / kVectorBytes>([&](auto j) KVRI_INLINE {
            const ptrdiff_t bytes = n * B - j * kVectorBytes;
            block.template storeChosen<Mask::unit>(dst + first * B + j * kVectorBytes,
                                                   source.template vector<j>(block, first, bytes),
                                                   chosen.template vector<j>(), bytes);
        });
    });
}

}  // namespace kvri
