/* kvri/pointops.h - operations on single pixels. */
#ifndef KVRI_POINTOPS_H
#define KVRI_POINTOPS_H

#include "kvri/types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* Arithmetic. Functions of integers take a scale factor: the exact result r is replaced by r * 2^-scaleFactor, rounded to the
 * nearest integer, ties to even, and saturated to the sample type (parts of complex samples each on their own). Every
 * scale factor of the int range is accepted. Functions of 32f and 32fc compute in IEEE single precision.
 *
 * Pixel by pixel, no neighbourhood. IR works in place: pSrcDst is the second source and the destination. AC4 processes three
 * channels and leaves the destination's fourth as it is. Constants: C1 the value itself, C3 and AC4 an array of three, C4
 * of four. Rows of 16-bit and wider samples may begin at any byte address. */

/* Add, AddC - pSrc1 + pSrc2; pSrc + value.
 * Errors, in this order: null pointer -8 (the array of constants counts), width or height below 1 -6; complex types then a
 * step below 1 -14, the others accept any step. */
KvrStatus kvriAdd_8u_C1RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_8u_C3RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_8u_C4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_8u_AC4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_8u_C1IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_8u_C3IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_8u_C4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_8u_AC4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16u_C1RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16u_C3RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16u_C4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16u_AC4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16u_C1IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16u_C3IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16u_C4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16u_AC4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16s_C1RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16s_C3RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16s_C4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16s_AC4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16s_C1IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16s_C3IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16s_C4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16s_AC4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16sc_C1RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16sc_C3RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16sc_AC4RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16sc_C1IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16sc_C3IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_16sc_AC4IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_32sc_C1RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_32sc_C3RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_32sc_AC4RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_32sc_C1IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_32sc_C3IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_32sc_AC4IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAdd_32f_C1R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAdd_32f_C3R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAdd_32f_C4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAdd_32f_AC4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAdd_32f_C1IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAdd_32f_C3IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAdd_32f_C4IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAdd_32f_AC4IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAdd_32fc_C1R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAdd_32fc_C3R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAdd_32fc_AC4R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAdd_32fc_C1IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAdd_32fc_C3IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAdd_32fc_AC4IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAddC_8u_C1RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_8u_C3RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_8u_C4RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_8u_AC4RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_8u_C1IRSfs(Kvr8u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_8u_C3IRSfs(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_8u_C4IRSfs(const Kvr8u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_8u_AC4IRSfs(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16u_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16u_C3RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16u_C4RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16u_AC4RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16u_C1IRSfs(Kvr16u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16u_C3IRSfs(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16u_C4IRSfs(const Kvr16u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16u_AC4IRSfs(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16s_C1RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s value, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16s_C3RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16s_C4RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[4], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16s_AC4RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16s_C1IRSfs(Kvr16s value, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16s_C3IRSfs(const Kvr16s value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16s_C4IRSfs(const Kvr16s value[4], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16s_AC4IRSfs(const Kvr16s value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16sc_C1RSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc value, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16sc_C3RSfs(const Kvr16sc* pSrc, int srcStep, const Kvr16sc value[3], Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16sc_AC4RSfs(const Kvr16sc* pSrc, int srcStep, const Kvr16sc value[3], Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16sc_C1IRSfs(Kvr16sc value, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16sc_C3IRSfs(const Kvr16sc value[3], Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_16sc_AC4IRSfs(const Kvr16sc value[3], Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_32sc_C1RSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc value, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_32sc_C3RSfs(const Kvr32sc* pSrc, int srcStep, const Kvr32sc value[3], Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_32sc_AC4RSfs(const Kvr32sc* pSrc, int srcStep, const Kvr32sc value[3], Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_32sc_C1IRSfs(Kvr32sc value, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_32sc_C3IRSfs(const Kvr32sc value[3], Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_32sc_AC4IRSfs(const Kvr32sc value[3], Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriAddC_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f value, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAddC_32f_C3R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAddC_32f_C4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[4], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAddC_32f_AC4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAddC_32f_C1IR(Kvr32f value, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAddC_32f_C3IR(const Kvr32f value[3], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAddC_32f_C4IR(const Kvr32f value[4], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAddC_32f_AC4IR(const Kvr32f value[3], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAddC_32fc_C1R(const Kvr32fc* pSrc, int srcStep, Kvr32fc value, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAddC_32fc_C3R(const Kvr32fc* pSrc, int srcStep, const Kvr32fc value[3], Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAddC_32fc_AC4R(const Kvr32fc* pSrc, int srcStep, const Kvr32fc value[3], Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAddC_32fc_C1IR(Kvr32fc value, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAddC_32fc_C3IR(const Kvr32fc value[3], Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAddC_32fc_AC4IR(const Kvr32fc value[3], Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Sub, SubC - pSrc2 - pSrc1: the first source is subtracted; pSrcDst - pSrc; pSrc - value. Unsigned results below 0 are 0.
 * Errors as for Add. */
KvrStatus kvriSub_8u_C1RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_8u_C3RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_8u_C4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_8u_AC4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_8u_C1IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_8u_C3IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_8u_C4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_8u_AC4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16u_C1RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16u_C3RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16u_C4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16u_AC4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16u_C1IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16u_C3IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16u_C4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16u_AC4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16s_C1RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16s_C3RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16s_C4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16s_AC4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16s_C1IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16s_C3IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16s_C4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16s_AC4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16sc_C1RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16sc_C3RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16sc_AC4RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16sc_C1IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16sc_C3IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_16sc_AC4IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_32sc_C1RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_32sc_C3RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_32sc_AC4RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_32sc_C1IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_32sc_C3IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_32sc_AC4IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSub_32f_C1R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSub_32f_C3R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSub_32f_C4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSub_32f_AC4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSub_32f_C1IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSub_32f_C3IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSub_32f_C4IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSub_32f_AC4IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSub_32fc_C1R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSub_32fc_C3R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSub_32fc_AC4R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSub_32fc_C1IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSub_32fc_C3IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSub_32fc_AC4IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSubC_8u_C1RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_8u_C3RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_8u_C4RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_8u_AC4RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_8u_C1IRSfs(Kvr8u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_8u_C3IRSfs(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_8u_C4IRSfs(const Kvr8u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_8u_AC4IRSfs(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16u_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16u_C3RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16u_C4RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16u_AC4RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16u_C1IRSfs(Kvr16u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16u_C3IRSfs(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16u_C4IRSfs(const Kvr16u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16u_AC4IRSfs(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16s_C1RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s value, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16s_C3RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16s_C4RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[4], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16s_AC4RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16s_C1IRSfs(Kvr16s value, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16s_C3IRSfs(const Kvr16s value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16s_C4IRSfs(const Kvr16s value[4], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16s_AC4IRSfs(const Kvr16s value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16sc_C1RSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc value, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16sc_C3RSfs(const Kvr16sc* pSrc, int srcStep, const Kvr16sc value[3], Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16sc_AC4RSfs(const Kvr16sc* pSrc, int srcStep, const Kvr16sc value[3], Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16sc_C1IRSfs(Kvr16sc value, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16sc_C3IRSfs(const Kvr16sc value[3], Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_16sc_AC4IRSfs(const Kvr16sc value[3], Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_32sc_C1RSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc value, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_32sc_C3RSfs(const Kvr32sc* pSrc, int srcStep, const Kvr32sc value[3], Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_32sc_AC4RSfs(const Kvr32sc* pSrc, int srcStep, const Kvr32sc value[3], Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_32sc_C1IRSfs(Kvr32sc value, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_32sc_C3IRSfs(const Kvr32sc value[3], Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_32sc_AC4IRSfs(const Kvr32sc value[3], Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSubC_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f value, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSubC_32f_C3R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSubC_32f_C4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[4], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSubC_32f_AC4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSubC_32f_C1IR(Kvr32f value, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSubC_32f_C3IR(const Kvr32f value[3], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSubC_32f_C4IR(const Kvr32f value[4], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSubC_32f_AC4IR(const Kvr32f value[3], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSubC_32fc_C1R(const Kvr32fc* pSrc, int srcStep, Kvr32fc value, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSubC_32fc_C3R(const Kvr32fc* pSrc, int srcStep, const Kvr32fc value[3], Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSubC_32fc_AC4R(const Kvr32fc* pSrc, int srcStep, const Kvr32fc value[3], Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSubC_32fc_C1IR(Kvr32fc value, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSubC_32fc_C3IR(const Kvr32fc value[3], Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSubC_32fc_AC4IR(const Kvr32fc value[3], Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Mul, MulC - pSrc1 * pSrc2; pSrc * value. Complex: re = a.re * b.re - a.im * b.im, im = a.re * b.im + a.im * b.re, exact for
 * integers, in single precision for 32fc.
 * Errors as for Add. */
KvrStatus kvriMul_8u_C1RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_8u_C3RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_8u_C4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_8u_AC4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_8u_C1IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_8u_C3IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_8u_C4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_8u_AC4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16u_C1RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16u_C3RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16u_C4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16u_AC4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16u_C1IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16u_C3IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16u_C4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16u_AC4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16s_C1RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16s_C3RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16s_C4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16s_AC4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16s_C1IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16s_C3IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16s_C4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16s_AC4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16sc_C1RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16sc_C3RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16sc_AC4RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16sc_C1IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16sc_C3IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_16sc_AC4IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_32sc_C1RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_32sc_C3RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_32sc_AC4RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_32sc_C1IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_32sc_C3IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_32sc_AC4IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMul_32f_C1R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMul_32f_C3R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMul_32f_C4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMul_32f_AC4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMul_32f_C1IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMul_32f_C3IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMul_32f_C4IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMul_32f_AC4IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMul_32fc_C1R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMul_32fc_C3R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMul_32fc_AC4R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMul_32fc_C1IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMul_32fc_C3IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMul_32fc_AC4IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulC_8u_C1RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_8u_C3RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_8u_C4RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_8u_AC4RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_8u_C1IRSfs(Kvr8u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_8u_C3IRSfs(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_8u_C4IRSfs(const Kvr8u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_8u_AC4IRSfs(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16u_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16u_C3RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16u_C4RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16u_AC4RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16u_C1IRSfs(Kvr16u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16u_C3IRSfs(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16u_C4IRSfs(const Kvr16u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16u_AC4IRSfs(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16s_C1RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s value, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16s_C3RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16s_C4RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[4], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16s_AC4RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16s_C1IRSfs(Kvr16s value, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16s_C3IRSfs(const Kvr16s value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16s_C4IRSfs(const Kvr16s value[4], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16s_AC4IRSfs(const Kvr16s value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16sc_C1RSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc value, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16sc_C3RSfs(const Kvr16sc* pSrc, int srcStep, const Kvr16sc value[3], Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16sc_AC4RSfs(const Kvr16sc* pSrc, int srcStep, const Kvr16sc value[3], Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16sc_C1IRSfs(Kvr16sc value, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16sc_C3IRSfs(const Kvr16sc value[3], Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_16sc_AC4IRSfs(const Kvr16sc value[3], Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_32sc_C1RSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc value, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_32sc_C3RSfs(const Kvr32sc* pSrc, int srcStep, const Kvr32sc value[3], Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_32sc_AC4RSfs(const Kvr32sc* pSrc, int srcStep, const Kvr32sc value[3], Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_32sc_C1IRSfs(Kvr32sc value, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_32sc_C3IRSfs(const Kvr32sc value[3], Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_32sc_AC4IRSfs(const Kvr32sc value[3], Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriMulC_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f value, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulC_32f_C3R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulC_32f_C4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[4], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulC_32f_AC4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulC_32f_C1IR(Kvr32f value, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulC_32f_C3IR(const Kvr32f value[3], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulC_32f_C4IR(const Kvr32f value[4], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulC_32f_AC4IR(const Kvr32f value[3], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulC_32fc_C1R(const Kvr32fc* pSrc, int srcStep, Kvr32fc value, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulC_32fc_C3R(const Kvr32fc* pSrc, int srcStep, const Kvr32fc value[3], Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulC_32fc_AC4R(const Kvr32fc* pSrc, int srcStep, const Kvr32fc value[3], Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulC_32fc_C1IR(Kvr32fc value, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulC_32fc_C3IR(const Kvr32fc value[3], Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulC_32fc_AC4IR(const Kvr32fc value[3], Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);

/* MulScale, MulCScale - products of samples as fractions of the type's maximum: t = a * b gives (t + 1 + (t >> 8)) >> 8 for 8u,
 * (t + 1 + (t >> 16)) >> 16 for 16u. The maximum times x is x.
 * Errors, in this order: null pointer -8 (the array of constants counts), step below 1 -14, width or height below 1 -6. */
KvrStatus kvriMulScale_8u_C1R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulScale_8u_C3R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulScale_8u_C4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulScale_8u_AC4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulScale_8u_C1IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulScale_8u_C3IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulScale_8u_C4IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulScale_8u_AC4IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulScale_16u_C1R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulScale_16u_C3R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulScale_16u_C4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulScale_16u_AC4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulScale_16u_C1IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulScale_16u_C3IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulScale_16u_C4IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulScale_16u_AC4IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_8u_C3R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_8u_C4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_8u_AC4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_8u_C1IR(Kvr8u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_8u_C3IR(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_8u_C4IR(const Kvr8u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_8u_AC4IR(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_16u_C3R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_16u_C4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_16u_AC4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_16u_C1IR(Kvr16u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_16u_C3IR(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_16u_C4IR(const Kvr16u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriMulCScale_16u_AC4IR(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Div, DivC - pSrc2 / pSrc1: the first source is the divisor; pSrcDst / pSrc; pSrc / value.
 * Integers: the dividend times 2^-scaleFactor, divided by the divisor in IEEE single precision, then rounded and saturated. A
 * divisor of 0 gives the type's maximum for a positive dividend, its minimum for a negative one and 0 for 0.
 * 32f: IEEE division; by a zero of either sign a non-zero number gives infinity with the sign of the dividend, zero gives
 * the NaN 0x7FBFFFFF.
 * Complex: (a.re + i a.im) * conj(b) / (b.re^2 + b.im^2) in double precision, every operation rounded; 32fc rounded once to
 * single. A divisor with both parts 0 follows the rules above part by part.
 * Any zero divisor among the processed channels gives the warning 6; the whole result is written.
 * Errors, in this order: null pointer -8 (the array of constants counts), width or height below 1 -6, step below 1 -14, DivC:
 * any constant 0 (complex: both parts) -10. */
KvrStatus kvriDiv_8u_C1RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_8u_C3RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_8u_C4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_8u_AC4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_8u_C1IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_8u_C3IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_8u_C4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_8u_AC4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16u_C1RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16u_C3RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16u_C4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16u_AC4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16u_C1IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16u_C3IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16u_C4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16u_AC4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16s_C1RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16s_C3RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16s_C4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16s_AC4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16s_C1IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16s_C3IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16s_C4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16s_AC4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16sc_C1RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16sc_C3RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16sc_AC4RSfs(const Kvr16sc* pSrc1, int src1Step, const Kvr16sc* pSrc2, int src2Step, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16sc_C1IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16sc_C3IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_16sc_AC4IRSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_32sc_C1RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_32sc_C3RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_32sc_AC4RSfs(const Kvr32sc* pSrc1, int src1Step, const Kvr32sc* pSrc2, int src2Step, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_32sc_C1IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_32sc_C3IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_32sc_AC4IRSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDiv_32f_C1R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDiv_32f_C3R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDiv_32f_C4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDiv_32f_AC4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDiv_32f_C1IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDiv_32f_C3IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDiv_32f_C4IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDiv_32f_AC4IR(const Kvr32f* pSrc, int srcStep, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDiv_32fc_C1R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDiv_32fc_C3R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDiv_32fc_AC4R(const Kvr32fc* pSrc1, int src1Step, const Kvr32fc* pSrc2, int src2Step, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDiv_32fc_C1IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDiv_32fc_C3IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDiv_32fc_AC4IR(const Kvr32fc* pSrc, int srcStep, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDivC_8u_C1RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_8u_C3RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_8u_C4RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_8u_AC4RSfs(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_8u_C1IRSfs(Kvr8u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_8u_C3IRSfs(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_8u_C4IRSfs(const Kvr8u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_8u_AC4IRSfs(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16u_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16u_C3RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16u_C4RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16u_AC4RSfs(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16u_C1IRSfs(Kvr16u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16u_C3IRSfs(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16u_C4IRSfs(const Kvr16u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16u_AC4IRSfs(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16s_C1RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s value, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16s_C3RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16s_C4RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[4], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16s_AC4RSfs(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16s_C1IRSfs(Kvr16s value, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16s_C3IRSfs(const Kvr16s value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16s_C4IRSfs(const Kvr16s value[4], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16s_AC4IRSfs(const Kvr16s value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16sc_C1RSfs(const Kvr16sc* pSrc, int srcStep, Kvr16sc value, Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16sc_C3RSfs(const Kvr16sc* pSrc, int srcStep, const Kvr16sc value[3], Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16sc_AC4RSfs(const Kvr16sc* pSrc, int srcStep, const Kvr16sc value[3], Kvr16sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16sc_C1IRSfs(Kvr16sc value, Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16sc_C3IRSfs(const Kvr16sc value[3], Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_16sc_AC4IRSfs(const Kvr16sc value[3], Kvr16sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_32sc_C1RSfs(const Kvr32sc* pSrc, int srcStep, Kvr32sc value, Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_32sc_C3RSfs(const Kvr32sc* pSrc, int srcStep, const Kvr32sc value[3], Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_32sc_AC4RSfs(const Kvr32sc* pSrc, int srcStep, const Kvr32sc value[3], Kvr32sc* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_32sc_C1IRSfs(Kvr32sc value, Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_32sc_C3IRSfs(const Kvr32sc value[3], Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_32sc_AC4IRSfs(const Kvr32sc value[3], Kvr32sc* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriDivC_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f value, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDivC_32f_C3R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDivC_32f_C4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[4], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDivC_32f_AC4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDivC_32f_C1IR(Kvr32f value, Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDivC_32f_C3IR(const Kvr32f value[3], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDivC_32f_C4IR(const Kvr32f value[4], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDivC_32f_AC4IR(const Kvr32f value[3], Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDivC_32fc_C1R(const Kvr32fc* pSrc, int srcStep, Kvr32fc value, Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDivC_32fc_C3R(const Kvr32fc* pSrc, int srcStep, const Kvr32fc value[3], Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDivC_32fc_AC4R(const Kvr32fc* pSrc, int srcStep, const Kvr32fc value[3], Kvr32fc* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriDivC_32fc_C1IR(Kvr32fc value, Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDivC_32fc_C3IR(const Kvr32fc value[3], Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriDivC_32fc_AC4IR(const Kvr32fc value[3], Kvr32fc* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Div_Round - the integer forms of Div with a rounding of the quotient, which is formed to nearest in single precision
 * whatever the mode: 0 toward zero, 1 to nearest and ties to even, 2 to nearest and ties away from zero.
 * Errors as for Div, then a mode other than 0, 1, 2 -213. */
KvrStatus kvriDiv_Round_8u_C1RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_8u_C3RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_8u_C4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_8u_AC4RSfs(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_8u_C1IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_8u_C3IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_8u_C4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_8u_AC4IRSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16u_C1RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16u_C3RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16u_C4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16u_AC4RSfs(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16u_C1IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16u_C3IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16u_C4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16u_AC4IRSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16s_C1RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16s_C3RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16s_C4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16s_AC4RSfs(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr16s* pDst, int dstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16s_C1IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16s_C3IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16s_C4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);
KvrStatus kvriDiv_Round_16s_AC4IRSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, KvrRoundMode rndMode, int scaleFactor);

/* Lookup tables. Level k and the next bound the interval [pLevels[k], pLevels[k + 1]), k = 0 .. nLevels - 2; the samples in it
 * are mapped as pValues tells. Samples below the first level or from the last on stay as they are. Of the multi-channel forms
 * pValues, pLevels and nLevels are arrays with an entry per processed channel. Levels may lie outside the sample type's range
 * and need not rise: an interval that is empty is passed over. Where intervals overlap, of integers the one with the higher
 * index maps a sample (and none, from the last level on), of 32f the one with the lowest.
 *
 * Pixel by pixel, no neighbourhood. IR works in place; AC4 processes three channels and leaves the destination's fourth as it
 * is. Work memory is on the stack: up to 128 KiB per channel of 16-bit samples.
 * Errors, in this order: null pointer -8 (those inside the arrays count), width or height below 1 -6, a step below 1 -14,
 * any nLevels below 2 -106. */

/* LUT - every sample of interval k becomes pValues[k], saturated to the sample type. */
KvrStatus kvriLUT_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_16s_C4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_16u_C4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* pValues, const Kvr32f* pLevels, int nLevels);
KvrStatus kvriLUT_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* pValues, const Kvr32f* pLevels, int nLevels);
KvrStatus kvriLUT_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* const pValues[4], const Kvr32f* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* const pValues[4], const Kvr32f* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);

/* LUT_Linear - straight lines: pValues[k] at pLevels[k], pValues[k + 1] at pLevels[k + 1].
 * Integers: i * slope + offset, cut off toward zero and saturated; slope = (pValues[k + 1] - pValues[k]) / (pLevels[k + 1] -
 * pLevels[k]) and offset = pValues[k] + 0.5 - pLevels[k] * slope in double precision. An interval of a single sample of the
 * type gives it pValues[k].
 * 32f: pValues[k] + (x - pLevels[k]) * slope, every operation in single precision. */
KvrStatus kvriLUT_Linear_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Linear_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Linear_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Linear_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Linear_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Linear_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Linear_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Linear_16s_C4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Linear_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Linear_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Linear_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Linear_16u_C4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Linear_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* pValues, const Kvr32f* pLevels, int nLevels);
KvrStatus kvriLUT_Linear_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* pValues, const Kvr32f* pLevels, int nLevels);
KvrStatus kvriLUT_Linear_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* const pValues[4], const Kvr32f* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Linear_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* const pValues[4], const Kvr32f* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Linear_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Linear_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);

/* LUT_Cubic - in interval k the polynomial through the points (level, value) k - 1 to k + 2, in the first and last intervals
 * the first and last four; of three or two levels the polynomial of second or first degree through all of them. Where two
 * of its points share a level, interval k is a straight line. Coefficients by Cramer's rule, evaluated in double precision;
 * integers are rounded to the nearest, halves up, and saturated. */
KvrStatus kvriLUT_Cubic_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Cubic_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Cubic_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Cubic_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Cubic_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Cubic_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Cubic_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Cubic_16s_C4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Cubic_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Cubic_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* pValues, const Kvr32s* pLevels, int nLevels);
KvrStatus kvriLUT_Cubic_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Cubic_16u_C4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[4], const Kvr32s* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Cubic_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32s* const pValues[3], const Kvr32s* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* pValues, const Kvr32f* pLevels, int nLevels);
KvrStatus kvriLUT_Cubic_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* pValues, const Kvr32f* pLevels, int nLevels);
KvrStatus kvriLUT_Cubic_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* const pValues[4], const Kvr32f* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Cubic_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* const pValues[4], const Kvr32f* const pLevels[4], const int nLevels[4]);
KvrStatus kvriLUT_Cubic_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);
KvrStatus kvriLUT_Cubic_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f* const pValues[3], const Kvr32f* const pLevels[3], const int nLevels[3]);

/* LUTPalette, LUTPaletteSwap - dst = pTable[src & (2^nBitSize - 1)]; a table has 2^nBitSize entries of the destination's type, 24u
 * entries three bytes. Of the multi-channel forms pTable is an array with a table per processed channel. AC4 leaves the
 * destination's fourth channel as it is; C3A0C4 makes four channels of three, the fourth 0; Swap puts channel c at 2 - c.
 *
 * Pixel by pixel, no neighbourhood. Errors, in this order: null pointer -8 (those inside the array count), width or height
 * below 1 -6, nBitSize outside 1 .. 8 (8u sources) or 1 .. 16 (16u) -11, a step below the ROI's width in pixels -14. */
KvrStatus kvriLUTPalette_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pTable, int nBitSize);
KvrStatus kvriLUTPalette_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* const pTable[3], int nBitSize);
KvrStatus kvriLUTPalette_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* const pTable[4], int nBitSize);
KvrStatus kvriLUTPalette_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* const pTable[3], int nBitSize);
KvrStatus kvriLUTPalette_8u_C3A0C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* const pTable[3], int nBitSize);
KvrStatus kvriLUTPaletteSwap_8u_C3A0C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* const pTable[3], int nBitSize);
KvrStatus kvriLUTPalette_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u* pTable, int nBitSize);
KvrStatus kvriLUTPalette_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u* const pTable[3], int nBitSize);
KvrStatus kvriLUTPalette_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u* const pTable[4], int nBitSize);
KvrStatus kvriLUTPalette_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u* const pTable[3], int nBitSize);
KvrStatus kvriLUTPalette_16u_C3A0C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u* const pTable[3], int nBitSize);
KvrStatus kvriLUTPaletteSwap_16u_C3A0C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u* const pTable[3], int nBitSize);
KvrStatus kvriLUTPalette_8u24u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pTable, int nBitSize);
KvrStatus kvriLUTPalette_8u32u_C1R(const Kvr8u* pSrc, int srcStep, Kvr32u* pDst, int dstStep, KvriSize roiSize, const Kvr32u* pTable, int nBitSize);
KvrStatus kvriLUTPalette_16u8u_C1R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pTable, int nBitSize);
KvrStatus kvriLUTPalette_16u24u_C1R(const Kvr16u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u* pTable, int nBitSize);
KvrStatus kvriLUTPalette_16u32u_C1R(const Kvr16u* pSrc, int srcStep, Kvr32u* pDst, int dstStep, KvriSize roiSize, const Kvr32u* pTable, int nBitSize);

/* ThresholdAdaptiveBox, ThresholdAdaptiveGauss - dst = valGT where src > mean - delta, else valLE; the mean is that of the square
 * of maskSize pixels around the pixel (side m, odd), or the mean under the weights of a Gaussian.
 * Box: exactly src * m^2 > sum - delta * m^2 in double precision. Gauss: the weights of both axes are exp(-(i - m / 2)^2 / (2
 * sigma^2)), i = 0 .. m - 1, divided by their sum; sigma <= 0 stands for 0.3 * ((m - 1) * 0.5 - 1) + 0.8. Of a mask of side 1 the
 * pixel itself is the mean. A delta above 255 gives valGT everywhere, one of at most -255 valLE.
 *
 * Neighbours outside the ROI: the low four bits of borderType are kvrBorderConst (borderValue), kvrBorderRepl or
 * kvrBorderInMem; the flags kvrBorderInMemTop ... Right name sides whose m / 2 rows or columns are read from memory under the
 * other two as well. Beyond a corner each axis follows its own side; the constant wins where either axis is under it.
 * IR works in place. pBuffer (and pSpec, which Init fills) are the caller's, of the bytes that GetBufferSize tells for the
 * same sizes, at any address; one pSpec serves any number of calls at a time.
 *
 * Errors, in this order. Apply: null pointer -8 (pSpec and pBuffer count), width or height below 1 -6, a mask that is not
 * square or of a side that is not odd and positive -33, another border rule -225; Gauss then: pSpec not of Init -17. Steps are
 * not checked. GetBufferSize, Init: -8, -6, -33 alike, then a dataType other than kvrDataType8u -12, numChannels other than 1 -53;
 * GetBufferSize then: sizes of 2^31 bytes and more -232. */
typedef struct KvriThresholdAdaptiveSpec KvriThresholdAdaptiveSpec;
KvrStatus kvriThresholdAdaptiveBoxGetBufferSize(KvriSize roiSize, KvriSize maskSize, KvrDataType dataType, int numChannels, int* pBufferSize);
KvrStatus kvriThresholdAdaptiveBox_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvriSize maskSize, Kvr32f delta, Kvr8u valGT, Kvr8u valLE, KvriBorderType borderType, Kvr8u borderValue, Kvr8u* pBuffer);
KvrStatus kvriThresholdAdaptiveBox_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriSize maskSize, Kvr32f delta, Kvr8u valGT, Kvr8u valLE, KvriBorderType borderType, Kvr8u borderValue, Kvr8u* pBuffer);
KvrStatus kvriThresholdAdaptiveGaussGetBufferSize(KvriSize roiSize, KvriSize maskSize, KvrDataType dataType, int numChannels, int* pSpecSize, int* pBufferSize);
KvrStatus kvriThresholdAdaptiveGaussInit(KvriSize roiSize, KvriSize maskSize, KvrDataType dataType, int numChannels, Kvr32f sigma, KvriThresholdAdaptiveSpec* pSpec);
KvrStatus kvriThresholdAdaptiveGauss_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvriSize maskSize, Kvr32f delta, Kvr8u valGT, Kvr8u valLE, KvriBorderType borderType, Kvr8u borderValue, const KvriThresholdAdaptiveSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriThresholdAdaptiveGauss_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, KvriSize maskSize, Kvr32f delta, Kvr8u valGT, Kvr8u valLE, KvriBorderType borderType, Kvr8u borderValue, const KvriThresholdAdaptiveSpec* pSpec, Kvr8u* pBuffer);
/* Functions of one operand, sample by sample. IR works in place; AC4 leaves the destination's fourth channel as it is. Functions of
 * integers take a scale factor: the exact real result r is replaced by r * 2^-scaleFactor, rounded to the nearest integer, ties
 * to even (Ln: half up), and saturated to the sample type. Every scale factor of the int range is accepted. The caller's
 * floating-point control changes no result of Ln, Exp and the integer functions.
 * Errors, in this order: null pointer -8, width or height below 1 -6, a step below 1 -14. */

/* Abs - the magnitude; -32768 gives 32767. 32f: the sign bit is cleared, also of a NaN. */
KvrStatus kvriAbs_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAbs_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAbs_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAbs_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAbs_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAbs_16s_C4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAbs_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAbs_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAbs_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAbs_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAbs_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAbs_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAbs_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAbs_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAbs_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAbs_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Sqr - the square. 32f in single precision. */
KvrStatus kvriSqr_8u_C1RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_8u_C1IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_8u_C3RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_8u_C3IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_8u_C4RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_8u_C4IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_8u_AC4RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_8u_AC4IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16u_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16u_C1IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16u_C3RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16u_C3IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16u_C4RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16u_C4IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16u_AC4RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16u_AC4IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16s_C1RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16s_C1IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16s_C3RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16s_C3IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16s_C4RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16s_C4IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16s_AC4RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_16s_AC4IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqr_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSqr_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSqr_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSqr_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSqr_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSqr_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSqr_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSqr_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Sqrt - the square root. A negative 16s sample gives 0, a negative 32f sample a NaN. 32f is correctly rounded. */
KvrStatus kvriSqrt_8u_C1RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_8u_C1IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_8u_C3RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_8u_C3IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_8u_AC4RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_8u_AC4IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16u_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16u_C1IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16u_C3RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16u_C3IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16u_AC4RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16u_AC4IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16s_C1RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16s_C1IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16s_C3RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16s_C3IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16s_AC4RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_16s_AC4IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriSqrt_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSqrt_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSqrt_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSqrt_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSqrt_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriSqrt_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriSqrt_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Ln - the natural logarithm. A sample of 0 gives 0; where there is one, the status is the warning 7 after the whole ROI has
 * been written. A negative 16s sample gives 0, a negative 32f sample a NaN. Integers: r * 2^-scaleFactor + 0.5, truncated.
 * 32f: at most one unit in the last place from the correctly rounded value. */
KvrStatus kvriLn_8u_C1RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_8u_C1IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_8u_C3RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_8u_C3IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_16u_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_16u_C1IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_16u_C3RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_16u_C3IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_16s_C1RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_16s_C1IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_16s_C3RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_16s_C3IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriLn_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLn_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLn_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLn_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Exp - the exponential function. 32f: at most one unit in the last place from the correctly rounded value. */
KvrStatus kvriExp_8u_C1RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_8u_C1IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_8u_C3RSfs(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_8u_C3IRSfs(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_16u_C1RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_16u_C1IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_16u_C3RSfs(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_16u_C3IRSfs(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_16s_C1RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_16s_C1IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_16s_C3RSfs(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_16s_C3IRSfs(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, int scaleFactor);
KvrStatus kvriExp_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriExp_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriExp_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriExp_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize);
/* And, Or, Xor, AndC, OrC, XorC - bit by bit: pSrc1 op pSrc2; pSrc op pSrcDst in place; pSrc op value.
 * Pixel by pixel, no neighbourhood. IR works in place. AC4 processes three channels and leaves the destination's fourth as
 * it is. Constants: C1 the value itself, C3 and AC4 an array of three, C4 of four.
 * Errors, in this order: null pointer -8 (the array of constants counts), step below 1 -14, width or height below 1 -6. */
KvrStatus kvriAnd_8u_C1R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_8u_C3R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_8u_C4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_8u_AC4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_8u_C1IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_8u_C3IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_8u_C4IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_8u_AC4IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_16u_C1R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_16u_C3R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_16u_C4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_16u_AC4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_16u_C1IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_16u_C3IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_16u_C4IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_16u_AC4IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_32s_C1R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_32s_C3R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_32s_C4R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_32s_AC4R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAnd_32s_C1IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_32s_C3IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_32s_C4IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAnd_32s_AC4IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_8u_C3R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_8u_C4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_8u_AC4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_8u_C1IR(Kvr8u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_8u_C3IR(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_8u_C4IR(const Kvr8u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_8u_AC4IR(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_16u_C3R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_16u_C4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_16u_AC4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_16u_C1IR(Kvr16u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_16u_C3IR(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_16u_C4IR(const Kvr16u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_16u_AC4IR(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_32s_C1R(const Kvr32s* pSrc, int srcStep, Kvr32s value, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_32s_C3R(const Kvr32s* pSrc, int srcStep, const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_32s_C4R(const Kvr32s* pSrc, int srcStep, const Kvr32s value[4], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_32s_AC4R(const Kvr32s* pSrc, int srcStep, const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriAndC_32s_C1IR(Kvr32s value, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_32s_C3IR(const Kvr32s value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_32s_C4IR(const Kvr32s value[4], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriAndC_32s_AC4IR(const Kvr32s value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_8u_C1R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_8u_C3R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_8u_C4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_8u_AC4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_8u_C1IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_8u_C3IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_8u_C4IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_8u_AC4IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_16u_C1R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_16u_C3R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_16u_C4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_16u_AC4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_16u_C1IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_16u_C3IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_16u_C4IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_16u_AC4IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_32s_C1R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_32s_C3R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_32s_C4R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_32s_AC4R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOr_32s_C1IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_32s_C3IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_32s_C4IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOr_32s_AC4IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_8u_C3R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_8u_C4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_8u_AC4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_8u_C1IR(Kvr8u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_8u_C3IR(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_8u_C4IR(const Kvr8u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_8u_AC4IR(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_16u_C3R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_16u_C4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_16u_AC4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_16u_C1IR(Kvr16u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_16u_C3IR(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_16u_C4IR(const Kvr16u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_16u_AC4IR(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_32s_C1R(const Kvr32s* pSrc, int srcStep, Kvr32s value, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_32s_C3R(const Kvr32s* pSrc, int srcStep, const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_32s_C4R(const Kvr32s* pSrc, int srcStep, const Kvr32s value[4], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_32s_AC4R(const Kvr32s* pSrc, int srcStep, const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriOrC_32s_C1IR(Kvr32s value, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_32s_C3IR(const Kvr32s value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_32s_C4IR(const Kvr32s value[4], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriOrC_32s_AC4IR(const Kvr32s value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_8u_C1R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_8u_C3R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_8u_C4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_8u_AC4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_8u_C1IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_8u_C3IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_8u_C4IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_8u_AC4IR(const Kvr8u* pSrc, int srcStep, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_16u_C1R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_16u_C3R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_16u_C4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_16u_AC4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_16u_C1IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_16u_C3IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_16u_C4IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_16u_AC4IR(const Kvr16u* pSrc, int srcStep, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_32s_C1R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_32s_C3R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_32s_C4R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_32s_AC4R(const Kvr32s* pSrc1, int src1Step, const Kvr32s* pSrc2, int src2Step, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXor_32s_C1IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_32s_C3IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_32s_C4IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXor_32s_AC4IR(const Kvr32s* pSrc, int srcStep, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_8u_C3R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_8u_C4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_8u_AC4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_8u_C1IR(Kvr8u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_8u_C3IR(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_8u_C4IR(const Kvr8u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_8u_AC4IR(const Kvr8u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u value, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_16u_C3R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_16u_C4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_16u_AC4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_16u_C1IR(Kvr16u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_16u_C3IR(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_16u_C4IR(const Kvr16u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_16u_AC4IR(const Kvr16u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_32s_C1R(const Kvr32s* pSrc, int srcStep, Kvr32s value, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_32s_C3R(const Kvr32s* pSrc, int srcStep, const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_32s_C4R(const Kvr32s* pSrc, int srcStep, const Kvr32s value[4], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_32s_AC4R(const Kvr32s* pSrc, int srcStep, const Kvr32s value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriXorC_32s_C1IR(Kvr32s value, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_32s_C3IR(const Kvr32s value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_32s_C4IR(const Kvr32s value[4], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriXorC_32s_AC4IR(const Kvr32s value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Not - every bit inverted. Layouts and errors as for And. */
KvrStatus kvriNot_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriNot_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriNot_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriNot_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriNot_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriNot_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriNot_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriNot_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);

/* LShiftC, RShiftC - every sample shifted by a number of bits, for several channels by one number each; bits that leave the
 * sample are lost. To the right, signed samples are shifted arithmetically: the sign fills what becomes free. Every 32-bit
 * count is accepted: one of the sample's width or more leaves 0, or the sign (0 or -1) of a signed sample shifted right.
 * Layouts, constants and errors as for And. */
KvrStatus kvriLShiftC_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr32u value, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_8u_C3R(const Kvr8u* pSrc, int srcStep, const Kvr32u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_8u_C4R(const Kvr8u* pSrc, int srcStep, const Kvr32u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_8u_AC4R(const Kvr8u* pSrc, int srcStep, const Kvr32u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_8u_C1IR(Kvr32u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_8u_C3IR(const Kvr32u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_8u_C4IR(const Kvr32u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_8u_AC4IR(const Kvr32u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr32u value, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_16u_C3R(const Kvr16u* pSrc, int srcStep, const Kvr32u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_16u_C4R(const Kvr16u* pSrc, int srcStep, const Kvr32u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_16u_AC4R(const Kvr16u* pSrc, int srcStep, const Kvr32u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_16u_C1IR(Kvr32u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_16u_C3IR(const Kvr32u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_16u_C4IR(const Kvr32u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_16u_AC4IR(const Kvr32u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_32s_C1R(const Kvr32s* pSrc, int srcStep, Kvr32u value, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_32s_C3R(const Kvr32s* pSrc, int srcStep, const Kvr32u value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_32s_C4R(const Kvr32s* pSrc, int srcStep, const Kvr32u value[4], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_32s_AC4R(const Kvr32s* pSrc, int srcStep, const Kvr32u value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_32s_C1IR(Kvr32u value, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_32s_C3IR(const Kvr32u value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_32s_C4IR(const Kvr32u value[4], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriLShiftC_32s_AC4IR(const Kvr32u value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr32u value, Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8u_C3R(const Kvr8u* pSrc, int srcStep, const Kvr32u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8u_C4R(const Kvr8u* pSrc, int srcStep, const Kvr32u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8u_AC4R(const Kvr8u* pSrc, int srcStep, const Kvr32u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8u_C1IR(Kvr32u value, Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8u_C3IR(const Kvr32u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8u_C4IR(const Kvr32u value[4], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8u_AC4IR(const Kvr32u value[3], Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8s_C1R(const Kvr8s* pSrc, int srcStep, Kvr32u value, Kvr8s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8s_C3R(const Kvr8s* pSrc, int srcStep, const Kvr32u value[3], Kvr8s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8s_C4R(const Kvr8s* pSrc, int srcStep, const Kvr32u value[4], Kvr8s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8s_AC4R(const Kvr8s* pSrc, int srcStep, const Kvr32u value[3], Kvr8s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8s_C1IR(Kvr32u value, Kvr8s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8s_C3IR(const Kvr32u value[3], Kvr8s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8s_C4IR(const Kvr32u value[4], Kvr8s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_8s_AC4IR(const Kvr32u value[3], Kvr8s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr32u value, Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16u_C3R(const Kvr16u* pSrc, int srcStep, const Kvr32u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16u_C4R(const Kvr16u* pSrc, int srcStep, const Kvr32u value[4], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16u_AC4R(const Kvr16u* pSrc, int srcStep, const Kvr32u value[3], Kvr16u* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16u_C1IR(Kvr32u value, Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16u_C3IR(const Kvr32u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16u_C4IR(const Kvr32u value[4], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16u_AC4IR(const Kvr32u value[3], Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr32u value, Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16s_C3R(const Kvr16s* pSrc, int srcStep, const Kvr32u value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16s_C4R(const Kvr16s* pSrc, int srcStep, const Kvr32u value[4], Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16s_AC4R(const Kvr16s* pSrc, int srcStep, const Kvr32u value[3], Kvr16s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16s_C1IR(Kvr32u value, Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16s_C3IR(const Kvr32u value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16s_C4IR(const Kvr32u value[4], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_16s_AC4IR(const Kvr32u value[3], Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_32s_C1R(const Kvr32s* pSrc, int srcStep, Kvr32u value, Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_32s_C3R(const Kvr32s* pSrc, int srcStep, const Kvr32u value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_32s_C4R(const Kvr32s* pSrc, int srcStep, const Kvr32u value[4], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_32s_AC4R(const Kvr32s* pSrc, int srcStep, const Kvr32u value[3], Kvr32s* pDst, int dstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_32s_C1IR(Kvr32u value, Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_32s_C3IR(const Kvr32u value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_32s_C4IR(const Kvr32u value[4], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);
KvrStatus kvriRShiftC_32s_AC4IR(const Kvr32u value[3], Kvr32s* pSrcDst, int srcDstStep, KvriSize roiSize);

/* Compare, CompareC - masks: one 8u per pixel, 255 where pSrc1 cmpOp pSrc2 (pSrc cmpOp value) holds in every compared
 * channel (three of C3 and AC4, four of C4), 0 elsewhere. 32f by IEEE comparison: -0 equals 0, a NaN compares false with
 * everything.
 * Any cmpOp other than the five of KvrCmpOp is accepted and does nothing: 0 is returned and nothing is written.
 * Errors, in this order: null pointer -8 (the array of constants counts), step below 1 -14, width or height below 1 -6. */
KvrStatus kvriCompare_8u_C1R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_8u_C3R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_8u_C4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_8u_AC4R(const Kvr8u* pSrc1, int src1Step, const Kvr8u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_16u_C1R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_16u_C3R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_16u_C4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_16u_AC4R(const Kvr16u* pSrc1, int src1Step, const Kvr16u* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_16s_C1R(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_16s_C3R(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_16s_C4R(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_16s_AC4R(const Kvr16s* pSrc1, int src1Step, const Kvr16s* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_32f_C1R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_32f_C3R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_32f_C4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompare_32f_AC4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u value, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_8u_C3R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_8u_C4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_8u_AC4R(const Kvr8u* pSrc, int srcStep, const Kvr8u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u value, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_16u_C3R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_16u_C4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_16u_AC4R(const Kvr16u* pSrc, int srcStep, const Kvr16u value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s value, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_16s_C3R(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_16s_C4R(const Kvr16s* pSrc, int srcStep, const Kvr16s value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_16s_AC4R(const Kvr16s* pSrc, int srcStep, const Kvr16s value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f value, Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_32f_C3R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_32f_C4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);
KvrStatus kvriCompareC_32f_AC4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, KvrCmpOp cmpOp);

/* CompareEqualEps, CompareEqualEpsC - masks as of Compare of the pixels in whose compared channels |pSrc1 - pSrc2| <= eps
 * (|pSrc - value| <= eps), the difference in single precision. Where it is a NaN, so also for equal infinities, 0.
 * Errors as for Compare, then eps below 0 -36. */
KvrStatus kvriCompareEqualEps_32f_C1R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f eps);
KvrStatus kvriCompareEqualEps_32f_C3R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f eps);
KvrStatus kvriCompareEqualEps_32f_C4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f eps);
KvrStatus kvriCompareEqualEps_32f_AC4R(const Kvr32f* pSrc1, int src1Step, const Kvr32f* pSrc2, int src2Step, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f eps);
KvrStatus kvriCompareEqualEpsC_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f value, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f eps);
KvrStatus kvriCompareEqualEpsC_32f_C3R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f eps);
KvrStatus kvriCompareEqualEpsC_32f_C4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[4], Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f eps);
KvrStatus kvriCompareEqualEpsC_32f_AC4R(const Kvr32f* pSrc, int srcStep, const Kvr32f value[3], Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr32f eps);

/* Threshold - samples limited to one side of a threshold: with kvrCmpLess a sample below it becomes the threshold, with
 * kvrCmpGreater one above it. Threshold_LT, Threshold_GT are Threshold with one of these codes. 32f: a NaN, as sample or as
 * threshold, leaves the sample unchanged; so does -0 against 0.
 * Pixel by pixel, no neighbourhood. IR works in place. AC4 processes three channels and leaves the destination's fourth as
 * it is. Thresholds (and values, below): C1 the number itself, C3 and AC4 an array of three, C4 of four.
 * Errors, in this order: null pointer -8 (the array of thresholds counts), width or height below 1 -6, step below 1 -14,
 * another code -9999. */
KvrStatus kvriThreshold_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr8u threshold, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr8u threshold, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, Kvr16u threshold, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16u threshold, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, Kvr16s threshold, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16s threshold, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f threshold, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr32f threshold, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_GT_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr8u threshold);
KvrStatus kvriThreshold_GT_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3]);
KvrStatus kvriThreshold_GT_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3]);
KvrStatus kvriThreshold_GT_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr8u threshold);
KvrStatus kvriThreshold_GT_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3]);
KvrStatus kvriThreshold_GT_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3]);
KvrStatus kvriThreshold_GT_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, Kvr16u threshold);
KvrStatus kvriThreshold_GT_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3]);
KvrStatus kvriThreshold_GT_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3]);
KvrStatus kvriThreshold_GT_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16u threshold);
KvrStatus kvriThreshold_GT_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3]);
KvrStatus kvriThreshold_GT_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3]);
KvrStatus kvriThreshold_GT_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, Kvr16s threshold);
KvrStatus kvriThreshold_GT_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3]);
KvrStatus kvriThreshold_GT_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3]);
KvrStatus kvriThreshold_GT_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16s threshold);
KvrStatus kvriThreshold_GT_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3]);
KvrStatus kvriThreshold_GT_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3]);
KvrStatus kvriThreshold_GT_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f threshold);
KvrStatus kvriThreshold_GT_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3]);
KvrStatus kvriThreshold_GT_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3]);
KvrStatus kvriThreshold_GT_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr32f threshold);
KvrStatus kvriThreshold_GT_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3]);
KvrStatus kvriThreshold_GT_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3]);
KvrStatus kvriThreshold_LT_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr8u threshold);
KvrStatus kvriThreshold_LT_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3]);
KvrStatus kvriThreshold_LT_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3]);
KvrStatus kvriThreshold_LT_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr8u threshold);
KvrStatus kvriThreshold_LT_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3]);
KvrStatus kvriThreshold_LT_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3]);
KvrStatus kvriThreshold_LT_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, Kvr16u threshold);
KvrStatus kvriThreshold_LT_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3]);
KvrStatus kvriThreshold_LT_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3]);
KvrStatus kvriThreshold_LT_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16u threshold);
KvrStatus kvriThreshold_LT_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3]);
KvrStatus kvriThreshold_LT_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3]);
KvrStatus kvriThreshold_LT_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, Kvr16s threshold);
KvrStatus kvriThreshold_LT_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3]);
KvrStatus kvriThreshold_LT_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3]);
KvrStatus kvriThreshold_LT_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16s threshold);
KvrStatus kvriThreshold_LT_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3]);
KvrStatus kvriThreshold_LT_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3]);
KvrStatus kvriThreshold_LT_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f threshold);
KvrStatus kvriThreshold_LT_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3]);
KvrStatus kvriThreshold_LT_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3]);
KvrStatus kvriThreshold_LT_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr32f threshold);
KvrStatus kvriThreshold_LT_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3]);
KvrStatus kvriThreshold_LT_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3]);

/* Threshold_Val - samples beyond a threshold replaced: with kvrCmpLess a sample below it becomes the value, with
 * kvrCmpGreater one above it. Threshold_LTVal, Threshold_GTVal are Threshold_Val with one of these codes. 32f: a NaN sample
 * is kept.
 * Errors, in this order: another code -9999, null pointer -8 (the arrays count), width or height below 1 -6, step below 1
 * -14. */
KvrStatus kvriThreshold_Val_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr8u threshold, Kvr8u value, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr8u threshold, Kvr8u value, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, Kvr16u threshold, Kvr16u value, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16u threshold, Kvr16u value, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, Kvr16s threshold, Kvr16s value, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16s threshold, Kvr16s value, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f threshold, Kvr32f value, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr32f threshold, Kvr32f value, KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_Val_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3], KvrCmpOp cmpOp);
KvrStatus kvriThreshold_GTVal_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr8u threshold, Kvr8u value);
KvrStatus kvriThreshold_GTVal_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3]);
KvrStatus kvriThreshold_GTVal_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[4], const Kvr8u value[4]);
KvrStatus kvriThreshold_GTVal_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3]);
KvrStatus kvriThreshold_GTVal_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr8u threshold, Kvr8u value);
KvrStatus kvriThreshold_GTVal_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3]);
KvrStatus kvriThreshold_GTVal_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[4], const Kvr8u value[4]);
KvrStatus kvriThreshold_GTVal_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3]);
KvrStatus kvriThreshold_GTVal_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, Kvr16u threshold, Kvr16u value);
KvrStatus kvriThreshold_GTVal_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3]);
KvrStatus kvriThreshold_GTVal_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[4], const Kvr16u value[4]);
KvrStatus kvriThreshold_GTVal_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3]);
KvrStatus kvriThreshold_GTVal_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16u threshold, Kvr16u value);
KvrStatus kvriThreshold_GTVal_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3]);
KvrStatus kvriThreshold_GTVal_16u_C4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[4], const Kvr16u value[4]);
KvrStatus kvriThreshold_GTVal_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3]);
KvrStatus kvriThreshold_GTVal_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, Kvr16s threshold, Kvr16s value);
KvrStatus kvriThreshold_GTVal_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3]);
KvrStatus kvriThreshold_GTVal_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[4], const Kvr16s value[4]);
KvrStatus kvriThreshold_GTVal_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3]);
KvrStatus kvriThreshold_GTVal_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16s threshold, Kvr16s value);
KvrStatus kvriThreshold_GTVal_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3]);
KvrStatus kvriThreshold_GTVal_16s_C4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[4], const Kvr16s value[4]);
KvrStatus kvriThreshold_GTVal_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3]);
KvrStatus kvriThreshold_GTVal_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f threshold, Kvr32f value);
KvrStatus kvriThreshold_GTVal_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3]);
KvrStatus kvriThreshold_GTVal_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[4], const Kvr32f value[4]);
KvrStatus kvriThreshold_GTVal_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3]);
KvrStatus kvriThreshold_GTVal_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr32f threshold, Kvr32f value);
KvrStatus kvriThreshold_GTVal_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3]);
KvrStatus kvriThreshold_GTVal_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[4], const Kvr32f value[4]);
KvrStatus kvriThreshold_GTVal_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3]);
KvrStatus kvriThreshold_LTVal_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr8u threshold, Kvr8u value);
KvrStatus kvriThreshold_LTVal_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3]);
KvrStatus kvriThreshold_LTVal_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[4], const Kvr8u value[4]);
KvrStatus kvriThreshold_LTVal_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3]);
KvrStatus kvriThreshold_LTVal_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr8u threshold, Kvr8u value);
KvrStatus kvriThreshold_LTVal_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3]);
KvrStatus kvriThreshold_LTVal_8u_C4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[4], const Kvr8u value[4]);
KvrStatus kvriThreshold_LTVal_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u threshold[3], const Kvr8u value[3]);
KvrStatus kvriThreshold_LTVal_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, Kvr16u threshold, Kvr16u value);
KvrStatus kvriThreshold_LTVal_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3]);
KvrStatus kvriThreshold_LTVal_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[4], const Kvr16u value[4]);
KvrStatus kvriThreshold_LTVal_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3]);
KvrStatus kvriThreshold_LTVal_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16u threshold, Kvr16u value);
KvrStatus kvriThreshold_LTVal_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3]);
KvrStatus kvriThreshold_LTVal_16u_C4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[4], const Kvr16u value[4]);
KvrStatus kvriThreshold_LTVal_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u threshold[3], const Kvr16u value[3]);
KvrStatus kvriThreshold_LTVal_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, Kvr16s threshold, Kvr16s value);
KvrStatus kvriThreshold_LTVal_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3]);
KvrStatus kvriThreshold_LTVal_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[4], const Kvr16s value[4]);
KvrStatus kvriThreshold_LTVal_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3]);
KvrStatus kvriThreshold_LTVal_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16s threshold, Kvr16s value);
KvrStatus kvriThreshold_LTVal_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3]);
KvrStatus kvriThreshold_LTVal_16s_C4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[4], const Kvr16s value[4]);
KvrStatus kvriThreshold_LTVal_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s threshold[3], const Kvr16s value[3]);
KvrStatus kvriThreshold_LTVal_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f threshold, Kvr32f value);
KvrStatus kvriThreshold_LTVal_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3]);
KvrStatus kvriThreshold_LTVal_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[4], const Kvr32f value[4]);
KvrStatus kvriThreshold_LTVal_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3]);
KvrStatus kvriThreshold_LTVal_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr32f threshold, Kvr32f value);
KvrStatus kvriThreshold_LTVal_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3]);
KvrStatus kvriThreshold_LTVal_32f_C4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[4], const Kvr32f value[4]);
KvrStatus kvriThreshold_LTVal_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f threshold[3], const Kvr32f value[3]);

/* Threshold_LTValGTVal - samples below thresholdLT become valueLT, samples above thresholdGT become valueGT; what has become
 * valueLT is not compared again. 32f: a NaN sample is kept.
 * Errors, in this order: null pointer -8 (the arrays count), width or height below 1 -6, step below 1 -14, a thresholdGT below
 * its thresholdLT -18. */
KvrStatus kvriThreshold_LTValGTVal_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, Kvr8u thresholdLT, Kvr8u valueLT, Kvr8u thresholdGT, Kvr8u valueGT);
KvrStatus kvriThreshold_LTValGTVal_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u thresholdLT[3], const Kvr8u valueLT[3], const Kvr8u thresholdGT[3], const Kvr8u valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_8u_AC4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roiSize, const Kvr8u thresholdLT[3], const Kvr8u valueLT[3], const Kvr8u thresholdGT[3], const Kvr8u valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_8u_C1IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr8u thresholdLT, Kvr8u valueLT, Kvr8u thresholdGT, Kvr8u valueGT);
KvrStatus kvriThreshold_LTValGTVal_8u_C3IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u thresholdLT[3], const Kvr8u valueLT[3], const Kvr8u thresholdGT[3], const Kvr8u valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_8u_AC4IR(Kvr8u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr8u thresholdLT[3], const Kvr8u valueLT[3], const Kvr8u thresholdGT[3], const Kvr8u valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, Kvr16u thresholdLT, Kvr16u valueLT, Kvr16u thresholdGT, Kvr16u valueGT);
KvrStatus kvriThreshold_LTValGTVal_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u thresholdLT[3], const Kvr16u valueLT[3], const Kvr16u thresholdGT[3], const Kvr16u valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_16u_AC4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriSize roiSize, const Kvr16u thresholdLT[3], const Kvr16u valueLT[3], const Kvr16u thresholdGT[3], const Kvr16u valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_16u_C1IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16u thresholdLT, Kvr16u valueLT, Kvr16u thresholdGT, Kvr16u valueGT);
KvrStatus kvriThreshold_LTValGTVal_16u_C3IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u thresholdLT[3], const Kvr16u valueLT[3], const Kvr16u thresholdGT[3], const Kvr16u valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_16u_AC4IR(Kvr16u* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16u thresholdLT[3], const Kvr16u valueLT[3], const Kvr16u thresholdGT[3], const Kvr16u valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, Kvr16s thresholdLT, Kvr16s valueLT, Kvr16s thresholdGT, Kvr16s valueGT);
KvrStatus kvriThreshold_LTValGTVal_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s thresholdLT[3], const Kvr16s valueLT[3], const Kvr16s thresholdGT[3], const Kvr16s valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_16s_AC4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriSize roiSize, const Kvr16s thresholdLT[3], const Kvr16s valueLT[3], const Kvr16s thresholdGT[3], const Kvr16s valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_16s_C1IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr16s thresholdLT, Kvr16s valueLT, Kvr16s thresholdGT, Kvr16s valueGT);
KvrStatus kvriThreshold_LTValGTVal_16s_C3IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s thresholdLT[3], const Kvr16s valueLT[3], const Kvr16s thresholdGT[3], const Kvr16s valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_16s_AC4IR(Kvr16s* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr16s thresholdLT[3], const Kvr16s valueLT[3], const Kvr16s thresholdGT[3], const Kvr16s valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, Kvr32f thresholdLT, Kvr32f valueLT, Kvr32f thresholdGT, Kvr32f valueGT);
KvrStatus kvriThreshold_LTValGTVal_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f thresholdLT[3], const Kvr32f valueLT[3], const Kvr32f thresholdGT[3], const Kvr32f valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_32f_AC4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriSize roiSize, const Kvr32f thresholdLT[3], const Kvr32f valueLT[3], const Kvr32f thresholdGT[3], const Kvr32f valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_32f_C1IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, Kvr32f thresholdLT, Kvr32f valueLT, Kvr32f thresholdGT, Kvr32f valueGT);
KvrStatus kvriThreshold_LTValGTVal_32f_C3IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f thresholdLT[3], const Kvr32f valueLT[3], const Kvr32f thresholdGT[3], const Kvr32f valueGT[3]);
KvrStatus kvriThreshold_LTValGTVal_32f_AC4IR(Kvr32f* pSrcDst, int srcDstStep, KvriSize roiSize, const Kvr32f thresholdLT[3], const Kvr32f valueLT[3], const Kvr32f thresholdGT[3], const Kvr32f valueGT[3]);

/* ComputeThreshold_Otsu - the threshold t that separates the samples up to t from those above it best: with the largest
 * variance between the two classes, the smallest such t; 0 for an image of one level.
 * (N. Otsu, A threshold selection method from gray-level histograms, IEEE Trans. SMC 9, 1979.)
 * Errors, in this order: null pointer -8, width or height below 1 -6, a step below the width -14. */
KvrStatus kvriComputeThreshold_Otsu_8u_C1R(const Kvr8u* pSrc, int srcStep, KvriSize roiSize, Kvr8u* pThreshold);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
