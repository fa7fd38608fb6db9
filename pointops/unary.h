// pointops/unary.h: the bodies of the families of one operand.
//
// A family is a struct whose run<T>(task, scaleFactor...) chooses the operation and hands it to the task, which maps it over
// the image.
#pragma once

#include <cmath>

#include "pointops/arithmetic.h"
#include "pointops/bytetable.h"

namespace kvri {

// Any operation on bytes, for the cost of computing 256 of them.
class TableOf {
    ByteTable table_;

public:
    using Sample = uint8_t;
    static constexpr int unrolled = 2;

    template <class Op>
    explicit TableOf(const Op& op) {
        alignas(Bytes<>) uint8_t result[256];
        for (int first = 0; first < 256; first += kVectorBytes)
            store(result + first, op(constant<Bytes<>>([](int i) { return i; }) + uint8_t(first)));
        table_ = ByteTable(result);
    }
    Bytes<> operator()(Bytes<> v) const { return table_(v); }
};

template <class T, class L>
struct OneImage {
    Operand a;
    Result d;
    KvriSize roi;

    // Calls step(write, inside, vector) for every vector, as forEachOperand does.
    template <class Op, class Step>
    void each(Step step) const {
        if constexpr (L::channels != L::colours) eachPixel<sizeof(T) * 4, sizeof(T) * 3, Op>(1, step);
        else eachPixel<sizeof(T), sizeof(T), Op>(L::channels, step);
    }

    template <class Op>
    void operator()(const Op& operation) const {
        const Op op = operation;
        each<Op>([&](auto write, auto, auto v) KVRI_INLINE { write(op(v)); });
    }

    void clear() const { kvri::clear<T, L>(d, roi); }

private:
    template <int B, int Chosen, class Op, class Step>
    void eachPixel(int perPixel, Step step) const {
        const ptrdiff_t pixelBytes = ptrdiff_t(perPixel) * B;
        eachRow(roi, [&](auto pa, auto pd, ptrdiff_t pixels) KVRI_INLINE {
            forEachOperand<B, Chosen, Op>(pixels * perPixel, pd, step, FromImage<B>{pa});
        }, source(a.p, a.step, pixelBytes), destination(d.p, d.step, pixelBytes));
    }
};

// f of every sample, in 32 bits, and saturated. Samples of 16s are not negative.
template <class T, class F>
Vec<T> mapWidened(Vec<T> v, F f) {
    using H = Vec<uint16_t>;
    using Wide = Vec<int32_t>;
    const auto half = [&]<class R>(H h, R) { return narrow<R>(f((Wide)widenLow(h)), f((Wide)widenHigh(h))); };
    if constexpr (sizeof(T) == 1) return narrow<T>(half(widenLow(v), int16_t()), half(widenHigh(v), int16_t()));
    else return half((H)v, T());
}

// 2^-scaleFactor; from 2^20 on every sample but 0 and ln 1 saturates, below 2^-40 nothing is left of any.
inline float scaleOf(int scaleFactor) { return std::ldexp(1.0f, -std::clamp(scaleFactor, -20, 40)); }

template <class Family, class T, class L, class... Scale>
KvrStatus unary(const T* pSrc, int srcStep, T* pDst, int dstStep, KvriSize roi, Scale... scale) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), hasPixels(roi), positiveSteps(srcStep, dstStep))) return e;
    return Family::template run<T>(OneImage<T, L>{{pSrc, srcStep}, {pDst, dstStep}, roi}, scale...);
}

template <class Family, class T, class L, class... Scale>
KvrStatus unaryInPlace(T* pSrcDst, int srcDstStep, KvriSize roi, Scale... scale) {
    return unary<Family, T, L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, scale...);
}

}  // namespace kvri
