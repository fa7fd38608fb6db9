/* kvri/types.h - sample types, records and status codes shared by all functions. */
#ifndef KVRI_TYPES_H
#define KVRI_TYPES_H

#include <stdint.h>

/* Sample types, named after the type codes in the function names. Integers are two's complement, little-endian. */
typedef uint8_t  Kvr8u;
typedef int8_t   Kvr8s;
typedef uint16_t Kvr16u;
typedef int16_t  Kvr16s;
typedef uint32_t Kvr32u;
typedef int32_t  Kvr32s;
typedef int64_t  Kvr64s;
typedef float    Kvr32f; /* IEEE 754 single */
typedef double   Kvr64f; /* IEEE 754 double */

typedef uint8_t Kvr1u;                            /* eight one-bit pixels, the first in the most significant bit */
typedef struct { uint8_t byte[3]; } Kvr24u;       /* 24-bit value, least significant byte first */

/* Complex samples: real part first. */
typedef struct { Kvr16s re, im; } Kvr16sc;
typedef struct { Kvr16u re, im; } Kvr16uc;
typedef struct { Kvr32s re, im; } Kvr32sc;
typedef struct { Kvr32f re, im; } Kvr32fc;

/* Sizes and positions, in pixels. */
typedef struct { int32_t width, height; } KvriSize;
typedef struct { int32_t x, y, width, height; } KvriRect;
typedef struct { int32_t x, y; } KvriPoint;

/* Pixels that an operation reads beyond each side of its source region. */
typedef struct { int32_t left, top, right, bottom; } KvriBorderSize;

/* What kvriGetLibVersion points to. */
typedef struct {
    int32_t major, minor, update, build;
    char targetCpu[4];     /* code of the processor variant in use, zero-padded */
    const char* name;      /* the same in words */
    const char* version;
    const char* buildDate;
} KvrLibraryVersion;

/* Layouts and flags in the function names, after the type code:
 *   C1, C2, C3, C4   interleaved image of 1 to 4 channels
 *   AC4              four interleaved channels; the fourth (alpha) of the destination stays exactly as it was
 *   P3, P4           planar image: an array of plane pointers that share one row step
 *   C3C1, C1C3, ...  layout of the source, then layout of the destination
 *   C3CR, C4CR       one chosen channel of either image; the pointers address that channel
 *   I                in place: one image is source and destination
 *   R                works on a region of interest (ROI)
 *   M                masked: only pixels whose mask sample (8u, one per pixel) is not zero are written
 *   Sfs              integer result times 2^-scaleFactor
 *
 * An image argument is a pointer to the first pixel of the ROI and a step: the distance in bytes from the start of one
 * row to the start of the next. No byte outside the ROI's rows is read or written, save where a function says so. */

/* Codes that callers pass. They have fixed types, so that an unknown value is an ordinary error. */

/* How a number becomes an integer. */
typedef int32_t KvrRoundMode;
enum {
    kvrRndZero      = 0, /* toward zero */
    kvrRndNear      = 1, /* to nearest, ties to even */
    kvrRndFinancial = 2  /* to nearest, ties away from zero */
};

/* Sample types for functions that prepare memory for others. */
typedef int32_t KvrDataType;
enum {
    kvrDataType8u  = 1,
    kvrDataType16u = 5,
    kvrDataType16s = 7,
    kvrDataType32f = 13,
    kvrDataType64f = 19
};

/* The line about which a mirror turns an image of w x h pixels: destination pixel (x, y) is source pixel ... */
typedef int32_t KvriAxis;
enum {
    kvrAxisHorizontal   = 0, /* (x, h - 1 - y) */
    kvrAxisVertical     = 1, /* (w - 1 - x, y) */
    kvrAxisBoth         = 2, /* (w - 1 - x, h - 1 - y) */
    kvrAxisMainDiagonal = 3, /* (y, x); the destination is h x w pixels */
    kvrAxisAntiDiagonal = 4  /* (w - 1 - y, h - 1 - x); the destination is h x w pixels */
};

/* Comparisons: first operand, code, second operand. */
typedef int32_t KvrCmpOp;
enum {
    kvrCmpLess      = 0,
    kvrCmpLessEq    = 1,
    kvrCmpEq        = 2,
    kvrCmpGreaterEq = 3,
    kvrCmpGreater   = 4
};

/* What lies beyond the edge of an image: a rule, and flags for sides whose pixels are in memory and are read instead. */
typedef int32_t KvriBorderType;
enum {
    kvrBorderConst       = 0, /* a value that the caller gives */
    kvrBorderRepl        = 1, /* the edge pixel */
    kvrBorderInMem       = 6, /* what is in memory there, on all sides */
    kvrBorderInMemTop    = 16,
    kvrBorderInMemBottom = 32,
    kvrBorderInMemLeft   = 64,
    kvrBorderInMemRight  = 128
};

typedef int32_t KvriInterpolationType;
enum {
    kvrInterpNearest = 1,
    kvrInterpLinear  = 2,
    kvrInterpCubic   = 6,
    kvrInterpSuper   = 8,
    kvrInterpLanczos = 16
};

