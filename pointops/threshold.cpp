// pointops/threshold.cpp: Threshold in all its forms, sample by sample.
#include "kvri/pointops.h"
#include "pointops/arithmetic.h"

namespace kvri {
namespace {

// Operations take the constants first, the sample last. A 32f sample is kept where a comparison meets a NaN.

template <class T>
struct AtLeast {
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    V operator()(V threshold, V v) const { return larger(threshold, v); }
};

template <class T>
struct AtMost {
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    V operator()(V threshold, V v) const { return smaller(threshold, v); }
};

template <class T>
struct ReplaceBelow {
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    V operator()(V threshold, V value, V v) const { return v < threshold ? value : v; }
};

template <class T>
struct ReplaceAbove {
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    V operator()(V threshold, V value, V v) const { return v > threshold ? value : v; }
};

template <class T>
struct ReplaceOutside {
    using Sample = T;
    static constexpr int unrolled = 4;
    using V = Vec<T>;
    V operator()(V low, V lowValue, V high, V highValue, V v) const {
        const V upper = v > high ? highValue : v;
        return v < low ? lowValue : upper;
    }
};

constexpr KvrStatus lessOrGreater(KvrCmpOp cmpOp) {
    return cmpOp == kvrCmpLess || cmpOp == kvrCmpGreater ? kvrStatusOk : kvrStatusNotSupported;
}

template <class T>
KvrStatus inOrder(const T* low, const T* high, int n) {
    for (int i = 0; i < n; ++i)
        if (high[i] < low[i]) return kvrStatusBadThresholds;
    return kvrStatusOk;
}

template <class T, class L>
KvrStatus limit(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, Constants<T, L> threshold, KvrCmpOp cmpOp) {
    const T* thresholds = arrayOf(threshold);
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, thresholds), hasPixels(roi), positiveSteps(srcStep, dstStep),
                                 lessOrGreater(cmpOp)))
        return e;
    const Operand src{pSrc, srcStep};
    const Result dst{pDst, dstStep};
    if (cmpOp == kvrCmpLess) mapPatterns<T, L>(AtLeast<T>{}, src, dst, roi, pattern<L>(thresholds));
    else mapPatterns<T, L>(AtMost<T>{}, src, dst, roi, pattern<L>(thresholds));
    return kvrStatusOk;
}

template <class T, class L, KvrCmpOp cmpOp>
KvrStatus limitBy(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, Constants<T, L> threshold) {
    return limit<T, L>(pSrc, srcStep, pDst, dstStep, roi, threshold, cmpOp);
}

template <class T, class L>
KvrStatus replace(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, Constants<T, L> threshold,
                  Constants<T, L> value, KvrCmpOp cmpOp) {
    const T *thresholds = arrayOf(threshold), *values = arrayOf(value);
    if (KvrStatus e = firstError(lessOrGreater(cmpOp), nonNull(pSrc, pDst, thresholds, values), hasPixels(roi),
                                 positiveSteps(srcStep, dstStep)))
        return e;
    const Operand src{pSrc, srcStep};
    const Result dst{pDst, dstStep};
    if (cmpOp == kvrCmpLess)
        mapPatterns<T, L>(ReplaceBelow<T>{}, src, dst, roi, pattern<L>(thresholds), pattern<L>(values));
    else
        mapPatterns<T, L>(ReplaceAbove<T>{}, src, dst, roi, pattern<L>(thresholds), pattern<L>(values));
    return kvrStatusOk;
}

template <class T, class L, KvrCmpOp cmpOp>
KvrStatus replaceBy(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, Constants<T, L> threshold,
                    Constants<T, L> value) {
    return replace<T, L>(pSrc, srcStep, pDst, dstStep, roi, threshold, value, cmpOp);
}

