// geometry/resize_double.h: Linear of 8u at double size. Weights are 1/4 and 3/4, so a row's sums have 10 bits and a pixel's 12.
#pragma once

#include "core/lanes.h"
#include "geometry/resize_apply.h"

namespace kvri {

inline bool doubles(const ResizeSpec& spec) {
    return spec.x.reducedSource == 1 && spec.x.reducedDestination == 2 && spec.y.reducedSource == 1 && spec.y.reducedDestination == 2;
}

// A destination row is worked on in strips that begin with an even column. Destination columns 2s and 2s + 1 have their taps
// in source columns s - 1 to s + 1: 16 destination samples in 16 bytes of a source row, 8 bytes on from those before them.
template <int C>
class LinearDoubler {
    using Words = Vec<uint16_t>;
    static constexpr int period = C == 3 ? 3 : 1, lanes = kVectorBytes / 16;
    static constexpr int most = 4096 / C / 2 * 2;  // columns of a strip
    static constexpr int stripSamples = 4352;      // with what whole periods have more; two rows of sums lie no page apart
    static constexpr int sourceBytes = stripSamples / 2 + kVectorBytes, mostAhead = 8;

    const ResizeTile& tile_;
    alignas(64) uint8_t source_[2 * sourceBytes];
    alignas(64) uint16_t sums_[2][stripSamples];  // per vector of destination samples: the first and the second half of each lane
    alignas(64) uint8_t result_[stripSamples];

public:
    explicit LinearDoubler(const ResizeTile& tile) : tile_(tile) {}

    void run() {
        const int begin = tile_.offset.x / 2 * 2, end = tile_.offset.x + tile_.size.width;
        for (int x = begin; x < end; x += most) strip(x, std::min(end, x + most));
    }

private:
    // Where a strip's source columns come from: `columns` of them from `low` on, the first and the last perhaps repeated.
    struct SourceColumns {
        const uint8_t* top;  // column `low` of row 0
        ptrdiff_t bytes;
        bool before, behind;

        SourceColumns(const ResizeTile& tile, int first, int last) {
            const int low = tile.columns(first), high = tile.columns(last);
            top = tile.src - tile.origin.y * tile.srcStep + (ptrdiff_t(low) - tile.origin.x) * C;
            bytes = ptrdiff_t(high - low + 1) * C;
            before = low > first, behind = last > high;
        }

        void copy(const uint8_t* from, uint8_t* to) const {
            if (before) std::memcpy(to, from, C), to += C;
            ptrdiff_t i = 0;
            for (; bytes - i >= kVectorBytes; i += kVectorBytes) store(to + i, load<Bytes<>>(from + i));
            if (i < bytes) store(to + i, loadPart<Bytes<>>(from + i, bytes - i));
            if (behind) std::memcpy(to + bytes, from + bytes - C, C);
        }
    };

    // Destination columns x to end - 1, x even; the first may lie before the tile.
    void strip(int x, int end) {
        const int samples = (end - x) * C, before = std::max(tile_.offset.x - x, 0) * C, height = tile_.size.height;
        const int begin = tile_.offset.y, lastRow = tile_.rows((begin + height) / 2);
        const SourceColumns columns(tile_, x / 2 - 1, end / 2);
        // A row is copied long before it is read, in vectors at other places than it was written in: some rows of short ones.
        const bool few = mostAhead * (samples / 2 + 3 * kVectorBytes) <= int(sizeof source_);
        const int ahead = few ? mostAhead : 2, stride = int(sizeof source_) / ahead / 64 * 64;
        const auto sourceRow = [&](int row) { return source_ + (row & (ahead - 1)) * stride; };
        int copied = tile_.rows((begin + 1) / 2 - 1) - 1, summed = copied;
        const auto copyNext = [&]() KVRI_INLINE {
            if (copied == lastRow) return;
            ++copied;
            columns.copy(columns.top + copied * tile_.srcStep, sourceRow(copied));
        };
        uint8_t* dst = tile_.destination(0, x - tile_.offset.x + before / C, C);
        const bool streams = tile_.streams && ((reinterpret_cast<uintptr_t>(dst) | uintptr_t(tile_.dstStep)) & (kVectorBytes - 1)) == 0;
        const auto rowOf = [&](int y, auto streamed, uint8_t* dst) KVRI_INLINE {
            const int upper = tile_.rows((y + 1) / 2 - 1), lower = tile_.rows((y + 1) / 2);
            uint16_t *above = sums_[upper & 1], *below = sums_[lower & 1];
            if (lower == summed) return y % 2 == 0 ? combine<streamed>(below, above, samples, dst) : combine<streamed>(above, below, samples, dst);
            const uint8_t* source = sourceRow(lower);
            summed = lower;
            if (y % 2 == 1) sumAndCombine<streamed>(source, above, below, samples, dst);
            else {
                sumAlong(source, samples, below, [](auto...) KVRI_INLINE {});
                combine<streamed>(below, above, samples, dst);
            }
            copyNext();
        };
        for (int i = 0; i < ahead; ++i) copyNext();
        ++summed;
        sumAlong(sourceRow(summed), samples, sums_[summed & 1], [](auto...) KVRI_INLINE {});
        for (int y = begin;;) {
            if (before > 0) {
                rowOf(y, std::false_type{}, result_);
                std::memcpy(dst, result_ + before, size_t(samples - before));
            } else if (streams) {
                rowOf(y, std::true_type{}, dst);
            } else {
                rowOf(y, std::false_type{}, dst);
            }
            if (++y == begin + height) return;
            dst += tile_.dstStep;
        }
    }

