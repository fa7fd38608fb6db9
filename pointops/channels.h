// pointops/channels.h: every channel of a row through an operation of its own.
//
// Packed pixels are split into planes, one vector of each at a time, and joined again.
#pragma once

#include "core/map.h"
#include "datamove/interleave.h"

namespace kvri {

// The images of a call.
struct Images {
    const void* src;
    int srcStep;
    void* dst;
    int dstStep;
    KvriSize roi;

    // row(source, destination, pixels)
    template <int B, class Row>
    KVRI_INLINE void eachRow(Row row) const {
        kvri::eachRow(roi, row, source<B>(src, srcStep), destination<B>(dst, dstStep));
    }
};

// Three or four channels of S-byte samples, in vectors of kVectorBytes per channel.
template <int S, int Channels>
struct PlanesOf {
    using Layout = Interleaved<S, Channels>;
    using Part = typename Layout::V;
    static constexpr int parts = kVectorBytes / Layout::W, N = kVectorBytes / S;
    static constexpr int partBytes = Layout::W * Channels;

    static KVRI_INLINE void load(Bytes<> (&plane)[Channels], const uint8_t* src, auto block, ptrdiff_t bytes) {
        Part all[parts][Channels];
        unroll<parts>([&](auto p) KVRI_INLINE {
            Part packed[Channels];
            for (int i = 0; i < Channels; ++i) {
                const ptrdiff_t at = p * partBytes + i * Layout::W;
                packed[i] = loadedOnce(block.template load<Part>(src + at, bytes - at));
            }
            Layout::split(packed, all[p]);
        });
        for (int c = 0; c < Channels; ++c) {
            if constexpr (parts == 1) plane[c] = all[0][c];
            else plane[c] = joinHalves(all[0][c], all[1][c]);
        }
    }

    // write(address, vector, bytes of the row from there) for every vector.
    template <class Write>
    static KVRI_INLINE void store(const Bytes<> (&plane)[Channels], uint8_t* dst, ptrdiff_t bytes, Write write) {
        unroll<parts>([&](auto p) KVRI_INLINE {
            Part part[Channels], packed[Channels];
            for (int c = 0; c < Channels; ++c) {
                if constexpr (parts == 1) part[c] = plane[c];
                else part[c] = p == 0 ? lowerHalf(plane[c]) : upperHalf(plane[c]);
            }
            Layout::join(part, packed);
            for (int i = 0; i < Channels; ++i) {
                const ptrdiff_t at = p * partBytes + i * Layout::W;
                write(dst + at, packed[i], bytes - at);
            }
        });
    }
};

// op(vector of samples, channel as a constant) gives the result's vector. L: layout of both rows.
template <class T, class L, class Op>
KVRI_INLINE inline void mapChannels(const Op& op, const uint8_t* src, uint8_t* dst, ptrdiff_t pixels) {
    constexpr int S = sizeof(T), N = kVectorBytes / S;
    using V = Vec<T>;
    if constexpr (L::channels == 1) {
        forEachBlock<N, 0, 2>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
            const V x = (V)loadedOnce(block.template load<Bytes<>>(src + first * S, n * S));
            block.store(dst + first * S, (Bytes<>)op(x, std::integral_constant<int, 0>{}), n * S);
        });
    } else {
        using Planes = PlanesOf<S, L::channels>;
        forEachBlock<N>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
            constexpr int B = L::channels * S;
            Bytes<> plane[L::channels];
            Planes::load(plane, src + first * B, block, n * B);
            unroll<L::colours>([&](auto c) KVRI_INLINE { plane[c] = (Bytes<>)op((V)plane[c], c); });
            Planes::store(plane, dst + first * B, n * B, [&](uint8_t* d, auto v, ptrdiff_t bytes) KVRI_INLINE {
                if constexpr (L::colours == L::channels) block.store(d, v, bytes);
                else block.storeChosen(d, v, choose<decltype(v)>(IsChosen<B, L::colours * S, 0>{}), bytes);
            });
        });
    }
}

// Every sample by itself: f(channel as a constant, place in the row, sample).
template <class T, class L, class F>
KVRI_INLINE inline void mapSamples(F f, const uint8_t* src, uint8_t* dst, ptrdiff_t pixels) {
    for (ptrdiff_t first = 0; first < pixels * L::channels; first += L::channels)
        unroll<L::colours>([&](auto c) KVRI_INLINE {
            const ptrdiff_t i = first + c;
            T x;
            std::memcpy(&x, src + i * ptrdiff_t(sizeof(T)), sizeof(T));
            x = f(c, i, x);
            std::memcpy(dst + i * ptrdiff_t(sizeof(T)), &x, sizeof(T));
        });
}

}  // namespace kvri
