// datamove/dup.cpp: Dup, a grey sample into every channel.
#include "core/check.h"
#include "core/dispatch.h"
#include "core/layout.h"
#include "datamove/pixelmap.h"
#include "kvri/datamove.h"

namespace kvri {
namespace {

template <class L>
KvrStatus dup(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    mapPixels<1, 1, L::channels>({}, nullptr, pSrc, srcStep, pDst, dstStep, roi);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriDup_8u_C1C3R, dup<C3>);
KVRI_EXPORT(kvriDup_8u_C1C4R, dup<C4>);

}  // namespace
}  // namespace kvri