    // Byte i of what is multiplied for one half of the lanes of a vector, the `Vector`th of a period: a tap of a sample.
    template <int Vector, int Half>
    struct Tap {
        static constexpr int sample(int i) { return Vector * kVectorBytes + i / 16 * 16 + Half * 8 + i % 16 / 2; }
        // Where it lies in its lane of the source.
        static constexpr int place(int i) {
            const int pixel = sample(i) / C;
            return ((pixel + 1) / 2 + i % 2) * C + sample(i) % C - sample(i) / 16 * 8;
        }
        static constexpr int weight(int i) { return (sample(i) / C + i) % 2 == 0 ? 1 : 3; }
    };

    // The sums, each with 2 more: what a pixel's sum of 12 bits is rounded with comes to 8.
    template <int Vector, int Half>
    static Words sumTaps(Bytes<> source) {
        using T = Tap<Vector, Half>;
        const auto taps = shuffle(source, constant<Bytes<>>([](int i) { return T::place(i); }));
        return (Words)multiplyPairsOfBytes(taps, constant<Bytes<>>([](int i) { return T::weight(i); })) + 2;
    }

    // The source's bytes for vector `at` of destination samples, lane by lane.
    static Bytes<> lanesAt(const uint8_t* row, int at) {
        const Bytes<> source = load<Bytes<>>(row + at / 2);
        if constexpr (lanes == 1) return source;
        else return permute4(source, [](int i) { return i / 4 * 2 + i % 4; });
    }

    // Calls step(vector of samples, their sums) for whole periods.
    template <class Step>
    KVRI_INLINE static void sumAlong(const uint8_t* row, int samples, uint16_t* sums, Step step) {
        for (int i = 0; i < samples; i += period * kVectorBytes)
            unroll<period>([&](auto vector) KVRI_INLINE {
                const int at = i + vector * kVectorBytes;
                const Bytes<> source = lanesAt(row, at);
                const Words first = sumTaps<vector, 0>(source), second = sumTaps<vector, 1>(source);
                store(sums + at, first);
                store(sums + at + kVectorBytes / 2, second);
                step(at, first, second);
            });
    }

    // Pixels from the sums at `near` and others.
    class Combine {
        const uint16_t* near_;
        Words three_ = loadedOnce(splat<Words>(3));  // not to become shifts, of which there are enough

        Vec<int16_t> half(int at, Words far) const { return (Vec<int16_t>)((load<Words>(near_ + at) * three_ + far) >> 4); }

    public:
        explicit Combine(const uint16_t* near) : near_(near) {}
        Bytes<> operator()(int at, Words first, Words second) const {
            return (Bytes<>)narrow<uint8_t>(half(at, first), half(at + kVectorBytes / 2, second));
        }
    };

    template <bool Streamed>
    static void storePixels(uint8_t* dst, Bytes<> v, int samples) {
        if (samples < kVectorBytes) storePart(dst, v, samples);
        else if constexpr (Streamed) stream(dst, v);
        else store(dst, v);
    }

    template <bool Streamed>
    static void combine(const uint16_t* near, const uint16_t* far, int samples, uint8_t* dst) {
        const Combine pixels(near);
        for (int i = 0; i < samples; i += kVectorBytes)
            storePixels<Streamed>(dst + i, pixels(i, load<Words>(far + i), load<Words>(far + i + kVectorBytes / 2)), samples - i);
    }

    // The same where the sums at `far` are still to be formed.
    template <bool Streamed>
    static void sumAndCombine(const uint8_t* row, const uint16_t* near, uint16_t* far, int samples, uint8_t* dst) {
        const Combine pixels(near);
        sumAlong(row, samples, far, [&](int at, Words first, Words second) KVRI_INLINE {
            storePixels<Streamed>(dst + at, pixels(at, first, second), samples - at);
        });
    }
};

}  // namespace kvri