template <class T, class L>
KvrStatus replaceOutside(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, Constants<T, L> thresholdLT,
                         Constants<T, L> valueLT, Constants<T, L> thresholdGT, Constants<T, L> valueGT) {
    const T *low = arrayOf(thresholdLT), *lowValue = arrayOf(valueLT), *high = arrayOf(thresholdGT), *highValue = arrayOf(valueGT);
    if (KvrStatus e = firstError(nonNull(pSrc, pDst, low, lowValue, high, highValue), hasPixels(roi),
                                 positiveSteps(srcStep, dstStep)))
        return e;
    if (KvrStatus e = inOrder(low, high, L::colours)) return e;
    mapPatterns<T, L>(ReplaceOutside<T>{}, {pSrc, srcStep}, {pDst, dstStep}, roi, pattern<L>(low), pattern<L>(lowValue),
                      pattern<L>(high), pattern<L>(highValue));
    return kvrStatusOk;
}

KVRI_EXPORT(kvriThreshold_8u_C1R, limit<Kvr8u, C1>);
KVRI_EXPORT(kvriThreshold_8u_C3R, limit<Kvr8u, C3>);
KVRI_EXPORT(kvriThreshold_8u_AC4R, limit<Kvr8u, AC4>);
KVRI_EXPORT(kvriThreshold_8u_C1IR, inPlace<limit<Kvr8u, C1>>);
KVRI_EXPORT(kvriThreshold_8u_C3IR, inPlace<limit<Kvr8u, C3>>);
KVRI_EXPORT(kvriThreshold_8u_AC4IR, inPlace<limit<Kvr8u, AC4>>);
KVRI_EXPORT(kvriThreshold_16u_C1R, limit<Kvr16u, C1>);
KVRI_EXPORT(kvriThreshold_16u_C3R, limit<Kvr16u, C3>);
KVRI_EXPORT(kvriThreshold_16u_AC4R, limit<Kvr16u, AC4>);
KVRI_EXPORT(kvriThreshold_16u_C1IR, inPlace<limit<Kvr16u, C1>>);
KVRI_EXPORT(kvriThreshold_16u_C3IR, inPlace<limit<Kvr16u, C3>>);
KVRI_EXPORT(kvriThreshold_16u_AC4IR, inPlace<limit<Kvr16u, AC4>>);
KVRI_EXPORT(kvriThreshold_16s_C1R, limit<Kvr16s, C1>);
KVRI_EXPORT(kvriThreshold_16s_C3R, limit<Kvr16s, C3>);
KVRI_EXPORT(kvriThreshold_16s_AC4R, limit<Kvr16s, AC4>);
KVRI_EXPORT(kvriThreshold_16s_C1IR, inPlace<limit<Kvr16s, C1>>);
KVRI_EXPORT(kvriThreshold_16s_C3IR, inPlace<limit<Kvr16s, C3>>);
KVRI_EXPORT(kvriThreshold_16s_AC4IR, inPlace<limit<Kvr16s, AC4>>);
KVRI_EXPORT(kvriThreshold_32f_C1R, limit<Kvr32f, C1>);
KVRI_EXPORT(kvriThreshold_32f_C3R, limit<Kvr32f, C3>);
KVRI_EXPORT(kvriThreshold_32f_AC4R, limit<Kvr32f, AC4>);
KVRI_EXPORT(kvriThreshold_32f_C1IR, inPlace<limit<Kvr32f, C1>>);
KVRI_EXPORT(kvriThreshold_32f_C3IR, inPlace<limit<Kvr32f, C3>>);
KVRI_EXPORT(kvriThreshold_32f_AC4IR, inPlace<limit<Kvr32f, AC4>>);

KVRI_EXPORT(kvriThreshold_GT_8u_C1R, limitBy<Kvr8u, C1, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_8u_C3R, limitBy<Kvr8u, C3, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_8u_AC4R, limitBy<Kvr8u, AC4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_8u_C1IR, inPlace<limitBy<Kvr8u, C1, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_8u_C3IR, inPlace<limitBy<Kvr8u, C3, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_8u_AC4IR, inPlace<limitBy<Kvr8u, AC4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_16u_C1R, limitBy<Kvr16u, C1, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_16u_C3R, limitBy<Kvr16u, C3, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_16u_AC4R, limitBy<Kvr16u, AC4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_16u_C1IR, inPlace<limitBy<Kvr16u, C1, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_16u_C3IR, inPlace<limitBy<Kvr16u, C3, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_16u_AC4IR, inPlace<limitBy<Kvr16u, AC4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_16s_C1R, limitBy<Kvr16s, C1, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_16s_C3R, limitBy<Kvr16s, C3, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_16s_AC4R, limitBy<Kvr16s, AC4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_16s_C1IR, inPlace<limitBy<Kvr16s, C1, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_16s_C3IR, inPlace<limitBy<Kvr16s, C3, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_16s_AC4IR, inPlace<limitBy<Kvr16s, AC4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_32f_C1R, limitBy<Kvr32f, C1, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_32f_C3R, limitBy<Kvr32f, C3, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_32f_AC4R, limitBy<Kvr32f, AC4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GT_32f_C1IR, inPlace<limitBy<Kvr32f, C1, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_32f_C3IR, inPlace<limitBy<Kvr32f, C3, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GT_32f_AC4IR, inPlace<limitBy<Kvr32f, AC4, kvrCmpGreater>>);

