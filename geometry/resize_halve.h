// geometry/resize_halve.h: images at half the size: means of 2 x 2 pixels, which Linear and Super have in common.
//
// The sum of four integers is exact, and so is what the two passes in single precision would give; only ties differ. Numbers
// in single precision go through the products and sums of the two passes, rows first.
#pragma once

#include "core/fpcontrol.h"
#include "core/lanes.h"
#include "geometry/resize_apply.h"
#include "geometry/resize_pairs.h"

namespace kvri {

enum class Ties { Up, Even };

// Means of four numbers of any width: of the means of two each, with what these are too large by.
template <class T, int B, Ties ties>
struct MeansOfMeans {
    template <int W>
    static constexpr int bytes = PixelPairs<W, B>::bytes;

    // 16s as 16u, each 2^15 more.
    template <class V>
    static V shifted(V v) {
        if constexpr (std::is_same_v<T, int16_t>) return (V)((Vec<uint16_t, sizeof(V)>)v ^ 0x8000);
        else return v;
    }

    template <int W>
    static void block(const uint8_t* p, const uint8_t* q, uint8_t* dst) {
        using Pairs = PixelPairs<W, B>;
        using V = Vec<std::make_unsigned_t<T>, W>;
        const auto operand = [](Bytes<W> v) KVRI_INLINE { return (V)shifted(loadedOnce(v)); };
        const V p0 = operand(Pairs::firstLoad(p)), q0 = operand(Pairs::firstLoad(q));
        const V p1 = operand(Pairs::secondLoad(p)), q1 = operand(Pairs::secondLoad(q));
        const Bytes<W> a = (Bytes<W>)average(p0, q0), b = (Bytes<W>)average(p1, q1), x = (Bytes<W>)(p0 ^ q0), y = (Bytes<W>)(p1 ^ q1);
        const V left = (V)Pairs::template pick<Pairs::Firsts>(a, b), right = (V)Pairs::template pick<Pairs::Seconds>(a, b);
        const V leftHalf = (V)Pairs::template pick<Pairs::Firsts>(x, y), rightHalf = (V)Pairs::template pick<Pairs::Seconds>(x, y), half = left ^ right;
        const V mean = average(left, right);
        // Too large by half / 2 + (leftHalf + rightHalf) / 4, of which the lowest bits count.
        V less = half & (leftHalf | rightHalf);
        if constexpr (ties == Ties::Even) less |= mean & (half | (leftHalf & rightHalf));
        Pairs::put(dst, Pairs::ordered(shifted((Bytes<W>)(mean - (less & 1)))));
    }
};

// 8u of one and of three channels: sums of pairs by multiply-adds.
template <int C, Ties ties>
class MeansOfSums {
    static constexpr int laneBytes = C == 3 ? 12 : 16;  // source bytes that a lane takes: whole pairs of pixels
#if defined(__AVX512BW__)
    template <int W>
    static constexpr bool narrowsOne = C == 1 && W > 16;  // a vector of words by itself
#else
    template <int W>
    static constexpr bool narrowsOne = false;
#endif

    template <class V>
    static V mean(V sum) {
        if constexpr (ties == Ties::Up) return multiplyHighRounded(sum, splat<V>(1 << 13));
        else return (sum + 1 + ((sum >> 2) & 1)) >> 2;
    }

    // Bytes of a lane such that samples to be added are neighbours; C3 begins `skipped` bytes into the lane.
    template <int W, int skipped>
    static Bytes<W> pairUp(Bytes<W> v) {
        if constexpr (C == 1) return v;
        else
            return shuffle(v, constant<Bytes<W>>([](int i) {
                const int sample = i % 16, pair = sample / 2, pixel = pair / C * 2 + sample % 2, byte = pixel * C + pair % C;
                return byte < laneBytes ? byte + skipped : 128;
            }));
    }

    // Lanes of both rows from p and q on, `stride` bytes apart.
    template <int W, int stride, int skipped>
    static auto means(const uint8_t* p, const uint8_t* q) {
        const auto rows = [&](const uint8_t* row) KVRI_INLINE {
            const auto v = [&]() KVRI_INLINE {
                if constexpr (stride == 16) return load<Bytes<W>>(row);
                else return fromLanes<W>([&](int l) KVRI_INLINE { return load<Bytes<16>>(row + l * stride); });
            }();
            return multiplyPairsOfBytes(pairUp<W, skipped>(v), splat<Bytes<W>>(1));
        };
        return mean(rows(p) + rows(q));
    }

public:
    template <int W>
    static constexpr int bytes = narrowsOne<W> ? W / 2 : W / 16 * laneBytes;

