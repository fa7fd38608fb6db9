// pointops/lut_cubic.cpp: LUT_Cubic, polynomials through four levels and their values.
//
// Interval k takes the points k - 1 to k + 2, the first and last intervals the first and last four; of fewer levels there are
// fewer points, and the polynomial is of lower degree. Where points share a level and none goes through them, the interval
// is a straight line.
#include "kvri/pointops.h"
#include "pointops/lut.h"
#include "pointops/lutfloat.h"

namespace kvri {
namespace {

// origin, and the coefficients of 1, d, d^2, d^3 of a sample at the distance d from it.
struct Polynomial {
    double origin, c0, c1, c2, c3;
    template <class D>
    D at(D x) const {
        const D d = x - origin;
        return c0 + d * (c1 + d * (c2 + d * c3));
    }
};

using Matrix = std::array<std::array<double, 3>, 3>;

double determinant(const Matrix& m) {
    return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
           m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

// Coefficients by Cramer's rule. The rows of points that are missing say that the coefficient is 0.
template <class Level>
Polynomial throughPoints(const Level* levels, const Level* values, int points) {
    Matrix powers{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    double difference[3] = {};
    const double origin = levels[0], c0 = values[0];
    for (int i = 0; i + 1 < points; ++i) {
        const double d = levels[i + 1] - origin;
        powers[i] = {d, d * d, d * d * d};
        difference[i] = values[i + 1] - c0;
    }
    double c[3];
    for (int j = 0; j < 3; ++j) {
        Matrix replaced = powers;
        for (int i = 0; i < 3; ++i) replaced[i][j] = difference[i];
        c[j] = determinant(replaced) / determinant(powers);
    }
    return {origin, c0, c[0], c[1], c[2]};
}

// No two the same, none a NaN: the determinant of levels that are not may still not come out as 0.
template <class Level>
bool areDistinct(const Level* levels, int points) {
    for (int i = 0; i < points; ++i)
        for (int j = 0; j < i; ++j)
            if (!(levels[i] < levels[j] || levels[i] > levels[j])) return false;
    return true;
}

template <class T>
Polynomial polynomial(const Curve<T>& curve, int k) {
    const int first = std::max(0, std::min(k - 1, curve.n - 4)), points = std::min(curve.n, 4);
    if (areDistinct(curve.levels + first, points)) return throughPoints(curve.levels + first, curve.values + first, points);
    return throughPoints(curve.levels + k, curve.values + k, 2);
}

// The polynomials of a 32f curve: those of the first intervals are at hand, others are made when a sample asks.
class FloatPieces {
    const Curve<Kvr32f>* curve_;
    Polynomial piece_[kFewLevels], made_;
    int madeFor_ = -1;

public:
    void prepare(const Curve<Kvr32f>& curve) {
        curve_ = &curve;
        for (int k = 0; k < std::min(curve.n - 1, kFewLevels); ++k) piece_[k] = polynomial(curve, k);
    }
    // Evaluated in double precision. Number 0 leaves samples as they are.
    float operator()(int number, float x) {
        if (number == 0) return x;
        const int k = number - 1;
        if (k < kFewLevels) return float(piece_[k].at(double(x)));
        if (k != madeFor_) made_ = polynomial(*curve_, madeFor_ = k);
        return float(made_.at(double(x)));
    }
};

struct Cubic {
    static constexpr double compareCost = 5, levelCost = 0.25, lookUpCost = 2, tableCost = 120000;

    template <class T>
    struct Piece : Polynomial {
        using Rounding = HalfUp;
        static constexpr bool isConstant = false;
        T operator()(int i) const { return rounded<T, Rounding>(at(double(i))); }
        static constexpr Piece identity() { return {{0, 0, 1, 0, 0}}; }
    };

    template <class T>
    static Piece<T> piece(const Curve<T>& curve, int k, Interval<T>) {
        return {polynomial(curve, k)};
    }

    template <class T, class L>
    static void mapByComparing(const Curve<T> (&curves)[L::colours], const Images& images) {
        mapByPieces<Cubic, T, L>(curves, images);
    }

    template <class L>
    static void mapFloats(const Curve<Kvr32f> (&curves)[L::colours], const Images& images) {
        FloatPieces pieces[L::colours];
        for (int c = 0; c < L::colours; ++c) pieces[c].prepare(curves[c]);
        const bool rise = std::all_of(curves, curves + L::colours, [](const auto& curve) { return curve.rises(); });
        images.eachRow<L::channels * sizeof(Kvr32f)>([&](const uint8_t* s, uint8_t* d, ptrdiff_t pixels) {
            forEachRun(pixels, [&](ptrdiff_t first, ptrdiff_t n) {
                constexpr int B = L::channels * sizeof(Kvr32f);
                int32_t number[kRun * L::channels];
                auto* numbers = reinterpret_cast<uint8_t*>(number);
                if (rise) numberRow<L, true>(curves, s + first * B, numbers, n);
                else numberRow<L, false>(curves, s + first * B, numbers, n);
                mapSamples<Kvr32f, L>([&](auto c, ptrdiff_t i, float x) KVRI_INLINE { return pieces[c](number[i], x); },
                                      s + first * B, d + first * B, n);
            });
        });
    }

private:
    // 1 more than the interval's index; 0 of samples in none.
    template <class L, bool Rises>
    static void numberRow(const Curve<Kvr32f> (&curves)[L::colours], const uint8_t* src, uint8_t* number, ptrdiff_t pixels) {
        mapChannels<Kvr32f, L>([&](auto x, auto c) KVRI_INLINE {
            Vec<int32_t> r{};
            const auto found = forEachInterval<Rises>(curves[c], x, [&](auto held, int k) KVRI_INLINE {
                r = held ? splat<Vec<int32_t>>(k + 1) : r;
            });
            return r & found;
        }, src, number, pixels);
    }
};

KVRI_EXPORT(kvriLUT_Cubic_8u_C1R, lutSamples<Cubic, Kvr8u>);
KVRI_EXPORT(kvriLUT_Cubic_8u_C1IR, lutSamplesInPlace<Cubic, Kvr8u>);
KVRI_EXPORT(kvriLUT_Cubic_8u_C3R, lutPixels<Cubic, Kvr8u, C3>);
KVRI_EXPORT(kvriLUT_Cubic_8u_C3IR, lutPixelsInPlace<Cubic, Kvr8u, C3>);
KVRI_EXPORT(kvriLUT_Cubic_8u_C4R, lutPixels<Cubic, Kvr8u, C4>);
KVRI_EXPORT(kvriLUT_Cubic_8u_C4IR, lutPixelsInPlace<Cubic, Kvr8u, C4>);
KVRI_EXPORT(kvriLUT_Cubic_8u_AC4R, lutPixels<Cubic, Kvr8u, AC4>);
KVRI_EXPORT(kvriLUT_Cubic_8u_AC4IR, lutPixelsInPlace<Cubic, Kvr8u, AC4>);
KVRI_EXPORT(kvriLUT_Cubic_16u_C1R, lutSamples<Cubic, Kvr16u>);
KVRI_EXPORT(kvriLUT_Cubic_16u_C1IR, lutSamplesInPlace<Cubic, Kvr16u>);
KVRI_EXPORT(kvriLUT_Cubic_16u_C3R, lutPixels<Cubic, Kvr16u, C3>);
KVRI_EXPORT(kvriLUT_Cubic_16u_C3IR, lutPixelsInPlace<Cubic, Kvr16u, C3>);
KVRI_EXPORT(kvriLUT_Cubic_16u_C4R, lutPixels<Cubic, Kvr16u, C4>);
KVRI_EXPORT(kvriLUT_Cubic_16u_C4IR, lutPixelsInPlace<Cubic, Kvr16u, C4>);
KVRI_EXPORT(kvriLUT_Cubic_16u_AC4R, lutPixels<Cubic, Kvr16u, AC4>);
KVRI_EXPORT(kvriLUT_Cubic_16u_AC4IR, lutPixelsInPlace<Cubic, Kvr16u, AC4>);
KVRI_EXPORT(kvriLUT_Cubic_16s_C1R, lutSamples<Cubic, Kvr16s>);
KVRI_EXPORT(kvriLUT_Cubic_16s_C1IR, lutSamplesInPlace<Cubic, Kvr16s>);
KVRI_EXPORT(kvriLUT_Cubic_16s_C3R, lutPixels<Cubic, Kvr16s, C3>);
KVRI_EXPORT(kvriLUT_Cubic_16s_C3IR, lutPixelsInPlace<Cubic, Kvr16s, C3>);
KVRI_EXPORT(kvriLUT_Cubic_16s_C4R, lutPixels<Cubic, Kvr16s, C4>);
KVRI_EXPORT(kvriLUT_Cubic_16s_C4IR, lutPixelsInPlace<Cubic, Kvr16s, C4>);
KVRI_EXPORT(kvriLUT_Cubic_16s_AC4R, lutPixels<Cubic, Kvr16s, AC4>);
KVRI_EXPORT(kvriLUT_Cubic_16s_AC4IR, lutPixelsInPlace<Cubic, Kvr16s, AC4>);
KVRI_EXPORT(kvriLUT_Cubic_32f_C1R, lutSamples<Cubic, Kvr32f>);
KVRI_EXPORT(kvriLUT_Cubic_32f_C1IR, lutSamplesInPlace<Cubic, Kvr32f>);
KVRI_EXPORT(kvriLUT_Cubic_32f_C3R, lutPixels<Cubic, Kvr32f, C3>);
KVRI_EXPORT(kvriLUT_Cubic_32f_C3IR, lutPixelsInPlace<Cubic, Kvr32f, C3>);
KVRI_EXPORT(kvriLUT_Cubic_32f_C4R, lutPixels<Cubic, Kvr32f, C4>);
KVRI_EXPORT(kvriLUT_Cubic_32f_C4IR, lutPixelsInPlace<Cubic, Kvr32f, C4>);
KVRI_EXPORT(kvriLUT_Cubic_32f_AC4R, lutPixels<Cubic, Kvr32f, AC4>);
KVRI_EXPORT(kvriLUT_Cubic_32f_AC4IR, lutPixelsInPlace<Cubic, Kvr32f, AC4>);

}  // namespace
}  // namespace kvri
