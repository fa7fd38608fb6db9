// datamove/malloc.cpp: images whose rows start on 64-byte boundaries.
#include "core/dispatch.h"
#include "core/layout.h"
#include "kvrcore.h"
#include "kvri/datamove.h"

namespace kvri {
namespace {

void* allocate(int width, int height, unsigned pixelBytes, int* pStepBytes) {
    if (pStepBytes == nullptr) return nullptr;
    *pStepBytes = 0;
    if (width < 1 || height < 1) return nullptr;
    const unsigned step = (unsigned(width) * pixelBytes + 63) & ~63u;
    *pStepBytes = int(step);
    return kvrMalloc(step * unsigned(height));  // wraps from 4 GiB on, as documented
}

template <class T, class L>
T* allocateImage(int width, int height, int* pStepBytes) {
    return static_cast<T*>(allocate(width, height, sizeof(T) * L::channels, pStepBytes));
}

void release(void* ptr) { kvrFree(ptr); }

KVRI_EXPORT(kvriMalloc_8u_C1, allocateImage<Kvr8u, C1>);
KVRI_EXPORT(kvriMalloc_8u_C2, allocateImage<Kvr8u, C2>);
KVRI_EXPORT(kvriMalloc_8u_C3, allocateImage<Kvr8u, C3>);
KVRI_EXPORT(kvriMalloc_8u_C4, allocateImage<Kvr8u, C4>);
KVRI_EXPORT(kvriMalloc_8u_AC4, allocateImage<Kvr8u, AC4>);

KVRI_EXPORT(kvriMalloc_16u_C1, allocateImage<Kvr16u, C1>);
KVRI_EXPORT(kvriMalloc_16u_C2, allocateImage<Kvr16u, C2>);
KVRI_EXPORT(kvriMalloc_16u_C3, allocateImage<Kvr16u, C3>);
KVRI_EXPORT(kvriMalloc_16u_C4, allocateImage<Kvr16u, C4>);
KVRI_EXPORT(kvriMalloc_16u_AC4, allocateImage<Kvr16u, AC4>);

KVRI_EXPORT(kvriMalloc_16s_C1, allocateImage<Kvr16s, C1>);
KVRI_EXPORT(kvriMalloc_16s_C2, allocateImage<Kvr16s, C2>);
KVRI_EXPORT(kvriMalloc_16s_C3, allocateImage<Kvr16s, C3>);
KVRI_EXPORT(kvriMalloc_16s_C4, allocateImage<Kvr16s, C4>);
KVRI_EXPORT(kvriMalloc_16s_AC4, allocateImage<Kvr16s, AC4>);

KVRI_EXPORT(kvriMalloc_32s_C1, allocateImage<Kvr32s, C1>);
KVRI_EXPORT(kvriMalloc_32s_C2, allocateImage<Kvr32s, C2>);
KVRI_EXPORT(kvriMalloc_32s_C3, allocateImage<Kvr32s, C3>);
KVRI_EXPORT(kvriMalloc_32s_C4, allocateImage<Kvr32s, C4>);
KVRI_EXPORT(kvriMalloc_32s_AC4, allocateImage<Kvr32s, AC4>);

KVRI_EXPORT(kvriMalloc_32f_C1, allocateImage<Kvr32f, C1>);
KVRI_EXPORT(kvriMalloc_32f_C2, allocateImage<Kvr32f, C2>);
KVRI_EXPORT(kvriMalloc_32f_C3, allocateImage<Kvr32f, C3>);
KVRI_EXPORT(kvriMalloc_32f_C4, allocateImage<Kvr32f, C4>);
KVRI_EXPORT(kvriMalloc_32f_AC4, allocateImage<Kvr32f, AC4>);

KVRI_EXPORT(kvriMalloc_32sc_C1, allocateImage<Kvr32sc, C1>);
KVRI_EXPORT(kvriMalloc_32sc_C2, allocateImage<Kvr32sc, C2>);
KVRI_EXPORT(kvriMalloc_32sc_C3, allocateImage<Kvr32sc, C3>);
KVRI_EXPORT(kvriMalloc_32sc_C4, allocateImage<Kvr32sc, C4>);
KVRI_EXPORT(kvriMalloc_32sc_AC4, allocateImage<Kvr32sc, AC4>);

KVRI_EXPORT(kvriMalloc_32fc_C1, allocateImage<Kvr32fc, C1>);
KVRI_EXPORT(kvriMalloc_32fc_C2, allocateImage<Kvr32fc, C2>);
KVRI_EXPORT(kvriMalloc_32fc_C3, allocateImage<Kvr32fc, C3>);
KVRI_EXPORT(kvriMalloc_32fc_C4, allocateImage<Kvr32fc, C4>);
KVRI_EXPORT(kvriMalloc_32fc_AC4, allocateImage<Kvr32fc, AC4>);

KVRI_EXPORT(kvriFree, release);

}  // namespace
}  // namespace kvri
