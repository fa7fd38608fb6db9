// pointops/sub.cpp: Sub and SubC. The first operand is the subtrahend.
#include "kvri/pointops.h"
#include "pointops/sum.h"

namespace kvri {
namespace {

struct Difference {
    template <class V>
    static V saturated(V a, V b) {
        if constexpr (kHolds<V, float>) return b - a;
        else if constexpr (kHolds<V, int32_t>) {
            const V r = (V)((Vec<uint32_t>)b - (Vec<uint32_t>)a);
            return saturateOverflow((a ^ b) & (b ^ r), b, r);
        } else return subSat(b, a);
    }

    // Unsigned results below 0 are 0.
    template <class V>
    static auto half(V a, V b) {
        if constexpr (kHolds<V, int16_t>) return average((Vec<uint16_t>)b ^ 0x8000, (Vec<uint16_t>)a ^ 0x7FFF);
        else if constexpr (std::is_signed_v<ElementOf<V>>) return (b | ~a) - ((b ^ ~a) >> 1);
        else return subSat(b, a) >> 1;
    }

    template <class V>
    static V cut(V a, V b) {
        if constexpr (std::is_signed_v<ElementOf<V>>) return a ^ b;
        else return subSat(b, a);
    }
};

struct Sub : AnyValues {
    template <class T>
    static constexpr Checks checks = kComplex<T> ? Checks::SizeThenSteps : Checks::NoSteps;