KVRI_EXPORT(kvriThreshold_LT_8u_C1R, limitBy<Kvr8u, C1, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_8u_C3R, limitBy<Kvr8u, C3, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_8u_AC4R, limitBy<Kvr8u, AC4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_8u_C1IR, inPlace<limitBy<Kvr8u, C1, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_8u_C3IR, inPlace<limitBy<Kvr8u, C3, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_8u_AC4IR, inPlace<limitBy<Kvr8u, AC4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_16u_C1R, limitBy<Kvr16u, C1, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_16u_C3R, limitBy<Kvr16u, C3, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_16u_AC4R, limitBy<Kvr16u, AC4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_16u_C1IR, inPlace<limitBy<Kvr16u, C1, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_16u_C3IR, inPlace<limitBy<Kvr16u, C3, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_16u_AC4IR, inPlace<limitBy<Kvr16u, AC4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_16s_C1R, limitBy<Kvr16s, C1, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_16s_C3R, limitBy<Kvr16s, C3, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_16s_AC4R, limitBy<Kvr16s, AC4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_16s_C1IR, inPlace<limitBy<Kvr16s, C1, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_16s_C3IR, inPlace<limitBy<Kvr16s, C3, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_16s_AC4IR, inPlace<limitBy<Kvr16s, AC4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_32f_C1R, limitBy<Kvr32f, C1, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_32f_C3R, limitBy<Kvr32f, C3, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_32f_AC4R, limitBy<Kvr32f, AC4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LT_32f_C1IR, inPlace<limitBy<Kvr32f, C1, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_32f_C3IR, inPlace<limitBy<Kvr32f, C3, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LT_32f_AC4IR, inPlace<limitBy<Kvr32f, AC4, kvrCmpLess>>);

KVRI_EXPORT(kvriThreshold_Val_8u_C1R, replace<Kvr8u, C1>);
KVRI_EXPORT(kvriThreshold_Val_8u_C3R, replace<Kvr8u, C3>);
KVRI_EXPORT(kvriThreshold_Val_8u_AC4R, replace<Kvr8u, AC4>);
KVRI_EXPORT(kvriThreshold_Val_8u_C1IR, inPlace<replace<Kvr8u, C1>>);
KVRI_EXPORT(kvriThreshold_Val_8u_C3IR, inPlace<replace<Kvr8u, C3>>);
KVRI_EXPORT(kvriThreshold_Val_8u_AC4IR, inPlace<replace<Kvr8u, AC4>>);
KVRI_EXPORT(kvriThreshold_Val_16u_C1R, replace<Kvr16u, C1>);
KVRI_EXPORT(kvriThreshold_Val_16u_C3R, replace<Kvr16u, C3>);
KVRI_EXPORT(kvriThreshold_Val_16u_AC4R, replace<Kvr16u, AC4>);
KVRI_EXPORT(kvriThreshold_Val_16u_C1IR, inPlace<replace<Kvr16u, C1>>);
KVRI_EXPORT(kvriThreshold_Val_16u_C3IR, inPlace<replace<Kvr16u, C3>>);
KVRI_EXPORT(kvriThreshold_Val_16u_AC4IR, inPlace<replace<Kvr16u, AC4>>);
KVRI_EXPORT(kvriThreshold_Val_16s_C1R, replace<Kvr16s, C1>);
KVRI_EXPORT(kvriThreshold_Val_16s_C3R, replace<Kvr16s, C3>);
KVRI_EXPORT(kvriThreshold_Val_16s_AC4R, replace<Kvr16s, AC4>);
KVRI_EXPORT(kvriThreshold_Val_16s_C1IR, inPlace<replace<Kvr16s, C1>>);
KVRI_EXPORT(kvriThreshold_Val_16s_C3IR, inPlace<replace<Kvr16s, C3>>);
KVRI_EXPORT(kvriThreshold_Val_16s_AC4IR, inPlace<replace<Kvr16s, AC4>>);
KVRI_EXPORT(kvriThreshold_Val_32f_C1R, replace<Kvr32f, C1>);
KVRI_EXPORT(kvriThreshold_Val_32f_C3R, replace<Kvr32f, C3>);
KVRI_EXPORT(kvriThreshold_Val_32f_AC4R, replace<Kvr32f, AC4>);
KVRI_EXPORT(kvriThreshold_Val_32f_C1IR, inPlace<replace<Kvr32f, C1>>);
KVRI_EXPORT(kvriThreshold_Val_32f_C3IR, inPlace<replace<Kvr32f, C3>>);
KVRI_EXPORT(kvriThreshold_Val_32f_AC4IR, inPlace<replace<Kvr32f, AC4>>);

