// geometry/resize_windows.h: rows of pixels picked from another row, vector by vector.
//
// A vector's pixels come from a window of one or two vectors of the source row. Pixels of whole words are picked by one
// permutation. Others take 16 or 32 neighbouring bytes per lane, as words, and shuffle these.
#pragma once

#include "core/lanes.h"

namespace kvri {

// Byte k of a lane that begins `phase` bytes into a pixel: whose pixel's it is, and which of its bytes.
template <int B>
constexpr auto laneTable(auto entry) {
    std::array<std::array<uint8_t, 16>, B> t{};
    for (int phase = 0; phase < B; ++phase)
        for (int k = 0; k < 16; ++k) t[phase][k] = uint8_t(entry(phase + k));
    return t;
}
template <int B>
constexpr auto kPixelOf = laneTable<B>([](int byte) { return byte / B; });
template <int B>
constexpr auto kByteOf = laneTable<B>([](int byte) { return byte % B; });

// Source bytes of a lane's destination bytes, from the first pixel's on; at most 255. What is read of `index` behind the
// row's end, three entries at most, is not used.
template <int B>
inline Bytes<16> laneOffsets(const int32_t* index, int phase) {
    using Indices = Vec<uint32_t, 16>;
    constexpr int vectors = B == 1 ? 4 : B <= 3 ? 2 : 1;
    const auto pixels = [&](int j) KVRI_INLINE {
        const Indices v = load<Indices>(index + std::min(j, vectors - 1) * 4) - uint32_t(index[0]);
        return (Vec<int32_t, 16>)(v * uint32_t(B));
    };
    const auto begins = (Bytes<16>)narrow<uint8_t>(narrow<int16_t>(pixels(0), pixels(1)), narrow<int16_t>(pixels(2), pixels(3)));
    return addSaturated(shuffle(begins, load<Bytes<16>>(kPixelOf<B>[phase].data())), load<Bytes<16>>(kByteOf<B>[phase].data()));
}

#if defined(__AVX512BW__)

enum class Picks { Words, Lanes, PairsOfLanes };

// A strip of destination pixels.
template <int W>
class WindowTables {
    using V = Bytes<W>;
    static constexpr int mostVectors = 8192 / W;

    struct Vector {
        V words, control;  // of the window, for each lane; bytes of these 16 or 32
    };
    alignas(64) Vector vector_[mostVectors];
    __mmask64 second_[mostVectors];  // bytes that come from the second half of 32
    int32_t base_[mostVectors];      // where the windows begin
    int bytes_;                      // of the destination
    int behind_;                     // the source bytes' end
    int loads_;                      // vectors of a window
    Picks picks_;

    static V permuted(V words, V a) { KVRI_BY_WIDTH(V, permutexvar_epi16, raw(words), raw(a)); }
    static V permuted(V words, V a, V b) { KVRI_BY_WIDTH(V, permutex2var_epi16, raw(a), raw(words), raw(b)); }

    static V secondWhere(__mmask64 choice, V first, V second, V control) {
        KVRI_BY_WIDTH(V, mask_shuffle_epi8, raw(first), choice, raw(second), raw(control));
    }

public:
    static constexpr int most = mostVectors * W, mostRows = 32;  // destination bytes

    int vectors() const { return (bytes_ + W - 1) / W; }
    // A vector's first byte: the last one ends with the row, over what the one before it has.
    int start(int vector) const { return std::min(vector * W, bytes_ - W); }

    // Of pixels of B bytes at `index`: false where windows do not reach.
    template <int B>
    bool prepare(const int32_t* index, int count) {
        bytes_ = count * B;
        behind_ = (index[count - 1] - index[0] + 1) * B;
        if (bytes_ < W) return false;
        int reach = 0;
        for (int i = 0; i < vectors(); ++i) reach = std::max(reach, (index[(start(i) + W - 1) / B] - index[start(i) / B] + 1) * B);
        if (reach > 2 * W) return false;
        loads_ = reach > W || behind_ < W ? 2 : 1;
        V widest{};
        for (int i = 0; i < vectors(); ++i) {
            const int pixel = start(i) / B;
            base_[i] = std::max(std::min((index[pixel] - index[0]) * B, behind_ - loads_ * W), 0);
            if constexpr (B % 2 == 0) vector_[i].words = wordsOf<B>(index, start(i) / 2, index[0] + base_[i] / B, base_[i] % B / 2);
            else placeLanes<B>(index, i, widest);
        }
        picks_ = B % 2 == 0 ? Picks::Words : allZero(widest & uint8_t(-16)) ? Picks::Lanes : Picks::PairsOfLanes;
        return allZero(widest & uint8_t(-32));
    }