/* Result of a call: 0 success; negative an error, nothing was written; positive a warning, the result is defined.
 * Each code's name is its text. */
typedef int32_t KvrStatus;
enum {
    kvrStatusOk                 = 0,
    kvrStatusNoOperation        = 1,     /* the destination region is empty; nothing is written */
    kvrStatusDivByZeroWarning   = 6,     /* a divisor sample, or a reference norm, is zero; the whole result is written */
    kvrStatusLnZeroArgWarning   = 7,     /* logarithm of a zero sample: 0 is written for it */
    kvrStatusNoIntersection     = 29,    /* the destination maps to no source pixel; nothing is written */
    kvrWarnEvenWeight           = 39,    /* an even centre weight was lowered by one */
    kvrStatusRoiExceedsSpec     = 48,    /* the destination reaches beyond the size recorded in the specification object */
    kvrWarnRoundFlagIgnored     = 52,    /* the rounding flag does not apply to the data type */
    kvrStatusBadArgument        = -5,    /* a value outside the accepted set */
    kvrStatusBadSize            = -6,    /* a width or height below 1, or a kernel larger than the image */
    kvrStatusBadRange           = -7,    /* a lower bound above its upper bound */
    kvrStatusNullPointer        = -8,    /* a required pointer is null */
    kvrStatusNoMemory           = -9,    /* an internal allocation failed */
    kvrStatusDivByZero          = -10,   /* a divisor constant is zero */
    kvrStatusOutOfRange         = -11,   /* a numeric parameter outside its interval */
    kvrStatusBadDataType        = -12,   /* a data-type code the function does not support */
    kvrStatusEmptyRange         = -13,   /* vMax - vMin is not positive */
    kvrStatusBadStep            = -14,   /* a row step below 1 or otherwise refused */
    kvrStatusBadOrder           = -15,   /* a transform order of 31 or more */
    kvrStatusBadFlag            = -16,   /* a transform's normalisation flag other than 1, 2, 4, 8 */
    kvrStatusBadContext         = -17,   /* a specification object without the identifier of its kind */
    kvrStatusBadThresholds      = -18,   /* a lower threshold above the upper one */
    kvrStatusZeroMoment         = -20,   /* the moment needed for normalisation is zero */
    kvrStatusBadAxis            = -21,   /* a mirror axis the function does not accept */
    kvrStatusBadInterpolation   = -22,   /* an interpolation code the function does not accept */
    kvrStatusBadResizeFactor    = -23,   /* a resize factor of zero or below */
    kvrStatusBadMaskSize        = -33,   /* a mask size below 1, or a code that is not accepted */
    kvrStatusBadAnchor          = -34,   /* an anchor outside its mask */
    kvrStatusBadEps             = -36,   /* a comparison tolerance below zero */
    kvrStatusStepTooSmall       = -37,   /* a step too small for the row and the extra pixels that are read */
    kvrStatusBadChannel         = -47,   /* a channel index or count not accepted for this type */
    kvrStatusBadAlphaType       = -50,   /* a compositing operation above 11 */
    kvrStatusZeroDivisor        = -51,   /* an integer kernel's divisor is zero */
    kvrStatusBadNumChannels     = -53,   /* a number of channels outside the accepted set */
    kvrStatusBadTransform       = -56,   /* degenerate transform coefficients */
    kvrStatusBadRectangle       = -57,   /* a rectangle with width or height below one */
    kvrStatusBadQuadrangle      = -58,   /* a degenerate quadrangle */
    kvrStatusZeroMask           = -59,   /* every element of a structuring mask is zero */
    kvrStatusBadChannelOrder    = -60,   /* a channel order names a channel that is not there */
    kvrStatusBadLutLevels       = -106,  /* a lookup table of fewer than 2 levels */
    kvrStatusBadHistLevels      = -107,  /* a histogram of fewer than 2 levels */
    kvrStatusMisalignedStep     = -108,  /* a step that is not a multiple of the sample size */
    kvrStatusBadNoiseLevel      = -125,  /* a noise level outside [0, 1) */
    kvrStatusBadWeight          = -211,  /* a weight of zero or below */
    kvrStatusBadDecimation      = -212,  /* a decimation code other than 1, 2, 3, 4 */
    kvrStatusBadRoundMode       = -213,  /* a rounding mode other than 0, 1, 2 */
    kvrStatusBorderNotSupported = -225,  /* a border type that this function does not support */
    kvrStatusOddOffset          = -227,  /* an odd offset where an even one is required */
    kvrStatusBadAlgType         = -228,  /* an algorithm-type code above 2 */
    kvrStatusBadDirection       = -231,  /* a direction code other than 0, 1 */
    kvrStatusSizeOverflow       = -232,  /* a computed buffer size reaches 2^31 bytes */
    kvrStatusNotSupported       = -9999  /* a mode or combination that is not implemented */
};

#endif
