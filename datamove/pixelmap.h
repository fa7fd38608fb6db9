// datamove/pixelmap.h: pixels of P samples into pixels of Q samples, each channel from any channel.
//
// A vector of the destination is made of byte shuffles within lanes of 16 bytes, whose controls follow from the channel
// order by a few vector operations, so an order given at run time costs no more than a fixed one. What differs is how a
// lane gets to see its source bytes:
//   1 to 3, 1 to 4, 3 to 4, 4 to 4   one window of 16 bytes holds them all
//   3 to 3                           pixels straddle lanes: the lane's own 16 bytes, and a vector of its neighbours' ends
//   4 to 3                           each source lane gives 12 bytes, which then close ranks across lanes
#pragma once

#include "core/block.h"
#include "core/rows.h"

namespace kvri {

// Entries of a channel order that name no source channel.
constexpr int kFillChannel = -1;  // takes the fill sample
constexpr int kKeepChannel = -2;  // keeps the destination's sample

template <int S, int P, int Q>  // bytes per sample, samples per source and per destination pixel
class PixelMap {
    static constexpr int W = P == 4 && Q == 4 ? kVectorBytes : kShuffleBytes;
    using V = Bytes<W>;
    static constexpr bool straddles = P == 3 && Q == 3;
    static constexpr bool closesRanks = P == 4 && Q == 3;
    static constexpr bool aligned = P == 4 && Q == 4;
    static constexpr int N = W / S;  // pixels of a block: P vectors in, Q vectors out
    static constexpr int kinds = aligned || closesRanks ? 1 : Q;  // vectors that differ in their shuffles

    V own_[kinds], neighbours_[kinds], fill_[kinds];
    Choice<V> written_[kinds];

    // Where the window of a lane of vector j begins, in bytes of the block.
    static constexpr int windowStart(int j, int lane) {
        const int l = j * (W / 16) + lane;
        if (straddles) return 16 * l;
        if (P == 1) return W == 16 ? 0 : std::min(8 * j, 16);
        return P == 3 && W == 16 ? std::min(12 * l, 32) : 4 * P * l;
    }

    // Byte i of vector j: its channel, and its source byte in the window if the channel were 0.
    static constexpr int channelOf(int j, int i) {
        return closesRanks ? i % 16 / S % 3 : (j * W + i) / S % Q;
    }
    static constexpr int sourceOf(int j, int i) {
        const int b = closesRanks ? i % 16 : j * W + i;
        const int pixel = b / (Q * S), start = closesRanks ? 0 : windowStart(j, i / 16);
        return pixel * P * S + b % S - start;
    }

    template <int j>
    void prepare(V offset, V none, V keep, V fillSample) {
        const V channel = constant<V>([](int i) { return channelOf(j, i); });
        const V source = shuffle(offset, channel) + constant<V>([](int i) { return sourceOf(j, i); });
        const V outside = addSaturated(source, V{} + uint8_t(0x70));  // tops 127 where the source is no byte of the window
        const V unnamed = shuffle(none, channel);
        own_[j] = outside | unnamed;
        neighbours_[j] = (source & 0x0F) | (~outside & 0x80) | unnamed;
        keep = shuffle(keep, channel);
        fill_[j] = fillSample & unnamed & ~keep;
        written_[j] = chooseNonZero<V>(~keep);
    }

    // Lane a of the first vector where the lane is even, of the second where it is odd.
    static V lanes(V even, V odd) { return blendWhere<V>([](int i) { return i / 16 % 2 == 0; }, even, odd); }

    static V everyLane(const uint8_t* p, auto block, ptrdiff_t bytes) {
        return broadcastLane<V>(block.template load<Bytes<16>>(p, bytes));
    }

    template <int j>
    static KVRI_INLINE V window(const uint8_t* p, auto block, ptrdiff_t bytes) {
        constexpr int start = windowStart(j, 0);
        if constexpr (P == 1) return everyLane(p + start, block, bytes - start);
        constexpr int readable = P == 3 && W == 32 ? std::min(start, 64) : start;
        const V v = block.template load<V>(p + readable, bytes - readable);
        if constexpr (P == 3 && W == 32)  // 12 bytes for each lane
            return permute4(v, [](int i) { return std::min((start - readable) / 4 + i % 4 + i / 4 * 3, 7); });
        return v;
    }

    template <int... j>
    KVRI_INLINE void shuffleWindows(std::integer_sequence<int, j...>, V (&out)[Q], const uint8_t* src, auto block,
                                    ptrdiff_t bytes) const {
        ((out[j] = shuffle(window<j>(src, block, bytes), own_[j % kinds])), ...);
        if constexpr (P == 3) ((out[j] |= fill_[j]), ...);
    }

