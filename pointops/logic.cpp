// pointops/logic.cpp: And, Or, Xor, their forms with constants, and Not: bits do not know their sample type.
#include "kvri/pointops.h"
#include "pointops/arithmetic.h"

namespace kvri {
namespace {

struct AndBits {
    using Sample = uint8_t;
    static constexpr int unrolled = 4;
    Bytes<> operator()(Bytes<> a, Bytes<> b) const { return a & b; }
};

struct OrBits {
    using Sample = uint8_t;
    static constexpr int unrolled = 4;
    Bytes<> operator()(Bytes<> a, Bytes<> b) const { return a | b; }
};

struct XorBits {
    using Sample = uint8_t;
    static constexpr int unrolled = 4;
    Bytes<> operator()(Bytes<> a, Bytes<> b) const { return a ^ b; }
};

struct NotBits {
    using Sample = uint8_t;
    static constexpr int unrolled = 4;
    Bytes<> operator()(Bytes<> a) const { return ~a; }
};

template <class Op>
struct Logic : AnyValues {
    template <class T>
    static constexpr Checks checks = Checks::StepsThenSize;

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        task.asBytes()(Op{});
        return kvrStatusOk;
    }
};
using And = Logic<AndBits>;
using Or = Logic<OrBits>;
using Xor = Logic<XorBits>;

template <class L>
KvrStatus complement(const Kvr8u* pSrc, int srcStep, Kvr8u* pDst, int dstStep, KvriSize roi) {
    if (KvrStatus e = firstError(nonNull(pSrc, pDst), positiveSteps(srcStep, dstStep), hasPixels(roi))) return e;
    mapPatterns<Kvr8u, L>(NotBits{}, {pSrc, srcStep}, {pDst, dstStep}, roi);
    return kvrStatusOk;
}

KVRI_EXPORT(kvriAnd_8u_C1R, twoImages<And, Kvr8u, C1>);
KVRI_EXPORT(kvriAnd_8u_C3R, twoImages<And, Kvr8u, C3>);
KVRI_EXPORT(kvriAnd_8u_C4R, twoImages<And, Kvr8u, C4>);
KVRI_EXPORT(kvriAnd_8u_AC4R, twoImages<And, Kvr8u, AC4>);
KVRI_EXPORT(kvriAnd_8u_C1IR, twoImagesInPlace<And, Kvr8u, C1>);
KVRI_EXPORT(kvriAnd_8u_C3IR, twoImagesInPlace<And, Kvr8u, C3>);
KVRI_EXPORT(kvriAnd_8u_C4IR, twoImagesInPlace<And, Kvr8u, C4>);
KVRI_EXPORT(kvriAnd_8u_AC4IR, twoImagesInPlace<And, Kvr8u, AC4>);
KVRI_EXPORT(kvriAnd_16u_C1R, twoImages<And, Kvr16u, C1>);
KVRI_EXPORT(kvriAnd_16u_C3R, twoImages<And, Kvr16u, C3>);
KVRI_EXPORT(kvriAnd_16u_C4R, twoImages<And, Kvr16u, C4>);
KVRI_EXPORT(kvriAnd_16u_AC4R, twoImages<And, Kvr16u, AC4>);
KVRI_EXPORT(kvriAnd_16u_C1IR, twoImagesInPlace<And, Kvr16u, C1>);
KVRI_EXPORT(kvriAnd_16u_C3IR, twoImagesInPlace<And, Kvr16u, C3>);
KVRI_EXPORT(kvriAnd_16u_C4IR, twoImagesInPlace<And, Kvr16u, C4>);
KVRI_EXPORT(kvriAnd_16u_AC4IR, twoImagesInPlace<And, Kvr16u, AC4>);
KVRI_EXPORT(kvriAnd_32s_C1R, twoImages<And, Kvr32s, C1>);
KVRI_EXPORT(kvriAnd_32s_C3R, twoImages<And, Kvr32s, C3>);
KVRI_EXPORT(kvriAnd_32s_C4R, twoImages<And, Kvr32s, C4>);
KVRI_EXPORT(kvriAnd_32s_AC4R, twoImages<And, Kvr32s, AC4>);
KVRI_EXPORT(kvriAnd_32s_C1IR, twoImagesInPlace<And, Kvr32s, C1>);
KVRI_EXPORT(kvriAnd_32s_C3IR, twoImagesInPlace<And, Kvr32s, C3>);
KVRI_EXPORT(kvriAnd_32s_C4IR, twoImagesInPlace<And, Kvr32s, C4>);
KVRI_EXPORT(kvriAnd_32s_AC4IR, twoImagesInPlace<And, Kvr32s, AC4>);

KVRI_EXPORT(kvriAndC_8u_C1R, imageAndValue<And, Kvr8u>);
KVRI_EXPORT(kvriAndC_8u_C3R, imageAndValues<And, Kvr8u, C3>);
KVRI_EXPORT(kvriAndC_8u_C4R, imageAndValues<And, Kvr8u, C4>);
KVRI_EXPORT(kvriAndC_8u_AC4R, imageAndValues<And, Kvr8u, AC4>);
KVRI_EXPORT(kvriAndC_8u_C1IR, valueInPlace<And, Kvr8u>);
KVRI_EXPORT(kvriAndC_8u_C3IR, valuesInPlace<And, Kvr8u, C3>);
KVRI_EXPORT(kvriAndC_8u_C4IR, valuesInPlace<And, Kvr8u, C4>);
KVRI_EXPORT(kvriAndC_8u_AC4IR, valuesInPlace<And, Kvr8u, AC4>);
KVRI_EXPORT(kvriAndC_16u_C1R, imageAndValue<And, Kvr16u>);
KVRI_EXPORT(kvriAndC_16u_C3R, imageAndValues<And, Kvr16u, C3>);
KVRI_EXPORT(kvriAndC_16u_C4R, imageAndValues<And, Kvr16u, C4>);
KVRI_EXPORT(kvriAndC_16u_AC4R, imageAndValues<And, Kvr16u, AC4>);
KVRI_EXPORT(kvriAndC_16u_C1IR, valueInPlace<And, Kvr16u>);
KVRI_EXPORT(kvriAndC_16u_C3IR, valuesInPlace<And, Kvr16u, C3>);
KVRI_EXPORT(kvriAndC_16u_C4IR, valuesInPlace<And, Kvr16u, C4>);
KVRI_EXPORT(kvriAndC_16u_AC4IR, valuesInPlace<And, Kvr16u, AC4>);
KVRI_EXPORT(kvriAndC_32s_C1R, imageAndValue<And, Kvr32s>);
KVRI_EXPORT(kvriAndC_32s_C3R, imageAndValues<And, Kvr32s, C3>);
KVRI_EXPORT(kvriAndC_32s_C4R, imageAndValues<And, Kvr32s, C4>);
KVRI_EXPORT(kvriAndC_32s_AC4R, imageAndValues<And, Kvr32s, AC4>);
KVRI_EXPORT(kvriAndC_32s_C1IR, valueInPlace<And, Kvr32s>);
KVRI_EXPORT(kvriAndC_32s_C3IR, valuesInPlace<And, Kvr32s, C3>);
KVRI_EXPORT(kvriAndC_32s_C4IR, valuesInPlace<And, Kvr32s, C4>);
KVRI_EXPORT(kvriAndC_32s_AC4IR, valuesInPlace<And, Kvr32s, AC4>);

KVRI_EXPORT(kvriOr_8u_C1R, twoImages<Or, Kvr8u, C1>);
KVRI_EXPORT(kvriOr_8u_C3R, twoImages<Or, Kvr8u, C3>);
KVRI_EXPORT(kvriOr_8u_C4R, twoImages<Or, Kvr8u, C4>);
KVRI_EXPORT(kvriOr_8u_AC4R, twoImages<Or, Kvr8u, AC4>);
KVRI_EXPORT(kvriOr_8u_C1IR, twoImagesInPlace<Or, Kvr8u, C1>);
KVRI_EXPORT(kvriOr_8u_C3IR, twoImagesInPlace<Or, Kvr8u, C3>);
KVRI_EXPORT(kvriOr_8u_C4IR, twoImagesInPlace<Or, Kvr8u, C4>);
KVRI_EXPORT(kvriOr_8u_AC4IR, twoImagesInPlace<Or, Kvr8u, AC4>);
KVRI_EXPORT(kvriOr_16u_C1R, twoImages<Or, Kvr16u, C1>);
KVRI_EXPORT(kvriOr_16u_C3R, twoImages<Or, Kvr16u, C3>);
KVRI_EXPORT(kvriOr_16u_C4R, twoImages<Or, Kvr16u, C4>);
KVRI_EXPORT(kvriOr_16u_AC4R, twoImages<Or, Kvr16u, AC4>);
KVRI_EXPORT(kvriOr_16u_C1IR, twoImagesInPlace<Or, Kvr16u, C1>);
KVRI_EXPORT(kvriOr_16u_C3IR, twoImagesInPlace<Or, Kvr16u, C3>);
KVRI_EXPORT(kvriOr_16u_C4IR, twoImagesInPlace<Or, Kvr16u, C4>);
KVRI_EXPORT(kvriOr_16u_AC4IR, twoImagesInPlace<Or, Kvr16u, AC4>);
KVRI_EXPORT(kvriOr_32s_C1R, twoImages<Or, Kvr32s, C1>);
KVRI_EXPORT(kvriOr_32s_C3R, twoImages<Or, Kvr32s, C3>);
KVRI_EXPORT(kvriOr_32s_C4R, twoImages<Or, Kvr32s, C4>);
KVRI_EXPORT(kvriOr_32s_AC4R, twoImages<Or, Kvr32s, AC4>);
KVRI_EXPORT(kvriOr_32s_C1IR, twoImagesInPlace<Or, Kvr32s, C1>);
KVRI_EXPORT(kvriOr_32s_C3IR, twoImagesInPlace<Or, Kvr32s, C3>);
KVRI_EXPORT(kvriOr_32s_C4IR, twoImagesInPlace<Or, Kvr32s, C4>);
KVRI_EXPORT(kvriOr_32s_AC4IR, twoImagesInPlace<Or, Kvr32s, AC4>);

KVRI_EXPORT(kvriOrC_8u_C1R, imageAndValue<Or, Kvr8u>);
KVRI_EXPORT(kvriOrC_8u_C3R, imageAndValues<Or, Kvr8u, C3>);
KVRI_EXPORT(kvriOrC_8u_C4R, imageAndValues<Or, Kvr8u, C4>);
KVRI_EXPORT(kvriOrC_8u_AC4R, imageAndValues<Or, Kvr8u, AC4>);
KVRI_EXPORT(kvriOrC_8u_C1IR, valueInPlace<Or, Kvr8u>);
KVRI_EXPORT(kvriOrC_8u_C3IR, valuesInPlace<Or, Kvr8u, C3>);
KVRI_EXPORT(kvriOrC_8u_C4IR, valuesInPlace<Or, Kvr8u, C4>);
KVRI_EXPORT(kvriOrC_8u_AC4IR, valuesInPlace<Or, Kvr8u, AC4>);
KVRI_EXPORT(kvriOrC_16u_C1R, imageAndValue<Or, Kvr16u>);
KVRI_EXPORT(kvriOrC_16u_C3R, imageAndValues<Or, Kvr16u, C3>);
KVRI_EXPORT(kvriOrC_16u_C4R, imageAndValues<Or, Kvr16u, C4>);
KVRI_EXPORT(kvriOrC_16u_AC4R, imageAndValues<Or, Kvr16u, AC4>);
KVRI_EXPORT(kvriOrC_16u_C1IR, valueInPlace<Or, Kvr16u>);
KVRI_EXPORT(kvriOrC_16u_C3IR, valuesInPlace<Or, Kvr16u, C3>);
KVRI_EXPORT(kvriOrC_16u_C4IR, valuesInPlace<Or, Kvr16u, C4>);
KVRI_EXPORT(kvriOrC_16u_AC4IR, valuesInPlace<Or, Kvr16u, AC4>);
KVRI_EXPORT(kvriOrC_32s_C1R, imageAndValue<Or, Kvr32s>);
KVRI_EXPORT(kvriOrC_32s_C3R, imageAndValues<Or, Kvr32s, C3>);
KVRI_EXPORT(kvriOrC_32s_C4R, imageAndValues<Or, Kvr32s, C4>);
KVRI_EXPORT(kvriOrC_32s_AC4R, imageAndValues<Or, Kvr32s, AC4>);
KVRI_EXPORT(kvriOrC_32s_C1IR, valueInPlace<Or, Kvr32s>);
KVRI_EXPORT(kvriOrC_32s_C3IR, valuesInPlace<Or, Kvr32s, C3>);
KVRI_EXPORT(kvriOrC_32s_C4IR, valuesInPlace<Or, Kvr32s, C4>);
KVRI_EXPORT(kvriOrC_32s_AC4IR, valuesInPlace<Or, Kvr32s, AC4>);

KVRI_EXPORT(kvriXor_8u_C1R, twoImages<Xor, Kvr8u, C1>);
KVRI_EXPORT(kvriXor_8u_C3R, twoImages<Xor, Kvr8u, C3>);
KVRI_EXPORT(kvriXor_8u_C4R, twoImages<Xor, Kvr8u, C4>);
KVRI_EXPORT(kvriXor_8u_AC4R, twoImages<Xor, Kvr8u, AC4>);
KVRI_EXPORT(kvriXor_8u_C1IR, twoImagesInPlace<Xor, Kvr8u, C1>);
KVRI_EXPORT(kvriXor_8u_C3IR, twoImagesInPlace<Xor, Kvr8u, C3>);
KVRI_EXPORT(kvriXor_8u_C4IR, twoImagesInPlace<Xor, Kvr8u, C4>);
KVRI_EXPORT(kvriXor_8u_AC4IR, twoImagesInPlace<Xor, Kvr8u, AC4>);
KVRI_EXPORT(kvriXor_16u_C1R, twoImages<Xor, Kvr16u, C1>);
KVRI_EXPORT(kvriXor_16u_C3R, twoImages<Xor, Kvr16u, C3>);
KVRI_EXPORT(kvriXor_16u_C4R, twoImages<Xor, Kvr16u, C4>);
KVRI_EXPORT(kvriXor_16u_AC4R, twoImages<Xor, Kvr16u, AC4>);
KVRI_EXPORT(kvriXor_16u_C1IR, twoImagesInPlace<Xor, Kvr16u, C1>);
KVRI_EXPORT(kvriXor_16u_C3IR, twoImagesInPlace<Xor, Kvr16u, C3>);
KVRI_EXPORT(kvriXor_16u_C4IR, twoImagesInPlace<Xor, Kvr16u, C4>);
KVRI_EXPORT(kvriXor_16u_AC4IR, twoImagesInPlace<Xor, Kvr16u, AC4>);
KVRI_EXPORT(kvriXor_32s_C1R, twoImages<Xor, Kvr32s, C1>);
KVRI_EXPORT(kvriXor_32s_C3R, twoImages<Xor, Kvr32s, C3>);
KVRI_EXPORT(kvriXor_32s_C4R, twoImages<Xor, Kvr32s, C4>);
KVRI_EXPORT(kvriXor_32s_AC4R, twoImages<Xor, Kvr32s, AC4>);
KVRI_EXPORT(kvriXor_32s_C1IR, twoImagesInPlace<Xor, Kvr32s, C1>);
KVRI_EXPORT(kvriXor_32s_C3IR, twoImagesInPlace<Xor, Kvr32s, C3>);
KVRI_EXPORT(kvriXor_32s_C4IR, twoImagesInPlace<Xor, Kvr32s, C4>);
KVRI_EXPORT(kvriXor_32s_AC4IR, twoImagesInPlace<Xor, Kvr32s, AC4>);

KVRI_EXPORT(kvriXorC_8u_C1R, imageAndValue<Xor, Kvr8u>);
KVRI_EXPORT(kvriXorC_8u_C3R, imageAndValues<Xor, Kvr8u, C3>);
KVRI_EXPORT(kvriXorC_8u_C4R, imageAndValues<Xor, Kvr8u, C4>);
KVRI_EXPORT(kvriXorC_8u_AC4R, imageAndValues<Xor, Kvr8u, AC4>);
KVRI_EXPORT(kvriXorC_8u_C1IR, valueInPlace<Xor, Kvr8u>);
KVRI_EXPORT(kvriXorC_8u_C3IR, valuesInPlace<Xor, Kvr8u, C3>);
KVRI_EXPORT(kvriXorC_8u_C4IR, valuesInPlace<Xor, Kvr8u, C4>);
KVRI_EXPORT(kvriXorC_8u_AC4IR, valuesInPlace<Xor, Kvr8u, AC4>);
KVRI_EXPORT(kvriXorC_16u_C1R, imageAndValue<Xor, Kvr16u>);
KVRI_EXPORT(kvriXorC_16u_C3R, imageAndValues<Xor, Kvr16u, C3>);
KVRI_EXPORT(kvriXorC_16u_C4R, imageAndValues<Xor, Kvr16u, C4>);
KVRI_EXPORT(kvriXorC_16u_AC4R, imageAndValues<Xor, Kvr16u, AC4>);
KVRI_EXPORT(kvriXorC_16u_C1IR, valueInPlace<Xor, Kvr16u>);
KVRI_EXPORT(kvriXorC_16u_C3IR, valuesInPlace<Xor, Kvr16u, C3>);
KVRI_EXPORT(kvriXorC_16u_C4IR, valuesInPlace<Xor, Kvr16u, C4>);
KVRI_EXPORT(kvriXorC_16u_AC4IR, valuesInPlace<Xor, Kvr16u, AC4>);
KVRI_EXPORT(kvriXorC_32s_C1R, imageAndValue<Xor, Kvr32s>);
KVRI_EXPORT(kvriXorC_32s_C3R, imageAndValues<Xor, Kvr32s, C3>);
KVRI_EXPORT(kvriXorC_32s_C4R, imageAndValues<Xor, Kvr32s, C4>);
KVRI_EXPORT(kvriXorC_32s_AC4R, imageAndValues<Xor, Kvr32s, AC4>);
KVRI_EXPORT(kvriXorC_32s_C1IR, valueInPlace<Xor, Kvr32s>);
KVRI_EXPORT(kvriXorC_32s_C3IR, valuesInPlace<Xor, Kvr32s, C3>);
KVRI_EXPORT(kvriXorC_32s_C4IR, valuesInPlace<Xor, Kvr32s, C4>);
KVRI_EXPORT(kvriXorC_32s_AC4IR, valuesInPlace<Xor, Kvr32s, AC4>);

KVRI_EXPORT(kvriNot_8u_C1R, complement<C1>);
KVRI_EXPORT(kvriNot_8u_C3R, complement<C3>);
KVRI_EXPORT(kvriNot_8u_C4R, complement<C4>);
KVRI_EXPORT(kvriNot_8u_AC4R, complement<AC4>);
KVRI_EXPORT(kvriNot_8u_C1IR, inPlace<complement<C1>>);
KVRI_EXPORT(kvriNot_8u_C3IR, inPlace<complement<C3>>);
KVRI_EXPORT(kvriNot_8u_C4IR, inPlace<complement<C4>>);
KVRI_EXPORT(kvriNot_8u_AC4IR, inPlace<complement<AC4>>);

}  // namespace
}  // namespace kvri
