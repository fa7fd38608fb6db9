/* kvri/geometry.h - geometric transforms. */
#ifndef KVRI_GEOMETRY_H
#define KVRI_GEOMETRY_H

#include "kvri/types.h"

#ifdef __cplusplus
extern "C" {
#endif
#pragma GCC visibility push(default)

/* Resize with specification objects. The object holds what depends on the two sizes only: source positions and weights of
 * every destination column and row. It is prepared once and then used for any number of images, or tiles of images, of these
 * sizes:
 *
 *   GetSize -> bytes of the object and of the init's scratch block, which the caller allocates (any alignment)
 *   ...Init -> fills the object; the scratch block is not needed afterwards
 *   GetBufferSize -> scratch bytes for tiles up to a size
 *   kvriResize<Method>_... -> any number of times
 *
 * The object is only read after its Init and holds no addresses: any number of threads may use one at once, each with a
 * buffer of its own, and it may be copied to another block with the same address modulo 64.
 *
 * Destination column i lies at the source column x = (i + 0.5) * r - 0.5 with r = source width / destination width; rows
 * likewise. Its taps are the source pixels around x, weighted by the method's kernel; pixels beyond the image repeat its
 * edge (kvrBorderRepl), or are read from memory (kvrBorderInMem, or the flags of single sides with kvrBorderRepl).
 *
 *   Nearest        the pixel at trunc((i + 0.5) * r - 1e-10)
 *   Linear         2 taps, weights 1 - f and f with f = x - floor(x)
 *   Cubic          4 taps, the two-parameter cubic family: D. P. Mitchell, A. N. Netravali, "Reconstruction Filters in
 *                  Computer Graphics", SIGGRAPH 1988. (0, 0.5) Catmull-Rom, (1, 0) B-spline, (1/3, 1/3) the authors' choice
 *   Lanczos        4 or 6 taps, sinc(d) * sinc(d / lobes), normalised: C. E. Duchon, "Lanczos Filtering in One and Two
 *                  Dimensions", Journal of Applied Meteorology 18, 1979
 *   Super          mean of the covered source area; not for enlarging
 *   Antialiasing   linear, cubic or Lanczos; on an axis that shrinks, the kernel stretched by r and normalised
 *
 * Rows are weighted and summed in single precision, left to right and top to bottom, without fused operations; integer
 * results are rounded to nearest, ties to even, and saturated. Linear of 8u is exact: 14-bit weights, the sum of the four
 * products rounded once (halves upward). Linear of 64f works in double precision. */

typedef struct KvriResizeSpec KvriResizeSpec; /* private to the library */

/* ResizeGetSize - bytes of the object and of the init's scratch block.
 * Errors, in this order: null pointer -8, a width or height of 0 the warning 1, below 0 -6; an interpolation code of none of
 * 0, 1, 2, 6, 8, 16 -22; code 0, or antialiasing of nearest or super, -9999; a source below 2 x 2 (linear) or 4 x 4 (cubic,
 * Lanczos) -6, super with a source below the destination on either axis -6; 2^31 bytes or more -6. */
KvrStatus kvriResizeGetSize_8u(KvriSize srcSize, KvriSize dstSize, KvriInterpolationType interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
KvrStatus kvriResizeGetSize_16u(KvriSize srcSize, KvriSize dstSize, KvriInterpolationType interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
KvrStatus kvriResizeGetSize_16s(KvriSize srcSize, KvriSize dstSize, KvriInterpolationType interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
KvrStatus kvriResizeGetSize_32f(KvriSize srcSize, KvriSize dstSize, KvriInterpolationType interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);
KvrStatus kvriResizeGetSize_64f(KvriSize srcSize, KvriSize dstSize, KvriInterpolationType interpolation, int antialiasing, int* pSpecSize, int* pInitBufSize);

/* Resize...Init - fill the object. The 16u, 16s and 32f forms of one method make the same object; that of 8u is the same but
 * for Linear. valueB and valueC are the two parameters of the cubic family; numLobes is 2 or 3.
 * Errors, in this order: null pointer -8, a width or height of 0 the warning 1, below 0 -6; a number of lobes other than 2
 * or 3 -9999; a source below 2 x 2 (linear), 4 x 4 (cubic, Lanczos with 2 lobes) or 6 x 6 (3 lobes) -6; super with a source
 * below the destination on either axis -6. */
KvrStatus kvriResizeLinearInit_8u(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeLinearInit_16u(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeLinearInit_16s(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeLinearInit_32f(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeLinearInit_64f(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeNearestInit_8u(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeCubicInit_8u(KvriSize srcSize, KvriSize dstSize, Kvr32f valueB, Kvr32f valueC, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeLanczosInit_8u(KvriSize srcSize, KvriSize dstSize, int numLobes, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeSuperInit_8u(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeNearestInit_16u(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeCubicInit_16u(KvriSize srcSize, KvriSize dstSize, Kvr32f valueB, Kvr32f valueC, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeLanczosInit_16u(KvriSize srcSize, KvriSize dstSize, int numLobes, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeSuperInit_16u(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeNearestInit_16s(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeCubicInit_16s(KvriSize srcSize, KvriSize dstSize, Kvr32f valueB, Kvr32f valueC, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeLanczosInit_16s(KvriSize srcSize, KvriSize dstSize, int numLobes, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeSuperInit_16s(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeNearestInit_32f(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeCubicInit_32f(KvriSize srcSize, KvriSize dstSize, Kvr32f valueB, Kvr32f valueC, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeLanczosInit_32f(KvriSize srcSize, KvriSize dstSize, int numLobes, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeSuperInit_32f(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec);
KvrStatus kvriResizeAntialiasingLinearInit(KvriSize srcSize, KvriSize dstSize, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeAntialiasingCubicInit(KvriSize srcSize, KvriSize dstSize, Kvr32f valueB, Kvr32f valueC, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);
KvrStatus kvriResizeAntialiasingLanczosInit(KvriSize srcSize, KvriSize dstSize, int numLobes, KvriResizeSpec* pSpec, Kvr8u* pInitBuf);

/* ResizeGetBufferSize - scratch bytes for one call on a tile of dstSize.
 * Errors, in this order: null pointer -8, a width or height of 0 the warning 1, an object of another kind -17, numChannels
 * other than 1, 3, 4 -53, a negative size -6, 2^31 bytes or more -6. The warning 48, with the size written, where dstSize
 * exceeds the object's destination. */
KvrStatus kvriResizeGetBufferSize_8u(const KvriResizeSpec* pSpec, KvriSize dstSize, int numChannels, int* pBufSize);
KvrStatus kvriResizeGetBufferSize_16u(const KvriResizeSpec* pSpec, KvriSize dstSize, int numChannels, int* pBufSize);
KvrStatus kvriResizeGetBufferSize_16s(const KvriResizeSpec* pSpec, KvriSize dstSize, int numChannels, int* pBufSize);
KvrStatus kvriResizeGetBufferSize_32f(const KvriResizeSpec* pSpec, KvriSize dstSize, int numChannels, int* pBufSize);
KvrStatus kvriResizeGetBufferSize_64f(const KvriResizeSpec* pSpec, KvriSize dstSize, int numChannels, int* pBufSize);

/* ResizeGetBorderSize - pixels beyond each side of the source image that an apply with kvrBorderInMem may read.
 * Errors, in this order: null pointer -8, an object of another kind -17. */
KvrStatus kvriResizeGetBorderSize_8u(const KvriResizeSpec* pSpec, KvriBorderSize* pBorderSize);
KvrStatus kvriResizeGetBorderSize_16u(const KvriResizeSpec* pSpec, KvriBorderSize* pBorderSize);
KvrStatus kvriResizeGetBorderSize_16s(const KvriResizeSpec* pSpec, KvriBorderSize* pBorderSize);
KvrStatus kvriResizeGetBorderSize_32f(const KvriResizeSpec* pSpec, KvriBorderSize* pBorderSize);
KvrStatus kvriResizeGetBorderSize_64f(const KvriResizeSpec* pSpec, KvriBorderSize* pBorderSize);

/* ResizeGetSrcOffset - the source pixel at which pSrc of an apply has to point for the tile at dstOffset.
 * Errors, in this order: null pointer -8, an object of another kind -17, an offset outside of the destination -11. */
KvrStatus kvriResizeGetSrcOffset_8u(const KvriResizeSpec* pSpec, KvriPoint dstOffset, KvriPoint* pSrcOffset);
KvrStatus kvriResizeGetSrcOffset_16u(const KvriResizeSpec* pSpec, KvriPoint dstOffset, KvriPoint* pSrcOffset);
KvrStatus kvriResizeGetSrcOffset_16s(const KvriResizeSpec* pSpec, KvriPoint dstOffset, KvriPoint* pSrcOffset);
KvrStatus kvriResizeGetSrcOffset_32f(const KvriResizeSpec* pSpec, KvriPoint dstOffset, KvriPoint* pSrcOffset);
KvrStatus kvriResizeGetSrcOffset_64f(const KvriResizeSpec* pSpec, KvriPoint dstOffset, KvriPoint* pSrcOffset);

/* ResizeGetSrcRoi - the same, and the source region from there to the last position of the tile, without the taps beyond it
 * (GetBorderSize tells their number). A tile that reaches beyond the destination is clipped.
 * Errors, in this order: null pointer -8, a size below 1 -6, an object of another kind -17, an offset outside of the
 * destination -11. */
KvrStatus kvriResizeGetSrcRoi_8u(const KvriResizeSpec* pSpec, KvriPoint dstRoiOffset, KvriSize dstRoiSize, KvriPoint* pSrcRoiOffset, KvriSize* pSrcRoiSize);
KvrStatus kvriResizeGetSrcRoi_16u(const KvriResizeSpec* pSpec, KvriPoint dstRoiOffset, KvriSize dstRoiSize, KvriPoint* pSrcRoiOffset, KvriSize* pSrcRoiSize);
KvrStatus kvriResizeGetSrcRoi_16s(const KvriResizeSpec* pSpec, KvriPoint dstRoiOffset, KvriSize dstRoiSize, KvriPoint* pSrcRoiOffset, KvriSize* pSrcRoiSize);
KvrStatus kvriResizeGetSrcRoi_32f(const KvriResizeSpec* pSpec, KvriPoint dstRoiOffset, KvriSize dstRoiSize, KvriPoint* pSrcRoiOffset, KvriSize* pSrcRoiSize);
KvrStatus kvriResizeGetSrcRoi_64f(const KvriResizeSpec* pSpec, KvriPoint dstRoiOffset, KvriSize dstRoiSize, KvriPoint* pSrcRoiOffset, KvriSize* pSrcRoiSize);

/* Resize<Method> - the destination tile of dstSize at dstOffset, clipped to the object's destination. pSrc points at the source
 * pixel of GetSrcOffset, pDst at the tile's first pixel. A tile's pixels are those of the whole image, bit for bit. Reads
 * the source pixels that the tile's taps cover: none beyond the source image but on sides declared to be in memory. Steps
 * may be negative. pBorderValue is not used and may be null; pBuffer holds the bytes of GetBufferSize, at any alignment.
 * Borders: kvrBorderRepl with any flags, and kvrBorderInMem.
 * Errors, in this order: null pSrc, pDst, pSpec or pBuffer -8, a tile width or height of 0 the warning 1, an object of another
 * kind -17, a size below 0 -6, an offset outside of the destination -11, an object of another method -9999, a border code
 * with bits outside of 0xF7 -225, any other unsupported border -9999. The warning 48, after the work, where dstSize exceeds
 * the object's destination. */
KvrStatus kvriResizeNearest_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeNearest_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_64f_C1R(const Kvr64f* pSrc, int srcStep, Kvr64f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr64f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_64f_C3R(const Kvr64f* pSrc, int srcStep, Kvr64f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr64f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLinear_64f_C4R(const Kvr64f* pSrc, int srcStep, Kvr64f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr64f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeCubic_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeLanczos_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeSuper_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_8u_C1R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_8u_C3R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_8u_C4R(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr8u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_16u_C1R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_16u_C3R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_16u_C4R(const Kvr16u* pSrc, int srcStep, Kvr16u* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16u* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_16s_C1R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_16s_C3R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_16s_C4R(const Kvr16s* pSrc, int srcStep, Kvr16s* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr16s* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_32f_C1R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_32f_C3R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);
KvrStatus kvriResizeAntialiasing_32f_C4R(const Kvr32f* pSrc, int srcStep, Kvr32f* pDst, int dstStep, KvriPoint dstOffset, KvriSize dstSize, KvriBorderType border, const Kvr32f* pBorderValue, const KvriResizeSpec* pSpec, Kvr8u* pBuffer);

#pragma GCC visibility pop
#ifdef __cplusplus
}
#endif

#endif
