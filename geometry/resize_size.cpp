// geometry/resize_size.cpp: sizes of Resize's objects and buffers, and what an object tells about a tile's source.
#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/dispatch.h"
#include "geometry/resize_spec.h"

namespace kvri {
namespace {

constexpr int64_t kTooLarge = int64_t(1) << 31;

KvrStatus fits(int64_t bytes) { return bytes < kTooLarge ? kvrStatusOk : kvrStatusBadSize; }

KvrStatus known(KvriInterpolationType method) {
    switch (method) {
        case 0:
        case kvrInterpNearest:
        case kvrInterpLinear:
        case kvrInterpCubic:
        case kvrInterpSuper:
        case kvrInterpLanczos: return kvrStatusOk;
        default: return kvrStatusBadInterpolation;
    }
}

KvrStatus supported(KvriInterpolationType method, bool antialiasing) {
    const bool smooth = method == kvrInterpLinear || method == kvrInterpCubic || method == kvrInterpLanczos;
    return method == 0 || (antialiasing && !smooth) ? kvrStatusNotSupported : kvrStatusOk;
}

KvrStatus largeEnough(KvriInterpolationType method, KvriSize src, KvriSize dst) {
    if (method == kvrInterpSuper) return src.width < dst.width || src.height < dst.height ? kvrStatusBadSize : kvrStatusOk;
    const int least = method == kvrInterpNearest ? 1 : method == kvrInterpLinear ? 2 : 4;
    return src.width < least || src.height < least ? kvrStatusBadSize : kvrStatusOk;
}

// Positions of one period of super times their taps.
int64_t periodWeights(int src, int dst) {
    const int g = std::gcd(src, dst), s = src / g, d = dst / g;
    return int64_t(d) * superTaps(s, d);
}

// Antialiasing: room for the taps of every position.
int64_t antialiasingTaps(KvriInterpolationType method, int src, int dst) {
    const int lobes = method == kvrInterpLinear ? 1 : method == kvrInterpCubic ? 2 : 3;
    if (src <= dst) return 2 * lobes;
    return 2 * ((int64_t(2 * lobes) * src + dst - 1) / dst);
}

struct Sizes {
    int64_t spec, init;
};

// pairBytes: of the weights of a linear position.
Sizes sizesOf(KvriSize src, KvriSize dst, KvriInterpolationType method, bool antialiasing, int pairBytes) {
    const int64_t w = dst.width, h = dst.height, lengths = upTo32(w) + upTo32(h);
    constexpr int64_t slack = 216 + 64;
    if (antialiasing) {
        const int64_t extra = method == kvrInterpLinear && src.width <= dst.width ? upTo32(4 * w) : 0;
        return {upTo32(4 * w * antialiasingTaps(method, src.width, dst.width)) + 4 * lengths +
                    upTo32(4 * h * antialiasingTaps(method, src.height, dst.height)) + extra + slack,
                8 * lengths + 64};
    }
    auto weights = [&](int taps, int round) { return 128 * ((taps * w + round) / 32 + (taps * h + round) / 32); };
    switch (method) {
        case kvrInterpNearest: return {4 * lengths + slack, 64};
        case kvrInterpLinear: return {(4 + pairBytes) * lengths + slack, 64};
        case kvrInterpCubic: return {4 * lengths + weights(4, 127) + slack, 4 * lengths + 64};
        case kvrInterpLanczos: return {4 * lengths + weights(6, 191) + slack, 4 * lengths + 64};
        default: {
            const int64_t columns = periodWeights(src.width, dst.width), rows = periodWeights(src.height, dst.height);
            return {4 * (upTo32(columns) + columns + rows + upTo32(rows)) + slack, 64};
        }
    }
}

template <int PairBytes>
KvrStatus getSize(KvriSize src, KvriSize dst, KvriInterpolationType method, int antialiasing, int* pSpecSize, int* pInitBufSize) {
    if (KvrStatus e = firstError(nonNull(pSpecSize, pInitBufSize), lengthsNotZero(src), lengthsNotZero(dst), lengthsNotNegative(src),
                                 lengthsNotNegative(dst), known(method), supported(method, antialiasing != 0),
                                 largeEnough(method, src, dst)))
        return e;
    const Sizes sizes = sizesOf(src, dst, method, antialiasing != 0, PairBytes);
    if (KvrStatus e = firstError(fits(sizes.spec), fits(sizes.init))) return e;
    *pSpecSize = int(sizes.spec);
    *pInitBufSize = int(sizes.init);
    return kvrStatusOk;
}

KvrStatus channelsKnown(int n) { return n == 1 || n == 3 || n == 4 ? kvrStatusOk : kvrStatusBadNumChannels; }

KvrStatus hasMethod(const ResizeSpec& spec) { return spec.method == 0 ? kvrStatusNotSupported : kvrStatusOk; }

// Super: the quotient in single precision is part of the formula.
int64_t superBufferBytes(const ResizeSpec& spec, int width, int channels) {
    const ResizeAxis &x = spec.x, &y = spec.y;
    const float covered = float(x.reducedSource) * float(width) / float(x.reducedDestination);
    const int64_t columns = std::min(int64_t(covered + 3.0), int64_t(x.source));
    const int taps = superTaps(y.reducedSource, y.reducedDestination);
    return ((channels * upTo32(columns) + taps) * 4 + 8) * y.reducedDestination + 32;
}

// Rows of destination width, as many as a destination pixel has taps; antialiasing may need more, or the taps of one pixel.
int64_t rowBufferBytes(const ResizeSpec& spec, int width, int channels, int sampleBytes) {
    int64_t rows = 2 * int64_t(spec.y.halfWidth), taps = 0;
    if (spec.antialiasing) {
        rows = std::max(rows, int64_t(spec.y.taps));
        taps = upTo32(int64_t(sampleBytes) * channels * spec.x.taps);
    }
    return rows * upTo32(int64_t(sampleBytes) * channels * width) + taps;
}

int64_t bufferBytes(const ResizeSpec& spec, KvriSize dstSize, int channels, int sampleBytes) {
    const int width = std::min(dstSize.width, spec.x.destination), height = std::min(dstSize.height, spec.y.destination);
    const int64_t lists = upTo32(4 * int64_t(height)) + upTo32(4 * int64_t(width));
    if (spec.method == kvrInterpSuper) return superBufferBytes(spec, width, channels) + 64;
    if (spec.method == kvrInterpNearest) return lists + 64;
    return lists + rowBufferBytes(spec, width, channels, sampleBytes) + 64;
}

template <uint32_t Id, int SampleBytes>
KvrStatus getBufferSize(const KvriResizeSpec* pSpec, KvriSize dstSize, int numChannels, int* pBufSize) {
    if (KvrStatus e = firstError(nonNull(pSpec, pBufSize), lengthsNotZero(dstSize))) return e;
    if (KvrStatus e = firstError(carriesId(pSpec, Id), channelsKnown(numChannels), lengthsNotNegative(dstSize),
                                 hasMethod(*alignedSpec(pSpec))))
        return e;
    const ResizeSpec& spec = *alignedSpec(pSpec);
    const int64_t bytes = bufferBytes(spec, dstSize, numChannels, SampleBytes);
    if (KvrStatus e = fits(bytes)) return e;
    *pBufSize = int(bytes);
    return withinDestination(spec, dstSize);
}

template <uint32_t Id>
KvrStatus getBorderSize(const KvriResizeSpec* pSpec, KvriBorderSize* pBorderSize) {
    if (KvrStatus e = nonNull(pSpec, pBorderSize)) return e;
    if (KvrStatus e = carriesId(pSpec, Id)) return e;
    *pBorderSize = alignedSpec(pSpec)->border;
    return kvrStatusOk;
}

KvriPoint originOf(const ResizeSpec& spec, KvriPoint offset) {
    return {spec.origin(spec.x, offset.x), spec.origin(spec.y, offset.y)};
}

template <uint32_t Id>
KvrStatus getSrcOffset(const KvriResizeSpec* pSpec, KvriPoint dstOffset, KvriPoint* pSrcOffset) {
    if (KvrStatus e = nonNull(pSpec, pSrcOffset)) return e;
    if (KvrStatus e = carriesId(pSpec, Id)) return e;
    const ResizeSpec& spec = *alignedSpec(pSpec);
    if (KvrStatus e = insideDestination(spec, dstOffset)) return e;
    *pSrcOffset = originOf(spec, dstOffset);
    return kvrStatusOk;
}

// The source position of destination position i as the contract's tables have it: without the taps on its left.
int sourceIndex(const ResizeSpec& spec, const ResizeAxis& a, int i) {
    if (spec.method == kvrInterpSuper || spec.method == kvrInterpNearest) return spec.firstTap(a, i);
    return int(std::floor(a.coordinate(i)));
}

template <uint32_t Id>
KvrStatus getSrcRoi(const KvriResizeSpec* pSpec, KvriPoint dstRoiOffset, KvriSize dstRoiSize, KvriPoint* pSrcRoiOffset,
                    KvriSize* pSrcRoiSize) {
    if (KvrStatus e = firstError(nonNull(pSpec, pSrcRoiOffset, pSrcRoiSize), hasPixels(dstRoiSize))) return e;
    if (KvrStatus e = carriesId(pSpec, Id)) return e;
    const ResizeSpec& spec = *alignedSpec(pSpec);
    if (KvrStatus e = insideDestination(spec, dstRoiOffset)) return e;
    const KvriSize size = clipped(spec, dstRoiOffset, dstRoiSize);
    const KvriPoint origin = originOf(spec, dstRoiOffset);
    *pSrcRoiOffset = origin;
    *pSrcRoiSize = {sourceIndex(spec, spec.x, dstRoiOffset.x + size.width - 1) - origin.x + 1,
                    sourceIndex(spec, spec.y, dstRoiOffset.y + size.height - 1) - origin.y + 1};
    return kvrStatusOk;
}

// Bytes of a linear position's weights: two of 14 bits, of single or of double precision.
KVRI_EXPORT(kvriResizeGetSize_8u, getSize<4>);
KVRI_EXPORT(kvriResizeGetSize_16u, getSize<8>);
KVRI_EXPORT(kvriResizeGetSize_16s, getSize<8>);
KVRI_EXPORT(kvriResizeGetSize_32f, getSize<8>);
KVRI_EXPORT(kvriResizeGetSize_64f, getSize<16>);

KVRI_EXPORT(kvriResizeGetBufferSize_8u, getBufferSize<kResizeSpecId, 4>);
KVRI_EXPORT(kvriResizeGetBufferSize_16u, getBufferSize<kResizeSpecId, 4>);
KVRI_EXPORT(kvriResizeGetBufferSize_16s, getBufferSize<kResizeSpecId, 4>);
KVRI_EXPORT(kvriResizeGetBufferSize_32f, getBufferSize<kResizeSpecId, 4>);
KVRI_EXPORT(kvriResizeGetBufferSize_64f, getBufferSize<kResizeSpecId64f, 8>);

KVRI_EXPORT(kvriResizeGetBorderSize_8u, getBorderSize<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetBorderSize_16u, getBorderSize<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetBorderSize_16s, getBorderSize<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetBorderSize_32f, getBorderSize<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetBorderSize_64f, getBorderSize<kResizeSpecId64f>);

KVRI_EXPORT(kvriResizeGetSrcOffset_8u, getSrcOffset<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetSrcOffset_16u, getSrcOffset<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetSrcOffset_16s, getSrcOffset<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetSrcOffset_32f, getSrcOffset<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetSrcOffset_64f, getSrcOffset<kResizeSpecId64f>);

KVRI_EXPORT(kvriResizeGetSrcRoi_8u, getSrcRoi<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetSrcRoi_16u, getSrcRoi<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetSrcRoi_16s, getSrcRoi<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetSrcRoi_32f, getSrcRoi<kResizeSpecId>);
KVRI_EXPORT(kvriResizeGetSrcRoi_64f, getSrcRoi<kResizeSpecId64f>);

}  // namespace
}  // namespace kvri
