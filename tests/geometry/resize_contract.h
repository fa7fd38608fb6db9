// tests/geometry/resize_contract.h: Resize as its contract words it, pixel by pixel.
#pragma once

#include <algorithm>
#include <cmath>
#include <numeric>

#include "tests/geometry/resize.h"

namespace test::resize::contract {

inline double sinc(double x) { return x == 0 ? 1 : std::sin(M_PI * x) / (M_PI * x); }

inline double lanczos(double d, int lobes) {
    if (d >= lobes) return 0;
    auto entry = [&](int i) { return sinc(i / 200.0) * sinc(i / 200.0 / lobes); };
    const int i = int(200 * d);
    return entry(i) + (entry(i + 1) - entry(i)) * (200 * d - i);
}

inline double cubic(double d, double b, double c) {
    if (d < 1) return (2 - 1.5 * b - c) * d * d * d + (-3 + 2 * b + c) * d * d + (1 - b / 3);
    if (d < 2) return (-b / 6 - c) * d * d * d + (b + 5 * c) * d * d + (-2 * b - 8 * c) * d + (4 * b / 3 + 4 * c);
    return 0;
}

inline int reach(KvriInterpolationType kernel, const Choice& o) {
    return kernel == kvrInterpLinear ? 1 : kernel == kvrInterpCubic ? 2 : kernel == kvrInterpLanczos ? o.lobes : 0;
}

inline double kernelAt(KvriInterpolationType kernel, const Choice& o, double d) {
    if (kernel == kvrInterpLinear) return std::max(0.0, 1 - d);
    return kernel == kvrInterpCubic ? cubic(d, o.b, o.c) : lanczos(d, o.lobes);
}

// A destination position's first tap and weights.
struct Taps {
    int first;
    std::vector<double> exact;
};

inline double coordinate(int src, int dst, int i) {
    const int g = std::gcd(src, dst);
    return (i + 0.5) * (double(src / g) / double(dst / g)) - 0.5;
}

inline Taps tapsAt(const Case& c, const Choice& o, int src, int dst, int i) {
    const KvriInterpolationType kernel = c.kernel(o);
    if (kernel == kvrInterpNearest) return {int((i + 0.5) * (double(src) / dst) - 1e-10), {1}};
    Taps taps;
    if (kernel == kvrInterpSuper) {  // [i, i + 1) * src / dst, in units of 1 / dst
        taps.first = int(int64_t(i) * src / dst);
        for (int64_t j = taps.first; j * dst < int64_t(i + 1) * src; ++j)
            taps.exact.push_back(double(std::min(int64_t(i + 1) * src, (j + 1) * dst) - std::max(int64_t(i) * src, j * dst)) / src);
        return taps;
    }
    const double x = coordinate(src, dst, i);
    const bool stretch = c.antialiasing() && dst < src;
    const double scale = stretch ? double(src) / dst : 1;
    const int k = reach(kernel, o);
    taps.first = stretch ? int(std::floor(x - k * scale)) + 1 : int(std::floor(x)) - k + 1;
    const int last = stretch ? int(std::ceil(x + k * scale)) - 1 : taps.first + 2 * k - 1;
    double sum = 0;
    for (int j = taps.first; j <= last; ++j) {
        const double w = kernelAt(kernel, o, std::abs(j - x) / scale);
        taps.exact.push_back(w);
        sum += w;
    }
    if (stretch || kernel == kvrInterpLanczos)
        for (double& w : taps.exact) w /= sum;
    return taps;
}

struct Plane {
    const Case& c;
    KvriSize size;
    std::function<const uint8_t*(int x, int y)> pixel;
    KvriBorderType border;
    KvriBorderSize beyond;  // pixels in memory on sides declared so

