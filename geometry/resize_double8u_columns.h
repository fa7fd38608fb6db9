// geometry/resize_double8u_columns.h: Linear of 8u at double size, some columns after the other: for what stays in the caches,
// and for three channels, whose pixels are no whole fraction of a vector. Longer rows are better written one by one.
#pragma once

#include "core/lanes.h"
#include "geometry/resize_apply.h"

namespace kvri {

// Works on a cache line's columns for some rows, one below the other: the sums along a source row stay in registers until the
// next row's are there. Destination columns 2s and 2s + 1 have their taps in source columns s - 1 to s + 1, so the taps of a
// lane of destination samples lie in 16 bytes of a row.
template <int C>
class ColumnDoubler {
    using Words = Vec<uint16_t>;
    using Numbers = Vec<int16_t>;
    static constexpr int groupSamples = 64, perGroup = groupSamples / kVectorBytes, mostGroups = 64, mostPairs = 20;
    static constexpr ptrdiff_t nearBytes = 0x80000;

    struct Vector {
        Bytes<> control[2], weights[2];  // of the first and of the second half of each lane's samples
        Bytes<> words;                   // of a window of the row, for each lane; without windows, where lanes begin, in two bytes
        int32_t base;                    // where the window begins
    };

    const ResizeTile& tile_;
    alignas(64) Vector vector_[mostGroups * perGroup];
    int first_, bytes_, samples_;  // the strip's first source column, the bytes from there, destination samples

public:
    explicit ColumnDoubler(const ResizeTile& tile) : tile_(tile) {}

    // Whether a tile is one for this way.
    static bool takes(const ResizeTile& tile) {
        return tile.size.width * C >= groupSamples && (C == 3 || ptrdiff_t(tile.size.width) * tile.size.height * C <= nearBytes);
    }

    void run() {
        const int width = tile_.size.width, strip = tile_.stripWidth(mostGroups * groupSamples / C);
        for (int x = 0; x < width; x += strip) {
            prepare(x, std::min(strip, width - x));
            bands(SourceColumn(tile_, first_, C), x);
        }
    }

private:
    int groups() const { return (samples_ + groupSamples - 1) / groupSamples; }
    // A group's first sample: the last group ends with the strip, over what the one before it has.
    int start(int group) const { return std::min(group * groupSamples, samples_ - groupSamples); }

    static int leftOf(int position) { return (position + 1) / 2 - 1; }

    void prepare(int x, int width) {
        const int position = tile_.offset.x + x;
        samples_ = width * C;
        first_ = tile_.columns(leftOf(position));
        bytes_ = (tile_.columns(leftOf(position + width - 1) + 1) - first_ + 1) * C;
        for (int group = 0; group < groups(); ++group)
            for (int i = 0; i < perGroup; ++i) place(vector_[group * perGroup + i], position, start(group) + i * kVectorBytes);
    }

    // Sample i of one half of the lanes, counted from the begin of a pixel of which the vector leaves out `phase` samples.
    struct Half {
        alignas(64) uint16_t pixel[kVectorBytes / 2], channel[kVectorBytes / 2];
    };
    static constexpr auto kHalves = [] {
        std::array<std::array<Half, 2>, C> halves{};
        for (int phase = 0; phase < C; ++phase)
            for (int half = 0; half < 2; ++half)
                for (int i = 0; i < kVectorBytes / 2; ++i) {
                    const int sample = phase + i / 8 * 16 + half * 8 + i % 8;
                    halves[phase][half].pixel[i] = uint16_t(sample / C), halves[phase][half].channel[i] = uint16_t(sample % C);
                }
        return halves;
    }();

    static Numbers smallestOfLane(Numbers v) {
        v = smaller(v, pick(v, [](int i) { return i ^ 1; }));
        v = smaller(v, pick(v, [](int i) { return i ^ 2; }));
        return smaller(v, pick(v, [](int i) { return i ^ 4; }));
    }

    KVRI_INLINE void place(Vector& to, int position, int sample) {
        const int pixel = position + sample / C, before = leftOf(pixel);  // columns count from here
        const auto number = [](int n) { return splat<Numbers>(int16_t(std::clamp(n, -4096, 4096))); };
        const Numbers low = number(first_ - before), high = number(first_ + bytes_ / C - 1 - before);
        Numbers left[2], right[2];
        unroll<2>([&](auto h) KVRI_INLINE {
            const Half& half = kHalves[sample % C][h];
            const Numbers odd = load<Numbers>(half.pixel) + int16_t(pixel % 2), column = (odd + 1) >> 1;
            const auto byteOf = [&](Numbers column) KVRI_INLINE {
                return clamp(column - int16_t((pixel % 2 + 1) / 2), low, high) * int16_t(C) + load<Numbers>(half.channel);
            };
            left[h] = byteOf(column), right[h] = byteOf(column + 1);
            to.weights[h] = (Bytes<>)(splat<Numbers>(0x0301) ^ ((odd & 1) * int16_t(0x0202)));
        });
        const Numbers least = smallestOfLane(smaller(left[0], left[1]));
        Numbers begin;
        const int from = (before - first_) * C;  // where columns count from, in bytes of the row
        if constexpr (kVectorBytes == 64) {
            to.base = std::max(std::min(from + least[0], bytes_ - kVectorBytes), 0);
            const Numbers word = (least + int16_t(from - to.base)) >> 1;
            begin = word * 2 - int16_t(from - to.base);
            to.words = (Bytes<>)(word + constant<Numbers>([](int i) { return i % 2 ? 0 : i % 16 / 2; }));
        } else {
            begin = smaller(least, splat<Numbers>(int16_t(std::min(bytes_ - 16 - from, 4096))));
            to.base = from;
            to.words = (Bytes<>)begin;
        }
        unroll<2>([&](auto h) KVRI_INLINE { to.control[h] = (Bytes<>)((left[h] - begin) | (right[h] - begin) << 8); });
    }