KVRI_EXPORT(kvriThreshold_GTVal_8u_C1R, replaceBy<Kvr8u, C1, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_8u_C3R, replaceBy<Kvr8u, C3, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_8u_C4R, replaceBy<Kvr8u, C4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_8u_AC4R, replaceBy<Kvr8u, AC4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_8u_C1IR, inPlace<replaceBy<Kvr8u, C1, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_8u_C3IR, inPlace<replaceBy<Kvr8u, C3, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_8u_C4IR, inPlace<replaceBy<Kvr8u, C4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_8u_AC4IR, inPlace<replaceBy<Kvr8u, AC4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_16u_C1R, replaceBy<Kvr16u, C1, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_16u_C3R, replaceBy<Kvr16u, C3, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_16u_C4R, replaceBy<Kvr16u, C4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_16u_AC4R, replaceBy<Kvr16u, AC4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_16u_C1IR, inPlace<replaceBy<Kvr16u, C1, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_16u_C3IR, inPlace<replaceBy<Kvr16u, C3, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_16u_C4IR, inPlace<replaceBy<Kvr16u, C4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_16u_AC4IR, inPlace<replaceBy<Kvr16u, AC4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_16s_C1R, replaceBy<Kvr16s, C1, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_16s_C3R, replaceBy<Kvr16s, C3, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_16s_C4R, replaceBy<Kvr16s, C4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_16s_AC4R, replaceBy<Kvr16s, AC4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_16s_C1IR, inPlace<replaceBy<Kvr16s, C1, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_16s_C3IR, inPlace<replaceBy<Kvr16s, C3, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_16s_C4IR, inPlace<replaceBy<Kvr16s, C4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_16s_AC4IR, inPlace<replaceBy<Kvr16s, AC4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_32f_C1R, replaceBy<Kvr32f, C1, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_32f_C3R, replaceBy<Kvr32f, C3, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_32f_C4R, replaceBy<Kvr32f, C4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_32f_AC4R, replaceBy<Kvr32f, AC4, kvrCmpGreater>);
KVRI_EXPORT(kvriThreshold_GTVal_32f_C1IR, inPlace<replaceBy<Kvr32f, C1, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_32f_C3IR, inPlace<replaceBy<Kvr32f, C3, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_32f_C4IR, inPlace<replaceBy<Kvr32f, C4, kvrCmpGreater>>);
KVRI_EXPORT(kvriThreshold_GTVal_32f_AC4IR, inPlace<replaceBy<Kvr32f, AC4, kvrCmpGreater>>);