    template <class T, class Task>
    static KvrStatus run(const Task& task, int scaleFactor) {
        using P = PartOf<T>;
        mapScaled<P, Difference>(task, scaleFactor, 8 * int(sizeof(P)));
        return kvrStatusOk;
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        task(Saturated<PartOf<T>, Difference>{});
        return kvrStatusOk;
    }
};

KVRI_EXPORT(kvriSub_8u_C1RSfs, twoImages<Sub, Kvr8u, C1>);
KVRI_EXPORT(kvriSub_8u_C3RSfs, twoImages<Sub, Kvr8u, C3>);
KVRI_EXPORT(kvriSub_8u_C4RSfs, twoImages<Sub, Kvr8u, C4>);
KVRI_EXPORT(kvriSub_8u_AC4RSfs, twoImages<Sub, Kvr8u, AC4>);
KVRI_EXPORT(kvriSub_8u_C1IRSfs, twoImagesInPlace<Sub, Kvr8u, C1>);
KVRI_EXPORT(kvriSub_8u_C3IRSfs, twoImagesInPlace<Sub, Kvr8u, C3>);
KVRI_EXPORT(kvriSub_8u_C4IRSfs, twoImagesInPlace<Sub, Kvr8u, C4>);
KVRI_EXPORT(kvriSub_8u_AC4IRSfs, twoImagesInPlace<Sub, Kvr8u, AC4>);
KVRI_EXPORT(kvriSub_16u_C1RSfs, twoImages<Sub, Kvr16u, C1>);
KVRI_EXPORT(kvriSub_16u_C3RSfs, twoImages<Sub, Kvr16u, C3>);
KVRI_EXPORT(kvriSub_16u_C4RSfs, twoImages<Sub, Kvr16u, C4>);
KVRI_EXPORT(kvriSub_16u_AC4RSfs, twoImages<Sub, Kvr16u, AC4>);
KVRI_EXPORT(kvriSub_16u_C1IRSfs, twoImagesInPlace<Sub, Kvr16u, C1>);
KVRI_EXPORT(kvriSub_16u_C3IRSfs, twoImagesInPlace<Sub, Kvr16u, C3>);
KVRI_EXPORT(kvriSub_16u_C4IRSfs, twoImagesInPlace<Sub, Kvr16u, C4>);
KVRI_EXPORT(kvriSub_16u_AC4IRSfs, twoImagesInPlace<Sub, Kvr16u, AC4>);
KVRI_EXPORT(kvriSub_16s_C1RSfs, twoImages<Sub, Kvr16s, C1>);
KVRI_EXPORT(kvriSub_16s_C3RSfs, twoImages<Sub, Kvr16s, C3>);
KVRI_EXPORT(kvriSub_16s_C4RSfs, twoImages<Sub, Kvr16s, C4>);
KVRI_EXPORT(kvriSub_16s_AC4RSfs, twoImages<Sub, Kvr16s, AC4>);
KVRI_EXPORT(kvriSub_16s_C1IRSfs, twoImagesInPlace<Sub, Kvr16s, C1>);
KVRI_EXPORT(kvriSub_16s_C3IRSfs, twoImagesInPlace<Sub, Kvr16s, C3>);
KVRI_EXPORT(kvriSub_16s_C4IRSfs, twoImagesInPlace<Sub, Kvr16s, C4>);
KVRI_EXPORT(kvriSub_16s_AC4IRSfs, twoImagesInPlace<Sub, Kvr16s, AC4>);
KVRI_EXPORT(kvriSub_16sc_C1RSfs, twoImages<Sub, Kvr16sc, C1>);
KVRI_EXPORT(kvriSub_16sc_C3RSfs, twoImages<Sub, Kvr16sc, C3>);
KVRI_EXPORT(kvriSub_16sc_AC4RSfs, twoImages<Sub, Kvr16sc, AC4>);
KVRI_EXPORT(kvriSub_16sc_C1IRSfs, twoImagesInPlace<Sub, Kvr16sc, C1>);
KVRI_EXPORT(kvriSub_16sc_C3IRSfs, twoImagesInPlace<Sub, Kvr16sc, C3>);
KVRI_EXPORT(kvriSub_16sc_AC4IRSfs, twoImagesInPlace<Sub, Kvr16sc, AC4>);
KVRI_EXPORT(kvriSub_32sc_C1RSfs, twoImages<Sub, Kvr32sc, C1>);
KVRI_EXPORT(kvriSub_32sc_C3RSfs, twoImages<Sub, Kvr32sc, C3>);
KVRI_EXPORT(kvriSub_32sc_AC4RSfs, twoImages<Sub, Kvr32sc, AC4>);
KVRI_EXPORT(kvriSub_32sc_C1IRSfs, twoImagesInPlace<Sub, Kvr32sc, C1>);
KVRI_EXPORT(kvriSub_32sc_C3IRSfs, twoImagesInPlace<Sub, Kvr32sc, C3>);
KVRI_EXPORT(kvriSub_32sc_AC4IRSfs, twoImagesInPlace<Sub, Kvr32sc, AC4>);
KVRI_EXPORT(kvriSub_32f_C1R, twoImages<Sub, Kvr32f, C1>);
KVRI_EXPORT(kvriSub_32f_C3R, twoImages<Sub, Kvr32f, C3>);
KVRI_EXPORT(kvriSub_32f_C4R, twoImages<Sub, Kvr32f, C4>);
KVRI_EXPORT(kvriSub_32f_AC4R, twoImages<Sub, Kvr32f, AC4>);
KVRI_EXPORT(kvriSub_32f_C1IR, twoImagesInPlace<Sub, Kvr32f, C1>);
KVRI_EXPORT(kvriSub_32f_C3IR, twoImagesInPlace<Sub, Kvr32f, C3>);
KVRI_EXPORT(kvriSub_32f_C4IR, twoImagesInPlace<Sub, Kvr32f, C4>);
KVRI_EXPORT(kvriSub_32f_AC4IR, twoImagesInPlace<Sub, Kvr32f, AC4>);
KVRI_EXPORT(kvriSub_32fc_C1R, twoImages<Sub, Kvr32fc, C1>);
KVRI_EXPORT(kvriSub_32fc_C3R, twoImages<Sub, Kvr32fc, C3>);
KVRI_EXPORT(kvriSub_32fc_AC4R, twoImages<Sub, Kvr32fc, AC4>);
KVRI_EXPORT(kvriSub_32fc_C1IR, twoImagesInPlace<Sub, Kvr32fc, C1>);
KVRI_EXPORT(kvriSub_32fc_C3IR, twoImagesInPlace<Sub, Kvr32fc, C3>);
KVRI_EXPORT(kvriSub_32fc_AC4IR, twoImagesInPlace<Sub, Kvr32fc, AC4>);

KVRI_EXPORT(kvriSubC_8u_C1RSfs, imageAndValue<Sub, Kvr8u>);
KVRI_EXPORT(kvriSubC_8u_C3RSfs, imageAndValues<Sub, Kvr8u, C3>);
KVRI_EXPORT(kvriSubC_8u_C4RSfs, imageAndValues<Sub, Kvr8u, C4>);
KVRI_EXPORT(kvriSubC_8u_AC4RSfs, imageAndValues<Sub, Kvr8u, AC4>);
KVRI_EXPORT(kvriSubC_8u_C1IRSfs, valueInPlace<Sub, Kvr8u>);
KVRI_EXPORT(kvriSubC_8u_C3IRSfs, valuesInPlace<Sub, Kvr8u, C3>);
KVRI_EXPORT(kvriSubC_8u_C4IRSfs, valuesInPlace<Sub, Kvr8u, C4>);
KVRI_EXPORT(kvriSubC_8u_AC4IRSfs, valuesInPlace<Sub, Kvr8u, AC4>);
KVRI_EXPORT(kvriSubC_16u_C1RSfs, imageAndValue<Sub, Kvr16u>);
KVRI_EXPORT(kvriSubC_16u_C3RSfs, imageAndValues<Sub, Kvr16u, C3>);
KVRI_EXPORT(kvriSubC_16u_C4RSfs, imageAndValues<Sub, Kvr16u, C4>);
KVRI_EXPORT(kvriSubC_16u_AC4RSfs, imageAndValues<Sub, Kvr16u, AC4>);
KVRI_EXPORT(kvriSubC_16u_C1IRSfs, valueInPlace<Sub, Kvr16u>);
KVRI_EXPORT(kvriSubC_16u_C3IRSfs, valuesInPlace<Sub, Kvr16u, C3>);
KVRI_EXPORT(kvriSubC_16u_C4IRSfs, valuesInPlace<Sub, Kvr16u, C4>);
KVRI_EXPORT(kvriSubC_16u_AC4IRSfs, valuesInPlace<Sub, Kvr16u, AC4>);
KVRI_EXPORT(kvriSubC_16s_C1RSfs, imageAndValue<Sub, Kvr16s>);
KVRI_EXPORT(kvriSubC_16s_C3RSfs, imageAndValues<Sub, Kvr16s, C3>);
KVRI_EXPORT(kvriSubC_16s_C4RSfs, imageAndValues<Sub, Kvr16s, C4>);
KVRI_EXPORT(kvriSubC_16s_AC4RSfs, imageAndValues<Sub, Kvr16s, AC4>);
KVRI_EXPORT(kvriSubC_16s_C1IRSfs, valueInPlace<Sub, Kvr16s>);
KVRI_EXPORT(kvriSubC_16s_C3IRSfs, valuesInPlace<Sub, Kvr16s, C3>);
KVRI_EXPORT(kvriSubC_16s_C4IRSfs, valuesInPlace<Sub, Kvr16s, C4>);
KVRI_EXPORT(kvriSubC_16s_AC4IRSfs, valuesInPlace<Sub, Kvr16s, AC4>);
KVRI_EXPORT(kvriSubC_16sc_C1RSfs, imageAndValue<Sub, Kvr16sc>);
KVRI_EXPORT(kvriSubC_16sc_C3RSfs, imageAndValues<Sub, Kvr16sc, C3>);
KVRI_EXPORT(kvriSubC_16sc_AC4RSfs, imageAndValues<Sub, Kvr16sc, AC4>);
KVRI_EXPORT(kvriSubC_16sc_C1IRSfs, valueInPlace<Sub, Kvr16sc>);
KVRI_EXPORT(kvriSubC_16sc_C3IRSfs, valuesInPlace<Sub, Kvr16sc, C3>);
KVRI_EXPORT(kvriSubC_16sc_AC4IRSfs, valuesInPlace<Sub, Kvr16sc, AC4>);
KVRI_EXPORT(kvriSubC_32sc_C1RSfs, imageAndValue<Sub, Kvr32sc>);
KVRI_EXPORT(kvriSubC_32sc_C3RSfs, imageAndValues<Sub, Kvr32sc, C3>);
KVRI_EXPORT(kvriSubC_32sc_AC4RSfs, imageAndValues<Sub, Kvr32sc, AC4>);
KVRI_EXPORT(kvriSubC_32sc_C1IRSfs, valueInPlace<Sub, Kvr32sc>);
KVRI_EXPORT(kvriSubC_32sc_C3IRSfs, valuesInPlace<Sub, Kvr32sc, C3>);
KVRI_EXPORT(kvriSubC_32sc_AC4IRSfs, valuesInPlace<Sub, Kvr32sc, AC4>);
KVRI_EXPORT(kvriSubC_32f_C1R, imageAndValue<Sub, Kvr32f>);
KVRI_EXPORT(kvriSubC_32f_C3R, imageAndValues<Sub, Kvr32f, C3>);
KVRI_EXPORT(kvriSubC_32f_C4R, imageAndValues<Sub, Kvr32f, C4>);
KVRI_EXPORT(kvriSubC_32f_AC4R, imageAndValues<Sub, Kvr32f, AC4>);
KVRI_EXPORT(kvriSubC_32f_C1IR, valueInPlace<Sub, Kvr32f>);
KVRI_EXPORT(kvriSubC_32f_C3IR, valuesInPlace<Sub, Kvr32f, C3>);
KVRI_EXPORT(kvriSubC_32f_C4IR, valuesInPlace<Sub, Kvr32f, C4>);
KVRI_EXPORT(kvriSubC_32f_AC4IR, valuesInPlace<Sub, Kvr32f, AC4>);
KVRI_EXPORT(kvriSubC_32fc_C1R, imageAndValue<Sub, Kvr32fc>);
KVRI_EXPORT(kvriSubC_32fc_C3R, imageAndValues<Sub, Kvr32fc, C3>);
KVRI_EXPORT(kvriSubC_32fc_AC4R, imageAndValues<Sub, Kvr32fc, AC4>);
KVRI_EXPORT(kvriSubC_32fc_C1IR, valueInPlace<Sub, Kvr32fc>);
KVRI_EXPORT(kvriSubC_32fc_C3IR, valuesInPlace<Sub, Kvr32fc, C3>);
KVRI_EXPORT(kvriSubC_32fc_AC4IR, valuesInPlace<Sub, Kvr32fc, AC4>);

}  // namespace
}  // namespace kvri
