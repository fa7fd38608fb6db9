// datamove/interleave.h: packed pixels of 3 or 4 samples to planes and back, a vector of each plane at a time.
//
// Three channels: in three vectors that lie one behind the other, the samples of one channel occupy every place of a
// vector exactly once, as no vector's length is a multiple of 3. Two blends collect them, one permutation orders them; the
// way back is the same network from the other end. Where the build cannot permute samples across lanes, lanes stand for
// vectors, and the 16-byte chunks of the memory are first dealt out such that each lane holds three consecutive ones.
//
// Four channels: a shuffle gathers each channel's samples of a lane in four bytes, arranged differently in each of the
// four vectors, so that blends alone can transpose the four by four units.
#pragma once

#include "core/block.h"

namespace kvri {

// How far a sample of S bytes can be moved by one instruction, and the vectors that are best for it.
#if defined(__AVX512BW__)
template <int S>
constexpr int kSampleReach = S == 1 ? 16 : 64;
#elif defined(__AVX2__)
template <int S>
constexpr int kSampleReach = S < 4 ? 16 : 32;
#else
template <int S>
constexpr int kSampleReach = 16;
#endif
template <int S>
constexpr int kThreeBytes = std::max(kShuffleBytes, kSampleReach<S>);

// Three channels of S-byte samples, in vectors V. Everything here is within one reach: number(g, i) tells which sample, of
// those of its three vectors, byte i of vector g belongs to; the sample's channel is number % 3, its pixel number / 3.
template <int S>
struct ThreeChannels {
    static constexpr int W = kThreeBytes<S>, reach = kSampleReach<S>, samples = reach / S;
    using V = Bytes<W>;

    static constexpr int number(int g, int i) { return g * samples + i % reach / S; }

    // Sample i of each reach becomes sample f(i).
    template <class F>
    static V permute(V v, F f) {
#if defined(__AVX512BW__)
        if constexpr (S == 2) return permute2(v, f);
#endif
        if constexpr (reach > 16) return permute4(v, f);
        else return shuffle(v, constant<V>([](int i) { return F{}(i % 16 / S) * S + i % S; }));
    }

    // Channel c of vector g comes from a, the others from b.
    template <int g, int c>
    static V take(V a, V b) {
        return blendWhere<V>([](int i) { return number(g, i) % 3 == c; }, a, b);
    }

    template <int c>
    static V plane(const V (&group)[3]) {
        const V mixed = take<0, c>(group[0], take<1, c>(group[1], group[2]));
        return permute(mixed, [](int pixel) { return (3 * pixel + c) % samples; });
    }

    // Channel c's samples at the places where some vector wants one.
    template <int c>
    static V placed(V plane) {
        return permute(plane, [](int place) {
            int n = place;
            while (n % 3 != c) n += samples;
            return n / 3;
        });
    }

    template <int g>
    static V group(const V (&placed)[3]) {
        return take<g, 0>(placed[0], take<g, 1>(placed[1], placed[2]));
    }

    static constexpr bool dealt = W > reach;  // two lanes

    // The planes of three vectors of pixels; all three, or the first alone.
    template <int Wanted>
    static KVRI_INLINE void split(const V (&packed)[3], V (&plane_)[Wanted]) {
        V group[3] = {packed[0], packed[1], packed[2]};
        if constexpr (dealt) {
            group[0] = halves<0, 1>(packed[0], packed[1]);
            group[1] = halves<1, 0>(packed[0], packed[2]);
            group[2] = halves<0, 1>(packed[1], packed[2]);
        }
        unroll<Wanted>([&](auto c) KVRI_INLINE { plane_[c] = plane<c>(group); });
    }

    static KVRI_INLINE void join(const V (&plane)[3], V (&packed)[3]) {
        const V at[3] = {placed<0>(plane[0]), placed<1>(plane[1]), placed<2>(plane[2])};
        unroll<3>([&](auto g) KVRI_INLINE { packed[g] = group<g>(at); });
        if constexpr (dealt) {
            const V a = packed[0], b = packed[1], c = packed[2];
            packed[0] = halves<0, 0>(a, b);
            packed[1] = halves<0, 1>(c, a);
            packed[2] = halves<1, 1>(b, c);
        }
    }
};

// Four channels of S-byte samples. A unit is four bytes: as many samples of one channel.
template <int S>
struct FourChannels {
    static constexpr int W = kShuffleBytes, lanes = W / 16;
    using V = Bytes<W>;

    // Unit i from b where bit i is set, else from a; the same in every lane.
    template <int Units>
    static V blendUnits(V a, V b) {
        return blendWhere<V>([](int i) { return bool(Units >> (i % 16 / 4) & 1); }, b, a);
    }

    // Of vector g: unit i becomes the samples of channel i ^ g.
    template <int g>
    static V gather(V packed) {
        return shuffle(packed, constant<V>([](int i) {
            const int channel = i % 16 / 4 ^ g, pixel = i % 4 / S;
            return (4 * pixel + channel) * S + i % S;
        }));
    }

    // The units of channel c, transposed, in the order of the pixels: vector by vector, lane by lane.
    template <int c>
    static V order(V mixed) {
        return permute4(mixed, [](int i) { return i % lanes * 4 + (i / lanes ^ c); });
    }

    // The planes of four vectors of pixels; all four, or the first alone.
    template <int Wanted>
    static KVRI_INLINE void split(const V (&packed)[4], V (&plane)[Wanted]) {
        // Units of channels 0123, 1032, 2301, 3210.
        const V a = gather<0>(packed[0]), b = gather<1>(packed[1]), c = gather<2>(packed[2]), d = gather<3>(packed[3]);
        constexpr int odd = 0b1010, high = 0b1100;
        const V ab = blendUnits<odd>(a, b), cd = blendUnits<odd>(c, d);
        plane[0] = order<0>(blendUnits<high>(ab, cd));
        if constexpr (Wanted == 4) {
            const V ba = blendUnits<odd>(b, a), dc = blendUnits<odd>(d, c);
            plane[1] = order<1>(blendUnits<high>(ba, dc));
            plane[2] = order<2>(blendUnits<high>(cd, ab));
            plane[3] = order<3>(blendUnits<high>(dc, ba));
        }
    }

    static KVRI_INLINE void join(const V (&plane)[4], V (&packed)[4]) {
        const V low01 = zipLow<S>(plane[0], plane[1]), high01 = zipHigh<S>(plane[0], plane[1]);
        const V low23 = zipLow<S>(plane[2], plane[3]), high23 = zipHigh<S>(plane[2], plane[3]);
        const V a = zipLow<2 * S>(low01, low23), b = zipHigh<2 * S>(low01, low23);
        const V c = zipLow<2 * S>(high01, high23), d = zipHigh<2 * S>(high01, high23);
        if constexpr (W == 16) {
            packed[0] = a, packed[1] = b, packed[2] = c, packed[3] = d;
        } else {
            packed[0] = halves<0, 0>(a, b);
            packed[1] = halves<0, 0>(c, d);
            packed[2] = halves<1, 1>(a, b);
            packed[3] = halves<1, 1>(c, d);
        }
    }
};

template <int S, int Channels>
using Interleaved = std::conditional_t<Channels == 3, ThreeChannels<S>, FourChannels<S>>;

}  // namespace kvri