    int clampTo(int v, int length, int low, int high, int beyond) const {
        const bool all = (border & 7) == kvrBorderInMem;
        return std::clamp(v, all || (border & low) ? -beyond : 0, length - 1 + (all || (border & high) ? beyond : 0));
    }
    double at(int x, int y, int channel) const {
        x = clampTo(x, size.width, kvrBorderInMemLeft, kvrBorderInMemRight, beyond.left);
        y = clampTo(y, size.height, kvrBorderInMemTop, kvrBorderInMemBottom, beyond.top);
        const uint8_t* p = pixel(x, y) + channel * sampleBytes(c.type);
        auto read = [&]<class T>(T t) { return std::memcpy(&t, p, sizeof t), double(t); };
        switch (c.type) {
            case Type::u8: return read(Kvr8u{});
            case Type::u16: return read(Kvr16u{});
            case Type::s16: return read(Kvr16s{});
            case Type::f32: return read(Kvr32f{});
            default: return read(Kvr64f{});
        }
    }
};

// The double sum over the taps, in one of the two orders, in arithmetic of F.
template <class F>
F weightedSum(const Plane& p, const Taps& x, const Taps& y, int channel, bool rowsFirst) {
    const Taps &inner = rowsFirst ? y : x, &outer = rowsFirst ? x : y;
    F sum = 0;
    for (size_t o = 0; o < outer.exact.size(); ++o) {
        F line = 0;
        for (size_t i = 0; i < inner.exact.size(); ++i) {
            const int at = int(rowsFirst ? o : i), row = int(rowsFirst ? i : o);
            const F product = F(p.at(x.first + at, y.first + row, channel)) * F(inner.exact[i]);
            line = i == 0 ? product : line + product;
        }
        const F product = line * F(outer.exact[o]);
        sum = o == 0 ? product : sum + product;
    }
    return sum;
}

// The single-precision pair is 1 - f and f of a stored f.
inline void roundLinear(const Case& c, const Choice& o, Taps& t) {
    if (c.kernel(o) == kvrInterpLinear && t.exact.size() == 2 && c.type != Type::f64) t.exact[0] = 1.f - float(t.exact[1]);
}

inline void store(Type type, double v, uint8_t* to) {
    auto write = [&](auto t, double low, double high) {
        t = decltype(t)(std::nearbyint(std::clamp(v, low, high)));
        std::memcpy(to, &t, sizeof t);
    };
    if (type == Type::u8) write(Kvr8u{}, 0, 255);
    else if (type == Type::u16) write(Kvr16u{}, 0, 65535);
    else if (type == Type::s16) write(Kvr16s{}, -32768, 32767);
    else if (type == Type::f64) std::memcpy(to, &v, 8);
    else {
        const float f = float(v);
        std::memcpy(to, &f, 4);
    }
}

struct Axis {
    std::vector<Taps> position;
    std::vector<int> fixed14;  // linear 8u

    Axis(const Case& c, const Choice& o, int src, int dst) {
        for (int i = 0; i < dst; ++i) {
            position.push_back(tapsAt(c, o, src, dst, i));
            Taps& t = position.back();
            fixed14.push_back(int((coordinate(src, dst, i) - t.first) * 16384 + 1e-7));
            if (!(c.antialiasing() && dst < src)) roundLinear(c, o, t);
        }
    }
};

// One destination pixel; `rowsFirst` matters for sums in floating point.
inline void pixel(const Plane& p, const Axis& x, const Axis& y, int i, int j, bool rowsFirst, uint8_t* to) {
    const Case& c = p.c;
    const Taps &tx = x.position[i], &ty = y.position[j];
    for (int k = 0; k < c.channels; ++k, to += sampleBytes(c.type)) {
        if (c.method == kvrInterpLinear && c.type == Type::u8) {
            const int64_t w = x.fixed14[i], v = y.fixed14[j];
            auto row = [&](int r) {
                return int64_t(p.at(tx.first, ty.first + r, k)) * (16384 - w) + int64_t(p.at(tx.first + 1, ty.first + r, k)) * w;
            };
            *to = uint8_t((row(0) * (16384 - v) + row(1) * v + (1 << 27)) >> 28);
        } else if (c.type == Type::f64) {
            store(c.type, weightedSum<double>(p, tx, ty, k, rowsFirst), to);
        } else {
            store(c.type, weightedSum<float>(p, tx, ty, k, rowsFirst), to);
        }
    }
}

}  // namespace test::resize::contract
