// pointops/lut.cpp: LUT, the value of the interval that a sample lies in.
#include "kvri/pointops.h"
#include "pointops/lut.h"
#include "pointops/lutfloat.h"

namespace kvri {
namespace {

struct Step {
    static constexpr double compareCost = 0.5, levelCost = 0.25, lookUpCost = 2, tableCost = 6000;

    template <class T>
    struct Piece {
        static constexpr bool isConstant = true;
        T value;
        T operator()(int) const { return value; }
    };

    template <class T>
    static Piece<T> piece(const Curve<T>& curve, int k, Interval<T>) {
        return {saturated<T>(curve.values[k])};
    }

    template <class T, class L>
    static void mapByComparing(const Curve<T> (&curves)[L::colours], const Images& images) {
        Steps<T> steps[L::colours];
        T last[L::colours];
        bool ends[L::colours];
        for (int c = 0; c < L::colours; ++c) {
            const Curve<T>& curve = curves[c];
            for (int k = 0; k + 1 < curve.n; ++k) steps[c].add(curve.levels[k], saturated<T>(curve.values[k]));
            const int end = firstFrom<T>(curve.levels[curve.n - 1]);
            ends[c] = end < kEnd<T>;
            last[c] = T(end);
        }
        images.eachRow<L::channels * sizeof(T)>([&](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE {
            mapChannels<T, L>([&](auto x, auto c) KVRI_INLINE {
                const auto r = steps[c](x, x);
                return ends[c] ? x >= splat<Vec<T>>(last[c]) ? x : r : r;
            }, s, d, pixels);
        });
    }

    // The first interval in index order; samples in none stay.
    template <class L>
    static void mapFloats(const Curve<Kvr32f> (&curves)[L::colours], const Images& images) {
        mapIntervals<L>(curves, images, [](const Curve<Kvr32f>& curve, Vec<float> x, auto rises) KVRI_INLINE {
            Vec<float> r = x;
            const auto found = forEachInterval<rises>(curve, x, [&](auto held, int k) KVRI_INLINE {
                r = held ? splat<Vec<float>>(curve.values[k]) : r;
            });
            return found ? r : x;
        });
    }
};

KVRI_EXPORT(kvriLUT_8u_C1R, lutSamples<Step, Kvr8u>);
KVRI_EXPORT(kvriLUT_8u_C1IR, lutSamplesInPlace<Step, Kvr8u>);
KVRI_EXPORT(kvriLUT_8u_C3R, lutPixels<Step, Kvr8u, C3>);
KVRI_EXPORT(kvriLUT_8u_C3IR, lutPixelsInPlace<Step, Kvr8u, C3>);
KVRI_EXPORT(kvriLUT_8u_C4R, lutPixels<Step, Kvr8u, C4>);
KVRI_EXPORT(kvriLUT_8u_C4IR, lutPixelsInPlace<Step, Kvr8u, C4>);
KVRI_EXPORT(kvriLUT_8u_AC4R, lutPixels<Step, Kvr8u, AC4>);
KVRI_EXPORT(kvriLUT_8u_AC4IR, lutPixelsInPlace<Step, Kvr8u, AC4>);
KVRI_EXPORT(kvriLUT_16u_C1R, lutSamples<Step, Kvr16u>);
KVRI_EXPORT(kvriLUT_16u_C1IR, lutSamplesInPlace<Step, Kvr16u>);
KVRI_EXPORT(kvriLUT_16u_C3R, lutPixels<Step, Kvr16u, C3>);
KVRI_EXPORT(kvriLUT_16u_C3IR, lutPixelsInPlace<Step, Kvr16u, C3>);
KVRI_EXPORT(kvriLUT_16u_C4R, lutPixels<Step, Kvr16u, C4>);
KVRI_EXPORT(kvriLUT_16u_C4IR, lutPixelsInPlace<Step, Kvr16u, C4>);
KVRI_EXPORT(kvriLUT_16u_AC4R, lutPixels<Step, Kvr16u, AC4>);
KVRI_EXPORT(kvriLUT_16u_AC4IR, lutPixelsInPlace<Step, Kvr16u, AC4>);
KVRI_EXPORT(kvriLUT_16s_C1R, lutSamples<Step, Kvr16s>);
KVRI_EXPORT(kvriLUT_16s_C1IR, lutSamplesInPlace<Step, Kvr16s>);
KVRI_EXPORT(kvriLUT_16s_C3R, lutPixels<Step, Kvr16s, C3>);
KVRI_EXPORT(kvriLUT_16s_C3IR, lutPixelsInPlace<Step, Kvr16s, C3>);
KVRI_EXPORT(kvriLUT_16s_C4R, lutPixels<Step, Kvr16s, C4>);
KVRI_EXPORT(kvriLUT_16s_C4IR, lutPixelsInPlace<Step, Kvr16s, C4>);
KVRI_EXPORT(kvriLUT_16s_AC4R, lutPixels<Step, Kvr16s, AC4>);
KVRI_EXPORT(kvriLUT_16s_AC4IR, lutPixelsInPlace<Step, Kvr16s, AC4>);
KVRI_EXPORT(kvriLUT_32f_C1R, lutSamples<Step, Kvr32f>);
KVRI_EXPORT(kvriLUT_32f_C1IR, lutSamplesInPlace<Step, Kvr32f>);
KVRI_EXPORT(kvriLUT_32f_C3R, lutPixels<Step, Kvr32f, C3>);
KVRI_EXPORT(kvriLUT_32f_C3IR, lutPixelsInPlace<Step, Kvr32f, C3>);
KVRI_EXPORT(kvriLUT_32f_C4R, lutPixels<Step, Kvr32f, C4>);
KVRI_EXPORT(kvriLUT_32f_C4IR, lutPixelsInPlace<Step, Kvr32f, C4>);
KVRI_EXPORT(kvriLUT_32f_AC4R, lutPixels<Step, Kvr32f, AC4>);
KVRI_EXPORT(kvriLUT_32f_AC4IR, lutPixelsInPlace<Step, Kvr32f, AC4>);

}  // namespace
}  // namespace kvri
