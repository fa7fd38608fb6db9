// datamove/mirror.cpp: Mirror. All sample types are bytes here: 16u and 16s, 32s and 32f share their kernels.
#include "core/check.h"
#include "core/dispatch.h"
#include "core/layout.h"
#include "datamove/copyrow.h"
#include "datamove/reverse.h"
#include "datamove/transpose.h"
#include "kvri/datamove.h"

namespace kvri {
namespace {

// Checks

constexpr bool isDiagonal(KvriAxis axis) { return axis == kvrAxisMainDiagonal || axis == kvrAxisAntiDiagonal; }

// A line through the image must have pixels on both sides.
constexpr KvrStatus mirrorable(KvriSize roi, KvriAxis axis) {
    if (axis < kvrAxisHorizontal || axis > kvrAxisBoth) return kvrStatusBadAxis;
    const bool rows = axis != kvrAxisVertical, columns = axis != kvrAxisHorizontal;
    return (rows && roi.height < 2) || (columns && roi.width < 2) ? kvrStatusBadSize : kvrStatusOk;
}

// From the first row's first pixel to the last row's last.
template <class T>
uintptr_t endOf(const Image<T>& image, ptrdiff_t width, ptrdiff_t height) {
    return reinterpret_cast<uintptr_t>(image.row) + uintptr_t((height - 1) * image.step + width * image.pixelBytes);
}

KvrStatus disjoint(const Image<const uint8_t>& src, const Image<uint8_t>& dst, KvriSize roi) {
    const bool overlap = reinterpret_cast<uintptr_t>(src.row) < endOf(dst, roi.height, roi.width) &&
                         reinterpret_cast<uintptr_t>(dst.row) < endOf(src, roi.width, roi.height);
    return overlap ? kvrStatusNotSupported : kvrStatusOk;
}

// From one image to another

// Rows of one to four blocks of N: calls rows(first of each block ...) once, so that the loop over the rows is the only one.
// The last block reaches back where it has to. False for other rows.
template <int N, class Rows>
KVRI_INLINE inline bool inFewBlocks(ptrdiff_t length, Rows rows) {
    if (length < N || length > 4 * N) return false;
    const ptrdiff_t last = length - N;
    if (length <= N) rows(last);
    else if (length <= 2 * N) rows(ptrdiff_t(0), last);
    else if (length <= 3 * N) rows(ptrdiff_t(0), ptrdiff_t(N), last);
    else rows(ptrdiff_t(0), ptrdiff_t(N), ptrdiff_t(2 * N), last);
    return true;
}

template <class Row>
KVRI_INLINE inline void eachRowPlain(const Image<const uint8_t>& src, const Image<uint8_t>& dst, ptrdiff_t height, Row row) {
    const uint8_t* s = src.row;
    uint8_t* d = dst.row;
    for (ptrdiff_t srcStep = src.step, dstStep = dst.step;; s += srcStep, d += dstStep) {
        row(s, d);
        if (--height == 0) return;
    }
}

template <int B, int Chosen>
void flipRows(const Image<const uint8_t>& src, const Image<uint8_t>& image, KvriSize roi) {
    const auto dst = upsideDown(image, roi.height);
    if constexpr (Chosen == B) {
        const bool few = inFewBlocks<kVectorBytes>(ptrdiff_t(roi.width) * B, [&](auto... first) KVRI_INLINE {
            eachRowPlain(src, dst, roi.height, [=](const uint8_t* s, uint8_t* d) KVRI_INLINE {
                (store(d + first, load<Bytes<>>(s + first)), ...);
            });
        });
        if (!few) copyRows<B>(src, dst, roi, exceedsCache(roi, 2 * B));
    } else {
        eachRow(roi, [](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE { writeChannels<B, Chosen, B>(FromImage<B>{s}, d, pixels); },
                src, dst);
    }
}

template <int B, int Chosen>
void reverseRows(const Image<const uint8_t>& src, const Image<uint8_t>& dst, ptrdiff_t width, ptrdiff_t height, bool streamed) {
    using R = Reversal<B, kReversalBytes<B>>;
    const bool few = inFewBlocks<R::pixels>(width, [&](auto... first) KVRI_INLINE {
        eachRowPlain(src, dst, height, [=](const uint8_t* s, uint8_t* d) KVRI_INLINE {
            // All loads first: one after a store to an address that differs by a multiple of 4096 would wait for it.
            typename R::V v[sizeof...(first)][R::vectors];
            int i = 0, j = 0;
            (R::load(s + (width - first - R::pixels) * B, v[i++]), ...);
            (R::template store<Chosen>(WholeBlock{}, d + first * B, v[j++]), ...);
        });
    });
    if (few) return;
    eachRowPlain(src, dst, height, [=](const uint8_t* s, uint8_t* d) KVRI_INLINE {
        if (Chosen == B && streamed) streamReversedRow<B>(s, d, width);
        else reverseRow<B, Chosen>(s, d, width);
    });
    if (streamed) fenceStreams();
}

template <int B, int Chosen>
void mirrorImage(const Image<const uint8_t>& src, const Image<uint8_t>& dst, KvriSize roi, KvriAxis axis) {
    if (axis == kvrAxisHorizontal) return flipRows<B, Chosen>(src, dst, roi);
    const ptrdiff_t width = roi.width, height = roi.height;
    const bool streamed = exceedsCache(roi, 2 * B);
    if (axis == kvrAxisVertical) reverseRows<B, Chosen>(src, dst, width, height, streamed);
    else if (src.contiguous(width) && dst.contiguous(width)) reverseRows<B, Chosen>(src, dst, width * height, 1, streamed);
    else reverseRows<B, Chosen>(src, upsideDown(dst, height), width, height, streamed);
}

template <class T, class L>
KvrStatus mirrorInPlace(T* pSrcDst, int srcDstStep, KvriSize roi, KvriAxis axis);

template <int B, int Chosen>
KvrStatus mirrorDiagonally(const void* pSrc, int srcStep, void* pDst, int dstStep, KvriSize roi, KvriAxis axis) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), positiveSteps(srcStep, dstStep), hasPixels(roi))) return e;
    const auto src = source<B>(pSrc, srcStep);
    const auto dst = destination<B>(pDst, dstStep);
    if (KvrStatus e = disjoint(src, dst, roi)) return e;
    const bool anti = axis == kvrAxisAntiDiagonal;
    const auto from = anti ? upsideDown(src, roi.height) : src;
    const auto to = anti ? upsideDown(dst, roi.width) : dst;
    transposeImage<B, Chosen>(from.row, from.step, to.row, to.step, roi);
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus mirror(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, KvriAxis axis) {
    constexpr int B = sizeof(T) * L::channels, chosen = sizeof(T) * L::colours;
    if (isDiagonal(axis)) return mirrorDiagonally<B, chosen>(pSrc, srcStep, pDst, dstStep, roi, axis);
    if (pSrc == pDst && srcStep == dstStep) return mirrorInPlace<T, L>(pDst, dstStep, roi, axis);
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi), mirrorable(roi, axis))) return e;
    mirrorImage<B, chosen>(source<B>(pSrc, srcStep), destination<B>(pDst, dstStep), roi, axis);
    return kvrStatusOk;
}

