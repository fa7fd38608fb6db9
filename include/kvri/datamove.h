/* kvri/datamove.h - functions that create, move and fill images without changing sample values. */
#ifndef KVRI_DATAMOVE_H
#define KVRI_DATAMOVE_H

#include "kvri/types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* Malloc - a new image of width x height pixels, contents undefined, to be released by kvriFree.
 * Writes the step, the row's bytes rounded up to a multiple of 64, through pStepBytes and returns the first pixel, at an
 * address that is a multiple of 64. AC4 takes the room of C4.
 * Returns null without writing where pStepBytes is null, null and a step of 0 where a size is below 1, and null with the
 * step written where memory lacks. step * height is formed in 32 bits and wraps from 4 GiB on: stay below. */
Kvr8u* kvriMalloc_8u_C1(int width, int height, int* pStepBytes);
Kvr8u* kvriMalloc_8u_C2(int width, int height, int* pStepBytes);
Kvr8u* kvriMalloc_8u_C3(int width, int height, int* pStepBytes);
Kvr8u* kvriMalloc_8u_C4(int width, int height, int* pStepBytes);
Kvr8u* kvriMalloc_8u_AC4(int width, int height, int* pStepBytes);
Kvr16u* kvriMalloc_16u_C1(int width, int height, int* pStepBytes);
Kvr16u* kvriMalloc_16u_C2(int width, int height, int* pStepBytes);
Kvr16u* kvriMalloc_16u_C3(int width, int height, int* pStepBytes);
Kvr16u* kvriMalloc_16u_C4(int width, int height, int* pStepBytes);
Kvr16u* kvriMalloc_16u_AC4(int width, int height, int* pStepBytes);
Kvr16s* kvriMalloc_16s_C1(int width, int height, int* pStepBytes);
Kvr16s* kvriMalloc_16s_C2(int width, int height, int* pStepBytes);
Kvr16s* kvriMalloc_16s_C3(int width, int height, int* pStepBytes);
Kvr16s* kvriMalloc_16s_C4(int width, int height, int* pStepBytes);
Kvr16s* kvriMalloc_16s_AC4(int width, int height, int* pStepBytes);
Kvr32s* kvriMalloc_32s_C1(int width, int height, int* pStepBytes);
Kvr32s* kvriMalloc_32s_C2(int width, int height, int* pStepBytes);
Kvr32s* kvriMalloc_32s_C3(int width, int height, int* pStepBytes);
Kvr32s* kvriMalloc_32s_C4(int width, int height, int* pStepBytes);
Kvr32s* kvriMalloc_32s_AC4(int width, int height, int* pStepBytes);
Kvr32f* kvriMalloc_32f_C1(int width, int height, int* pStepBytes);
Kvr32f* kvriMalloc_32f_C2(int width, int height, int* pStepBytes);
Kvr32f* kvriMalloc_32f_C3(int width, int height, int* pStepBytes);
Kvr32f* kvriMalloc_32f_C4(int width, int height, int* pStepBytes);
Kvr32f* kvriMalloc_32f_AC4(int width, int height, int* pStepBytes);
Kvr32sc* kvriMalloc_32sc_C1(int width, int height, int* pStepBytes);
Kvr32sc* kvriMalloc_32sc_C2(int width, int height, int* pStepBytes);
Kvr32sc* kvriMalloc_32sc_C3(int width, int height, int* pStepBytes);
Kvr32sc* kvriMalloc_32sc_C4(int width, int height, int* pStepBytes);
Kvr32sc* kvriMalloc_32sc_AC4(int width, int height, int* pStepBytes);
Kvr32fc* kvriMalloc_32fc_C1(int width, int height, int* pStepBytes);
Kvr32fc* kvriMalloc_32fc_C2(int width, int height, int* pStepBytes);
Kvr32fc* kvriMalloc_32fc_C3(int width, int height, int* pStepBytes);
Kvr32fc* kvriMalloc_32fc_C4(int width, int height, int* pStepBytes);
Kvr32fc* kvriMalloc_32fc_AC4(int width, int height, int* pStepBytes);

/* Free - releases an image of kvriMalloc. Null is accepted. */
void kvriFree(void* ptr);

/* Copy, same layout - every sample of the ROI; AC4 leaves the destination's fourth channel as it is.
 * Pixel by pixel. Source and destination may not overlap.
 * Errors, in this order: null pointer -8, width or height below 1 -6. Any step is accepted, zero and negative ones too. */
