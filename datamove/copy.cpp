// datamove/copy.cpp: Copy and CopyManaged. All sample types are bytes here: 16u and 16s, 32s and 32f share their kernels.
#include "core/check.h"
#include "core/dispatch.h"
#include "core/layout.h"
#include "datamove/copyrow.h"
#include "datamove/interleave.h"
#include "datamove/pixelmap.h"
#include "kvri/datamove.h"

namespace kvri {
namespace {

// Same layout, every byte

template <class T, class L>
KvrStatus copy(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    constexpr int B = sizeof(T) * L::channels;
    copyRows<B>(source<B>(pSrc, srcStep), destination<B>(pDst, dstStep), roi, exceedsCache(roi, 2 * B));
    return kvrStatusOk;
}

KvrStatus copyManaged(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roi, int flags) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    copyRows<1>(source<1>(pSrc, srcStep), destination<1>(pDst, dstStep), roi, flags & kvrCopyNonTemporal);
    return kvrStatusOk;
}

// Same layout, some channels: of L the colours, or one channel alone

template <int B, int Chosen, int LastPixel>
void copyChosen(const void* pSrc, int srcStep, void* pDst, int dstStep, KvriSize roi) {
    eachRow(roi, [](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE {
        writeChannels<B, Chosen, LastPixel>(FromImage<B>{s}, d, pixels);
    }, source<B>(pSrc, srcStep), destination<B>(pDst, dstStep));
}

template <class T>
KvrStatus copyColours(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    constexpr int B = sizeof(T) * AC4::channels;
    copyChosen<B, sizeof(T) * AC4::colours, B>(pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus copyChannel(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    copyChosen<sizeof(T) * L::channels, sizeof(T), sizeof(T)>(pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

// Masked

template <int B, int Chosen>
void copyMaskedBytes(const void* pSrc, int srcStep, void* pDst, int dstStep, KvriSize roi, const Kvr8u* pMask, int maskStep) {
    eachRow(roi, [](auto s, auto d, auto m, ptrdiff_t pixels) KVRI_INLINE {
        writeMasked<B, Chosen>(FromImage<B>{s}, m, d, pixels);
    }, source<B>(pSrc, srcStep), destination<B>(pDst, dstStep), source<1>(pMask, maskStep));
}

template <class T, class L>
KvrStatus copyMasked(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, const Kvr8u* pMask, int maskStep) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, pMask), hasPixels(roi))) return e;
    copyMaskedBytes<sizeof(T) * L::channels, sizeof(T) * L::colours>(pSrc, srcStep, pDst, dstStep, roi, pMask, maskStep);
    return kvrStatusOk;
}

// One channel out: the row ends with its last sample

template <int S, int Channels>
KVRI_INLINE inline void extractRow(const uint8_t* src, uint8_t* dst, ptrdiff_t pixels) {
    using Layout = Interleaved<S, Channels>;
    using V = typename Layout::V;
    constexpr int W = Layout::W, B = S * Channels;
    forEachBlock<W / S, 1, 2>(pixels, [&](auto block, ptrdiff_t first, ptrdiff_t n) KVRI_INLINE {
        const ptrdiff_t bytes = (n - 1) * B + S;
        V packed[Channels], plane[1];
        for (int i = 0; i < Channels; ++i) packed[i] = loadedOnce(block.template load<V>(src + first * B + i * W, bytes - i * W));
        Layout::split(packed, plane);
        block.store(dst + first * S, plane[0], n * S);
    });
}

template <int S, int Channels>
void extractBytes(const void* pSrc, int srcStep, void* pDst, int dstStep, KvriSize roi) {
    eachRow(roi, [](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE { extractRow<S, Channels>(s, d, pixels); },
            source<S * Channels>(pSrc, srcStep), destination<S>(pDst, dstStep));
}

template <class T, class L>
KvrStatus extractChannel(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    extractBytes<sizeof(T), L::channels>(pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

// Other layout: one channel in, without or beside alpha

template <class T, class L>
KvrStatus insertChannel(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    constexpr int S = sizeof(T);
    std::array<int, L::channels> order;
    order.fill(kKeepChannel);
    order[0] = 0;
    mapPixels<S, 1, L::channels, true, S>(order, nullptr, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class T>
KvrStatus dropAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    constexpr int S = sizeof(T);
    mapPixels<S, 4, 3>({0, 1, 2}, nullptr, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class T>
KvrStatus besideAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    constexpr int S = sizeof(T);
    mapPixels<S, 3, 4, true>({0, 1, 2, kKeepChannel}, nullptr, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

// Packed to planar and back

template <int S, int N>
struct Split {
    using Layout = Interleaved<S, N>;
    using V = typename Layout::V;
    static constexpr int W = Layout::W;
    const uint8_t* src;
    std::array<uint8_t*, N> dst;

    KVRI_INLINE void operator()(auto block, ptrdiff_t first, ptrdiff_t n) const {
        V packed[N], plane[N];
        for (int i = 0; i < N; ++i) packed[i] = (block.template load<V>(src + first * N * S + i * W, n * N * S - i * W));
        Layout::split(packed, plane);
        for (int i = 0; i < N; ++i) block.store(dst[i] + first * S, plane[i], n * S);
    }

    // Pixels until every plane is aligned for streaming; -1 where that never happens.
    ptrdiff_t head() const {
        const ptrdiff_t bytes = -reinterpret_cast<intptr_t>(dst[0]) & (W - 1);
        bool together = bytes % S == 0;
        for (auto p : dst) together &= (reinterpret_cast<uintptr_t>(p) + bytes) % W == 0;
        return together ? bytes / S : -1;
    }
};

template <int S, int N>
struct Join {
    using Layout = Interleaved<S, N>;
    using V = typename Layout::V;
    static constexpr int W = Layout::W;
    std::array<const uint8_t*, N> src;
    uint8_t* dst;

    KVRI_INLINE void operator()(auto block, ptrdiff_t first, ptrdiff_t n) const {
        V packed[N], plane[N];
        for (int i = 0; i < N; ++i) plane[i] = block.template load<V>(src[i] + first * S, n * S);
        Layout::join(plane, packed);
        for (int i = 0; i < N; ++i) block.store(dst + first * N * S + i * W, packed[i], n * N * S - i * W);
    }

    ptrdiff_t head() const {
        for (ptrdiff_t pixels = 0; pixels < W / S; ++pixels)
            if (reinterpret_cast<uintptr_t>(dst + pixels * N * S) % W == 0) return pixels;
        return -1;
    }
};

template <class Kernel, int S, bool Streamed, class Source, class Destination>
KVRI_INLINE inline void rearrange(KvriSize roi, Source src, Destination dst) {
    constexpr int pixels = Kernel::W / S;
    eachRow(roi, [](auto s, auto d, ptrdiff_t n) KVRI_INLINE {
        const Kernel kernel{s, d};
        const ptrdiff_t head = Streamed ? kernel.head() : -1;
        if (head >= 0) forEachStreamedBlock<pixels>(head, n, kernel);
        else forEachBlock<pixels>(n, kernel);
    }, src, dst);
}

template <int S, int N, bool Streamed>
void splitBytes(const void* pSrc, int srcStep, void* const* pDst, int dstStep, KvriSize roi) {
    rearrange<Split<S, N>, S, Streamed>(roi, source<N * S>(pSrc, srcStep), destinationPlanes<N, S>(pDst, dstStep));
}

template <int S, int N, bool Streamed>
void joinBytes(const void* const* pSrc, int srcStep, void* pDst, int dstStep, KvriSize roi) {
    rearrange<Join<S, N>, S, Streamed>(roi, sourcePlanes<N, S>(pSrc, srcStep), destination<N * S>(pDst, dstStep));
}

template <class T, int N>
KvrStatus split(const T* pSrc, int srcStep, T* const pDst[N], int dstStep, KvriSize roi) {
    if (KvrStatus e = nonNull(pSrc, pDst)) return e;
    if (KvrStatus e = firstError(planesNonNull<N>(pDst), hasPixels(roi))) return e;
    constexpr int S = sizeof(T);
    auto* planes = reinterpret_cast<void* const*>(pDst);
    if (exceedsCache(roi, 2 * N * S)) splitBytes<S, N, true>(pSrc, srcStep, planes, dstStep, roi);
    else splitBytes<S, N, false>(pSrc, srcStep, planes, dstStep, roi);
    return kvrStatusOk;
}

template <class T, int N>
KvrStatus join(const T* const pSrc[N], int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = nonNull(pSrc, pDst)) return e;
    if (KvrStatus e = firstError(planesNonNull<N>(pSrc), hasPixels(roi))) return e;
    constexpr int S = sizeof(T);
    auto* planes = reinterpret_cast<const void* const*>(pSrc);
    if (exceedsCache(roi, 2 * N * S)) joinBytes<S, N, true>(planes, srcStep, pDst, dstStep, roi);
    else joinBytes<S, N, false>(planes, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriCopy_8u_C1R, copy<Kvr8u, C1>);
KVRI_EXPORT(kvriCopy_8u_C3R, copy<Kvr8u, C3>);
KVRI_EXPORT(kvriCopy_8u_C4R, copy<Kvr8u, C4>);
KVRI_EXPORT(kvriCopy_8u_AC4R, copyColours<Kvr8u>);
KVRI_EXPORT(kvriCopy_16u_C1R, copy<Kvr16u, C1>);
KVRI_EXPORT(kvriCopy_16u_C3R, copy<Kvr16u, C3>);
KVRI_EXPORT(kvriCopy_16u_C4R, copy<Kvr16u, C4>);
KVRI_EXPORT(kvriCopy_16u_AC4R, copyColours<Kvr16u>);
KVRI_EXPORT(kvriCopy_16s_C1R, copy<Kvr16s, C1>);
KVRI_EXPORT(kvriCopy_16s_C3R, copy<Kvr16s, C3>);
KVRI_EXPORT(kvriCopy_16s_C4R, copy<Kvr16s, C4>);
KVRI_EXPORT(kvriCopy_16s_AC4R, copyColours<Kvr16s>);
KVRI_EXPORT(kvriCopy_32s_C1R, copy<Kvr32s, C1>);
KVRI_EXPORT(kvriCopy_32s_C3R, copy<Kvr32s, C3>);
KVRI_EXPORT(kvriCopy_32s_C4R, copy<Kvr32s, C4>);
KVRI_EXPORT(kvriCopy_32s_AC4R, copyColours<Kvr32s>);
KVRI_EXPORT(kvriCopy_32f_C1R, copy<Kvr32f, C1>);
KVRI_EXPORT(kvriCopy_32f_C3R, copy<Kvr32f, C3>);
KVRI_EXPORT(kvriCopy_32f_C4R, copy<Kvr32f, C4>);
KVRI_EXPORT(kvriCopy_32f_AC4R, copyColours<Kvr32f>);

KVRI_EXPORT(kvriCopy_8u_C3CR, copyChannel<Kvr8u, C3>);
KVRI_EXPORT(kvriCopy_8u_C4CR, copyChannel<Kvr8u, C4>);
KVRI_EXPORT(kvriCopy_16u_C3CR, copyChannel<Kvr16u, C3>);
KVRI_EXPORT(kvriCopy_16u_C4CR, copyChannel<Kvr16u, C4>);
KVRI_EXPORT(kvriCopy_16s_C3CR, copyChannel<Kvr16s, C3>);
KVRI_EXPORT(kvriCopy_16s_C4CR, copyChannel<Kvr16s, C4>);
KVRI_EXPORT(kvriCopy_32s_C3CR, copyChannel<Kvr32s, C3>);
KVRI_EXPORT(kvriCopy_32s_C4CR, copyChannel<Kvr32s, C4>);
KVRI_EXPORT(kvriCopy_32f_C3CR, copyChannel<Kvr32f, C3>);
KVRI_EXPORT(kvriCopy_32f_C4CR, copyChannel<Kvr32f, C4>);

KVRI_EXPORT(kvriCopy_8u_C1MR, copyMasked<Kvr8u, C1>);
KVRI_EXPORT(kvriCopy_8u_C3MR, copyMasked<Kvr8u, C3>);
KVRI_EXPORT(kvriCopy_8u_C4MR, copyMasked<Kvr8u, C4>);
KVRI_EXPORT(kvriCopy_8u_AC4MR, copyMasked<Kvr8u, AC4>);
KVRI_EXPORT(kvriCopy_16u_C1MR, copyMasked<Kvr16u, C1>);
KVRI_EXPORT(kvriCopy_16u_C3MR, copyMasked<Kvr16u, C3>);
KVRI_EXPORT(kvriCopy_16u_C4MR, copyMasked<Kvr16u, C4>);
KVRI_EXPORT(kvriCopy_16u_AC4MR, copyMasked<Kvr16u, AC4>);
KVRI_EXPORT(kvriCopy_16s_C1MR, copyMasked<Kvr16s, C1>);
KVRI_EXPORT(kvriCopy_16s_C3MR, copyMasked<Kvr16s, C3>);
KVRI_EXPORT(kvriCopy_16s_C4MR, copyMasked<Kvr16s, C4>);
KVRI_EXPORT(kvriCopy_16s_AC4MR, copyMasked<Kvr16s, AC4>);
KVRI_EXPORT(kvriCopy_32s_C1MR, copyMasked<Kvr32s, C1>);
KVRI_EXPORT(kvriCopy_32s_C3MR, copyMasked<Kvr32s, C3>);
KVRI_EXPORT(kvriCopy_32s_C4MR, copyMasked<Kvr32s, C4>);
KVRI_EXPORT(kvriCopy_32s_AC4MR, copyMasked<Kvr32s, AC4>);
KVRI_EXPORT(kvriCopy_32f_C1MR, copyMasked<Kvr32f, C1>);
KVRI_EXPORT(kvriCopy_32f_C3MR, copyMasked<Kvr32f, C3>);
KVRI_EXPORT(kvriCopy_32f_C4MR, copyMasked<Kvr32f, C4>);
KVRI_EXPORT(kvriCopy_32f_AC4MR, copyMasked<Kvr32f, AC4>);

KVRI_EXPORT(kvriCopy_8u_C3C1R, extractChannel<Kvr8u, C3>);
KVRI_EXPORT(kvriCopy_8u_C4C1R, extractChannel<Kvr8u, C4>);
KVRI_EXPORT(kvriCopy_16u_C3C1R, extractChannel<Kvr16u, C3>);
KVRI_EXPORT(kvriCopy_16u_C4C1R, extractChannel<Kvr16u, C4>);
KVRI_EXPORT(kvriCopy_16s_C3C1R, extractChannel<Kvr16s, C3>);
KVRI_EXPORT(kvriCopy_16s_C4C1R, extractChannel<Kvr16s, C4>);
KVRI_EXPORT(kvriCopy_32s_C3C1R, extractChannel<Kvr32s, C3>);
KVRI_EXPORT(kvriCopy_32s_C4C1R, extractChannel<Kvr32s, C4>);
KVRI_EXPORT(kvriCopy_32f_C3C1R, extractChannel<Kvr32f, C3>);
KVRI_EXPORT(kvriCopy_32f_C4C1R, extractChannel<Kvr32f, C4>);

KVRI_EXPORT(kvriCopy_8u_C1C3R, insertChannel<Kvr8u, C3>);
KVRI_EXPORT(kvriCopy_8u_C1C4R, insertChannel<Kvr8u, C4>);
KVRI_EXPORT(kvriCopy_16u_C1C3R, insertChannel<Kvr16u, C3>);
KVRI_EXPORT(kvriCopy_16u_C1C4R, insertChannel<Kvr16u, C4>);
KVRI_EXPORT(kvriCopy_16s_C1C3R, insertChannel<Kvr16s, C3>);
KVRI_EXPORT(kvriCopy_16s_C1C4R, insertChannel<Kvr16s, C4>);
KVRI_EXPORT(kvriCopy_32s_C1C3R, insertChannel<Kvr32s, C3>);
KVRI_EXPORT(kvriCopy_32s_C1C4R, insertChannel<Kvr32s, C4>);
KVRI_EXPORT(kvriCopy_32f_C1C3R, insertChannel<Kvr32f, C3>);
KVRI_EXPORT(kvriCopy_32f_C1C4R, insertChannel<Kvr32f, C4>);

KVRI_EXPORT(kvriCopy_8u_AC4C3R, dropAlpha<Kvr8u>);
KVRI_EXPORT(kvriCopy_8u_C3AC4R, besideAlpha<Kvr8u>);
KVRI_EXPORT(kvriCopy_16u_AC4C3R, dropAlpha<Kvr16u>);
KVRI_EXPORT(kvriCopy_16u_C3AC4R, besideAlpha<Kvr16u>);
KVRI_EXPORT(kvriCopy_16s_AC4C3R, dropAlpha<Kvr16s>);
KVRI_EXPORT(kvriCopy_16s_C3AC4R, besideAlpha<Kvr16s>);
KVRI_EXPORT(kvriCopy_32s_AC4C3R, dropAlpha<Kvr32s>);
KVRI_EXPORT(kvriCopy_32s_C3AC4R, besideAlpha<Kvr32s>);
KVRI_EXPORT(kvriCopy_32f_AC4C3R, dropAlpha<Kvr32f>);
KVRI_EXPORT(kvriCopy_32f_C3AC4R, besideAlpha<Kvr32f>);

KVRI_EXPORT(kvriCopy_8u_C3P3R, split<Kvr8u, 3>);
KVRI_EXPORT(kvriCopy_8u_C4P4R, split<Kvr8u, 4>);
KVRI_EXPORT(kvriCopy_8u_P3C3R, join<Kvr8u, 3>);
KVRI_EXPORT(kvriCopy_8u_P4C4R, join<Kvr8u, 4>);
KVRI_EXPORT(kvriCopy_16u_C3P3R, split<Kvr16u, 3>);
KVRI_EXPORT(kvriCopy_16u_C4P4R, split<Kvr16u, 4>);
KVRI_EXPORT(kvriCopy_16u_P3C3R, join<Kvr16u, 3>);
KVRI_EXPORT(kvriCopy_16u_P4C4R, join<Kvr16u, 4>);
KVRI_EXPORT(kvriCopy_16s_C3P3R, split<Kvr16s, 3>);
KVRI_EXPORT(kvriCopy_16s_C4P4R, split<Kvr16s, 4>);
KVRI_EXPORT(kvriCopy_16s_P3C3R, join<Kvr16s, 3>);
KVRI_EXPORT(kvriCopy_16s_P4C4R, join<Kvr16s, 4>);
KVRI_EXPORT(kvriCopy_32s_C3P3R, split<Kvr32s, 3>);
KVRI_EXPORT(kvriCopy_32s_C4P4R, split<Kvr32s, 4>);
KVRI_EXPORT(kvriCopy_32s_P3C3R, join<Kvr32s, 3>);
KVRI_EXPORT(kvriCopy_32s_P4C4R, join<Kvr32s, 4>);
KVRI_EXPORT(kvriCopy_32f_C3P3R, split<Kvr32f, 3>);
KVRI_EXPORT(kvriCopy_32f_C4P4R, split<Kvr32f, 4>);
KVRI_EXPORT(kvriCopy_32f_P3C3R, join<Kvr32f, 3>);
KVRI_EXPORT(kvriCopy_32f_P4C4R, join<Kvr32f, 4>);

KVRI_EXPORT(kvriCopyManaged_8u_C1R, copyManaged);

}  // namespace
}  // namespace kvri