// In place

template <int B, int Chosen>
void swapRows(uint8_t* a, uint8_t* b, ptrdiff_t pixels) {
    forEachVector<B, 1, B>(pixels, [&](auto block, ptrdiff_t first, auto, ptrdiff_t bytes) KVRI_INLINE {
        const auto load = [&](const uint8_t* row) KVRI_INLINE { return block.template load<Bytes<>>(row + first * B, bytes); };
        const auto store = [&](uint8_t* row, Bytes<> v) KVRI_INLINE {
            if constexpr (Chosen == B) block.store(row + first * B, v, bytes);
            else block.storeChosen(row + first * B, v, choose<Bytes<>>([](int i) { return i % B < Chosen; }), bytes);
        };
        const Bytes<> fromA = loadedOnce(load(a)), fromB = loadedOnce(load(b));
        store(a, fromB);
        store(b, fromA);
    });
}

// Calls swap(row, row) for the first and the last row, the second and the last but one, and so on.
template <class Swap>
void eachRowPair(const Image<uint8_t>& image, ptrdiff_t height, Swap swap) {
    uint8_t *first = image.row, *last = upsideDown(image, height).row;
    for (ptrdiff_t pairs = height / 2; pairs > 0; --pairs, first += image.step, last -= image.step) swap(first, last);
}

template <int B, int Chosen>
void turnInPlace(const Image<uint8_t>& image, ptrdiff_t width, ptrdiff_t height) {
    if (image.contiguous(width)) width *= height, height = 1;
    eachRowPair(image, height, [&](uint8_t* a, uint8_t* b) KVRI_INLINE { swapReversed<B, Chosen>(a, b + width * B, width); });
    if (height % 2 == 0) return;
    uint8_t* middle = image.row + height / 2 * image.step;
    swapReversed<B, Chosen>(middle, middle + width * B, width / 2);
}

template <int B, int Chosen>
void mirrorImageInPlace(const Image<uint8_t>& image, KvriSize roi, KvriAxis axis) {
    const ptrdiff_t width = roi.width, height = roi.height;
    if (axis == kvrAxisBoth) return turnInPlace<B, Chosen>(image, width, height);
    constexpr int unit = Chosen == B ? 1 : B;  // whole pixels are as good as bytes
    if (axis == kvrAxisHorizontal)
        return eachRowPair(image, height, [&](uint8_t* a, uint8_t* b) { swapRows<unit, Chosen == B ? 1 : Chosen>(a, b, width * (B / unit)); });
    for (ptrdiff_t y = 0; y < height; ++y) {
        uint8_t* row = image.row + y * image.step;
        swapReversed<B, Chosen>(row, row + width * B, width / 2);
    }
}

