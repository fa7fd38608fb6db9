// pointops/arithmetic.h: the bodies of the two-operand families: two images, or an image and a constant.
//
// A family is a struct: `checks<T>` says which steps it checks and when, and run<T>(task, scaleFactor...) chooses the
// operation and hands it to the task, which maps it over the images. Operations take the operands in the order of the
// arguments: op(source 1, source 2), and op(constant, source). Families of one image and any number of constants map their
// operations with mapPatterns.
#pragma once

#include "core/check.h"
#include "core/dispatch.h"
#include "core/map.h"
#include "datamove/fill.h"

namespace kvri {

enum class Checks { NoSteps, SizeThenSteps, StepsThenSize };

// Of families that accept any constant.
struct AnyValues {
    template <class T>
    static KvrStatus checkValues(const T*, int) { return kvrStatusOk; }
};

template <Checks order, class... Step>
constexpr KvrStatus sizeAndSteps(KvriSize roi, Step... step) {
    if constexpr (order == Checks::NoSteps) return hasPixels(roi);
    else if constexpr (order == Checks::SizeThenSteps) return firstError(hasPixels(roi), positiveSteps(step...));
    else return firstError(positiveSteps(step...), hasPixels(roi));
}

// -scaleFactor of a negative one; beyond the widest type nothing changes.
constexpr int magnitude(int scaleFactor) { return scaleFactor < -64 ? 64 : -scaleFactor; }

// Complex samples are two parts.
template <class T>
struct PartsOf { using Part = T; static constexpr int parts = 1; };
template <> struct PartsOf<Kvr16sc> { using Part = Kvr16s; static constexpr int parts = 2; };
template <> struct PartsOf<Kvr32sc> { using Part = Kvr32s; static constexpr int parts = 2; };
template <> struct PartsOf<Kvr32fc> { using Part = Kvr32f; static constexpr int parts = 2; };
template <class T>
using PartOf = typename PartsOf<T>::Part;
template <class T>
constexpr bool kComplex = PartsOf<T>::parts == 2;

// The images of a call, as bytes.
struct Operand {
    const void* p;
    int step;
};
struct Result {
    void* p;
    int step;
};

// Pixels of B bytes, of which the first `Chosen` are processed; `perPixel` of them make a pixel of the ROI.
template <int B, int Chosen, class Op>
void mapTwo(const Op& op, Operand a, Operand b, Result d, KvriSize roi, int perPixel) {
    const ptrdiff_t pixelBytes = ptrdiff_t(perPixel) * B;
    eachRow(roi, [&](auto pa, auto pb, auto pd, ptrdiff_t pixels) KVRI_INLINE {
        mapRow<B, Chosen>(op, pd, pixels * perPixel, FromImage<B>{pa}, FromImage<B>{pb});
    }, source(a.p, a.step, pixelBytes), source(b.p, b.step, pixelBytes), destination(d.p, d.step, pixelBytes));
}

template <int B, int Chosen, class Op, class... Values>
KVRI_INLINE inline void mapWithValues(const Op& op, Operand b, Result d, KvriSize roi, int perPixel, const Values&... values) {
    const ptrdiff_t pixelBytes = ptrdiff_t(perPixel) * B;
    eachRow(roi, [&](auto pb, auto pd, ptrdiff_t pixels) KVRI_INLINE {
        mapRow<B, Chosen>(op, pd, pixels * perPixel, values..., FromImage<B>{pb});
    }, source(b.p, b.step, pixelBytes), destination(d.p, d.step, pixelBytes));
}

// The same for divisions. Divisors of 0 are rare: op(a, b) need not care for them, op.careful(a, b) does where one is seen,
// and op.zeros(a) tells where they are. Any zero among the processed channels makes the status a warning.
template <int B, int Chosen, class Op>
KvrStatus mapQuotients(const Op& operation, Operand a, Operand b, Result d, KvriSize roi, int perPixel) {
    const ptrdiff_t pixelBytes = ptrdiff_t(perPixel) * B;
    const Op op = operation;
    Bytes<> found{};
    eachRow(roi, [&](auto pa, auto pb, auto pd, ptrdiff_t pixels) KVRI_INLINE {
        forEachOperand<B, Chosen, Op>(pixels * perPixel, pd, [&](auto write, auto inside, auto va, auto vb) KVRI_INLINE {
            if (!Op::anyZero(va)) [[likely]] return write(op(va, vb));
            found |= inside((Bytes<>)Op::zeros(va));
            write(op.careful(va, vb));
        }, FromImage<B>{pa}, FromImage<B>{pb});
    }, source(a.p, a.step, pixelBytes), source(b.p, b.step, pixelBytes), destination(d.p, d.step, pixelBytes));
    return allZero(found) ? kvrStatusOk : kvrStatusDivByZeroWarning;
}

// The destination's processed channels become 0: for scale factors that leave nothing of any result.
template <class T, class L>
void clear(Result d, KvriSize roi) {
    constexpr int B = sizeof(T) * L::channels, chosen = sizeof(T) * L::colours;
    const uint8_t zero[B] = {};
    if constexpr (B == chosen) fill<B>(zero, d.p, d.step, roi);
    else fillChosen<B, chosen, B>(zero, d.p, d.step, roi);
}

template <class L>
constexpr bool kAlpha = L::channels != L::colours;

// A layout of samples as one of their bytes: for operations that take bits as they are.
template <class T, class L>
struct BytesOf {
    static constexpr int channels = sizeof(T) * L::channels, colours = sizeof(T) * L::colours;
};

// Values that fit into a vector a whole number of times are a pattern of samples, in which pixels do not matter.
template <class L>
constexpr bool kWholePixels = kAlpha<L> || L::channels % 3 == 0;

// Constants as they are.
template <class T>
struct ValuePattern {
    template <int B>
    struct Of : FromValue<B> {
        Of(const T* values, int n) : FromValue<B>(values, n * int(sizeof(T))) {}
    };
};

// One value per colour as a source of samples of T: Pattern<B> repeats values, one per sample, in pixels of B bytes.
template <template <int> class Pattern, class T, class L, class Value>
auto patternOf(const Value* values) {
    constexpr int S = sizeof(T), B = S * L::channels, lane = std::max(16, B);
    if constexpr (kWholePixels<L>) return Pattern<B>(values, L::colours);
    else return Pattern<lane>(values, L::channels);
}
template <class L, class T>
auto pattern(const T* values) {
    return patternOf<ValuePattern<T>::template Of, T, L>(values);
}

// op(values..., image) for values that are patterns.
template <class T, class L, class Op, class... Values>
void mapPatterns(const Op& op, Operand b, Result d, KvriSize roi, const Values&... values) {
    constexpr int S = sizeof(T);
    if constexpr (kAlpha<L> || (kWholePixels<L> && sizeof...(values) > 0))
        mapWithValues<S * L::channels, S * L::colours>(op, b, d, roi, 1, values...);
    else
        mapWithValues<S, S>(op, b, d, roi, L::channels, values...);
}

// What a family's operation is mapped over.
template <class T, class L>
struct TwoImages {
    Operand a, b;
    Result d;
    KvriSize roi;

