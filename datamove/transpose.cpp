// datamove/transpose.cpp: Transpose. All sample types are bytes here: 16u and 16s, 32s and 32f share their kernels.
#include "datamove/transpose.h"

#include "core/check.h"
#include "core/dispatch.h"
#include "kvri/datamove.h"

namespace kvri {
namespace {

constexpr KvrStatus isSquare(KvriSize roi) { return roi.width == roi.height ? kvrStatusOk : kvrStatusBadSize; }

template <class T, class L>
KvrStatus transposedInPlace(T* pSrcDst, int srcDstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrcDst), hasPixels(roi), isSquare(roi))) return e;
    constexpr int B = sizeof(T) * L::channels;
    transposeInPlace<B>(reinterpret_cast<uint8_t*>(pSrcDst), srcDstStep, roi.width);
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus transposed(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi) {
    if (pSrc == pDst && srcStep == dstStep) return transposedInPlace<T, L>(pDst, dstStep, roi);
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi))) return e;
    constexpr int B = sizeof(T) * L::channels;
    transposeImage<B>(reinterpret_cast<const uint8_t*>(pSrc), srcStep, reinterpret_cast<uint8_t*>(pDst), dstStep, roi);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriTranspose_8u_C1R, transposed<Kvr8u, C1>);
KVRI_EXPORT(kvriTranspose_8u_C3R, transposed<Kvr8u, C3>);
KVRI_EXPORT(kvriTranspose_8u_C4R, transposed<Kvr8u, C4>);
KVRI_EXPORT(kvriTranspose_16u_C1R, transposed<Kvr16u, C1>);
KVRI_EXPORT(kvriTranspose_16u_C3R, transposed<Kvr16u, C3>);
KVRI_EXPORT(kvriTranspose_16u_C4R, transposed<Kvr16u, C4>);
KVRI_EXPORT(kvriTranspose_16s_C1R, transposed<Kvr16s, C1>);
KVRI_EXPORT(kvriTranspose_16s_C3R, transposed<Kvr16s, C3>);
KVRI_EXPORT(kvriTranspose_16s_C4R, transposed<Kvr16s, C4>);
KVRI_EXPORT(kvriTranspose_32s_C1R, transposed<Kvr32s, C1>);
KVRI_EXPORT(kvriTranspose_32s_C3R, transposed<Kvr32s, C3>);
KVRI_EXPORT(kvriTranspose_32s_C4R, transposed<Kvr32s, C4>);
KVRI_EXPORT(kvriTranspose_32f_C1R, transposed<Kvr32f, C1>);
KVRI_EXPORT(kvriTranspose_32f_C3R, transposed<Kvr32f, C3>);
KVRI_EXPORT(kvriTranspose_32f_C4R, transposed<Kvr32f, C4>);

KVRI_EXPORT(kvriTranspose_8u_C1IR, transposedInPlace<Kvr8u, C1>);
KVRI_EXPORT(kvriTranspose_8u_C3IR, transposedInPlace<Kvr8u, C3>);
KVRI_EXPORT(kvriTranspose_8u_C4IR, transposedInPlace<Kvr8u, C4>);
KVRI_EXPORT(kvriTranspose_16u_C1IR, transposedInPlace<Kvr16u, C1>);
KVRI_EXPORT(kvriTranspose_16u_C3IR, transposedInPlace<Kvr16u, C3>);
KVRI_EXPORT(kvriTranspose_16u_C4IR, transposedInPlace<Kvr16u, C4>);
KVRI_EXPORT(kvriTranspose_16s_C1IR, transposedInPlace<Kvr16s, C1>);
KVRI_EXPORT(kvriTranspose_16s_C3IR, transposedInPlace<Kvr16s, C3>);
KVRI_EXPORT(kvriTranspose_16s_C4IR, transposedInPlace<Kvr16s, C4>);
KVRI_EXPORT(kvriTranspose_32s_C1IR, transposedInPlace<Kvr32s, C1>);
KVRI_EXPORT(kvriTranspose_32s_C3IR, transposedInPlace<Kvr32s, C3>);
KVRI_EXPORT(kvriTranspose_32s_C4IR, transposedInPlace<Kvr32s, C4>);
KVRI_EXPORT(kvriTranspose_32f_C1IR, transposedInPlace<Kvr32f, C1>);
KVRI_EXPORT(kvriTranspose_32f_C3IR, transposedInPlace<Kvr32f, C3>);
KVRI_EXPORT(kvriTranspose_32f_C4IR, transposedInPlace<Kvr32f, C4>);

}  // namespace
}  // namespace kvri