template <class T, class L>
KvrStatus mirrorInPlace(T* pSrcDst, int srcDstStep, KvriSize roi, KvriAxis axis) {
    if (KvrStatus e = firstError(nonNull(pSrcDst), hasPixels(roi), mirrorable(roi, axis))) return e;
    constexpr int B = sizeof(T) * L::channels, chosen = sizeof(T) * L::colours;
    mirrorImageInPlace<B, chosen>(destination<B>(pSrcDst, srcDstStep), roi, axis);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriMirror_8u_C1R, mirror<Kvr8u, C1>);
KVRI_EXPORT(kvriMirror_8u_C3R, mirror<Kvr8u, C3>);
KVRI_EXPORT(kvriMirror_8u_C4R, mirror<Kvr8u, C4>);
KVRI_EXPORT(kvriMirror_8u_AC4R, mirror<Kvr8u, AC4>);
KVRI_EXPORT(kvriMirror_16u_C1R, mirror<Kvr16u, C1>);
KVRI_EXPORT(kvriMirror_16u_C3R, mirror<Kvr16u, C3>);
KVRI_EXPORT(kvriMirror_16u_C4R, mirror<Kvr16u, C4>);
KVRI_EXPORT(kvriMirror_16u_AC4R, mirror<Kvr16u, AC4>);
KVRI_EXPORT(kvriMirror_16s_C1R, mirror<Kvr16s, C1>);
KVRI_EXPORT(kvriMirror_16s_C3R, mirror<Kvr16s, C3>);
KVRI_EXPORT(kvriMirror_16s_C4R, mirror<Kvr16s, C4>);
KVRI_EXPORT(kvriMirror_16s_AC4R, mirror<Kvr16s, AC4>);
KVRI_EXPORT(kvriMirror_32s_C1R, mirror<Kvr32s, C1>);
KVRI_EXPORT(kvriMirror_32s_C3R, mirror<Kvr32s, C3>);
KVRI_EXPORT(kvriMirror_32s_C4R, mirror<Kvr32s, C4>);
KVRI_EXPORT(kvriMirror_32s_AC4R, mirror<Kvr32s, AC4>);
KVRI_EXPORT(kvriMirror_32f_C1R, mirror<Kvr32f, C1>);
KVRI_EXPORT(kvriMirror_32f_C3R, mirror<Kvr32f, C3>);
KVRI_EXPORT(kvriMirror_32f_C4R, mirror<Kvr32f, C4>);
KVRI_EXPORT(kvriMirror_32f_AC4R, mirror<Kvr32f, AC4>);

KVRI_EXPORT(kvriMirror_8u_C1IR, mirrorInPlace<Kvr8u, C1>);
KVRI_EXPORT(kvriMirror_8u_C3IR, mirrorInPlace<Kvr8u, C3>);
KVRI_EXPORT(kvriMirror_8u_C4IR, mirrorInPlace<Kvr8u, C4>);
KVRI_EXPORT(kvriMirror_8u_AC4IR, mirrorInPlace<Kvr8u, AC4>);
KVRI_EXPORT(kvriMirror_16u_C1IR, mirrorInPlace<Kvr16u, C1>);
KVRI_EXPORT(kvriMirror_16u_C3IR, mirrorInPlace<Kvr16u, C3>);
KVRI_EXPORT(kvriMirror_16u_C4IR, mirrorInPlace<Kvr16u, C4>);
KVRI_EXPORT(kvriMirror_16u_AC4IR, mirrorInPlace<Kvr16u, AC4>);
KVRI_EXPORT(kvriMirror_16s_C1IR, mirrorInPlace<Kvr16s, C1>);
KVRI_EXPORT(kvriMirror_16s_C3IR, mirrorInPlace<Kvr16s, C3>);
KVRI_EXPORT(kvriMirror_16s_C4IR, mirrorInPlace<Kvr16s, C4>);
KVRI_EXPORT(kvriMirror_16s_AC4IR, mirrorInPlace<Kvr16s, AC4>);
KVRI_EXPORT(kvriMirror_32s_C1IR, mirrorInPlace<Kvr32s, C1>);
KVRI_EXPORT(kvriMirror_32s_C3IR, mirrorInPlace<Kvr32s, C3>);
KVRI_EXPORT(kvriMirror_32s_C4IR, mirrorInPlace<Kvr32s, C4>);
KVRI_EXPORT(kvriMirror_32s_AC4IR, mirrorInPlace<Kvr32s, AC4>);
KVRI_EXPORT(kvriMirror_32f_C1IR, mirrorInPlace<Kvr32f, C1>);
KVRI_EXPORT(kvriMirror_32f_C3IR, mirrorInPlace<Kvr32f, C3>);
KVRI_EXPORT(kvriMirror_32f_C4IR, mirrorInPlace<Kvr32f, C4>);
KVRI_EXPORT(kvriMirror_32f_AC4IR, mirrorInPlace<Kvr32f, AC4>);

}  // namespace
}  // namespace kvri