    template <class Op>
    void operator()(const Op& op) const {
        constexpr int S = sizeof(T);
        if constexpr (kAlpha<L>) mapTwo<S * L::channels, S * L::colours>(op, a, b, d, roi, 1);
        else mapTwo<S, S>(op, a, b, d, roi, L::channels);
    }
    template <class Op>
    KvrStatus quotients(const Op& op) const {
        constexpr int S = sizeof(T);
        if constexpr (kAlpha<L>) return mapQuotients<S * L::channels, S * L::colours>(op, a, b, d, roi, 1);
        else return mapQuotients<S, S>(op, a, b, d, roi, L::channels);
    }
    void clear() const { kvri::clear<T, L>(d, roi); }
    auto asBytes() const { return TwoImages<uint8_t, BytesOf<T, L>>{a, b, d, roi}; }
};

// Values are samples, or of another type where the family's own patterns are made of them.
template <class T, class L, class Value = T>
struct ImageAndValue {
    const Value* value;  // L::colours of them
    Operand b;
    Result d;
    KvriSize roi;

    template <class Op>
    void operator()(const Op& op) const {
        mapPatterns<T, L>(op, b, d, roi, pattern<L>(value));
    }
    // op(what `Pattern` makes of other values, b).
    template <template <int> class Pattern, class Op, class Other>
    void with(const Op& op, const Other* values) const {
        mapPatterns<T, L>(op, b, d, roi, patternOf<Pattern, T, L>(values));
    }
    // No constant divisor is 0.
    template <class Op>
    KvrStatus quotients(const Op& op) const {
        (*this)(op);
        return kvrStatusOk;
    }
    void clear() const { kvri::clear<T, L>(d, roi); }
    auto asBytes() const {
        return ImageAndValue<uint8_t, BytesOf<T, L>>{reinterpret_cast<const uint8_t*>(value), b, d, roi};
    }
};

// Bodies. The scale factor is there for integers only.

template <class Family, class T, class L, class... Scale>
KvrStatus twoImages(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep, KvriSize roi,
                    Scale... scale) {
    if (KvrStatus e = firstError(nonNull(pSrc1, pSrc2, pDst),
                                 sizeAndSteps<Family::template checks<T>>(roi, src1Step, src2Step, dstStep)))
        return e;
    return Family::template run<T>(TwoImages<T, L>{{pSrc1, src1Step}, {pSrc2, src2Step}, {pDst, dstStep}, roi}, scale...);
}

template <class Family, class T, class L, class... Scale>
KvrStatus twoImagesInPlace(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, KvriSize roi, Scale... scale) {
    if (KvrStatus e = firstError(nonNull(pSrc, pSrcDst), sizeAndSteps<Family::template checks<T>>(roi, srcStep, srcDstStep)))
        return e;
    return Family::template run<T>(TwoImages<T, L>{{pSrc, srcStep}, {pSrcDst, srcDstStep}, {pSrcDst, srcDstStep}, roi}, scale...);
}

template <class Family, class T, class L, class Value, class... Scale>
KvrStatus imageAndValues(const T* pSrc, int srcStep, const Value value[L::colours], T* pDst, int dstStep, KvriSize roi,
                         Scale... scale) {
    if (KvrStatus e = firstError(nonNull(pSrc, value, pDst), sizeAndSteps<Family::template checks<T>>(roi, srcStep, dstStep)))
        return e;
    if (KvrStatus e = Family::checkValues(value, L::colours)) return e;
    return Family::template run<T>(ImageAndValue<T, L, Value>{value, {pSrc, srcStep}, {pDst, dstStep}, roi}, scale...);
}

template <class Family, class T, class Value, class... Scale>
KvrStatus imageAndValue(const T* pSrc, int srcStep, Value value, T* pDst, int dstStep, KvriSize roi, Scale... scale) {
    return imageAndValues<Family, T, C1>(pSrc, srcStep, &value, pDst, dstStep, roi, scale...);
}

template <class Family, class T, class L, class Value, class... Scale>
KvrStatus valuesInPlace(const Value value[L::colours], T* pSrcDst, int srcDstStep, KvriSize roi, Scale... scale) {
    return imageAndValues<Family, T, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, scale...);
}

template <class Family, class T, class Value, class... Scale>
KvrStatus valueInPlace(Value value, T* pSrcDst, int srcDstStep, KvriSize roi, Scale... scale) {
    return imageAndValues<Family, T, C1>(pSrcDst, srcDstStep, &value, pSrcDst, srcDstStep, roi, scale...);
}

// Constants as functions take them: for one channel the value itself, else an array.
template <class T, class L>
using Constants = std::conditional_t<L::channels == 1, T, const T*>;
template <class T>
const T* arrayOf(const T& value) { return &value; }
template <class T>
const T* arrayOf(const T* values) { return values; }

// The in-place form of a body of one image.
template <auto body>
struct InPlace;
template <class T, class... Rest, KvrStatus (*body)(const T*, int, T*, int, KvriSize, Rest...)>
struct InPlace<body> {
    static KvrStatus call(T* pSrcDst, int srcDstStep, KvriSize roi, Rest... rest) {
        return body(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, rest...);
    }
};
template <auto body>
constexpr auto inPlace = InPlace<body>::call;

}  // namespace kvri
