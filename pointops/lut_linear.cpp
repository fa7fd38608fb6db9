// pointops/lut_linear.cpp: LUT_Linear, straight lines from level to level.
#include "kvri/pointops.h"
#include "pointops/lut.h"
#include "pointops/lutfloat.h"

namespace kvri {
namespace {

struct Linear {
    static constexpr double compareCost = 3, levelCost = 0.25, lookUpCost = 2, tableCost = 60000;

    // Of integers, in double precision; the offset holds the half that rounds, as the result is cut off.
    template <class T>
    struct Piece {
        using Rounding = CutOff;
        static constexpr bool isConstant = false;
        double slope, offset;
        template <class D>
        D at(D i) const { return i * slope + offset; }
        T operator()(int i) const { return rounded<T, Rounding>(at(double(i))); }
        static constexpr Piece identity() { return {1, 0}; }
    };

    template <class T>
    static Piece<T> piece(const Curve<T>& curve, int k, Interval<T> interval) {
        const double value = curve.values[k], level = curve.levels[k];
        if (interval.end - interval.first == 1) return {0, value};
        const double slope = (curve.values[k + 1] - value) / (curve.levels[k + 1] - level);
        return {slope, value + 0.5 - level * slope};
    }

    template <class T, class L>
    static void mapByComparing(const Curve<T> (&curves)[L::colours], const Images& images) {
        mapByPieces<Linear, T, L>(curves, images);
    }

    // The first interval in index order, in single precision; samples in none stay.
    template <class L>
    static void mapFloats(const Curve<Kvr32f> (&curves)[L::colours], const Images& images) {
        mapIntervals<L>(curves, images, [](const Curve<Kvr32f>& curve, Vec<float> x, auto rises) KVRI_INLINE {
            using V = Vec<float>;
            V level{}, value{}, nextLevel = splat<V>(1), nextValue{};
            const auto found = forEachInterval<rises>(curve, x, [&](auto held, int k) KVRI_INLINE {
                level = held ? splat<V>(curve.levels[k]) : level;
                value = held ? splat<V>(curve.values[k]) : value;
                nextLevel = held ? splat<V>(curve.levels[k + 1]) : nextLevel;
                nextValue = held ? splat<V>(curve.values[k + 1]) : nextValue;
            });
            return found ? value + (x - level) * ((nextValue - value) / (nextLevel - level)) : x;
        });
    }
};

KVRI_EXPORT(kvriLUT_Linear_8u_C1R, lutSamples<Linear, Kvr8u>);
KVRI_EXPORT(kvriLUT_Linear_8u_C1IR, lutSamplesInPlace<Linear, Kvr8u>);
KVRI_EXPORT(kvriLUT_Linear_8u_C3R, lutPixels<Linear, Kvr8u, C3>);
KVRI_EXPORT(kvriLUT_Linear_8u_C3IR, lutPixelsInPlace<Linear, Kvr8u, C3>);
KVRI_EXPORT(kvriLUT_Linear_8u_C4R, lutPixels<Linear, Kvr8u, C4>);
KVRI_EXPORT(kvriLUT_Linear_8u_C4IR, lutPixelsInPlace<Linear, Kvr8u, C4>);
KVRI_EXPORT(kvriLUT_Linear_8u_AC4R, lutPixels<Linear, Kvr8u, AC4>);
KVRI_EXPORT(kvriLUT_Linear_8u_AC4IR, lutPixelsInPlace<Linear, Kvr8u, AC4>);
KVRI_EXPORT(kvriLUT_Linear_16u_C1R, lutSamples<Linear, Kvr16u>);
KVRI_EXPORT(kvriLUT_Linear_16u_C1IR, lutSamplesInPlace<Linear, Kvr16u>);
KVRI_EXPORT(kvriLUT_Linear_16u_C3R, lutPixels<Linear, Kvr16u, C3>);
KVRI_EXPORT(kvriLUT_Linear_16u_C3IR, lutPixelsInPlace<Linear, Kvr16u, C3>);
KVRI_EXPORT(kvriLUT_Linear_16u_C4R, lutPixels<Linear, Kvr16u, C4>);
KVRI_EXPORT(kvriLUT_Linear_16u_C4IR, lutPixelsInPlace<Linear, Kvr16u, C4>);
KVRI_EXPORT(kvriLUT_Linear_16u_AC4R, lutPixels<Linear, Kvr16u, AC4>);
KVRI_EXPORT(kvriLUT_Linear_16u_AC4IR, lutPixelsInPlace<Linear, Kvr16u, AC4>);
KVRI_EXPORT(kvriLUT_Linear_16s_C1R, lutSamples<Linear, Kvr16s>);
KVRI_EXPORT(kvriLUT_Linear_16s_C1IR, lutSamplesInPlace<Linear, Kvr16s>);
KVRI_EXPORT(kvriLUT_Linear_16s_C3R, lutPixels<Linear, Kvr16s, C3>);
KVRI_EXPORT(kvriLUT_Linear_16s_C3IR, lutPixelsInPlace<Linear, Kvr16s, C3>);
KVRI_EXPORT(kvriLUT_Linear_16s_C4R, lutPixels<Linear, Kvr16s, C4>);
KVRI_EXPORT(kvriLUT_Linear_16s_C4IR, lutPixelsInPlace<Linear, Kvr16s, C4>);
KVRI_EXPORT(kvriLUT_Linear_16s_AC4R, lutPixels<Linear, Kvr16s, AC4>);
KVRI_EXPORT(kvriLUT_Linear_16s_AC4IR, lutPixelsInPlace<Linear, Kvr16s, AC4>);
KVRI_EXPORT(kvriLUT_Linear_32f_C1R, lutSamples<Linear, Kvr32f>);
KVRI_EXPORT(kvriLUT_Linear_32f_C1IR, lutSamplesInPlace<Linear, Kvr32f>);
KVRI_EXPORT(kvriLUT_Linear_32f_C3R, lutPixels<Linear, Kvr32f, C3>);
KVRI_EXPORT(kvriLUT_Linear_32f_C3IR, lutPixelsInPlace<Linear, Kvr32f, C3>);
KVRI_EXPORT(kvriLUT_Linear_32f_C4R, lutPixels<Linear, Kvr32f, C4>);
KVRI_EXPORT(kvriLUT_Linear_32f_C4IR, lutPixelsInPlace<Linear, Kvr32f, C4>);
KVRI_EXPORT(kvriLUT_Linear_32f_AC4R, lutPixels<Linear, Kvr32f, AC4>);
KVRI_EXPORT(kvriLUT_Linear_32f_AC4IR, lutPixelsInPlace<Linear, Kvr32f, AC4>);

}  // namespace
}  // namespace kvri
