// geometry/resize_init.cpp: fills Resize's specification objects: taps and weights of every destination position.
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numeric>

#include "core/dispatch.h"
#include "core/fpcontrol.h"
#include "geometry/resize_spec.h"

namespace kvri {
namespace {

// Kernels: weight at distance d >= 0 from the sample point, in units of the half-width's pixels.

struct Tent {
    static constexpr int reach = 1;
    static constexpr bool normalised = false;
    double operator()(double d) const { return d < 1 ? 1 - d : 0; }
};

struct CubicFamily {
    static constexpr int reach = 2;
    static constexpr bool normalised = false;
    double b, c;

    double operator()(double d) const {
        if (d < 1) return ((2 - 1.5 * b - c) * d + (-3 + 2 * b + c)) * d * d + (1 - b / 3);
        if (d < 2) return (((-b / 6 - c) * d + (b + 5 * c)) * d + (-2 * b - 8 * c)) * d + (4 * b / 3 + 4 * c);
        return 0;
    }
};

// sin(pi x) by its series around the nearest whole number; the same digits wherever the library is built.
constexpr double sinPi(double x) {
    const int whole = int(x + 0.5);
    const double t = 3.14159265358979323846 * (x - whole);
    double term = t, sum = t;
    for (int n = 2; n < 30; n += 2) {
        term *= -t * t / (n * (n + 1));
        sum += term;
    }
    return whole % 2 == 0 ? sum : -sum;
}

constexpr int kLanczosSteps = 200;  // samples per unit of distance

// sinc(x) * sinc(x / lobes), one unit more than the kernel reaches.
template <int Lobes>
constexpr auto kLanczosTable = [] {
    std::array<double, kLanczosSteps * (Lobes + 1) + 1> table{};
    table[0] = 1;
    for (int i = 1; i < int(table.size()); ++i) {
        constexpr double pi = 3.14159265358979323846;
        const double x = double(i) / kLanczosSteps;
        table[i] = sinPi(x) / (pi * x) * sinPi(x / Lobes) / (pi * x / Lobes);
    }
    return table;
}();

template <int Lobes>
struct LanczosKernel {
    static constexpr int reach = Lobes;
    static constexpr bool normalised = true;
    double operator()(double d) const {
        if (d >= Lobes) return 0;
        const double at = kLanczosSteps * d;
        const int i = int(at);
        const auto& table = kLanczosTable<Lobes>;
        return table[i] + (table[i + 1] - table[i]) * (at - i);
    }
};

// 1 / s by a single-precision estimate and one step of Newton's method.
double reciprocal(double s) {
    const double r = 1 / float(s);
    return 2 * r - s * r * r;
}

// Where an axis' tables lie and how they are ordered.
enum class Order { TapByTap, PositionByPosition };

class TableWriter {
    ResizeSpec& spec_;
    int64_t end_ = kResizeFixedBytes;

public:
    explicit TableWriter(ResizeSpec& spec) : spec_(spec) {}

