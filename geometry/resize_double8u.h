// geometry/resize_double8u.h: Linear of 8u at double size. Weights are 1/4 and 3/4, so a row's sums have 10 bits and a pixel's 12.
#pragma once

#include "core/lanes.h"
#include "geometry/resize_apply.h"

namespace kvri {

// A destination row is worked on in strips that begin with an even column. Destination columns 2s and 2s + 1 have their taps
// in source columns s - 1 to s + 1: 16 destination samples in 16 bytes of a source row, 8 bytes on from those before them.
template <int C>
class LinearDoubler {
    using Words = Vec<uint16_t>;
    static constexpr int period = C == 3 ? 3 : 1, lanes = kVectorBytes / 16;
    static constexpr int most = 4096 / C / 2 * 2;  // columns of a strip
    static constexpr int stripSamples = 5120;      // with what whole periods have more; two rows of sums lie half a page more than pages apart
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
        SourceColumn rows;  // from column `low` on
        ptrdiff_t bytes;
        bool before, behind;

        SourceColumns(const ResizeTile& tile, int first, int last) : rows(tile, tile.columns(first), C) {
            const int low = tile.columns(first), high = tile.columns(last);
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
            columns.copy(columns.rows[copied], sourceRow(copied));
        };
        const int column = x - tile_.offset.x + before / C;
        // Source rows i - 1 and i give destination rows 2i - 1 and 2i.
        const auto walk = [&](auto streamed) KVRI_INLINE {
            for (int i = (begin + 1) / 2; i <= (begin + height) / 2; ++i) {
                const int lower = tile_.rows(i), firstRow = std::max(2 * i - 1 - begin, 0), rows = std::min(2 * i - begin, height - 1) - firstRow + 1;
                uint16_t *above = sums_[tile_.rows(i - 1) & 1], *below = sums_[lower & 1];
                uint8_t* dst = tile_.destination(firstRow, column, C);
                const bool isNew = lower != summed;
                if (isNew && rows == 2 && before == 0) {
                    sumAndCombine<streamed>(sourceRow(lower), above, below, samples, dst, dst + tile_.dstStep);
                } else {
                    if (isNew) sumAlong(sourceRow(lower), samples, below);
                    for (int row = firstRow; row < firstRow + rows; ++row, dst += tile_.dstStep) {
                        if ((begin + row) % 2 == 0) combine(below, above, samples, result_);
                        else combine(above, below, samples, result_);
                        std::memcpy(dst, result_ + before, size_t(samples - before));
                    }
                }
                if (isNew) copyNext();
                summed = lower;
            }
        };
        for (int i = 0; i < ahead; ++i) copyNext();
        ++summed;
        sumAlong(sourceRow(summed), samples, sums_[summed & 1]);
        if (tile_.streamsVectors(ptrdiff_t(column) * C)) walk(std::true_type{});
        else walk(std::false_type{});
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
    KVRI_INLINE static void eachSum(const uint8_t* row, int samples, Step step) {
        for (int i = 0; i < samples; i += period * kVectorBytes)
            unroll<period>([&](auto vector) KVRI_INLINE {
                const int at = i + vector * kVectorBytes;
                const Bytes<> source = lanesAt(row, at);
                step(at, sumTaps<vector, 0>(source), sumTaps<vector, 1>(source));
            });
    }

    static void sumAlong(const uint8_t* row, int samples, uint16_t* sums) {
        eachSum(row, samples, [&](int at, Words first, Words second) KVRI_INLINE {
            store(sums + at, first);
            store(sums + at + kVectorBytes / 2, second);
        });
    }

    // What is 3, but not to the compiler: shifts in place of products would be too many.
    static Words three() { return loadedOnce(splat<Words>(3)); }
    static Vec<int16_t> weighted(Words near, Words far, Words three) { return (Vec<int16_t>)((near * three + far) >> 4); }

    static void combine(const uint16_t* near, const uint16_t* far, int samples, uint8_t* dst) {
        const Words three = LinearDoubler::three();
        for (int i = 0; i < samples; i += kVectorBytes) {
            const auto half = [&](int at) KVRI_INLINE { return weighted(load<Words>(near + at), load<Words>(far + at), three); };
            store(dst + i, narrow<uint8_t>(half(i), half(i + kVectorBytes / 2)));
        }
    }

    // Both rows between `above` and the sums of a row, which are kept at `below`.
    template <bool Streamed>
    static void sumAndCombine(const uint8_t* row, const uint16_t* above, uint16_t* below, int samples, uint8_t* upper, uint8_t* lower) {
        const Words three = LinearDoubler::three();
        eachSum(row, samples, [&](int at, Words first, Words second) KVRI_INLINE {
            store(below + at, first);
            store(below + at + kVectorBytes / 2, second);
            const Words a = loadedOnce(load<Words>(above + at)), b = loadedOnce(load<Words>(above + at + kVectorBytes / 2));
            put<Streamed>(upper + at, narrow<uint8_t>(weighted(a, first, three), weighted(b, second, three)), samples - at);
            put<Streamed>(lower + at, narrow<uint8_t>(weighted(first, a, three), weighted(second, b, three)), samples - at);
        });
    }

    template <bool Streamed>
    static void put(uint8_t* dst, Bytes<> v, int samples) {
        if (samples < kVectorBytes) storePart(dst, v, samples);
        else if constexpr (Streamed) stream(dst, v);
        else store(dst, v);
    }
};

}  // namespace kvri