    // Many rows at a time only where they are not all in the same set of the first-level cache, and where they are near.
    int pairsAtATime() const {
        const bool crowded = tile_.dstStep % 2048 == 0, near = ptrdiff_t(tile_.size.width) * tile_.size.height * C <= nearBytes;
        return near && !crowded ? mostPairs : 4;
    }

    void bands(const SourceColumn& source, int x) const {
        const int begin = tile_.offset.y, end = begin + tile_.size.height, atATime = pairsAtATime();
        // Source rows i - 1 and i give destination rows 2i - 1 and 2i.
        for (int i = (begin + 1) / 2; 2 * i - 1 < end; i += atATime) {
            const uint8_t* row[mostPairs + 1];
            const int pairs = std::min(atATime, end / 2 - i + 1), firstRow = 2 * i - 1 - begin;
            for (int k = 0; k <= pairs; ++k) row[k] = source[tile_.rows(i - 1 + k)];
            uint8_t* to = tile_.destination(firstRow, x, C);
            for (int group = 0; group < groups(); ++group) {
                if (bytes_ >= kVectorBytes) band(group, row, pairs, firstRow, to, [](const uint8_t* p, ptrdiff_t) KVRI_INLINE { return load<Bytes<>>(p); });
                else band(group, row, pairs, firstRow, to, [](const uint8_t* p, ptrdiff_t n) KVRI_INLINE { return loadPart<Bytes<>>(p, n); });
            }
        }
    }

    // firstRow: that of the first pair's upper result in the tile, or -1.
    template <class Load>
    KVRI_INLINE void band(int group, const uint8_t* const* row, int pairs, int firstRow, uint8_t* to, Load loadWindow) const {
        const Vector* tables = vector_ + group * perGroup;
        [[maybe_unused]] Vector held;  // the tables, where there are registers for them
        if constexpr (perGroup == 1) {
            unroll<2>([&](auto h) KVRI_INLINE { held.control[h] = loadedOnce(tables->control[h]), held.weights[h] = loadedOnce(tables->weights[h]); });
            held.words = loadedOnce(tables->words), held.base = tables->base;
        }
        const ptrdiff_t step = tile_.dstStep;
        const int height = tile_.size.height;
        struct Sums {
            Words half[2];
        };
        const auto sumsOf = [&](const uint8_t* p, auto i) KVRI_INLINE {
            const Vector& v = perGroup == 1 ? held : tables[i];
            Bytes<> taps;
            if constexpr (kVectorBytes == 64) taps = lanesOf(loadWindow(p + v.base, bytes_ - v.base), v.words);
            else taps = fromLanes<kVectorBytes>([&](int l) KVRI_INLINE { return load<Bytes<16>>(p + v.base + reinterpret_cast<const int16_t*>(&v.words)[8 * l]); });
            Sums sums;
            unroll<2>([&](auto h) KVRI_INLINE {  // with 2 more: what a pixel's sum of 12 bits is rounded with comes to 8
                sums.half[h] = (Words)multiplyPairsOfBytes(shuffle(taps, v.control[h]), v.weights[h]) + 2;
            });
            return sums;
        };
        const auto put = [&](uint8_t* p, const Sums& near, const Sums& both) KVRI_INLINE {
            const auto half = [&](int h) KVRI_INLINE { return (Numbers)((near.half[h] + near.half[h] + both.half[h]) >> 4); };
            store(p, narrow<uint8_t>(half(0), half(1)));
        };
        Sums above[perGroup];
        unroll<perGroup>([&](auto i) KVRI_INLINE { above[i] = sumsOf(row[0], i); });
        to += start(group);
        for (int k = 0; k < pairs; ++k, to += 2 * step) {
            const int at = firstRow + 2 * k;
            Sums below[perGroup], both[perGroup];
            unroll<perGroup>([&](auto i) KVRI_INLINE {
                below[i] = sumsOf(row[k + 1], i);
                unroll<2>([&](auto h) KVRI_INLINE { both[i].half[h] = above[i].half[h] + below[i].half[h]; });
            });
            if (at >= 0) unroll<perGroup>([&](auto i) KVRI_INLINE { put(to + i * kVectorBytes, above[i], both[i]); });
            if (at + 1 < height) unroll<perGroup>([&](auto i) KVRI_INLINE { put(to + step + i * kVectorBytes, below[i], both[i]); });
            unroll<perGroup>([&](auto i) KVRI_INLINE { above[i] = below[i]; });
        }
    }

    static Bytes<> lanesOf([[maybe_unused]] Bytes<> window, [[maybe_unused]] Bytes<> words) {
#if defined(__AVX512BW__)
        return (Bytes<>)_mm512_permutexvar_epi16((__m512i)words, (__m512i)window);
#else
        return window;
#endif
    }
};

}  // namespace kvri
