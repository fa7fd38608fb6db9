// pointops/add.cpp: Add and AddC.
#include "kvri/pointops.h"
#include "pointops/sum.h"

namespace kvri {
namespace {

struct Sum {
    template <class V>
    static V saturated(V a, V b) {
        if constexpr (kHolds<V, float>) return a + b;
        else if constexpr (kHolds<V, int32_t>) {
            const V r = (V)((Vec<uint32_t>)a + (Vec<uint32_t>)b);
            return saturateOverflow(~(a ^ b) & (a ^ r), a, r);
        } else return addSat(a, b);
    }

    template <class V>
    static auto half(V a, V b) {
        if constexpr (kHolds<V, int16_t>) return ~average((Vec<uint16_t>)a ^ 0x7FFF, (Vec<uint16_t>)b ^ 0x7FFF);
        else if constexpr (std::is_signed_v<ElementOf<V>>) return (a & b) + ((a ^ b) >> 1);
        else return average(a, b) - (cut(a, b) & 1);
    }

    template <class V>
    static V cut(V a, V b) {
        return a ^ b;
    }
};

struct Add : AnyValues {
    template <class T>
    static constexpr Checks checks = kComplex<T> ? Checks::SizeThenSteps : Checks::NoSteps;

    template <class T, class Task>
    static KvrStatus run(const Task& task, int scaleFactor) {
        using P = PartOf<T>;
        mapScaled<P, Sum>(task, scaleFactor, 8 * int(sizeof(P)) + std::is_unsigned_v<P>);
        return kvrStatusOk;
    }

