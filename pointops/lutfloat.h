// pointops/lutfloat.h: 32f samples are compared with the levels, in whatever order these are: the first interval in index
// order that holds a sample is its own.
#pragma once

#include "pointops/lut.h"

namespace kvri {

// Calls take(held, k) for intervals; the last call in which `held` is set for a sample was for its interval. Gives the samples
// that lie in any interval. Levels that rise need one comparison each.
template <bool Rises, class Take>
KVRI_INLINE inline Vec<int32_t> forEachInterval(const Curve<Kvr32f>& curve, Vec<float> x, Take take) {
    const auto level = [&](int k) KVRI_INLINE { return splat<Vec<float>>(curve.levels[k]); };
    if constexpr (Rises) {
        for (int k = 0; k + 1 < curve.n; ++k) take(x >= level(k), k);
        return (x >= level(0)) & (x < level(curve.n - 1));
    } else {
        Vec<int32_t> found{};
        for (int k = curve.n - 2; k >= 0; --k) {
            const Vec<int32_t> held = (x >= level(k)) & (x < level(k + 1));
            take(held, k);
            found |= held;
        }
        return found;
    }
}

// op(curve, samples, whether the levels rise as a constant) gives the results' vector.
template <class L, class Op>
void mapIntervals(const Curve<Kvr32f> (&curves)[L::colours], const Images& images, Op op) {
    const auto map = [&](auto rises) {
        images.eachRow<L::channels * sizeof(Kvr32f)>([&](auto s, auto d, ptrdiff_t pixels) KVRI_INLINE {
            mapChannels<Kvr32f, L>([&](auto x, auto c) KVRI_INLINE { return op(curves[c], x, rises); }, s, d, pixels);
        });
    };
    if (std::all_of(curves, curves + L::colours, [](const auto& curve) { return curve.rises(); })) map(std::true_type{});
    else map(std::false_type{});
}

}  // namespace kvri