    // Bytes 24 to 31 and 0 to 7 of a block's three lanes, or six, hold what straddles.
    KVRI_INLINE void shuffleStraddling(V (&out)[Q], const uint8_t* src, auto block, ptrdiff_t bytes) const {
        auto at = [&](int offset) KVRI_INLINE { return loadedOnce(block.template load<V>(src + offset, bytes - offset)); };
        const V own[3] = {at(0), at(W), at(2 * W)};
        V beside[3];
        if constexpr (W == 16) {
            beside[0] = beside[2] = own[1];
            beside[1] = blendWhere<V>([](int i) { return i < 8; }, own[2], own[0]);
        } else {
            const V chunks12 = at(16), chunks34 = at(48), chunks54 = permute4(own[2], [](int i) { return i ^ 4; });
            beside[0] = blendWhere<V>([](int i) { return i < 24; }, chunks12, everyLane(src, block, bytes));
            beside[1] = lanes(chunks12, chunks34);
            beside[2] = blendWhere<V>([](int i) { return i < 8; }, chunks54, chunks34);
        }
        for (int j = 0; j < 3; ++j) out[j] = shuffle(own[j], own_[j]) | shuffle(beside[j], neighbours_[j]);
    }

    // Each of four vectors gives `given` groups of four bytes, which follow each other through three vectors.
    static constexpr int groups = W / 4, given = groups * 3 / 4;
    static constexpr int groupOf(int position) { return position % given / 3 * 4 + position % given % 3; }

    KVRI_INLINE void shuffleClosingRanks(V (&out)[Q], const uint8_t* src, auto block, ptrdiff_t bytes) const {
        V v[4];
        for (int i = 0; i < 4; ++i) v[i] = shuffle(block.template load<V>(src + i * W, bytes - i * W), own_[0]);
#if defined(__AVX512BW__)
        unroll<3>([&](auto index) KVRI_INLINE {
            constexpr int j = index;
            const V from = constant<V>([](int i) {
                const int position = j * groups + i / 4;
                return i % 4 ? 0 : groupOf(position) + (position / given == j ? 0 : groups);
            });
            out[j] = (V)_mm256_permutex2var_epi32((__m256i)v[j], (__m256i)from, (__m256i)v[j + 1]);
        });
#else
        unroll<4>([&](auto index) KVRI_INLINE {  // to their places in one or the other of two vectors
            constexpr int i = index;
            v[i] = permute4(v[i], [](int g) { return groupOf((g + 4 * groups - i * given) % groups); });
        });
        unroll<3>([&](auto index) KVRI_INLINE {
            constexpr int j = index;
            out[j] = blendWhere<V>([](int i) { return (j * groups + i / 4) / given == j; }, v[j], v[j + 1]);
        });
#endif
    }

public:
    PixelMap(const std::array<int, Q>& order, const void* fillSample) {
        uint64_t offset = 0, none = 0, keep = 0;  // byte k is about channel k
        for (int k = 0; k < Q; ++k) {
            if (order[k] >= 0) offset |= uint64_t(order[k] * S) << 8 * k;
            else none |= uint64_t(0xFF) << 8 * k;
            if (order[k] == kKeepChannel) keep |= uint64_t(0xFF) << 8 * k;
        }
        Bytes<16> fill{};
        if (fillSample != nullptr)
            for (int i = 0; i < 16; i += S) std::memcpy(reinterpret_cast<uint8_t*>(&fill) + i, fillSample, S);
        auto everywhere = [](uint64_t bytes) { return broadcastLane<V>((Bytes<16>)_mm_cvtsi64_si128(int64_t(bytes))); };
        unroll<kinds>([&](auto j) KVRI_INLINE {
            prepare<j>(everywhere(offset), everywhere(none), everywhere(keep), broadcastLane<V>(fill));
        });
    }

    template <bool Keep, int LastPixel>
    KVRI_INLINE void row(const uint8_t* src, uint8_t* dst, ptrdiff_t pixels) const {
        const PixelMap map = *this;  // bytes stored to dst might alias the members, but no local copy
        forEachBlock<N, LastPixel != Q * S, 2>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
            const ptrdiff_t in = n * P * S, end = (n - 1) * Q * S + LastPixel;
            const uint8_t* s = src + first * P * S;
            V out[Q];
            if constexpr (straddles) map.shuffleStraddling(out, s, block, in);
            else if constexpr (closesRanks) map.shuffleClosingRanks(out, s, block, in);
            else map.shuffleWindows(std::make_integer_sequence<int, Q>{}, out, s, block, in);
            for (int j = 0; j < Q; ++j) {
                uint8_t* d = dst + first * Q * S + j * W;
                if constexpr (Keep) block.storeChosen(d, out[j], map.written_[j % kinds], end - j * W);
                else block.store(d, out[j], end - j * W);
            }
        });
    }
};

// Destination channel k takes source channel order[k]. Keep: some channel is kept. LastPixel: bytes of the last destination
// pixel that are the caller's.
template <int S, int P, int Q, bool Keep = false, int LastPixel = Q * S>
void mapPixels(const std::array<int, Q>& order, const void* fillSample, const void* pSrc, int srcStep, void* pDst, int dstStep,
               KvriSize roi) {
    const PixelMap<S, P, Q> map(order, fillSample);
    eachRow(roi, [&](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE { map.template row<Keep, LastPixel>(s, d, pixels); },
            source<P * S>(pSrc, srcStep), destination<Q * S>(pDst, dstStep));
}

}  // namespace kvri
