// geometry/resize_pairs.h: pairs of neighbouring pixels, taken apart and made of single ones.
#pragma once

#include "core/lanes.h"

namespace kvri {

// Pixels of B bytes in pairs: the first or the second of every pair, from two vectors with what a block needs of a row.
template <int W, int B>
class PixelPairs {
    using V = Bytes<W>;
    static constexpr int lanes = W / 16;
    static constexpr bool threes = B % 3 == 0;  // the second vector begins in the middle of the first
#if defined(__AVX512BW__)
    static constexpr bool permutes = B % 2 == 0;
#else
    static constexpr bool permutes = false;
#endif

    static constexpr int second = !threes ? W : permutes ? W / 2 : 8;

public:
    static constexpr int bytes = threes ? W / 4 * 3 : W;  // of the pairs' firsts
    // Whether firstLoad() stays within a row that ends with a first.
    static constexpr bool endsWithFirst = (threes && !permutes ? 24 - 16 : 2 * bytes - W) >= B;

    // Where lanes are shuffled, a lane of each vector has 16 of 24 bytes of threes.
    static V firstLoad(const uint8_t* row) {
        if constexpr (threes && !permutes) return fromLanes<W>([&](int l) KVRI_INLINE { return load<Bytes<16>>(row + l * 24); });
        else return load<V>(row);
    }
    static V secondLoad(const uint8_t* row) { return firstLoad(row + second); }
    static V earlierLoad(const uint8_t* row) { return firstLoad(row + second - B); }

    // In an order that ordered() expects. FirstsEarlier: firsts, with a second vector of earlierLoad(), which stays within
    // a row that ends with a first.
    enum Which { Firsts, Seconds, FirstsEarlier };

    template <Which which>
    static V pick(V a, V b) {
        constexpr int odd = which == Seconds, later = which == FirstsEarlier ? B : 0;
        if constexpr (permutes) return permute<odd, later>(a, b);
        else if constexpr (threes) {
            struct From {  // the byte of a lane's 24, or 24
                static constexpr int at(int i) { return i % 16 < 12 ? (i % 16 / B * 2 + odd) * B + i % 16 % B : 24; }
            };
            return shuffle(a, constant<V>([](int i) { return From::at(i) < 16 ? From::at(i) : 128; })) |
                   shuffle(b, constant<V>([](int i) { return From::at(i) >= 16 && From::at(i) < 24 ? From::at(i) - 8 + later : 128; }));
        } else if constexpr (B == 16) {
            if constexpr (W == 16) return odd ? b : a;
            else return halves<odd, odd || later>(a, b);
        } else if constexpr (B == 1) {
            using Words = Vec<uint16_t, W>;
            return narrow<uint8_t>(odd ? (Words)a >> 8 : (Words)a & 0xFF, odd || later ? (Words)b >> 8 : (Words)b & 0xFF);
        } else {  // half a lane of each
            const auto half = [](V v, auto odd) {
                return shuffle(v, constant<V>([](int i) { return (i % 8 / B * 2 + decltype(odd)::value) * B + i % B; }));
            };
            return zipLow<8>(half(a, std::bool_constant<odd>{}), half(b, std::bool_constant<odd || later>{}));
        }
    }

    // A block's bytes in their order, and where they go.
    static V ordered(V v) {
        if constexpr (permutes || lanes == 1) return v;
        else if constexpr (threes) return permute4(v, [](int i) { return i < 3 * lanes ? i / 3 * 4 + i % 3 : 3; });
        else if constexpr (B == 16) return v;
        else return unpackedOrder<2>(v);
    }
    static void put(uint8_t* dst, V ordered) {
        if constexpr (!threes) store(dst, ordered);
        else if constexpr (W < 64) storePart(dst, ordered, bytes);
        else {
            store(dst, lowerHalf(ordered));
            store(dst + 32, lowerHalf(upperHalf(ordered)));
        }
    }

private:
#if defined(__AVX512BW__)
    template <int Odd, int Later>
    static V permute(V a, V b) {
        constexpr int unit = B % 4 == 0 ? 4 : 2;
        return permuteBoth<unit>(a, b, [](int i) {
            const int to = i * unit, from = (to / B * 2 + Odd) * B + to % B;
            return to >= bytes ? 0 : from < W ? from / unit : (from + (threes ? W / 2 : 0) + Later) / unit;
        });
    }
#endif
};

// Every pixel twice: vectors from one vector of a row, or three from one and a half.
template <int W, int B>
class PixelsTwice {
    using V = Bytes<W>;
    static constexpr bool threes = B % 3 == 0;

    static constexpr int source(int byte) { return byte / B / 2 * B + byte % B; }

    // Vector j of the block.
    template <int j>
    static V spread(const uint8_t* row) {
        constexpr int begin = threes ? j * W / 4 : 0;
        const V v = load<V>(row + begin);
        if constexpr (W == 16) return shuffle(v, constant<V>([](int i) { return source(j * W + i) - begin; }));
        else if constexpr (B % 4 == 0) return permute4(v, [](int i) { return (source(j * W + 4 * i) - begin) / 4; });
#if defined(__AVX512BW__)
        else if constexpr (B % 2 == 0) return permute2(v, [](int i) { return (source(j * W + 2 * i) - begin) / 2; });
#endif
        else {  // a lane's bytes come from four neighbouring groups of four bytes
            struct Group {
                static constexpr int first(int lane) {
                    int low = W;
                    for (int i = 0; i < 16; ++i) low = std::min(low, source(j * W + lane * 16 + i) - begin);
                    return std::min(low / 4, W / 4 - 4);
                }
            };
            const V groups = permute4(v, [](int i) { return Group::first(i / 4) + i % 4; });
            return shuffle(groups, constant<V>([](int i) { return source(j * W + i) - begin - 4 * Group::first(i / 16); }));
        }
    }

public:
    static constexpr int vectors = threes ? 3 : 2, bytes = vectors * W;

    // put(place, vector) stores the block's vectors, place bytes from its begin.
    template <class Put>
    KVRI_INLINE static void block(const uint8_t* row, Put put) {
        unroll<vectors>([&](auto j) KVRI_INLINE { put(j * W, spread<j>(row)); });
    }
};

}  // namespace kvri
