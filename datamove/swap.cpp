// datamove/swap.cpp: SwapChannels, every channel of a pixel from any channel of it.
#include "core/check.h"
#include "core/dispatch.h"
#include "core/layout.h"
#include "datamove/pixelmap.h"
#include "kvri/datamove.h"

namespace kvri {
namespace {

// Entries below `channels`; negative ones are too large as unsigned numbers.
template <size_t N>
KvrStatus validOrder(const std::array<int, N>& order, unsigned channels) {
    for (int entry : order)
        if (unsigned(entry) >= channels) return kvrStatusBadChannelOrder;
    return kvrStatusOk;
}

template <size_t N>
std::array<int, N> toArray(const int* order) {
    std::array<int, N> a;
    std::copy_n(order, N, a.begin());
    return a;
}

// C3R, C4R and C4C3R
template <class T, class From, class To>
KvrStatus swapChannels(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, const int order[To::channels]) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, order), hasPixels(roi), nonZeroSteps(srcStep, dstStep))) return e;
    const auto entries = toArray<To::channels>(order);
    if (KvrStatus e = validOrder(entries, From::channels)) return e;
    mapPixels<sizeof(T), From::channels, To::channels>(entries, nullptr, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class T>
KvrStatus swapBesideAlpha(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, const int order[3]) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), nonZeroSteps(srcStep, dstStep), hasPixels(roi), nonNull(order))) return e;
    const auto colours = toArray<3>(order);
    if (KvrStatus e = validOrder(colours, 3)) return e;
    mapPixels<sizeof(T), 4, 4, true>({colours[0], colours[1], colours[2], kKeepChannel}, nullptr, pSrc, srcStep, pDst, dstStep,
                                     roi);
    return kvrStatusOk;
}

template <class T>
KvrStatus swapAndFill(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, const int order[4], T value) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, order), hasPixels(roi), nonZeroSteps(srcStep, dstStep))) return e;
    auto entries = toArray<4>(order);
    for (int& entry : entries) {
        if (entry < 0) return kvrStatusBadChannelOrder;
        if (entry >= 3) entry = entry == 3 ? kFillChannel : kKeepChannel;
    }
    const bool keeps = std::find(entries.begin(), entries.end(), kKeepChannel) != entries.end();
    if (keeps) mapPixels<sizeof(T), 3, 4, true>(entries, &value, pSrc, srcStep, pDst, dstStep, roi);
    else mapPixels<sizeof(T), 3, 4>(entries, &value, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class L>
KvrStatus swapInPlace(Kvr8u* pSrcDst, int step, KvriSize roi, const int order[L::channels]) {
    if (KvrStatus e = firstError(nonNull(pSrcDst), nonZeroSteps(step), hasPixels(roi), nonNull(order))) return e;
    const auto entries = toArray<L::channels>(order);
    if (KvrStatus e = validOrder(entries, L::channels)) return e;
    mapPixels<1, L::channels, L::channels>(entries, nullptr, pSrcDst, step, pSrcDst, step, roi);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriSwapChannels_8u_C3R, swapChannels<Kvr8u, C3, C3>);
KVRI_EXPORT(kvriSwapChannels_8u_C4R, swapChannels<Kvr8u, C4, C4>);
KVRI_EXPORT(kvriSwapChannels_8u_C4C3R, swapChannels<Kvr8u, C4, C3>);
KVRI_EXPORT(kvriSwapChannels_8u_AC4R, swapBesideAlpha<Kvr8u>);
KVRI_EXPORT(kvriSwapChannels_8u_C3C4R, swapAndFill<Kvr8u>);
KVRI_EXPORT(kvriSwapChannels_16u_C3R, swapChannels<Kvr16u, C3, C3>);
KVRI_EXPORT(kvriSwapChannels_16u_C4R, swapChannels<Kvr16u, C4, C4>);
KVRI_EXPORT(kvriSwapChannels_16u_C4C3R, swapChannels<Kvr16u, C4, C3>);
KVRI_EXPORT(kvriSwapChannels_16u_AC4R, swapBesideAlpha<Kvr16u>);
KVRI_EXPORT(kvriSwapChannels_16u_C3C4R, swapAndFill<Kvr16u>);
KVRI_EXPORT(kvriSwapChannels_16s_C3R, swapChannels<Kvr16s, C3, C3>);
KVRI_EXPORT(kvriSwapChannels_16s_C4R, swapChannels<Kvr16s, C4, C4>);
KVRI_EXPORT(kvriSwapChannels_16s_C4C3R, swapChannels<Kvr16s, C4, C3>);
KVRI_EXPORT(kvriSwapChannels_16s_AC4R, swapBesideAlpha<Kvr16s>);
KVRI_EXPORT(kvriSwapChannels_16s_C3C4R, swapAndFill<Kvr16s>);
KVRI_EXPORT(kvriSwapChannels_32s_C3R, swapChannels<Kvr32s, C3, C3>);
KVRI_EXPORT(kvriSwapChannels_32s_C4R, swapChannels<Kvr32s, C4, C4>);
KVRI_EXPORT(kvriSwapChannels_32s_C4C3R, swapChannels<Kvr32s, C4, C3>);
KVRI_EXPORT(kvriSwapChannels_32s_AC4R, swapBesideAlpha<Kvr32s>);
KVRI_EXPORT(kvriSwapChannels_32s_C3C4R, swapAndFill<Kvr32s>);
KVRI_EXPORT(kvriSwapChannels_32f_C3R, swapChannels<Kvr32f, C3, C3>);
KVRI_EXPORT(kvriSwapChannels_32f_C4R, swapChannels<Kvr32f, C4, C4>);
KVRI_EXPORT(kvriSwapChannels_32f_C4C3R, swapChannels<Kvr32f, C4, C3>);
KVRI_EXPORT(kvriSwapChannels_32f_AC4R, swapBesideAlpha<Kvr32f>);
KVRI_EXPORT(kvriSwapChannels_32f_C3C4R, swapAndFill<Kvr32f>);

KVRI_EXPORT(kvriSwapChannels_8u_C3IR, swapInPlace<C3>);
KVRI_EXPORT(kvriSwapChannels_8u_C4IR, swapInPlace<C4>);

}  // namespace
}  // namespace kvri