    template <int W>
    static void block(const uint8_t* p, const uint8_t* q, uint8_t* dst) {
        constexpr int lanes = W / 16;
        if constexpr (narrowsOne<W>) {
            store(dst, __builtin_convertvector(means<W, 16, 0>(p, q), Bytes<W / 2>));
        } else if constexpr (C == 3) {  // the second of each two lanes is loaded from 4 bytes before, to stay inside
            const auto v = (Bytes<W>)narrow<uint8_t>(means<W, 24, 0>(p, q), means<W, 24, 4>(p + 8, q + 8));
            const auto packed = shuffle(v, constant<Bytes<W>>([](int i) { return i % 16 < 6 ? i % 16 : i % 16 < 12 ? i % 16 + 2 : 128; }));
            if constexpr (lanes == 1) storePart(dst, packed, 12);
            else storePart(dst, permute4(packed, [](int i) { return i < 3 * (W / 16) ? i / 3 * 4 + i % 3 : 3; }), bytes<W>);
        } else {
            const auto v = (Bytes<W>)narrow<uint8_t>(means<W, 16, 0>(p, q), means<W, 16, 0>(p + W, q + W));
            store(dst, unpackedOrder<2>(v));
        }
    }
};

template <int B>
struct MeansOfFloats {
    template <int W>
    static constexpr int bytes = PixelPairs<W, B>::bytes;

    template <class V>
    static V mean(V a, V b) { return a * 0.5f + b * 0.5f; }

    template <int W>
    static void block(const uint8_t* p, const uint8_t* q, uint8_t* dst) {
        using Pairs = PixelPairs<W, B>;
        using V = Vec<float, W>;
        const auto a = (Bytes<W>)mean((V)Pairs::firstLoad(p), (V)Pairs::firstLoad(q));
        const auto b = (Bytes<W>)mean((V)Pairs::secondLoad(p), (V)Pairs::secondLoad(q));
        Pairs::put(dst, Pairs::ordered((Bytes<W>)mean((V)Pairs::template pick<Pairs::Firsts>(a, b), (V)Pairs::template pick<Pairs::Seconds>(a, b))));
    }
};

template <class T, int C, Ties ties>
class Halver {
    static constexpr int size = sizeof(T), pixelBytes = C * size;
    using Means = std::conditional_t<std::is_floating_point_v<T>, MeansOfFloats<pixelBytes>,
                                     std::conditional_t<size == 1 && C != 4, MeansOfSums<C, ties>, MeansOfMeans<T, pixelBytes, ties>>>;

    // Where the last block would reach beyond the row, it is moved back over what is there already.
    template <int W>
    KVRI_INLINE static void row(const uint8_t* p, const uint8_t* q, uint8_t* dst, ptrdiff_t n) {
        constexpr int bytes = Means::template bytes<W>;
        ptrdiff_t i = 0;
        for (; n - i >= bytes; i += bytes) Means::template block<W>(p + 2 * i, q + 2 * i, dst + i);
        if (i == n) return;
        i = n - bytes;
        Means::template block<W>(p + 2 * i, q + 2 * i, dst + i);
    }

    static T mean(T a, T b, T c, T d) {
        if constexpr (std::is_floating_point_v<T>) return (a * 0.5f + c * 0.5f) * 0.5f + (b * 0.5f + d * 0.5f) * 0.5f;
        else {
            const int sum = a + b + c + d;
            return T((sum + 1 + (ties == Ties::Up ? 1 : (sum >> 2) & 1)) >> 2);
        }
    }

    static void samples(const uint8_t* p, const uint8_t* q, uint8_t* dst, ptrdiff_t n) {
        for (ptrdiff_t i = 0; i < n / size; ++i) {
            const ptrdiff_t left = (i / C * 2 * C + i % C) * size, right = left + pixelBytes;
            const auto at = [](const uint8_t* p) {
                T t;
                std::memcpy(&t, p, size);
                return t;
            };
            const T result = mean(at(p + left), at(p + right), at(q + left), at(q + right));
            std::memcpy(dst + i * size, &result, size);
        }
    }

    // The caller's pointer is to the first pixel that the tile uses.
    template <class Row>
    KVRI_INLINE static void rows(const ResizeCall& call, Row row) {
        const ptrdiff_t n = ptrdiff_t(call.size.width) * pixelBytes;
        const uint8_t* p = call.src;
        uint8_t* dst = call.dst;
        for (int y = call.size.height;;) {
            row(p, p + call.srcStep, dst, n);
            if (--y == 0) return;
            p += 2 * call.srcStep;
            dst += call.dstStep;
        }
    }

public:
    static void run(const ResizeCall& call) {
        const auto wide = [&]<int W>(std::integral_constant<int, W>) {
            if (call.size.width * ptrdiff_t(pixelBytes) < Means::template bytes<W>) return false;
            rows(call, [](auto... row) KVRI_INLINE { Halver::row<W>(row...); });
            return true;
        };
        const auto widest = [&] {
            return wide(std::integral_constant<int, kVectorBytes>{}) || wide(std::integral_constant<int, kShuffleBytes>{}) ||
                   wide(std::integral_constant<int, 16>{});
        };
        if constexpr (std::is_floating_point_v<T>) {
            const DefaultFloatControl control;
            if (!widest()) rows(call, samples);
        } else if (!widest()) {
            rows(call, samples);
        }
    }
};

}  // namespace kvri