KVRI_EXPORT(kvriThreshold_LTVal_8u_C1R, replaceBy<Kvr8u, C1, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_8u_C3R, replaceBy<Kvr8u, C3, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_8u_C4R, replaceBy<Kvr8u, C4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_8u_AC4R, replaceBy<Kvr8u, AC4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_8u_C1IR, inPlace<replaceBy<Kvr8u, C1, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_8u_C3IR, inPlace<replaceBy<Kvr8u, C3, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_8u_C4IR, inPlace<replaceBy<Kvr8u, C4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_8u_AC4IR, inPlace<replaceBy<Kvr8u, AC4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_16u_C1R, replaceBy<Kvr16u, C1, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_16u_C3R, replaceBy<Kvr16u, C3, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_16u_C4R, replaceBy<Kvr16u, C4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_16u_AC4R, replaceBy<Kvr16u, AC4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_16u_C1IR, inPlace<replaceBy<Kvr16u, C1, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_16u_C3IR, inPlace<replaceBy<Kvr16u, C3, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_16u_C4IR, inPlace<replaceBy<Kvr16u, C4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_16u_AC4IR, inPlace<replaceBy<Kvr16u, AC4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_16s_C1R, replaceBy<Kvr16s, C1, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_16s_C3R, replaceBy<Kvr16s, C3, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_16s_C4R, replaceBy<Kvr16s, C4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_16s_AC4R, replaceBy<Kvr16s, AC4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_16s_C1IR, inPlace<replaceBy<Kvr16s, C1, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_16s_C3IR, inPlace<replaceBy<Kvr16s, C3, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_16s_C4IR, inPlace<replaceBy<Kvr16s, C4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_16s_AC4IR, inPlace<replaceBy<Kvr16s, AC4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_32f_C1R, replaceBy<Kvr32f, C1, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_32f_C3R, replaceBy<Kvr32f, C3, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_32f_C4R, replaceBy<Kvr32f, C4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_32f_AC4R, replaceBy<Kvr32f, AC4, kvrCmpLess>);
KVRI_EXPORT(kvriThreshold_LTVal_32f_C1IR, inPlace<replaceBy<Kvr32f, C1, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_32f_C3IR, inPlace<replaceBy<Kvr32f, C3, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_32f_C4IR, inPlace<replaceBy<Kvr32f, C4, kvrCmpLess>>);
KVRI_EXPORT(kvriThreshold_LTVal_32f_AC4IR, inPlace<replaceBy<Kvr32f, AC4, kvrCmpLess>>);

KVRI_EXPORT(kvriThreshold_LTValGTVal_8u_C1R, replaceOutside<Kvr8u, C1>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_8u_C3R, replaceOutside<Kvr8u, C3>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_8u_AC4R, replaceOutside<Kvr8u, AC4>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_8u_C1IR, inPlace<replaceOutside<Kvr8u, C1>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_8u_C3IR, inPlace<replaceOutside<Kvr8u, C3>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_8u_AC4IR, inPlace<replaceOutside<Kvr8u, AC4>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16u_C1R, replaceOutside<Kvr16u, C1>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16u_C3R, replaceOutside<Kvr16u, C3>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16u_AC4R, replaceOutside<Kvr16u, AC4>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16u_C1IR, inPlace<replaceOutside<Kvr16u, C1>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16u_C3IR, inPlace<replaceOutside<Kvr16u, C3>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16u_AC4IR, inPlace<replaceOutside<Kvr16u, AC4>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16s_C1R, replaceOutside<Kvr16s, C1>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16s_C3R, replaceOutside<Kvr16s, C3>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16s_AC4R, replaceOutside<Kvr16s, AC4>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16s_C1IR, inPlace<replaceOutside<Kvr16s, C1>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16s_C3IR, inPlace<replaceOutside<Kvr16s, C3>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_16s_AC4IR, inPlace<replaceOutside<Kvr16s, AC4>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_32f_C1R, replaceOutside<Kvr32f, C1>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_32f_C3R, replaceOutside<Kvr32f, C3>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_32f_AC4R, replaceOutside<Kvr32f, AC4>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_32f_C1IR, inPlace<replaceOutside<Kvr32f, C1>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_32f_C3IR, inPlace<replaceOutside<Kvr32f, C3>>);
KVRI_EXPORT(kvriThreshold_LTValGTVal_32f_AC4IR, inPlace<replaceOutside<Kvr32f, AC4>>);

}  // namespace
}  // namespace kvri