    template <class T, class Task>
    static KvrStatus run(const Task& task) {
        task(Saturated<PartOf<T>, Sum>{});
        return kvrStatusOk;
    }
};

KVRI_EXPORT(kvriAdd_8u_C1RSfs, twoImages<Add, Kvr8u, C1>);
KVRI_EXPORT(kvriAdd_8u_C3RSfs, twoImages<Add, Kvr8u, C3>);
KVRI_EXPORT(kvriAdd_8u_C4RSfs, twoImages<Add, Kvr8u, C4>);
KVRI_EXPORT(kvriAdd_8u_AC4RSfs, twoImages<Add, Kvr8u, AC4>);
KVRI_EXPORT(kvriAdd_8u_C1IRSfs, twoImagesInPlace<Add, Kvr8u, C1>);
KVRI_EXPORT(kvriAdd_8u_C3IRSfs, twoImagesInPlace<Add, Kvr8u, C3>);
KVRI_EXPORT(kvriAdd_8u_C4IRSfs, twoImagesInPlace<Add, Kvr8u, C4>);
KVRI_EXPORT(kvriAdd_8u_AC4IRSfs, twoImagesInPlace<Add, Kvr8u, AC4>);
KVRI_EXPORT(kvriAdd_16u_C1RSfs, twoImages<Add, Kvr16u, C1>);
KVRI_EXPORT(kvriAdd_16u_C3RSfs, twoImages<Add, Kvr16u, C3>);
KVRI_EXPORT(kvriAdd_16u_C4RSfs, twoImages<Add, Kvr16u, C4>);
KVRI_EXPORT(kvriAdd_16u_AC4RSfs, twoImages<Add, Kvr16u, AC4>);
KVRI_EXPORT(kvriAdd_16u_C1IRSfs, twoImagesInPlace<Add, Kvr16u, C1>);
KVRI_EXPORT(kvriAdd_16u_C3IRSfs, twoImagesInPlace<Add, Kvr16u, C3>);
KVRI_EXPORT(kvriAdd_16u_C4IRSfs, twoImagesInPlace<Add, Kvr16u, C4>);
KVRI_EXPORT(kvriAdd_16u_AC4IRSfs, twoImagesInPlace<Add, Kvr16u, AC4>);
KVRI_EXPORT(kvriAdd_16s_C1RSfs, twoImages<Add, Kvr16s, C1>);
KVRI_EXPORT(kvriAdd_16s_C3RSfs, twoImages<Add, Kvr16s, C3>);
KVRI_EXPORT(kvriAdd_16s_C4RSfs, twoImages<Add, Kvr16s, C4>);
KVRI_EXPORT(kvriAdd_16s_AC4RSfs, twoImages<Add, Kvr16s, AC4>);
KVRI_EXPORT(kvriAdd_16s_C1IRSfs, twoImagesInPlace<Add, Kvr16s, C1>);
KVRI_EXPORT(kvriAdd_16s_C3IRSfs, twoImagesInPlace<Add, Kvr16s, C3>);
KVRI_EXPORT(kvriAdd_16s_C4IRSfs, twoImagesInPlace<Add, Kvr16s, C4>);
KVRI_EXPORT(kvriAdd_16s_AC4IRSfs, twoImagesInPlace<Add, Kvr16s, AC4>);
KVRI_EXPORT(kvriAdd_16sc_C1RSfs, twoImages<Add, Kvr16sc, C1>);
KVRI_EXPORT(kvriAdd_16sc_C3RSfs, twoImages<Add, Kvr16sc, C3>);
KVRI_EXPORT(kvriAdd_16sc_AC4RSfs, twoImages<Add, Kvr16sc, AC4>);
KVRI_EXPORT(kvriAdd_16sc_C1IRSfs, twoImagesInPlace<Add, Kvr16sc, C1>);
KVRI_EXPORT(kvriAdd_16sc_C3IRSfs, twoImagesInPlace<Add, Kvr16sc, C3>);
KVRI_EXPORT(kvriAdd_16sc_AC4IRSfs, twoImagesInPlace<Add, Kvr16sc, AC4>);
KVRI_EXPORT(kvriAdd_32sc_C1RSfs, twoImages<Add, Kvr32sc, C1>);
KVRI_EXPORT(kvriAdd_32sc_C3RSfs, twoImages<Add, Kvr32sc, C3>);
KVRI_EXPORT(kvriAdd_32sc_AC4RSfs, twoImages<Add, Kvr32sc, AC4>);
KVRI_EXPORT(kvriAdd_32sc_C1IRSfs, twoImagesInPlace<Add, Kvr32sc, C1>);
KVRI_EXPORT(kvriAdd_32sc_C3IRSfs, twoImagesInPlace<Add, Kvr32sc, C3>);
KVRI_EXPORT(kvriAdd_32sc_AC4IRSfs, twoImagesInPlace<Add, Kvr32sc, AC4>);
KVRI_EXPORT(kvriAdd_32f_C1R, twoImages<Add, Kvr32f, C1>);
KVRI_EXPORT(kvriAdd_32f_C3R, twoImages<Add, Kvr32f, C3>);
KVRI_EXPORT(kvriAdd_32f_C4R, twoImages<Add, Kvr32f, C4>);
KVRI_EXPORT(kvriAdd_32f_AC4R, twoImages<Add, Kvr32f, AC4>);
KVRI_EXPORT(kvriAdd_32f_C1IR, twoImagesInPlace<Add, Kvr32f, C1>);
KVRI_EXPORT(kvriAdd_32f_C3IR, twoImagesInPlace<Add, Kvr32f, C3>);
KVRI_EXPORT(kvriAdd_32f_C4IR, twoImagesInPlace<Add, Kvr32f, C4>);
KVRI_EXPORT(kvriAdd_32f_AC4IR, twoImagesInPlace<Add, Kvr32f, AC4>);
KVRI_EXPORT(kvriAdd_32fc_C1R, twoImages<Add, Kvr32fc, C1>);
KVRI_EXPORT(kvriAdd_32fc_C3R, twoImages<Add, Kvr32fc, C3>);
KVRI_EXPORT(kvriAdd_32fc_AC4R, twoImages<Add, Kvr32fc, AC4>);
KVRI_EXPORT(kvriAdd_32fc_C1IR, twoImagesInPlace<Add, Kvr32fc, C1>);
KVRI_EXPORT(kvriAdd_32fc_C3IR, twoImagesInPlace<Add, Kvr32fc, C3>);
KVRI_EXPORT(kvriAdd_32fc_AC4IR, twoImagesInPlace<Add, Kvr32fc, AC4>);

KVRI_EXPORT(kvriAddC_8u_C1RSfs, imageAndValue<Add, Kvr8u>);
KVRI_EXPORT(kvriAddC_8u_C3RSfs, imageAndValues<Add, Kvr8u, C3>);
KVRI_EXPORT(kvriAddC_8u_C4RSfs, imageAndValues<Add, Kvr8u, C4>);
KVRI_EXPORT(kvriAddC_8u_AC4RSfs, imageAndValues<Add, Kvr8u, AC4>);
KVRI_EXPORT(kvriAddC_8u_C1IRSfs, valueInPlace<Add, Kvr8u>);
KVRI_EXPORT(kvriAddC_8u_C3IRSfs, valuesInPlace<Add, Kvr8u, C3>);
KVRI_EXPORT(kvriAddC_8u_C4IRSfs, valuesInPlace<Add, Kvr8u, C4>);
KVRI_EXPORT(kvriAddC_8u_AC4IRSfs, valuesInPlace<Add, Kvr8u, AC4>);
KVRI_EXPORT(kvriAddC_16u_C1RSfs, imageAndValue<Add, Kvr16u>);
KVRI_EXPORT(kvriAddC_16u_C3RSfs, imageAndValues<Add, Kvr16u, C3>);
KVRI_EXPORT(kvriAddC_16u_C4RSfs, imageAndValues<Add, Kvr16u, C4>);
KVRI_EXPORT(kvriAddC_16u_AC4RSfs, imageAndValues<Add, Kvr16u, AC4>);
KVRI_EXPORT(kvriAddC_16u_C1IRSfs, valueInPlace<Add, Kvr16u>);
KVRI_EXPORT(kvriAddC_16u_C3IRSfs, valuesInPlace<Add, Kvr16u, C3>);
KVRI_EXPORT(kvriAddC_16u_C4IRSfs, valuesInPlace<Add, Kvr16u, C4>);
KVRI_EXPORT(kvriAddC_16u_AC4IRSfs, valuesInPlace<Add, Kvr16u, AC4>);
KVRI_EXPORT(kvriAddC_16s_C1RSfs, imageAndValue<Add, Kvr16s>);
KVRI_EXPORT(kvriAddC_16s_C3RSfs, imageAndValues<Add, Kvr16s, C3>);
KVRI_EXPORT(kvriAddC_16s_C4RSfs, imageAndValues<Add, Kvr16s, C4>);
KVRI_EXPORT(kvriAddC_16s_AC4RSfs, imageAndValues<Add, Kvr16s, AC4>);
KVRI_EXPORT(kvriAddC_16s_C1IRSfs, valueInPlace<Add, Kvr16s>);
KVRI_EXPORT(kvriAddC_16s_C3IRSfs, valuesInPlace<Add, Kvr16s, C3>);
KVRI_EXPORT(kvriAddC_16s_C4IRSfs, valuesInPlace<Add, Kvr16s, C4>);
KVRI_EXPORT(kvriAddC_16s_AC4IRSfs, valuesInPlace<Add, Kvr16s, AC4>);
KVRI_EXPORT(kvriAddC_16sc_C1RSfs, imageAndValue<Add, Kvr16sc>);
KVRI_EXPORT(kvriAddC_16sc_C3RSfs, imageAndValues<Add, Kvr16sc, C3>);
KVRI_EXPORT(kvriAddC_16sc_AC4RSfs, imageAndValues<Add, Kvr16sc, AC4>);
KVRI_EXPORT(kvriAddC_16sc_C1IRSfs, valueInPlace<Add, Kvr16sc>);
KVRI_EXPORT(kvriAddC_16sc_C3IRSfs, valuesInPlace<Add, Kvr16sc, C3>);
KVRI_EXPORT(kvriAddC_16sc_AC4IRSfs, valuesInPlace<Add, Kvr16sc, AC4>);
KVRI_EXPORT(kvriAddC_32sc_C1RSfs, imageAndValue<Add, Kvr32sc>);
KVRI_EXPORT(kvriAddC_32sc_C3RSfs, imageAndValues<Add, Kvr32sc, C3>);
KVRI_EXPORT(kvriAddC_32sc_AC4RSfs, imageAndValues<Add, Kvr32sc, AC4>);
KVRI_EXPORT(kvriAddC_32sc_C1IRSfs, valueInPlace<Add, Kvr32sc>);
KVRI_EXPORT(kvriAddC_32sc_C3IRSfs, valuesInPlace<Add, Kvr32sc, C3>);
KVRI_EXPORT(kvriAddC_32sc_AC4IRSfs, valuesInPlace<Add, Kvr32sc, AC4>);
KVRI_EXPORT(kvriAddC_32f_C1R, imageAndValue<Add, Kvr32f>);
KVRI_EXPORT(kvriAddC_32f_C3R, imageAndValues<Add, Kvr32f, C3>);
KVRI_EXPORT(kvriAddC_32f_C4R, imageAndValues<Add, Kvr32f, C4>);
KVRI_EXPORT(kvriAddC_32f_AC4R, imageAndValues<Add, Kvr32f, AC4>);
KVRI_EXPORT(kvriAddC_32f_C1IR, valueInPlace<Add, Kvr32f>);
KVRI_EXPORT(kvriAddC_32f_C3IR, valuesInPlace<Add, Kvr32f, C3>);
KVRI_EXPORT(kvriAddC_32f_C4IR, valuesInPlace<Add, Kvr32f, C4>);
KVRI_EXPORT(kvriAddC_32f_AC4IR, valuesInPlace<Add, Kvr32f, AC4>);
KVRI_EXPORT(kvriAddC_32fc_C1R, imageAndValue<Add, Kvr32fc>);
KVRI_EXPORT(kvriAddC_32fc_C3R, imageAndValues<Add, Kvr32fc, C3>);
KVRI_EXPORT(kvriAddC_32fc_AC4R, imageAndValues<Add, Kvr32fc, AC4>);
KVRI_EXPORT(kvriAddC_32fc_C1IR, valueInPlace<Add, Kvr32fc>);
KVRI_EXPORT(kvriAddC_32fc_C3IR, valuesInPlace<Add, Kvr32fc, C3>);
KVRI_EXPORT(kvriAddC_32fc_AC4IR, valuesInPlace<Add, Kvr32fc, AC4>);

}  // namespace
}  // namespace kvri