    void place(ResizeAxis& a, int positions, int taps, int weightBytes, Order order) {
        a.taps = taps;
        a.index = int32_t(end_);
        a.weights = int32_t(end_ += upTo32(4 * int64_t(positions)));
        end_ += upTo32(int64_t(weightBytes) * positions * taps);
        a.positionStride = order == Order::TapByTap ? 1 : taps;
        a.tapStride = order == Order::TapByTap ? positions : 1;
    }
    int32_t& first(const ResizeAxis& a, int i) { return spec_.table<int32_t>(a.index)[i]; }
    template <class F>
    F& weight(const ResizeAxis& a, int i, int tap) {
        return spec_.table<F>(a.weights)[ptrdiff_t(i) * a.positionStride + ptrdiff_t(tap) * a.tapStride];
    }
};

// Leaves out taps that weigh nothing at any position: all but one where the axis keeps its length.
template <class F>
void dropZeroTaps(TableWriter& tables, ResizeAxis& a) {
    auto unused = [&](int tap) {
        for (int i = 0; i < a.period; ++i)
            if (tables.weight<F>(a, i, tap) != 0) return false;
        return true;
    };
    while (a.taps > 1 && unused(a.taps - 1)) --a.taps;
    int leading = 0;
    while (a.taps - leading > 1 && unused(leading)) ++leading;
    if (leading == 0) return;
    a.taps -= leading;
    a.weights += leading * a.tapStride * int32_t(sizeof(F));
    for (int i = 0; i < a.period; ++i) tables.first(a, i) += leading;
}

// The fewest bits behind the point that all weights have, or -1 where there are more than 7 or a weight is above 1.
int bitsOfWeights(const ResizeSpec& spec, const ResizeAxis& a) {
    constexpr int most = 7;
    int all = 0;
    for (int i = 0; i < a.period; ++i)
        for (int t = 0; t < a.taps; ++t) {
            const float scaled = spec.weight<float>(a, i, t) * (1 << most);
            if (!(std::abs(scaled) <= 1 << most) || scaled != std::floor(scaled)) return -1;
            all |= int(scaled);
        }
    return most - std::min(std::countr_zero(unsigned(all)), most);
}

// Whether weights are whole numbers of 2^-n such that products of 8u with two neighbours have 16 bits, and so have sums less
// 128 times the weights' sum, which is 1.
void measureWeights(const ResizeSpec& spec, ResizeAxis& a) {
    const int bits = a.taps <= kWholeTaps ? bitsOfWeights(spec, a) : -1;
    a.wholeBits = -1;
    if (bits < 0) return;
    int most = 0;
    for (int i = 0; i < a.period; ++i) {
        int sum = 0, magnitude = 0, positive = 0, negative = 0;
        for (int t = 0; t < a.taps; ++t) {
            const int w = int(spec.weight<float>(a, i, t) * float(1 << bits));
            if (t % 2 == 0) positive = negative = 0;
            (w > 0 ? positive : negative) += std::abs(w);
            if (w > 127 || std::max(positive, negative) > 128) return;
            sum += w, magnitude += std::abs(w);
        }
        if (sum != 1 << bits || magnitude > 255) return;
        most = std::max(most, magnitude);
    }
    a.wholeBits = bits;
    a.magnitude = most;
}

constexpr int kKeptTaps = 64;

template <class F, class Kernel>
void writeAxis(TableWriter& tables, ResizeAxis& a, const Kernel& kernel, bool stretch, Order order) {
    const double scale = stretch ? a.ratio() : 1, reach = Kernel::reach * scale;
    const int taps = stretch ? int(std::ceil(2 * reach)) : 2 * Kernel::reach;
    tables.place(a, a.destination, taps, sizeof(F), order);
    for (int i = 0; i < a.destination; ++i) {
        const double x = a.coordinate(i), index = std::floor(x);
        // Where fewer pixels lie within the reach than at other positions, the tap without weight is on the left.
        const int first = stretch ? std::min(int(std::floor(x - reach)) + 1, int(std::ceil(x + reach)) - taps) : int(index) + 1 - Kernel::reach;
        auto value = [&](int tap) {
            return kernel(std::abs(stretch ? (first + tap - x) / scale : first + tap - index - (x - index)));
        };
        double kept[kKeptTaps], sum = 0;  // of more taps, the later ones are computed twice
        for (int t = 0; t < taps; ++t) {
            const double v = value(t);
            if (t < kKeptTaps) kept[t] = v;
            sum += v;
        }
        const double factor = stretch || Kernel::normalised ? reciprocal(sum) : 1;
        tables.first(a, i) = first;
        for (int t = 0; t < taps; ++t) tables.weight<F>(a, i, t) = F((t < kKeptTaps ? kept[t] : value(t)) * factor);
        if constexpr (Kernel::reach == 1)  // 1 - f of the f that is stored
            if (!stretch) tables.weight<F>(a, i, 0) = 1 - tables.weight<F>(a, i, 1);
    }
    dropZeroTaps<F>(tables, a);
}

// 14 bits, rounded down.
void writeFixedAxis(TableWriter& tables, ResizeAxis& a, bool pairs) {
    tables.place(a, a.destination, 1, 4, Order::TapByTap);
    for (int i = 0; i < a.destination; ++i) {
        const double x = a.coordinate(i), index = std::floor(x);
        const int w = int((x - index) * 16384 + 1e-7);
        tables.first(a, i) = int(index);
        tables.weight<int32_t>(a, i, 0) = pairs ? w << 16 | (16384 - w) : w;
    }
    a.taps = 2;
}

void writeNearestAxis(TableWriter& tables, ResizeAxis& a) {
    tables.place(a, a.destination, 1, 0, Order::TapByTap);
    for (int i = 0; i < a.destination; ++i)  // a coordinate on the edge of two pixels goes to the first
        tables.first(a, i) = int((i + 0.5) * a.ratio() - 1e-10);
}

// Overlaps of destination pixel i with source pixels, both in units of 1 / reducedDestination source pixels.
void writeSuperAxis(TableWriter& tables, ResizeAxis& a, Order order) {
    const int64_t s = a.reducedSource, d = a.reducedDestination;
    a.period = int(d);
    tables.place(a, a.period, superTaps(a.reducedSource, a.reducedDestination), 4, order);
    for (int64_t i = 0; i < d; ++i) {
        const int64_t first = i * s / d;
        tables.first(a, int(i)) = int(first);
        for (int t = 0; t < a.taps; ++t) {
            const int64_t overlap = std::min((i + 1) * s, (first + t + 1) * d) - std::max(i * s, (first + t) * d);
            tables.weight<float>(a, int(i), t) = float(double(std::max<int64_t>(overlap, 0)) / double(s));
        }
    }
}

// Estimated operations per destination pixel. A step along a row costs about twice as much as one from row to row, and more
// where only few of the columns between the first and the last are taps.
bool rowsComeFirst(const ResizeSpec& spec) {
    const ResizeAxis &x = spec.x, &y = spec.y;
    constexpr double alongRow = 2;
    constexpr int longTaps = 256;  // taps of a pixel that rows of a strip can hold
    if (x.ratio() > x.taps) return false;
    if (x.taps > longTaps || y.taps > kMostKeptTaps || spec.method == kvrInterpSuper) return true;
    const double rowsPerRow = std::min<double>(y.ratio(), y.taps);
    return x.ratio() * y.taps + x.taps * alongRow < rowsPerRow * x.taps * alongRow + y.taps;
}

ResizeAxis axis(int src, int dst) {
    const int g = std::gcd(src, dst);
    ResizeAxis a{};
    a.source = src, a.destination = a.period = dst;
    a.reducedSource = src / g, a.reducedDestination = dst / g;
    a.quotient = double(a.reducedSource) / a.reducedDestination;
    return a;
}

int stretchedHalfWidth(const ResizeAxis& a, int reach) { return int((int64_t(reach) * a.source + a.destination - 1) / a.destination); }

ResizeSpec newSpec(KvriSize src, KvriSize dst, KvriInterpolationType method, ResizeWeights kind, int reach, bool antialiasing) {
    ResizeSpec spec{};
    spec.id = kind == ResizeWeights::Double ? kResizeSpecId64f : kResizeSpecId;
    spec.method = method;
    spec.antialiasing = antialiasing;
    spec.kind = kind;
    spec.x = axis(src.width, dst.width);
    spec.y = axis(src.height, dst.height);
    auto border = [&](ResizeAxis& a) {
        const bool stretched = antialiasing && a.shrinks();
        a.halfWidth = stretched ? stretchedHalfWidth(a, 1) : antialiasing ? 1 : reach;
        return stretched ? stretchedHalfWidth(a, reach) : reach;
    };
    const int columns = border(spec.x), rows = border(spec.y);
    spec.border = {columns, rows, columns, rows};
    return spec;
}

// The object is written when all that can fail has passed.
template <class F, class Kernel>
KvrStatus initSmooth(KvriSize src, KvriSize dst, KvriInterpolationType method, const Kernel& kernel, bool antialiasing,
                     KvriResizeSpec* pSpec) {
    const DefaultFloatControl control;
    ResizeSpec& spec = *alignedSpec(pSpec);
    spec = newSpec(src, dst, method, std::is_same_v<F, double> ? ResizeWeights::Double : ResizeWeights::Float, Kernel::reach, antialiasing);
    TableWriter tables(spec);
    writeAxis<F>(tables, spec.x, kernel, antialiasing && spec.x.shrinks(), Order::TapByTap);
    writeAxis<F>(tables, spec.y, kernel, antialiasing && spec.y.shrinks(), Order::PositionByPosition);
    if constexpr (std::is_same_v<F, float>) measureWeights(spec, spec.x), measureWeights(spec, spec.y);
    spec.rowsFirst = rowsComeFirst(spec);
    return kvrStatusOk;
}

KvrStatus initLanczos(KvriSize src, KvriSize dst, int lobes, bool antialiasing, KvriResizeSpec* pSpec) {
    if (lobes == 2) return initSmooth<float>(src, dst, kvrInterpLanczos, LanczosKernel<2>{}, antialiasing, pSpec);
    return initSmooth<float>(src, dst, kvrInterpLanczos, LanczosKernel<3>{}, antialiasing, pSpec);
}

KvrStatus lengthsPositive(KvriSize src, KvriSize dst) {
    return firstError(lengthsNotZero(src), lengthsNotZero(dst), lengthsNotNegative(src), lengthsNotNegative(dst));
}

KvrStatus atLeast(KvriSize src, int least) {
    return src.width < least || src.height < least ? kvrStatusBadSize : kvrStatusOk;
}

KvrStatus lobesKnown(int lobes) { return lobes == 2 || lobes == 3 ? kvrStatusOk : kvrStatusNotSupported; }

KvrStatus nearestInit(KvriSize src, KvriSize dst, KvriResizeSpec* pSpec) {
    if (KvrStatus e = firstError(nonNull(pSpec), lengthsPositive(src, dst))) return e;
    const DefaultFloatControl control;
    ResizeSpec& spec = *alignedSpec(pSpec);
    spec = newSpec(src, dst, kvrInterpNearest, ResizeWeights::None, 0, false);
    TableWriter tables(spec);
    writeNearestAxis(tables, spec.x);
    writeNearestAxis(tables, spec.y);
    return kvrStatusOk;
}

template <class F>
KvrStatus linearInit(KvriSize src, KvriSize dst, KvriResizeSpec* pSpec) {
    if (KvrStatus e = firstError(nonNull(pSpec), lengthsPositive(src, dst), atLeast(src, 2))) return e;
    return initSmooth<F>(src, dst, kvrInterpLinear, Tent{}, false, pSpec);
}

KvrStatus linearFixedInit(KvriSize src, KvriSize dst, KvriResizeSpec* pSpec) {
    if (KvrStatus e = firstError(nonNull(pSpec), lengthsPositive(src, dst), atLeast(src, 2))) return e;
    const DefaultFloatControl control;
    ResizeSpec& spec = *alignedSpec(pSpec);
    spec = newSpec(src, dst, kvrInterpLinear, ResizeWeights::Fixed14, 1, false);
    TableWriter tables(spec);
    writeFixedAxis(tables, spec.x, true);
    writeFixedAxis(tables, spec.y, false);
    return kvrStatusOk;
}

KvrStatus superInit(KvriSize src, KvriSize dst, KvriResizeSpec* pSpec) {
    if (KvrStatus e = firstError(nonNull(pSpec), lengthsPositive(src, dst))) return e;
    if (src.width < dst.width || src.height < dst.height) return kvrStatusBadSize;
    const DefaultFloatControl control;
    ResizeSpec& spec = *alignedSpec(pSpec);
    spec = newSpec(src, dst, kvrInterpSuper, ResizeWeights::Float, 0, false);
    TableWriter tables(spec);
    writeSuperAxis(tables, spec.x, Order::TapByTap);
    writeSuperAxis(tables, spec.y, Order::PositionByPosition);
    measureWeights(spec, spec.x), measureWeights(spec, spec.y);
    spec.rowsFirst = rowsComeFirst(spec);
    return kvrStatusOk;
}

template <bool antialiasing>
KvrStatus cubicInit(KvriSize src, KvriSize dst, Kvr32f valueB, Kvr32f valueC, KvriResizeSpec* pSpec, Kvr8u* pInitBuf) {
    if (KvrStatus e = firstError(nonNull(pSpec, pInitBuf), lengthsPositive(src, dst), atLeast(src, 4))) return e;
    return initSmooth<float>(src, dst, kvrInterpCubic, CubicFamily{valueB, valueC}, antialiasing, pSpec);
}

template <bool antialiasing>
KvrStatus lanczosInit(KvriSize src, KvriSize dst, int numLobes, KvriResizeSpec* pSpec, Kvr8u* pInitBuf) {
    if (KvrStatus e = firstError(nonNull(pSpec, pInitBuf), lengthsPositive(src, dst), lobesKnown(numLobes), atLeast(src, numLobes == 3 ? 6 : 4)))
        return e;
    return initLanczos(src, dst, numLobes, antialiasing, pSpec);
}

KvrStatus antialiasingLinearInit(KvriSize src, KvriSize dst, KvriResizeSpec* pSpec, Kvr8u* pInitBuf) {
    if (KvrStatus e = firstError(nonNull(pSpec, pInitBuf), lengthsPositive(src, dst), atLeast(src, 2))) return e;
    return initSmooth<float>(src, dst, kvrInterpLinear, Tent{}, true, pSpec);
}

KVRI_EXPORT(kvriResizeNearestInit_8u, nearestInit);
KVRI_EXPORT(kvriResizeNearestInit_16u, nearestInit);
KVRI_EXPORT(kvriResizeNearestInit_16s, nearestInit);
KVRI_EXPORT(kvriResizeNearestInit_32f, nearestInit);
KVRI_EXPORT(kvriResizeLinearInit_8u, linearFixedInit);
KVRI_EXPORT(kvriResizeLinearInit_16u, linearInit<float>);
KVRI_EXPORT(kvriResizeLinearInit_16s, linearInit<float>);
KVRI_EXPORT(kvriResizeLinearInit_32f, linearInit<float>);
KVRI_EXPORT(kvriResizeLinearInit_64f, linearInit<double>);
KVRI_EXPORT(kvriResizeCubicInit_8u, cubicInit<false>);
KVRI_EXPORT(kvriResizeCubicInit_16u, cubicInit<false>);
KVRI_EXPORT(kvriResizeCubicInit_16s, cubicInit<false>);
KVRI_EXPORT(kvriResizeCubicInit_32f, cubicInit<false>);
KVRI_EXPORT(kvriResizeLanczosInit_8u, lanczosInit<false>);
KVRI_EXPORT(kvriResizeLanczosInit_16u, lanczosInit<false>);
KVRI_EXPORT(kvriResizeLanczosInit_16s, lanczosInit<false>);
KVRI_EXPORT(kvriResizeLanczosInit_32f, lanczosInit<false>);
KVRI_EXPORT(kvriResizeSuperInit_8u, superInit);
KVRI_EXPORT(kvriResizeSuperInit_16u, superInit);
KVRI_EXPORT(kvriResizeSuperInit_16s, superInit);
KVRI_EXPORT(kvriResizeSuperInit_32f, superInit);
KVRI_EXPORT(kvriResizeAntialiasingLinearInit, antialiasingLinearInit);
KVRI_EXPORT(kvriResizeAntialiasingCubicInit, cubicInit<true>);
KVRI_EXPORT(kvriResizeAntialiasingLanczosInit, lanczosInit<true>);

}  // namespace
}  // namespace kvri
