// datamove/set.cpp: Set. Values are bytes here; a pattern of one or three vectors serves every type and layout.
#include "core/check.h"
#include "core/dispatch.h"
#include "core/layout.h"
#include "core/rows.h"
#include "datamove/fill.h"
#include "kvri/datamove.h"

namespace kvri {
namespace {

template <int B, int Chosen>
void setMaskedBytes(const void* pixel, void* pDst, int dstStep, KvriSize roi, const Kvr8u* pMask, int maskStep) {
    const FromValue<B> value(pixel, Chosen);
    eachRow(roi, [&](auto d, auto m, ptrdiff_t pixels) KVRI_INLINE { writeMasked<B, Chosen>(value, m, d, pixels); },
            destination<B>(pDst, dstStep), source<1>(pMask, maskStep));
}

template <class T>
KvrStatus setSample(T value, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pDst), hasPixels(roi))) return e;
    fill<sizeof(T)>(&value, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus set(const T value[L::colours], T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(value, pDst), hasPixels(roi))) return e;
    constexpr int B = sizeof(T) * L::channels, chosen = sizeof(T) * L::colours;
    if constexpr (B == chosen) fill<B>(value, pDst, dstStep, roi);
    else fillChosen<B, chosen, B>(value, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus setChannel(T value, T* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pDst), hasPixels(roi))) return e;
    fillChosen<sizeof(T) * L::channels, sizeof(T), sizeof(T)>(&value, pDst, dstStep, roi);
    return kvrStatusOk;
}

template <class T>
KvrStatus setSampleMasked(T value, T* pDst, int dstStep, KvriSize roi, const Kvr8u* pMask, int maskStep) {
    if (KvrStatus e = firstError(nonNull(pDst, pMask), hasPixels(roi))) return e;
    setMaskedBytes<sizeof(T), sizeof(T)>(&value, pDst, dstStep, roi, pMask, maskStep);
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus setMasked(const T value[L::colours], T* pDst, int dstStep, KvriSize roi, const Kvr8u* pMask, int maskStep) {
    if (KvrStatus e = firstError(nonNull(value, pDst, pMask), hasPixels(roi))) return e;
    setMaskedBytes<sizeof(T) * L::channels, sizeof(T) * L::colours>(value, pDst, dstStep, roi, pMask, maskStep);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriSet_8u_C1R, setSample<Kvr8u>);
KVRI_EXPORT(kvriSet_8u_C3R, set<Kvr8u, C3>);
KVRI_EXPORT(kvriSet_8u_C4R, set<Kvr8u, C4>);
KVRI_EXPORT(kvriSet_8u_AC4R, set<Kvr8u, AC4>);
KVRI_EXPORT(kvriSet_16u_C1R, setSample<Kvr16u>);
KVRI_EXPORT(kvriSet_16u_C3R, set<Kvr16u, C3>);
KVRI_EXPORT(kvriSet_16u_C4R, set<Kvr16u, C4>);
KVRI_EXPORT(kvriSet_16u_AC4R, set<Kvr16u, AC4>);
KVRI_EXPORT(kvriSet_16s_C1R, setSample<Kvr16s>);
KVRI_EXPORT(kvriSet_16s_C3R, set<Kvr16s, C3>);
KVRI_EXPORT(kvriSet_16s_C4R, set<Kvr16s, C4>);
KVRI_EXPORT(kvriSet_16s_AC4R, set<Kvr16s, AC4>);
KVRI_EXPORT(kvriSet_32s_C1R, setSample<Kvr32s>);
KVRI_EXPORT(kvriSet_32s_C3R, set<Kvr32s, C3>);
KVRI_EXPORT(kvriSet_32s_C4R, set<Kvr32s, C4>);
KVRI_EXPORT(kvriSet_32s_AC4R, set<Kvr32s, AC4>);
KVRI_EXPORT(kvriSet_32f_C1R, setSample<Kvr32f>);
KVRI_EXPORT(kvriSet_32f_C3R, set<Kvr32f, C3>);
KVRI_EXPORT(kvriSet_32f_C4R, set<Kvr32f, C4>);
KVRI_EXPORT(kvriSet_32f_AC4R, set<Kvr32f, AC4>);

KVRI_EXPORT(kvriSet_8u_C3CR, setChannel<Kvr8u, C3>);
KVRI_EXPORT(kvriSet_8u_C4CR, setChannel<Kvr8u, C4>);
KVRI_EXPORT(kvriSet_16u_C3CR, setChannel<Kvr16u, C3>);
KVRI_EXPORT(kvriSet_16u_C4CR, setChannel<Kvr16u, C4>);
KVRI_EXPORT(kvriSet_16s_C3CR, setChannel<Kvr16s, C3>);
KVRI_EXPORT(kvriSet_16s_C4CR, setChannel<Kvr16s, C4>);
KVRI_EXPORT(kvriSet_32s_C3CR, setChannel<Kvr32s, C3>);
KVRI_EXPORT(kvriSet_32s_C4CR, setChannel<Kvr32s, C4>);
KVRI_EXPORT(kvriSet_32f_C3CR, setChannel<Kvr32f, C3>);
KVRI_EXPORT(kvriSet_32f_C4CR, setChannel<Kvr32f, C4>);

KVRI_EXPORT(kvriSet_8u_C1MR, setSampleMasked<Kvr8u>);
KVRI_EXPORT(kvriSet_8u_C3MR, setMasked<Kvr8u, C3>);
KVRI_EXPORT(kvriSet_8u_C4MR, setMasked<Kvr8u, C4>);
KVRI_EXPORT(kvriSet_8u_AC4MR, setMasked<Kvr8u, AC4>);
KVRI_EXPORT(kvriSet_16u_C1MR, setSampleMasked<Kvr16u>);
KVRI_EXPORT(kvriSet_16u_C3MR, setMasked<Kvr16u, C3>);
KVRI_EXPORT(kvriSet_16u_C4MR, setMasked<Kvr16u, C4>);
KVRI_EXPORT(kvriSet_16u_AC4MR, setMasked<Kvr16u, AC4>);
KVRI_EXPORT(kvriSet_16s_C1MR, setSampleMasked<Kvr16s>);
KVRI_EXPORT(kvriSet_16s_C3MR, setMasked<Kvr16s, C3>);
KVRI_EXPORT(kvriSet_16s_C4MR, setMasked<Kvr16s, C4>);
KVRI_EXPORT(kvriSet_16s_AC4MR, setMasked<Kvr16s, AC4>);
KVRI_EXPORT(kvriSet_32s_C1MR, setSampleMasked<Kvr32s>);
KVRI_EXPORT(kvriSet_32s_C3MR, setMasked<Kvr32s, C3>);
KVRI_EXPORT(kvriSet_32s_C4MR, setMasked<Kvr32s, C4>);
KVRI_EXPORT(kvriSet_32s_AC4MR, setMasked<Kvr32s, AC4>);
KVRI_EXPORT(kvriSet_32f_C1MR, setSampleMasked<Kvr32f>);
KVRI_EXPORT(kvriSet_32f_C3MR, setMasked<Kvr32f, C3>);
KVRI_EXPORT(kvriSet_32f_C4MR, setMasked<Kvr32f, C4>);
KVRI_EXPORT(kvriSet_32f_AC4MR, setMasked<Kvr32f, AC4>);

}  // namespace
}  // namespace kvri