KvrStatus kvriCopy_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C1R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C3R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_AC4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);

/* Copy, masked - pixels whose mask sample is not zero; the others keep their value, and so does the alpha of AC4.
 * The mask has one 8u sample per pixel of the ROI.
 * Errors as for the plain copies, the mask among the pointers. */
KvrStatus kvriCopy_8u_C1MR(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_8u_C3MR(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_8u_C4MR(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_8u_AC4MR(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_16u_C1MR(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_16u_C3MR(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_16u_C4MR(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_16u_AC4MR(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_16s_C1MR(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_16s_C3MR(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_16s_C4MR(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_16s_AC4MR(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_32s_C1MR(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_32s_C3MR(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_32s_C4MR(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_32s_AC4MR(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_32f_C1MR(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_32f_C3MR(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_32f_C4MR(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriCopy_32f_AC4MR(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);

/* Copy, one channel out - pSrc addresses the wanted channel of the first pixel. Samples of that channel alone are owned:
 * nothing before the first or behind the last of them is read.
 * Errors as for the plain copies. */
KvrStatus kvriCopy_8u_C3C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_C4C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C3C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C4C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C3C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C4C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C3C1R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C4C1R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C3C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C4C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);

/* Copy, one channel in - pDst addresses the channel to write; the other channels keep their values. The bytes between the
 * first and the last written sample are rewritten unchanged, so no other thread may write them at the same time.
 * Nothing before the first or behind the last sample is touched.
 * Errors as for the plain copies. */
KvrStatus kvriCopy_8u_C1C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_C1C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C1C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C1C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C1C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C1C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C1C3R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C1C4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C1C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C1C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);

/* Copy, one channel to one channel - both pointers address the chosen channel, which need not be the same.
 * Memory rules as for one channel out and one channel in.
 * Errors as for the plain copies. */
KvrStatus kvriCopy_8u_C3CR(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_C4CR(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C3CR(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C4CR(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C3CR(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C4CR(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C3CR(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C4CR(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C3CR(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C4CR(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);

/* Copy, without or beside alpha - AC4C3 drops the fourth channel; C3AC4 writes three channels and keeps the fourth.
 * Errors as for the plain copies. */
KvrStatus kvriCopy_8u_AC4C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_C3AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_AC4C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C3AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_AC4C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C3AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_AC4C3R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C3AC4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_AC4C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C3AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);

/* Copy, packed to planar and back - the planes share one step; every plane pointer must be given.
 * Errors as for the plain copies, each plane among the pointers. */
KvrStatus kvriCopy_8u_C3P3R(const Kvr8u* pSrc, int srcStep, Kvr8u* const pDst[3], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_P3C3R(const Kvr8u* const pSrc[3], int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_C4P4R(const Kvr8u* pSrc, int srcStep, Kvr8u* const pDst[4], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_8u_P4C4R(const Kvr8u* const pSrc[4], int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C3P3R(const Kvr16u* pSrc, int srcStep, Kvr16u* const pDst[3], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_P3C3R(const Kvr16u* const pSrc[3], int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_C4P4R(const Kvr16u* pSrc, int srcStep, Kvr16u* const pDst[4], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16u_P4C4R(const Kvr16u* const pSrc[4], int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C3P3R(const Kvr16s* pSrc, int srcStep, Kvr16s* const pDst[3], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_P3C3R(const Kvr16s* const pSrc[3], int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_C4P4R(const Kvr16s* pSrc, int srcStep, Kvr16s* const pDst[4], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_16s_P4C4R(const Kvr16s* const pSrc[4], int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C3P3R(const Kvr32s* pSrc, int srcStep, Kvr32s* const pDst[3], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_P3C3R(const Kvr32s* const pSrc[3], int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_C4P4R(const Kvr32s* pSrc, int srcStep, Kvr32s* const pDst[4], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32s_P4C4R(const Kvr32s* const pSrc[4], int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C3P3R(const Kvr32f* pSrc, int srcStep, Kvr32f* const pDst[3], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_P3C3R(const Kvr32f* const pSrc[3], int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_C4P4R(const Kvr32f* pSrc, int srcStep, Kvr32f* const pDst[4], int dstStep, KvriSize roiSize);
KvrStatus kvriCopy_32f_P4C4R(const Kvr32f* const pSrc[4], int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);

/* Flags of kvriCopyManaged: bit 0 chooses the stores, the other bits have no effect. */
enum {
    kvrCopyTemporal    = 0, /* through the caches */
    kvrCopyNonTemporal = 1  /* past the caches, ended by a store fence: for data that is not read again soon */
};

/* CopyManaged - a one-channel byte copy whose store policy the caller chooses.
 * Errors as for the plain copies. */
KvrStatus kvriCopyManaged_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int flags);

/* Set - every pixel of the ROI. C1 takes the value itself, C3 and AC4 an array of three, C4 of four; AC4 leaves the
 * destination's fourth channel as it is. The bits of every value are kept, those of a signalling NaN too.
 * Errors, in this order: null pointer -8 (the array of values counts), width or height below 1 -6. Any step is accepted. */
KvrStatus kvriSet_8u_C1R(Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_8u_C3R(const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_8u_C4R(const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_8u_AC4R(const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16u_C1R(Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16u_C3R(const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16u_C4R(const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16u_AC4R(const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16s_C1R(Kvr16s value, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16s_C3R(const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16s_C4R(const Kvr16s value[4], Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16s_AC4R(const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32s_C1R(Kvr32s value, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32s_C3R(const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32s_C4R(const Kvr32s value[4], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32s_AC4R(const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32f_C1R(Kvr32f value, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32f_C3R(const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32f_C4R(const Kvr32f value[4], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32f_AC4R(const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);

/* Set, masked - pixels whose mask sample (8u, one per pixel) is not zero; the others keep their value.
 * Errors as for Set, the mask among the pointers. */
KvrStatus kvriSet_8u_C1MR(Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_8u_C3MR(const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_8u_C4MR(const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_8u_AC4MR(const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_16u_C1MR(Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_16u_C3MR(const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_16u_C4MR(const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_16u_AC4MR(const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_16s_C1MR(Kvr16s value, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_16s_C3MR(const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_16s_C4MR(const Kvr16s value[4], Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_16s_AC4MR(const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_32s_C1MR(Kvr32s value, Kvr32s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_32s_C3MR(const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_32s_C4MR(const Kvr32s value[4], Kvr32s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_32s_AC4MR(const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_32f_C1MR(Kvr32f value, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_32f_C3MR(const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_32f_C4MR(const Kvr32f value[4], Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);
KvrStatus kvriSet_32f_AC4MR(const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pMask, int maskStep);

/* Set, one channel - pDst addresses the channel to fill; memory rules as for Copy, one channel in.
 * Errors as for Set. */
KvrStatus kvriSet_8u_C3CR(Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_8u_C4CR(Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16u_C3CR(Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16u_C4CR(Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16s_C3CR(Kvr16s value, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_16s_C4CR(Kvr16s value, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32s_C3CR(Kvr32s value, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32s_C4CR(Kvr32s value, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32f_C3CR(Kvr32f value, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSet_32f_C4CR(Kvr32f value, Kvr32f* pDst, int dstStep, KvriSize roiSize);

/* Dup - each grey sample into every channel of the destination pixel; C1C4R writes the fourth channel too.
 * Errors, in this order: null pointer -8, width or height below 1 -6. Any step is accepted. */
KvrStatus kvriDup_8u_C1C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDup_8u_C1C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);

/* SwapChannels - destination channel k takes source channel order[k]. A channel may be taken more than once.
 * pSrc = pDst with equal steps works for C3R, C4R and AC4R: each pixel is read whole before it is written.
 * Entries: C3 0..2 each; C4R, C4IR and C4C3R 0..3 each; AC4R three entries 0..2, the fourth destination channel is kept.
 * Errors, C3R, C4R, C4C3R and C3C4R: null pointer -8 (order counts), width or height below 1 -6, step of zero -14, bad
 * entry -60. Negative steps are accepted. */
KvrStatus kvriSwapChannels_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const int order[4]);
KvrStatus kvriSwapChannels_8u_C4C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const int order[4]);
KvrStatus kvriSwapChannels_16u_C4C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const int order[4]);
KvrStatus kvriSwapChannels_16s_C4C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_32s_C3R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_32s_C4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, const int order[4]);
KvrStatus kvriSwapChannels_32s_C4C3R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const int order[4]);
KvrStatus kvriSwapChannels_32f_C4C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const int order[3]);

/* SwapChannels C3C4R - an entry of 0..2 takes that channel, 3 writes value, 4 and more keep the destination's channel;
 * a negative entry is -60. */
KvrStatus kvriSwapChannels_8u_C3C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const int order[4], Kvr8u value);
KvrStatus kvriSwapChannels_16u_C3C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const int order[4], Kvr16u value);
KvrStatus kvriSwapChannels_16s_C3C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const int order[4], Kvr16s value);
KvrStatus kvriSwapChannels_32s_C3C4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, const int order[4], Kvr32s value);
KvrStatus kvriSwapChannels_32f_C3C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const int order[4], Kvr32f value);

/* SwapChannels AC4R and in place - errors in another order: null image pointer -8, step of zero -14, width or height
 * below 1 -6, null order -8, bad entry -60. */
KvrStatus kvriSwapChannels_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_32s_AC4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const int order[3]);
KvrStatus kvriSwapChannels_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const int order[4]);

/* CopyConstBorder, CopyReplicateBorder, CopyWrapBorder - the source inside a larger destination, with a margin around it.
 * Source pixel (0, 0) becomes destination pixel (leftBorderWidth, topBorderHeight); margins on the right and below take what
 * remains of dstRoiSize, which may be nothing. All lengths in pixels. AC4 leaves the destination's fourth channel as it is,
 * in the margin and in the middle.
 * Errors, in this order: null pointer -8 (value counts where it is one), step below 1 -14, -6: a width or height below 1, a
 * negative border, leftBorderWidth + source width above the destination's width, and the same for heights. */

/* CopyConstBorder - every margin pixel is value: a sample, or 3 (C3, AC4) or 4 (C4) of them.
 * Source and destination may not overlap. */
KvrStatus kvriCopyConstBorder_8u_C1R(const Kvr8u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr8u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kvr8u value);
KvrStatus kvriCopyConstBorder_8u_C3R(const Kvr8u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr8u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr8u value[3]);
KvrStatus kvriCopyConstBorder_8u_C4R(const Kvr8u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr8u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr8u value[4]);
KvrStatus kvriCopyConstBorder_8u_AC4R(const Kvr8u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr8u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr8u value[3]);
KvrStatus kvriCopyConstBorder_16u_C1R(const Kvr16u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kvr16u value);
KvrStatus kvriCopyConstBorder_16u_C3R(const Kvr16u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr16u value[3]);
KvrStatus kvriCopyConstBorder_16u_C4R(const Kvr16u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr16u value[4]);
KvrStatus kvriCopyConstBorder_16u_AC4R(const Kvr16u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr16u value[3]);
KvrStatus kvriCopyConstBorder_16s_C1R(const Kvr16s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kvr16s value);
KvrStatus kvriCopyConstBorder_16s_C3R(const Kvr16s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr16s value[3]);
KvrStatus kvriCopyConstBorder_16s_C4R(const Kvr16s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr16s value[4]);
KvrStatus kvriCopyConstBorder_16s_AC4R(const Kvr16s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr16s value[3]);
KvrStatus kvriCopyConstBorder_32s_C1R(const Kvr32s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kvr32s value);
KvrStatus kvriCopyConstBorder_32s_C3R(const Kvr32s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr32s value[3]);
KvrStatus kvriCopyConstBorder_32s_C4R(const Kvr32s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr32s value[4]);
KvrStatus kvriCopyConstBorder_32s_AC4R(const Kvr32s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr32s value[3]);
KvrStatus kvriCopyConstBorder_32f_C1R(const Kvr32f* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32f* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kvr32f value);
KvrStatus kvriCopyConstBorder_32f_C3R(const Kvr32f* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32f* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr32f value[3]);
KvrStatus kvriCopyConstBorder_32f_C4R(const Kvr32f* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32f* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr32f value[4]);
KvrStatus kvriCopyConstBorder_32f_AC4R(const Kvr32f* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32f* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kvr32f value[3]);

/* CopyReplicateBorder - a margin pixel is the source pixel nearest to it.
 * Source and destination may not overlap. */
KvrStatus kvriCopyReplicateBorder_8u_C1R(const Kvr8u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr8u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_8u_C3R(const Kvr8u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr8u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_8u_C4R(const Kvr8u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr8u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_8u_AC4R(const Kvr8u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr8u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16u_C1R(const Kvr16u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16u_C3R(const Kvr16u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16u_C4R(const Kvr16u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16u_AC4R(const Kvr16u* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16u* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16s_C1R(const Kvr16s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16s_C3R(const Kvr16s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16s_C4R(const Kvr16s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16s_AC4R(const Kvr16s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr16s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32s_C1R(const Kvr32s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32s_C3R(const Kvr32s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32s_C4R(const Kvr32s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32s_AC4R(const Kvr32s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32f_C1R(const Kvr32f* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32f* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32f_C3R(const Kvr32f* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32f* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32f_C4R(const Kvr32f* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32f* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32f_AC4R(const Kvr32f* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32f* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

/* CopyReplicateBorder in place - pSrcDst is the source's first pixel inside a larger image: the margins are written into the
 * memory around it, which begins topBorderHeight rows above and leftBorderWidth pixels to the left. The source pixels are
 * not written. */
KvrStatus kvriCopyReplicateBorder_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16u_C4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16s_C4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32s_C1IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32s_C3IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32s_C4IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32s_AC4IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyReplicateBorder_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

/* CopyWrapBorder - the source is one period of a periodic image: the margin on one side shows the opposite side, and
 * starts over where it is wider than the source.
 * C1IR works in place, as above; so does C1R where pSrc = pDst, with srcStep as the step. Other overlaps are not allowed. */
KvrStatus kvriCopyWrapBorder_32s_C1R(const Kvr32s* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32s* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyWrapBorder_32s_C1IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyWrapBorder_32f_C1R(const Kvr32f* pSrc, int srcStep, KvriSize srcRoiSize, Kvr32f* pDst, int dstStep, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KvrStatus kvriCopyWrapBorder_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize srcRoiSize, KvriSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
/* Convert - every sample as the nearest value of another type: exactly where the type is wider, else saturated (-5 is 0 and
 * 300 is 255 as 8u). AC4 leaves the destination's fourth channel as it is. Pixel by pixel; the images may not overlap.
 * Errors, in this order: null pointer -8, width or height below 1 -6, step below 1 -14. */
KvrStatus kvriConvert_8u16u_C1R(const Kvr8u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u16u_C3R(const Kvr8u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u16u_C4R(const Kvr8u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u16u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u16s_C1R(const Kvr8u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u16s_C3R(const Kvr8u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u16s_C4R(const Kvr8u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u16s_AC4R(const Kvr8u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u32s_C1R(const Kvr8u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u32s_C3R(const Kvr8u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u32s_C4R(const Kvr8u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u32s_AC4R(const Kvr8u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u32f_C1R(const Kvr8u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u32f_C3R(const Kvr8u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u32f_C4R(const Kvr8u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8u32f_AC4R(const Kvr8u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s32s_C1R(const Kvr8s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s32s_C3R(const Kvr8s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s32s_C4R(const Kvr8s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s32s_AC4R(const Kvr8s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s32f_C1R(const Kvr8s* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s32f_C3R(const Kvr8s* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s32f_C4R(const Kvr8s* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s32f_AC4R(const Kvr8s* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u8u_C1R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u8u_C3R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u8u_C4R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u8u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s8u_C1R(const Kvr16s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s8u_C3R(const Kvr16s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s8u_C4R(const Kvr16s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s8u_AC4R(const Kvr16s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u32f_C1R(const Kvr16u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u32f_C3R(const Kvr16u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u32f_C4R(const Kvr16u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u32f_AC4R(const Kvr16u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s32f_C1R(const Kvr16s* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s32f_C3R(const Kvr16s* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s32f_C4R(const Kvr16s* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s32f_AC4R(const Kvr16s* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s8u_C1R(const Kvr32s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s8u_C3R(const Kvr32s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s8u_C4R(const Kvr32s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s8u_AC4R(const Kvr32s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s8s_C1R(const Kvr32s* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s8s_C3R(const Kvr32s* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s8s_C4R(const Kvr32s* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s8s_AC4R(const Kvr32s* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize);

/* Convert, any step - errors, in this order: null pointer -8, width or height below 1 -6. Integers that 32f cannot represent
 * are rounded by the processor's rounding mode as the caller has set it. */
KvrStatus kvriConvert_16u32s_C1R(const Kvr16u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u32s_C3R(const Kvr16u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u32s_C4R(const Kvr16u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u32s_AC4R(const Kvr16u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s32s_C1R(const Kvr16s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s32s_C3R(const Kvr16s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s32s_C4R(const Kvr16s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s32s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s16s_C1R(const Kvr8s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16u32u_C1R(const Kvr16u* pSrc, int srcStep, Kvr32u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s32f_C1R(const Kvr32s* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32u32f_C1R(const Kvr32u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);

/* Convert, signed to unsigned - negative samples become 0, others stay what they are. Errors and steps as above. */
KvrStatus kvriConvert_8s8u_C1Rs(const Kvr8s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s16u_C1Rs(const Kvr8s* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_8s32u_C1Rs(const Kvr8s* pSrc, int srcStep, Kvr32u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s16u_C1Rs(const Kvr16s* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_16s32u_C1Rs(const Kvr16s* pSrc, int srcStep, Kvr32u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriConvert_32s32u_C1Rs(const Kvr32s* pSrc, int srcStep, Kvr32u* pDst, int dstStep, KvriSize roiSize);

/* Convert, 32f to integers - rounded by roundMode, of which every value but 0 and 1 means 2, and saturated; infinities become
 * the type's limits, NaN 0. The processor's floating-point state has no influence and stays what it is.
 * Errors, in this order: null pointer -8, width or height below 1 -6, step below 1 -14. */
KvrStatus kvriConvert_32f8u_C1R(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f8u_C3R(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f8u_C4R(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f8u_AC4R(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f8s_C1R(const Kvr32f* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f8s_C3R(const Kvr32f* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f8s_C4R(const Kvr32f* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f8s_AC4R(const Kvr32f* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f16u_C1R(const Kvr32f* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f16u_C3R(const Kvr32f* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f16u_C4R(const Kvr32f* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f16u_AC4R(const Kvr32f* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f16s_C1R(const Kvr32f* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f16s_C3R(const Kvr32f* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f16s_C4R(const Kvr32f* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);
KvrStatus kvriConvert_32f16s_AC4R(const Kvr32f* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode);

/* Convert, scaled - samples times 2^-scaleFactor, for any scale factor, exactly; then rounded and saturated like 32f above.
 * The in-place form has its 32f samples in the image whose 32u results replace them.
 * Errors, in this order: null pointer -8, width or height below 1 -6. Any step is accepted. */
KvrStatus kvriConvert_16s8s_C1RSfs(const Kvr16s* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_16u16s_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_16u8s_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32s16s_C1RSfs(const Kvr32s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32s16u_C1RSfs(const Kvr32s* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32u16s_C1RSfs(const Kvr32u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32u16u_C1RSfs(const Kvr32u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32u32s_C1RSfs(const Kvr32u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32u8s_C1RSfs(const Kvr32u* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32u8u_C1RSfs(const Kvr32u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_8u8s_C1RSfs(const Kvr8u* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32f8u_C1RSfs(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32f8s_C1RSfs(const Kvr32f* pSrc, int srcStep, Kvr8s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32f16u_C1RSfs(const Kvr32f* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32f16s_C1RSfs(const Kvr32f* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32f32s_C1RSfs(const Kvr32f* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32f32u_C1RSfs(const Kvr32f* pSrc, int srcStep, Kvr32u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);
KvrStatus kvriConvert_32f32u_C1IRSfs(Kvr32u* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode roundMode, int scaleFactor);

/* Convert, one bit to 8u - 0 becomes 0, 1 becomes 255. Eight pixels lie in a byte, the first in the most significant bit.
 * Each row's first pixel is bit srcBitOffset, counted likewise, from the row's start on; it may be 8 and more. Only bytes
 * that hold the row's bits are read.
 * Errors, in this order: null pointer -8, width or height below 1 -6, step below 1 -14, negative offset -6. */
KvrStatus kvriConvert_1u8u_C1R(const Kvr8u* pSrc, int srcStep, int srcBitOffset, Kvr8u* pDst, int dstStep, KvriSize roiSize);

/* Scale, integers - the range of the source's type linearly onto that of the destination's, rounded to nearest: 8u16s is
 * v * 257 - 32768, 16u8u is v / 257. AC4 leaves the destination's fourth channel as it is.
 * Pixel by pixel; the images may not overlap.
 * Errors, in this order: null pointer -8, width or height below 1 -6, step below 1 -14. */
KvrStatus kvriScale_8u16u_C1R(const Kvr8u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u16u_C3R(const Kvr8u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u16u_C4R(const Kvr8u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u16u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u16s_C1R(const Kvr8u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u16s_C3R(const Kvr8u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u16s_C4R(const Kvr8u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u16s_AC4R(const Kvr8u* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u32s_C1R(const Kvr8u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u32s_C3R(const Kvr8u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u32s_C4R(const Kvr8u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_8u32s_AC4R(const Kvr8u* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_16u8u_C1R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_16u8u_C3R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_16u8u_C4R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_16u8u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_16s8u_C1R(const Kvr16s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_16s8u_C3R(const Kvr16s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_16s8u_C4R(const Kvr16s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_16s8u_AC4R(const Kvr16s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_32s8u_C1R(const Kvr32s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_32s8u_C3R(const Kvr32s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_32s8u_C4R(const Kvr32s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriScale_32s8u_AC4R(const Kvr32s* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);

/* Scale, 8u and 32f - 0 to 255 onto vMin to vMax: 8u32f is vMin + v * ((vMax - vMin) / 255), by the processor's rounding mode
 * as the caller has set it. 32f8u is v * k - vMin * k where k = 255 / (vMax - vMin), rounded to nearest with ties to even in
 * any case, and saturated, NaN 0. Every operation is one of single precision.
 * Errors, in this order: vMax - vMin not above 0 -13, null pointer -8, width or height below 1 -6, step below 1 -14. */
KvrStatus kvriScale_8u32f_C1R(const Kvr8u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f vMin, Kvr32f vMax);
KvrStatus kvriScale_8u32f_C3R(const Kvr8u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f vMin, Kvr32f vMax);
KvrStatus kvriScale_8u32f_C4R(const Kvr8u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f vMin, Kvr32f vMax);
KvrStatus kvriScale_8u32f_AC4R(const Kvr8u* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f vMin, Kvr32f vMax);
KvrStatus kvriScale_32f8u_C1R(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f vMin, Kvr32f vMax);
KvrStatus kvriScale_32f8u_C3R(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f vMin, Kvr32f vMax);
KvrStatus kvriScale_32f8u_C4R(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f vMin, Kvr32f vMax);
KvrStatus kvriScale_32f8u_AC4R(const Kvr32f* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f vMin, Kvr32f vMax);
/* Mirror - the image turned about the line that KvriAxis names: about the horizontal axis (rows change places), the vertical
 * axis (each row is reversed), both, the main diagonal, or the other diagonal. Of the latter two the destination is
 * roiSize.height pixels wide and roiSize.width high. AC4 leaves the destination's fourth channel as it is.
 * Source and destination may not overlap, but they may be one image: equal pointers and equal steps with axis 0, 1 or 2
 * work in place.
 * Errors, in this order, of axes 0, 1 and 2: in one image those of the in-place form; null pointer -8, width or height below
 * 1 -6, any axis but 0 to 4 -21, height below 2 for axes 0 and 2 or width below 2 for axes 1 and 2 -6. Any step is accepted.
 * Of axes 3 and 4: null pointer -8, step below 1 -14, width or height below 1 -6, memory of the source (first byte of the
 * first row to last byte of the last) that overlaps the destination's -9999, so in one image always. */
KvrStatus kvriMirror_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32s_C1R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32s_C3R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32s_C4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32s_AC4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, KvriAxis axis);

/* Mirror in place - axes 0, 1 and 2 alone. AC4 moves the colours; every alpha stays where it is.
 * Errors, in this order: null pointer -8, width or height below 1 -6, any other axis -21, height below 2 for axes 0 and 2
 * or width below 2 for axes 1 and 2 -6. Any step is accepted. */
KvrStatus kvriMirror_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16u_C4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16s_C4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32s_C1IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32s_C3IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32s_C4IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32s_AC4IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);
KvrStatus kvriMirror_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, KvriAxis axis);

/* Transpose - destination pixel (x, y) is source pixel (y, x): the destination is srcRoiSize.height pixels wide and
 * srcRoiSize.width high. Source and destination may not overlap, but they may be one image: equal pointers and equal steps
 * work in place.
 * Errors, in this order: in one image those of the in-place form; null pointer -8, width or height below 1 -6. Any step is
 * accepted. */
KvrStatus kvriTranspose_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_32s_C1R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_32s_C3R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_32s_C4R(const Kvr32s* pSrc, int srcStep, Kvr32s* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize srcRoiSize);
KvrStatus kvriTranspose_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize srcRoiSize);

/* Transpose in place - errors, in this order: null pointer -8, width or height below 1, or one unlike the other -6. Any step
 * is accepted. */
KvrStatus kvriTranspose_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_16u_C4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_16s_C4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_32s_C1IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_32s_C3IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_32s_C4IR(Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriTranspose_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