    // Destination rows, `step` apart, of the source rows in whose first source columns src has pixels.
    void apply(const uint8_t* const* src, int rows, uint8_t* dst, ptrdiff_t step) const {
        if (picks_ == Picks::Words) applyBy<Picks::Words>(src, rows, dst, step);
        else if (picks_ == Picks::Lanes) applyBy<Picks::Lanes>(src, rows, dst, step);
        else applyBy<Picks::PairsOfLanes>(src, rows, dst, step);
    }
    // Rows to be done together, so that a vector's tables are loaded once for all.
    int rowsAtATime() const { return vectors() <= 4 ? mostRows : 6; }

private:
    template <Picks picks>
    void applyBy(const uint8_t* const* src, int rows, uint8_t* dst, ptrdiff_t step) const {
        const auto each = [&](auto loadWindow) KVRI_INLINE {
            for (int i = 0, n = vectors(); i < n; ++i) {
                const V words = loadedOnce(vector_[i].words), control = loadedOnce(vector_[i].control);
                const __mmask64 second = second_[i];
                const auto pick = [=](auto... window) KVRI_INLINE {
                    const V first = permuted(words, window...);
                    if constexpr (picks == Picks::Words) return first;
                    else if constexpr (picks == Picks::Lanes) return shuffle(first, control);
                    else return secondWhere(second, shuffle(first, control), permuted((V)((Vec<uint16_t, W>)words + 8), window...), control);
                };
                const ptrdiff_t base = base_[i];
                uint8_t* to = dst + start(i);
                V v{};
                const uint8_t* above = nullptr;
                for (int row = 0; row < rows; ++row, to += step) {
                    if (src[row] != above) v = loadWindow(src[row] + base, behind_ - base, pick);
                    above = src[row];
                    store(to, v);
                }
            }
        };
        if (behind_ < loads_ * W) each([](const uint8_t* p, ptrdiff_t n, auto pick) KVRI_INLINE { return pick(loadPart<V>(p, n), loadPart<V>(p + W, n - W)); });
        else if (loads_ == 2) each([](const uint8_t* p, ptrdiff_t, auto pick) KVRI_INLINE { return pick(load<V>(p), load<V>(p + W)); });
        else each([](const uint8_t* p, ptrdiff_t, auto pick) KVRI_INLINE { return pick(load<V>(p)); });
    }

    // Words of a vector that begins at word `word` of the destination, counted from word `part` of pixel `first` on.
    template <int B>
    static V wordsOf(const int32_t* index, int word, int first, int part) {
        constexpr int perPixel = B / 2, half = 16;
        using Numbers = Vec<uint32_t, 64>;
        struct Phase {
            alignas(64) uint32_t pixel[half], word[half];
        };
        static constexpr auto phases = [] {
            std::array<Phase, perPixel> p{};
            for (int phase = 0; phase < perPixel; ++phase)
                for (int i = 0; i < half; ++i) p[phase].pixel[i] = (phase + i) / perPixel, p[phase].word[i] = (phase + i) % perPixel;
            return p;
        }();
        const auto words = [&](int at) KVRI_INLINE {  // what is read of `index` behind its end is not used
            const Phase& phase = phases[at % perPixel];
            const auto pixels = (Numbers)_mm512_permutexvar_epi32(load<__m512i>(phase.pixel), load<__m512i>(index + at / perPixel));
            const Numbers n = (pixels - uint32_t(first)) * uint32_t(perPixel) + load<Numbers>(phase.word) - uint32_t(part);
            return (Bytes<32>)_mm512_cvtepi32_epi16((__m512i)n);
        };
        if constexpr (W == 32) return words(word);
        else return joinHalves(words(word), words(word + half));
    }

    // Bytes of each lane, counted from an even number of bytes from the window's begin on.
    template <int B>
    KVRI_INLINE void placeLanes(const int32_t* index, int i, V& widest) {
        const int vectorStart = start(i), origin = index[0] * B + base_[i];
        const V control = fromLanes<W>([&](int lane) KVRI_INLINE {
            const int byte = vectorStart + lane * 16, pixel = byte / B, phase = byte % B;
            const int less = lowOf<B>(index + pixel, phase) - beginOf<B>(index + pixel, phase, origin) % 2;
            return laneOffsets<B>(index + pixel, phase) - splat<Bytes<16>>(uint8_t(less));
        });
        const V words = fromLanes<W>([&](int lane) KVRI_INLINE {
            const int byte = vectorStart + lane * 16, pixel = byte / B, phase = byte % B;
            return (Bytes<16>)(iota() + splat<Vec<uint16_t, 16>>(uint16_t(beginOf<B>(index + pixel, phase, origin) / 2)));
        });
        widest |= control;
        vector_[i] = {words, control};
        second_[i] = chooseNonZero(control & uint8_t(16));
    }
    // Where the lowest byte of a lane lies that begins `phase` bytes into a pixel: from that pixel on, and in the window. The
    // second pixel may begin before the first byte.
    template <int B>
    static int lowOf(const int32_t* index, int phase) { return phase == 0 ? 0 : std::min(phase, (index[1] - index[0]) * B); }
    template <int B>
    static int beginOf(const int32_t* index, int phase, int origin) { return index[0] * B + lowOf<B>(index, phase) - origin; }
    static Vec<uint16_t, 16> iota() { return constant<Vec<uint16_t, 16>>([](int i) { return i % 2 ? 0 : i / 2; }); }
};

#endif

}  // namespace kvri
