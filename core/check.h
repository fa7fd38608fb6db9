// core/check.h: argument checks that read like the contract's sentences:
//   if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi), positiveSteps(srcStep, dstStep))) return e;
#pragma once

#include "kvri/types.h"

namespace kvri {

template <class... Pointer>
constexpr KvrStatus nonNull(const Pointer*... p) {
    return ((p == nullptr) | ...) ? kvrStatusNullPointer : kvrStatusOk;
}

// Every plane of a planar image; the array of planes itself must have passed nonNull.
template <int N, class Plane>
constexpr KvrStatus planesNonNull(Plane* const* planes) {
    for (int i = 0; i < N; ++i)
        if (planes[i] == nullptr) return kvrStatusNullPointer;
    return kvrStatusOk;
}

constexpr KvrStatus hasPixels(KvriSize size) {
    return size.width < 1 || size.height < 1 ? kvrStatusBadSize : kvrStatusOk;
}

template <class... Step>
constexpr KvrStatus positiveSteps(Step... step) {
    return ((step < 1) | ...) ? kvrStatusBadStep : kvrStatusOk;
}

template <class... Step>
constexpr KvrStatus nonZeroSteps(Step... step) {
    return ((step == 0) | ...) ? kvrStatusBadStep : kvrStatusOk;
}

// The first status that is not 0.
template <class... Status>
constexpr KvrStatus firstError(Status... status) {
    KvrStatus first = kvrStatusOk;
    ((first = first ? first : status), ...);
    return first;
}

}  // namespace kvri
